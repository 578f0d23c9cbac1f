// The floors of the house, read from the includes of its sources.
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/CheckoutFolder.h"
#include "support/Floors.h"
#include "support/TestProgram.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick::test {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

/// Made-up sources: pairs of a name below the source folder and a content.
class FloorsTest : public testing::Test {
 protected:
  FloorsTest() { EXPECT_TRUE(platform::changeDirectory(scratch_.path())); }

  Lines violationsOf(const std::vector<std::pair<std::string, std::string>>& sources) {
    for (const auto& [name, content] : sources) {
      // Both systems take slashes. The names are relative, since the path of the scratch folder is in the system's
      // character set, which fs::path does not take on Windows.
      const std::string path = "src/" + name;
      EXPECT_TRUE(platform::makeFolders(path.substr(0, path.rfind('/')))) << path;
      writeFile(path, content);
    }
    const auto report = inspectFloors("src");
    EXPECT_EQ(report.files, static_cast<int>(sources.size()));
    return report.violations;
  }

 private:
  ScratchFolder scratch_;
};

/// The sources of the checkout that this program was built from. Under Wine they are on drive Z:.
fs::path sourceFolder() {
  const std::string checkout = checkoutFolder();  // UTF-8, whatever this process's own set is
  const auto folder = fs::path(std::u8string(checkout.begin(), checkout.end())) / "src";
  return platform::folderSeparator == '\\' && !folder.has_root_name() ? fs::path("Z:") / folder : folder;
}

TEST_F(FloorsTest, theHouseHolds) {
  if (platform::folderSeparator == '\\' && !fs::exists(sourceFolder()))
    GTEST_SKIP() << "the sources are not on this machine: " << sourceFolder();
  const auto report = inspectFloors(sourceFolder());
  EXPECT_GT(report.files, 20);
  EXPECT_GT(report.includes, 20);
  for (const auto& violation : report.violations) ADD_FAILURE() << violation;
}

TEST_F(FloorsTest, includesThatGoDownOrStayAreNoViolation) {
  EXPECT_EQ(violationsOf({{"platform/Path.h", "#pragma once\n#include <string>\n"},
                          {"platform/posix/Path.cpp", "#include \"platform/Path.h\"\n"},
                          {"base/Text.h", "#pragma once\n#include \"platform/Path.h\"\n"},
                          {"base/Text.cpp", "#include \"base/Text.h\"\n"},
                          {"ui/Frame.h", "#pragma once\n#include <wx/frame.h>\n#include \"base/Text.h\"\n"},
                          {"main.cpp", "#include <wx/app.h>\n#include \"ui/Frame.h\"\n"}}),
            Lines{});
}

TEST_F(FloorsTest, anIncludeThatGoesUpIsFound) {
  EXPECT_EQ(violationsOf({{"settings/Settings.h", "#pragma once\n"},
                          {"process/Runner.cpp", "#include <string>\n\n  #  include \"settings/Settings.h\"\n"}}),
            Lines{"process/Runner.cpp:3: \"settings/Settings.h\" goes up"});
}

TEST_F(FloorsTest, theTopOfTheHouseIsAboveEveryFloor) {
  EXPECT_EQ(violationsOf({{"app/App.h", "#pragma once\n"},
                          {"ui/Frame.h", "#pragma once\n"},
                          {"main.cpp", "#include \"app/App.h\"\n"},
                          {"app/App.cpp", "#include \"ui/Frame.h\"\n"}}),
            Lines{"app/App.cpp:1: \"ui/Frame.h\" goes up"});
}

TEST_F(FloorsTest, anIncludeBetweenFoldersOfOneFloorIsFound) {
  EXPECT_EQ(
      violationsOf({{"console/View.h", "#pragma once\n"}, {"source/Reader.cpp", "#include \"console/View.h\"\n"}}),
      Lines{"source/Reader.cpp:1: \"console/View.h\" crosses to a folder of the same floor"});
}

TEST_F(FloorsTest, aCircleAmongFilesIsFound) {
  EXPECT_EQ(violationsOf({{"base/A.h", "#pragma once\n#include \"base/B.h\"\n"},
                          {"base/B.h", "#pragma once\n\n#include \"base/C.h\"\n"},
                          {"base/C.h", "#pragma once\n#include <vector>\n#include <map>\n#include \"base/A.h\"\n"}}),
            Lines{"base/C.h:4: closes the circle base/A.h > base/B.h > base/C.h > base/A.h"});
}

TEST_F(FloorsTest, aFileThatIncludesItselfIsACircle) {
  EXPECT_EQ(violationsOf({{"base/A.h", "#pragma once\n#include \"base/A.h\"\n"}}),
            Lines{"base/A.h:2: closes the circle base/A.h > base/A.h"});
}

TEST_F(FloorsTest, twoWaysToOneFileAreNoCircle) {
  EXPECT_EQ(violationsOf({{"base/A.h", "#include \"base/B.h\"\n#include \"base/C.h\"\n"},
                          {"base/B.h", "#include \"base/D.h\"\n"},
                          {"base/C.h", "#include \"base/D.h\"\n"},
                          {"base/D.h", "#pragma once\n"}}),
            Lines{});
}

TEST_F(FloorsTest, theToolkitOutsideItsFolderIsFound) {
  EXPECT_EQ(violationsOf({{"app/Panel.cpp", "#include <wx/dialog.h>\n#include \"wx/string.h\"\n"}}),
            (Lines{"app/Panel.cpp:1: wx/dialog.h is for ui/ and main.cpp alone",
                   "app/Panel.cpp:2: wx/string.h is for ui/ and main.cpp alone"}));
}

TEST_F(FloorsTest, conditionalLinesOutsideThePlatformAreFound) {
  EXPECT_EQ(
      violationsOf({{"base/Text.cpp", "#ifdef _WIN32\n#elif defined(__linux__)\n#endif\n#if 0\n#endif\n"},
                    {"base/Name.cpp", "#include <string>\n#ifndef _WIN32\nint x;\n#endif\n"},
                    {"main.cpp", "#if defined(_WIN32)\n#endif\n"},
                    {"platform/Path.cpp", "#ifdef _WIN32\n#endif\n"},
                    {"ui/Frame.cpp", "#if defined(__WXGTK__)\n#endif\n"}}),
      (Lines{"base/Name.cpp:2: #ifndef is for platform/ and ui/ alone",
             "base/Text.cpp:1: #ifdef is for platform/ and ui/ alone",
             "base/Text.cpp:2: #elif is for platform/ and ui/ alone",
             "base/Text.cpp:4: #if is for platform/ and ui/ alone", "main.cpp:1: #if is for platform/ and ui/ alone"}));
}

TEST_F(FloorsTest, theGuardOfAHeaderIsNoConditionalLine) {
  EXPECT_EQ(violationsOf({{"base/Text.h", "// Texts.\n#ifndef TEXT_H\n#define TEXT_H\n#endif\n"}}), Lines{});
}

TEST_F(FloorsTest, anIncludeThatDoesNotNameItsFolderIsFound) {
  EXPECT_EQ(violationsOf({{"base/Text.h", "#pragma once\n"},
                          {"base/Text.cpp", "#include \"Text.h\"\n#include \"../base/Text.h\"\n"}}),
            (Lines{"base/Text.cpp:1: \"Text.h\" does not name its folder",
                   "base/Text.cpp:2: \"../base/Text.h\" does not name its folder"}));
}

TEST_F(FloorsTest, aFolderThatStandsOnNoFloorIsFound) {
  EXPECT_EQ(
      violationsOf({{"shed/Spade.h", "#pragma once\n"}, {"base/Text.cpp", "#include \"shed/Spade.h\"\n"}}),
      (Lines{"base/Text.cpp:1: \"shed/Spade.h\" stands on no floor", "shed/Spade.h:1: shed/ stands on no floor"}));
}

TEST_F(FloorsTest, whatStandsInACommentIsNotRead) {
  EXPECT_EQ(violationsOf({{"base/Text.cpp",
                           "// #include \"ui/Frame.h\"\n/*\n#include \"ui/Frame.h\"\n*/\n"
                           "const char* text = \"/* no comment\";\n#include \"app/App.h\"  // up\n"}}),
            Lines{"base/Text.cpp:6: \"app/App.h\" goes up"});
}

}  // namespace
}  // namespace tarnwick::test
