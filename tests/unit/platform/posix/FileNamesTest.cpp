#include "platform/FileNames.h"

#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

TEST(PosixFileNames, APathMayHave4095Bytes) {
  std::string path;
  while (path.size() < 4095) path += "/x";
  path.resize(4095);
  EXPECT_EQ(whyNoFile(path), "");
  EXPECT_EQ(whyNoFile(path + 'x'), "The system takes no path of more than 4095 bytes.");
  EXPECT_EQ(whyNoFile(""), "");
  EXPECT_EQ(whyNoFile("/tmp/?.java"), "");
}

TEST(PosixFileNames, ANameInUtf8IsOne) {
  EXPECT_EQ(fileNameOf("gr\xC3\xBC\xC3\x9F"), "gr\xC3\xBC\xC3\x9F");
  EXPECT_EQ(fileNameOf("gr\xFC\xDF"), "gr\xFC\xDF");
}

TEST(PosixFileNames, ANameInItMayHave255) {
  const char tooLong[] = "The system takes no name of more than 255 bytes in a path.";
  const std::string longest(255, 'x');
  EXPECT_EQ(whyNoFile("/a/" + longest + "/" + longest), "");
  EXPECT_EQ(whyNoFile("/a/" + longest + "x/b"), tooLong);
  EXPECT_EQ(whyNoFile("/a/b/x" + longest), tooLong);
}

}  // namespace
}  // namespace tarnwick::platform
