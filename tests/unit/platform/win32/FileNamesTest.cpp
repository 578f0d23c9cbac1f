#include "platform/FileNames.h"
#include "platform/FileSystem.h"

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

}  // namespace
}  // namespace tarnwick::platform
