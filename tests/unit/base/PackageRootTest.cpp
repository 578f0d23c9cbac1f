#include "base/PackageRoot.h"
#include "platform/Path.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

const bool onWindows = platform::folderSeparator == '\\';

std::string local(std::string path) {
  std::replace(path.begin(), path.end(), '/', platform::folderSeparator);
  return path;
}

struct Place {
  std::string folder;
  std::string package;
  std::optional<std::string> root;
};

void expectRoots(const std::vector<Place>& places) {
  for (const auto& [folder, package, root] : places) {
    const auto expected = root ? std::optional(local(*root)) : std::nullopt;
    EXPECT_EQ(rootOfPackage(local(folder), package), expected) << folder << " with " << package;
  }
}

TEST(PackageRoot, AFolderLessThoseOfThePackage) {
  expectRoots({{"/src/org/x", "org.x", "/src"},
               {"/src/org/x/", "org.x", "/src"},
               {"/src/org//x//", "org.x", "/src"},
               {"/src/org/x", "x", "/src/org"},
               {"src/org/x", "org.x", "src"},
               {"/src/with blank/org/x", "org.x", "/src/with blank"},
               {"/src/v1.2/org", "org", "/src/v1.2"}});
}

TEST(PackageRoot, TheUnnamedPackageBeginsWhereItLies) {
  expectRoots({{"/src/org", "", "/src/org"},
               {"/src/org/", "", "/src/org"},
               {"/", "", "/"},
               {".", "", "."},
               {"", "", "."},
               {"/src/..", "", "/src/.."}});
}

TEST(PackageRoot, NothingWhereTheFoldersAreNamedDifferently) {
  expectRoots({{"/src/org/y", "org.x", std::nullopt},
               {"/src/com/x", "org.x", std::nullopt},
               {"/src/org/x/more", "org.x", std::nullopt},
               {"/src/org.x", "org.x", std::nullopt},
               {"/src/xorg/x", "org.x", std::nullopt},
               {"/x", "org.x", std::nullopt},
               {"x", "org.x", std::nullopt},
               {"", "x", std::nullopt},
               {"/src/a/b", "a..b", std::nullopt},
               {"/src/a/b", ".a.b", std::nullopt},
               {"/src/a/b", "a.b.", std::nullopt}});
}

TEST(PackageRoot, WhatIsLeftCanBeTheTopOrTheCurrentFolder) {
  expectRoots({{"/org/x", "org.x", "/"}, {"org/x", "org.x", "."}, {"./org/x", "org.x", "."}, {"x/", "x", "."}});
}

TEST(PackageRoot, DotsAreStepsAndNoNames) {
  expectRoots({{"/src/./org/./x/.", "org.x", "/src/."},
               {"/src/org/y/../x", "org.x", "/src"},
               {"/src/org/y/z/../../x", "org.x", "/src"},
               {"/src/org/y/../z/../x", "org.x", "/src"},
               {"/src/org/x/y/..", "org.x", "/src"},
               {"/src/../org/x", "org.x", "/src/.."},
               {"../org/x", "org.x", ".."},
               {"../x", "org.x", std::nullopt},
               {"/src/org/../x", "org.x", std::nullopt},
               {"..", "x", std::nullopt},
               {"/..", "x", std::nullopt}});
}

TEST(PackageRoot, CaseIsTheSystemsAffair) {
  expectRoots({{"/src/Org/X", "org.x", onWindows ? std::optional<std::string>("/src") : std::nullopt}});
}

TEST(PackageRoot, EitherSeparatorCountsOnWindowsAlone) {
  EXPECT_EQ(rootOfPackage("C:\\src\\org/x", "org.x"), onWindows ? std::optional<std::string>("C:\\src") : std::nullopt);
  EXPECT_EQ(rootOfPackage("C:/src/org/x", "org.x"), std::optional<std::string>("C:/src"));
}

TEST(PackageRoot, ADriveKeepsItsTop) {
  if (!onWindows) GTEST_SKIP() << "there are no drives here";
  EXPECT_EQ(rootOfPackage("C:\\org\\x", "org.x"), std::optional<std::string>("C:\\"));
  EXPECT_EQ(rootOfPackage("C:org\\x", "org.x"), std::optional<std::string>("C:."));
  EXPECT_EQ(rootOfPackage("C:x", "org.x"), std::nullopt);
}

TEST(PackageRoot, ASharesNameIsNoPackage) {
  expectRoots({{"//computer/share/org/x", "org.x", "//computer/share"},
               {"//computer/org/x", "org.x", std::nullopt},
               {"//org/x", "org.x", std::nullopt},
               {"//computer/share", "", "//computer/share"}});
}

TEST(PackageRoot, OfASourceItIsItsFolderWhereThatIsNamedDifferently) {
  EXPECT_EQ(rootOfSource(Filename(local("/src/org/x/A.java")), "org.x"), local("/src"));
  EXPECT_EQ(rootOfSource(Filename(local("/src/org/y/A.java")), "org.x"), local("/src/org/y"));
  EXPECT_EQ(rootOfSource(Filename("A.java"), "org.x"), ".");
  EXPECT_EQ(rootOfSource(Filename("A.java"), ""), ".");
}

TEST(PackageRoot, AFolderForEachNameOfThePackage) {
  EXPECT_EQ(foldersOfPackage("org.x.y"), local("org/x/y"));
  EXPECT_EQ(foldersOfPackage("org"), "org");
  EXPECT_EQ(foldersOfPackage(""), "");
}

}  // namespace
}  // namespace tarnwick::test
