#include "dialogs/JavadocInput.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

TEST(JavadocInputTest, BlanksSeparateAndQuotesKeepTogether) {
  const std::pair<const char*, Names> table[] = {
      {"", {}},
      {"   ", {}},
      {"a.java", {"a.java"}},
      {"  a.java   b.java ", {"a.java", "b.java"}},
      {"\"C:\\a b\\B.java\" \"C:\\C.java\" ", {"C:\\a b\\B.java", "C:\\C.java"}},
      {"\"a.java\"b.java c.java", {"a.java", "b.java", "c.java"}},
      {"a.java\"b.java c.java", {"a.java\"b.java", "c.java"}},
      {"\"  a.java\" b", {"a.java", "b"}},
      {"a \"", {"a"}},
      {"a \"   ", {"a"}},
      {"\"\" a", {"", "a"}},
  };
  for (const auto& [list, names] : table) EXPECT_EQ(inputNames(list), names) << list;
}

TEST(JavadocInputTest, AQuoteThatIsNeverClosedReachesToTheEnd) {
  EXPECT_EQ(inputNames("x \"a b.java c.java"), (Names{"x", "a b.java c.java"}));
}

TEST(JavadocInputTest, AFileIsQuotedAlsoIfItHoldsNoBlank) {
  EXPECT_EQ(inputElement("C:\\a\\B.java"), "\"C:\\a\\B.java\" ");
  EXPECT_EQ(inputElement("a b.java"), "\"a b.java\" ");
}

TEST(JavadocInputTest, ANameWithAQuoteGoesInWithoutOthersOrNotAtAll) {
  EXPECT_EQ(inputElement("a\"b.java"), "a\"b.java ");
  EXPECT_EQ(inputElement("a\"b c.java"), std::nullopt);
}

TEST(JavadocInputTest, EveryElementComesBackAsItsName) {
  std::string list;
  const Names names = {"a.java", "b c.java", "d\"e.java", "'f'.java", "#g.java"};
  for (const auto& name : names) list += inputElement(name).value_or("");
  EXPECT_EQ(inputNames(list), names);
}

class JavadocWordsTest : public testing::Test {
 protected:
  JavadocWordsTest() : before_(platform::currentDirectory()) {
    for (const char* name : {"-x.java", "@y.java", "+z.java", "a.java"}) writeFile(scratch_.file(name), "");
    platform::makeFolders(scratch_.file("src"));
    writeFile(scratch_.file("src/-s.java"), "");
    platform::changeDirectory(scratch_.path());
  }
  ~JavadocWordsTest() override { platform::changeDirectory(before_); }

  ScratchFolder scratch_;
  const std::string here_ = std::string(".") + platform::folderSeparator;

 private:
  std::string before_;
};

TEST_F(JavadocWordsTest, AFileThatLooksLikeAnOptionIsNamedByWayOfItsFolder) {
  EXPECT_EQ(inputArgument("-x.java", ""), here_ + "-x.java");
  EXPECT_EQ(inputArgument("@y.java", ""), here_ + "@y.java");
  EXPECT_EQ(inputArgument("-s.java", "src"), here_ + "-s.java");
  EXPECT_EQ(inputArgument("a.java", ""), "a.java");
}

TEST_F(JavadocWordsTest, AnOptionThatIsNoFileStaysOne) {
  EXPECT_EQ(inputArgument("-Xdoclint:none", ""), "-Xdoclint:none");
  EXPECT_EQ(inputArgument("@options", ""), "@options");
}

TEST_F(JavadocWordsTest, EachWordHasATabBehindIt) {
  EXPECT_EQ(inputWords({"a.java", "two words.java", "-x.java", "-quiet"}, ""),
            "a.java\t\"two words.java\"\t" + here_ + "-x.java\t-quiet\t");
  EXPECT_EQ(inputWords({}, ""), "");
}

TEST_F(JavadocWordsTest, WhiteSpaceAroundANameDoesNotCount) {
  EXPECT_EQ(inputWords({"a b.java  "}, ""), "\"a b.java\"\t");
}

}  // namespace
}  // namespace tarnwick::test
