#include "platform/Characters.h"
#include "ui/Pixels.h"
#include "ui/Text.h"
#include "ui/WxConsolePainter.h"

#include <wx/font.h>

#include <chrono>
#include <gtest/gtest.h>

namespace tarnwick::test {

namespace {

constexpr Colour red{200, 0, 0};

// What a broken program may write: the toolkit would be busy with such a letter for minutes.
TEST(ConsolePainter, AMillionMarksOnOneLetterTakeNoTime) {
  const std::string mark = ui::fromWx(wxString(wxUniChar(0x301)));
  if (platform::columnsOf(mark) != 0) GTEST_SKIP() << "every character takes a column here";
  std::string text = "M";
  for (int i = 0; i < 1000000; ++i) text += mark;
  wxBitmap bitmap(100, 60, 24);
  wxMemoryDC device(bitmap);
  device.SetBackground(*wxWHITE_BRUSH);
  device.Clear();
  device.SetFont(wxFontInfo(10).Family(wxFONTFAMILY_TELETYPE));
  const auto begin = std::chrono::steady_clock::now();
  ui::WxConsolePainter painter(device, wxRect(0, 0, 100, 60), {10, 20}, true);
  painter.drawText(0, 30, text + "M", red);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
  device.SelectObject(wxNullBitmap);
  const wxImage picture = bitmap.ConvertToImage();
  EXPECT_GT(countIn(picture, wxRect(0, 30, 10, 20), isReddish), 10);
  EXPECT_GT(countIn(picture, wxRect(10, 30, 10, 20), isReddish), 10);
  EXPECT_EQ(countIn(picture, wxRect(21, 0, 79, 60), isReddish), 0);
}

}  // namespace

}  // namespace tarnwick::test
