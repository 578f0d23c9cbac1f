#include "base/Tarnwickfile.h"
#include "source/SourceText.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {
namespace {

class SourceTextTest : public testing::Test {
 protected:
  std::string path() const { return scratch_.file("My Source.java"); }

  std::string read(const std::string& content) {
    writeFile(path(), content);
    return sourceText(path());
  }
  static std::string failure(const std::string& path) {
    try {
      sourceText(path);
    } catch (const Tarnwickfile::FileNotOpenE& caught) {
      EXPECT_EQ(caught.file, path);
      return caught.message;
    }
    return {};
  }

  const ScratchFolder scratch_;
};

TEST_F(SourceTextTest, GivesTheBytesAsTheyAre) {
  for (const std::string& content :
       {std::string(), std::string("a"), std::string("\r\n\n\r\x1A\0\xFF", 7), std::string(300'000, '\r')})
    EXPECT_EQ(read(content), content);
}

TEST_F(SourceTextTest, RefusesWhatIsNotThere) {
  EXPECT_EQ(failure(scratch_.file("No.java")), "No such file or directory");
  EXPECT_NE(failure(scratch_.path()), "");
}

TEST_F(SourceTextTest, RefusesLineEndsInNames) {
  EXPECT_EQ(failure(scratch_.file("A\nB.java")), "The name holds a line end");
}

}  // namespace
}  // namespace tarnwick::test
