#include "ui/Text.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace tarnwick::test {

TEST(WindowsTextTest, ALetterOutsideTheCharacterSetIsAQuestionMarkAndNeverOneThatLooksAlike) {
  if (GetACP() != 1252) GTEST_SKIP() << "the character set is " << GetACP();
  EXPECT_EQ(ui::fromWx(wxString(L"C:\\\u65E5\u672C\\Jp.java")), "C:\\??\\Jp.java");
  EXPECT_EQ(ui::fromWx(wxString(L"\u0101 \uFF02 \u2215")), "? ? ?");
  EXPECT_EQ(ui::fromWx(wxString(L"Gr\u00F6\u00DFe \u20AC")),
            "Gr\xF6\xDF"
            "e \x80");
}

}  // namespace tarnwick::test
