#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"
#include "tools/JarArguments.h"

#include <functional>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

using Words = std::vector<std::string>;

JarRun runWith(const std::function<void(JarRun&)>& change) {
  JarRun run;
  run.operation = JarOperation::Create;
  run.archive = "a.jar";
  change(run);
  return run;
}

TEST(JarArgumentsTest, EveryPartHasItsPlace) {
  const struct {
    const char* rule;
    std::function<void(JarRun&)> change;
    Words expected;
  } table[] = {
      {"nothing but the archive", [](JarRun&) {}, {"jar", "cf", "a.jar"}},
      {"an update", [](JarRun& run) { run.operation = JarOperation::Update; }, {"jar", "uf", "a.jar"}},
      {"all letters but M",
       [](JarRun& run) {
         run.manifest = "m.mf";
         run.verbose = run.noCompression = true;
       },
       {"jar", "cfmv0", "a.jar", "m.mf"}},
      {"all letters",
       [](JarRun& run) {
         run.operation = JarOperation::Update;
         run.manifest = "m.mf";
         run.verbose = run.noCompression = run.noManifest = true;
       },
       {"jar", "ufmv0M", "a.jar", "m.mf"}},
      {"verbose alone", [](JarRun& run) { run.verbose = true; }, {"jar", "cfv", "a.jar"}},
      {"no compression alone", [](JarRun& run) { run.noCompression = true; }, {"jar", "cf0", "a.jar"}},
      {"no manifest alone", [](JarRun& run) { run.noManifest = true; }, {"jar", "cfM", "a.jar"}},
      {"an archive with a blank", [](JarRun& run) { run.archive = "my a.jar"; }, {"jar", "cf", "\"my a.jar\""}},
      {"an archive in quotes", [](JarRun& run) { run.archive = "\"a.jar\""; }, {"jar", "cf", "a.jar"}},
      {"an archive with a blank in quotes",
       [](JarRun& run) { run.archive = "\"my a.jar\""; },
       {"jar", "cf", "\"my a.jar\""}},
      {"the manifest as it stands",
       [](JarRun& run) { run.manifest = "\"my m.mf\""; },
       {"jar", "cfm", "a.jar", "\"my m.mf\""}},
      {"all files",
       [](JarRun& run) {
         run.allFiles = true;
         run.manifest = "m.mf";
         run.subfolders = "x";
         run.individualFiles = "y";
       },
       {"jar", "cfm", "a.jar", "m.mf", "*"}},
      {"folders before files",
       [](JarRun& run) {
         run.subfolders = "sub \"sub two\" ";
         run.individualFiles = "a.class \"b c.class\"";
       },
       {"jar", "cf", "a.jar", "sub \"sub two\" ", "a.class \"b c.class\""}},
      {"files from a folder",
       [](JarRun& run) {
         run.subfolders = "sub";
         run.individualFiles = "a.class b.class";
         run.lastFilesFolder = "x";
       },
       {"jar", "cf", "a.jar", "sub", " -C x b.class -C x a.class"}},
      {"a folder without files",
       [](JarRun& run) {
         run.subfolders = "sub";
         run.lastFilesFolder = "x";
       },
       {"jar", "cf", "a.jar", "sub"}},
      {"an index looks at nothing else",
       [](JarRun& run) {
         run.operation = JarOperation::CreateIndex;
         run.archive = "\"my a.jar\"";
         run.manifest = "m.mf";
         run.verbose = run.noCompression = run.noManifest = run.allFiles = true;
         run.subfolders = "sub";
         run.individualFiles = "y";
       },
       {"jar", "-i", "\"my a.jar\""}},
  };
  for (const auto& row : table) EXPECT_EQ(jarArguments(runWith(row.change)), row.expected) << row.rule;
}

TEST(JarArgumentsTest, FilesOfAFolderAreTakenFromTheListsEnd) {
  const struct {
    const char* names;
    const char* expected;
  } table[] = {
      {"a", " -C x a"},
      {"a b c", " -C x c -C x b -C x a"},
      {"a  b ", " -C x b -C x a"},
      {"a\tb", " -C x b -C x a"},
      {"\"a b\"", " -C x \"a b\""},
      {"\"a b\" c \"d e\"", " -C x \"d e\" -C x c -C x \"a b\""},
      {"\"a b\"\"c d\"", " -C x \"c d\" -C x \"a b\""},
      // A quote that belongs to a name.
      {R"(x "a \"b\" c" y)", R"( -C x y -C x "a \"b\" c" -C x x)"},
      {R"(x b\")", R"( -C x b\" -C x x)"},
      {R"(x "a b\\")", R"( -C x "a b\\" -C x x)"},
      // The first quote that opens is missing: nothing is lost, and it ends.
      {"a b\"", " -C x b\" -C x a"},
      {"\"", " -C x \""},
  };
  for (const auto& row : table) {
    const auto run = runWith([&row](JarRun& change) {
      change.individualFiles = row.names;
      change.lastFilesFolder = "x";
    });
    EXPECT_EQ(jarArguments(run), (Words{"jar", "cf", "a.jar", row.expected})) << row.names;
  }
}

TEST(JarArgumentsTest, AnArchiveIsNoOption) {
  for (const std::string name : {"-a.jar", "@a.jar"}) {
    const auto run = runWith([&name](JarRun& change) { change.archive = name; });
    EXPECT_EQ(jarArguments(run)[2], std::string(".") + platform::folderSeparator + name);
  }
}

TEST(JarArgumentsTest, AManifestHasALineForEachValue) {
  EXPECT_EQ(manifestLines("", ""), "");
  EXPECT_EQ(manifestLines("p.Main", ""), "Main-Class: p.Main\n");
  EXPECT_EQ(manifestLines("", "a.jar b.jar"), "Class-Path: a.jar b.jar\n");
  EXPECT_EQ(manifestLines("p.Main", "a.jar;\"b c.jar\""), "Main-Class: p.Main\nClass-Path: a.jar;\"b c.jar\"\n");
}

/// A base folder with a folder in it, and one beside it.
class ArchiveForRunTest : public testing::Test {
 protected:
  ArchiveForRunTest() {
    for (const auto& folder : {base() + "sub", scratch_.file("base two")}) platform::makeFolders(folder);
  }

  std::string base() const { return scratch_.file("base") + separator; }

  static std::string nameOf(
      const std::string& archive, const std::string& base,
      const std::function<void(JarRun&)>& change = [](JarRun&) {}) {
    return archiveForRun(runWith([&](JarRun& run) {
                           run.archive = archive;
                           change(run);
                         }),
                         base);
  }

  const std::string separator = std::string(1, platform::folderSeparator);
  ScratchFolder scratch_;
};

TEST_F(ArchiveForRunTest, OneBelowTheBaseFolderIsNamedFromThere) {
  for (const std::string& folder : {base(), scratch_.file("base")}) {
    EXPECT_EQ(nameOf(base() + "my x.jar", folder), "my x.jar");
    EXPECT_EQ(nameOf('"' + base() + "my x.jar\"", folder), "my x.jar");
    EXPECT_EQ(nameOf(base() + "sub" + separator + "x.jar", folder), "sub" + separator + "x.jar");
  }
}

TEST_F(ArchiveForRunTest, OneElsewhereKeepsItsName) {
  for (const std::string& archive : {scratch_.file("x.jar"), scratch_.file("base two" + separator + "x.jar")})
    EXPECT_EQ(nameOf(archive, base()), archive);
}

TEST_F(ArchiveForRunTest, ARelativeBaseFolderIsOneOfTheCurrentFolder) {
  const std::string before = platform::currentDirectory();
  ASSERT_TRUE(platform::changeDirectory(scratch_.path()));
  EXPECT_EQ(nameOf(base() + "x.jar", "base"), "x.jar");
  platform::changeDirectory(before);
}

TEST_F(ArchiveForRunTest, FilesFromAnotherFolderAloneLeaveItsName) {
  // There, a file of the archive's own name is another file.
  const auto filesFrom = [](const std::string& folder, const std::string& subfolders) {
    return [folder, subfolders](JarRun& run) {
      run.individualFiles = "x.jar";
      run.lastFilesFolder = folder;
      run.subfolders = subfolders;
    };
  };
  const std::string archive = base() + "x.jar";
  const std::string elsewhere = '"' + scratch_.file("base two") + '"';
  EXPECT_EQ(nameOf(archive, base(), filesFrom(elsewhere, "")), archive);
  EXPECT_EQ(nameOf(archive, base(), filesFrom(elsewhere, "sub")), "x.jar");
  EXPECT_EQ(nameOf(archive, base(), filesFrom('"' + scratch_.file("base") + '"', "")), "x.jar");
}

TEST_F(ArchiveForRunTest, AnIndexAndAMissingBaseFolderLeaveItsName) {
  const std::string archive = base() + "x.jar";
  EXPECT_EQ(nameOf(archive, base(), [](JarRun& run) { run.operation = JarOperation::CreateIndex; }), archive);
  EXPECT_EQ(nameOf(archive, ""), archive);
}

}  // namespace
}  // namespace tarnwick::test
