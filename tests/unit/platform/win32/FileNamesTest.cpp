#include "platform/FileNames.h"
#include "platform/FileSystem.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

const char tooLong[] = "Windows takes no path of more than 259 characters from this program.";
const char unknownLetter[] =
    "No file's name holds a \"?\". It may stand for a letter that is not in the character set which Windows gives to "
    "this "
    "program.";

TEST(WindowsFileNames, APathMayHave259Characters) {
  EXPECT_EQ(whyNoFile("C:\\" + std::string(256, 'x')), "");
  EXPECT_EQ(whyNoFile("C:\\" + std::string(257, 'x')), tooLong);
  EXPECT_EQ(whyNoFile(""), "");
}

TEST(WindowsFileNames, ItIsTheWholePathThatCounts) {
  // Of plain letters: not so the folders of other tests, whose characters are not their bytes.
  const std::string folder = "C:\\windows\\";
  const std::string before = currentDirectory();
  ASSERT_TRUE(changeDirectory(folder));
  const std::size_t left = 259 - folder.size();
  EXPECT_EQ(whyNoFile(std::string(left, 'x')), "");
  EXPECT_EQ(whyNoFile(std::string(left + 1, 'x')), tooLong);
  changeDirectory(before);
}

TEST(WindowsFileNames, AQuestionMarkStandsForALetterOutsideTheCharacterSet) {
  EXPECT_EQ(whyNoFile("C:\\??\\Jp.java"), unknownLetter);
  EXPECT_EQ(whyNoFile("?.java"), unknownLetter);
  EXPECT_EQ(whyNoFile("\\\\?\\C:\\Jp.java"), "") << "the system's own sign for paths of this kind";
  EXPECT_EQ(whyNoFile("\\\\?\\C:\\?.java"), unknownLetter);
}

TEST(WindowsFileNames, ANameInUtf8IsSpelledInTheCharacterSet) {
  EXPECT_EQ(fileNameOf("shop.Till$In"), "shop.Till$In");
  EXPECT_EQ(fileNameOf(""), "");
  if (GetACP() != 1252) GTEST_SKIP() << "the character set is " << GetACP();
  EXPECT_EQ(fileNameOf("gr\xC3\xBC\xC3\x9F.\xE2\x82\xAC"), "gr\xFC\xDF.\x80");
  EXPECT_EQ(fileNameOf("gr\xFC\xDF"), "gr\xFC\xDF") << "it is no UTF-8";
  EXPECT_EQ(fileNameOf("\xE6\x97\xA5\xC3\xBC"), "\xE6\x97\xA5\xC3\xBC") << "no file's name here has this letter";
  EXPECT_EQ(fileNameOf("\xC4\x80"), "\xC4\x80") << "nor is another taken for it";
}

}  // namespace
}  // namespace tarnwick::platform
