// Names in a source of UTF-8 and the files that are called so in the system's character set.
#include "platform/Path.h"
#include "source/Compiler.h"
#include "source/JavaReading.h"
#include "source/JavaSourcefile.h"
#include "source/TypeIndex.h"
#include "support/FileTimes.h"
#include "support/SettingsFixture.h"

#include <windows.h>

#include <algorithm>

namespace tarnwick::test {
namespace {

constexpr std::time_t start = 1'500'000'000;
constexpr JavaReading newer{true, 17};

class SourceNamesTest : public SettingsFixture {
 protected:
  void SetUp() override {
    if (GetACP() != 1252) GTEST_SKIP() << "the character set is " << GetACP();
    platform::makeFolders(folder());
  }
  std::string root() const { return scratch_.file("src"); }
  std::string folder() const { return scratch_.file("src\\gr\xFC\xDF"); }
  std::string write(const std::string& name, const std::string& text) const {
    writeFile(folder() + '\\' + name, text);
    setFileTime(folder() + '\\' + name, start);
    return folder() + '\\' + name;
  }
};

TEST_F(SourceNamesTest, APackageIsItsFolderAndAClassItsFile) {
  const std::string path = write("\xD6l.java", "package gr\xC3\xBC\xC3\x9F; class \xC3\x96l { class \xC3\x84 {} }");
  JavaSourcefile source(path, FileMode::Read);
  source.analyse(newer);
  EXPECT_EQ(source.root(), root());
  EXPECT_EQ(source.indexedName(*source.types().front()), "gr\xFC\xDF.\xD6l");
  const auto isUpToDate = [&] {
    std::vector<ClassRef> entries;
    for (const auto& type : source.types()) entries.push_back({*type, source});
    return source.isUpToDate(TypeIndex(entries), "", root());
  };
  write("\xD6l.class", "");
  EXPECT_FALSE(isUpToDate());
  write("\xD6l$\xC4.class", "");
  EXPECT_TRUE(isUpToDate());
}

TEST_F(SourceNamesTest, ASupertypeIsKnownByItsNameInAnySpelling) {
  JavaSourcefile above(write("\xD6l.java", "package gr\xFC\xDF; class \xD6l {}"), FileMode::Read);
  JavaSourcefile below(write("B.java", "package gr\xC3\xBC\xC3\x9F; class B extends \xC3\x96l implements \xC3\x84 {}"),
                       FileMode::Read);
  JavaSourcefile other(write("C.java", "import gr\xC3\xBC\xC3\x9F.*; class C {}"), FileMode::Read);
  for (JavaSourcefile* source : {&above, &below, &other}) source->analyse(newer);
  EXPECT_EQ(above.indexedName(*above.types().front()), "gr\xFC\xDF.\xD6l");
  EXPECT_EQ(below.types().front()->extendsList, std::vector<std::string>{"\xD6l"});
  EXPECT_EQ(below.types().front()->implementsList, std::vector<std::string>{"\xC4"});
  const auto meanings = other.meaningsOf("\xD6l");
  EXPECT_EQ(std::count(meanings.begin(), meanings.end(), "gr\xFC\xDF.\xD6l"), 1);
}

TEST_F(SourceNamesTest, APublicTypeMayBearItsFilesName) {
  EXPECT_TRUE(newerWayTakes(write("\xD6l.java", "public enum \xC3\x96l { A }")));
  EXPECT_FALSE(newerWayTakes(write("\xC4.java", "public enum \xC3\x96l { A }")));
}

TEST_F(SourceNamesTest, PiecesOfASplitSourceAreCalledSoAndClassesGoToTheRoot) {
  const ScopedEnvironment record("STANDIN_RECORD", scratch_.file("record"));
  const ScopedEnvironment script("STANDIN_SCRIPT", scratch_.file("script"));
  writeFile(scratch_.file("script"), "");
  useStandIns();
  settings().newerJava = true;
  FileForSubprocess source(
      write("X.java", "package gr\xC3\xBC\xC3\x9F; public class \xC3\x96l {} public enum B { A }"));
  const RunResult result = Compiler(settings(), std::nullopt).compile(source, FileMode::Write);
  EXPECT_FALSE(result.said) << contentOf(log_.path());
  EXPECT_EQ(result.failures, std::vector<std::string>{});
  const std::string recorded = contentOf(scratch_.file("record"));
  EXPECT_NE(recorded.find("\\\xD6l.java\n"), std::string::npos) << recorded;
  EXPECT_NE(recorded.find("-d\n" + root() + "\n"), std::string::npos) << recorded;
}

}  // namespace
}  // namespace tarnwick::test
