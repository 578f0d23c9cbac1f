#include "platform/OwnFiles.h"
#include "support/SplitterFixture.h"

#include <windows.h>

#include <algorithm>

namespace tarnwick::test {
namespace {

const char twoPublic[] = "public class A {} public class B {}";

class SetAsideWindowsTest : public SplitterFixture {
 protected:
  void expectSplit() {
    const Outcome outcome = split("X.java", twoPublic);
    EXPECT_EQ(outcome.fault, std::nullopt);
    EXPECT_EQ(outcome.pieces, (Names{"public class A {}", " public class B {}"}));
  }
};

TEST_F(SetAsideWindowsTest, AReadOnlyFileOfAPiecesNameComesBackAsItWas) {
  writeFile(path("A.java"), "mine");
  ASSERT_TRUE(SetFileAttributesA(path("A.java").c_str(), FILE_ATTRIBUTE_READONLY));
  expectSplit();
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_NE(GetFileAttributesA(path("A.java").c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
  ASSERT_TRUE(SetFileAttributesA(path("A.java").c_str(), FILE_ATTRIBUTE_NORMAL));
}

TEST_F(SetAsideWindowsTest, AFileOfAPiecesNameThatHasASecondNameIsNotWritten) {
  writeFile(path("precious"), "mine");
  if (!CreateHardLinkA(path("A.java").c_str(), path("precious").c_str(), nullptr))
    GTEST_SKIP() << "no hard links here: error " << GetLastError();
  expectSplit();
  EXPECT_EQ(contentOf(path("precious")), "mine");
  EXPECT_EQ(contentOf(path("A.java")), "mine");
}

TEST_F(SetAsideWindowsTest, AFileThatAProgramHoldsIsTold) {
  writeFile(path("A.java"), "mine");
  const HANDLE held =
      CreateFileA(path("A.java").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  EXPECT_EQ(faultOf("X.java", twoPublic), "Permission denied\nCan't process file " + path("A.java"));
  CloseHandle(held);
  EXPECT_EQ(contentOf(path("A.java")), "mine");
  EXPECT_FALSE(isThere("B.java"));
  EXPECT_FALSE(isThere("Tarnwick_split1.tmp"));
}

TEST_F(SetAsideWindowsTest, ASourceWhoseNameDiffersInTheCaseOfALetterBeyondAsciiIsNeverTouched) {
  const std::string lower = "\xE4.java";
  writeFile(path(lower), "");
  if (!isThere("\xC4.java")) GTEST_SKIP() << "these are two names in this character set";
  const std::string text = "public class \xC4 {} public class B {}";
  EXPECT_EQ(faultOf(lower, text), "File exists\nCan't process file " + path("\xC4.java"));
  EXPECT_EQ(contentOf(path(lower)), text);
}

}  // namespace
}  // namespace tarnwick::test
