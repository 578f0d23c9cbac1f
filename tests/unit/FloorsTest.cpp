// The floors of the house, read from the includes of its sources.
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/CheckoutFolder.h"
#include "support/Floors.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace tarnwick::test {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

/// A house that sources are made up for.
const char smallHouse[] =
    "# A remark.\n"
    "0 platform\n"
    "1 base platform\n"
    "2 process base\n"
    "3 settings process\n"
    "4 source settings\n"
    "4 console process\n"
    "5 app source console\n"
    "6 ui app\n";

/// Made-up sources: pairs of a name below the source folder and a content.
class FloorsTest : public testing::Test {
 protected:
  FloorsTest() { EXPECT_TRUE(platform::changeDirectory(scratch_.path())); }

  /// Of the sources alone: most of these houses are too small to use what they link.
  Lines violationsOf(const std::vector<std::pair<std::string, std::string>>& sources) {
    Lines violations = allViolationsOf(sources, smallHouse);
    std::erase_if(violations, [](const auto& line) { return line.find("/ links ") != std::string::npos; });
    return violations;
  }

  Lines allViolationsOf(const std::vector<std::pair<std::string, std::string>>& sources, const std::string& table) {
    for (const auto& [name, content] : sources) {
      // Both systems take slashes. The names are relative, since the path of the scratch folder is in the system's
      // character set, which fs::path does not take on Windows.
      const std::string path = "src/" + name;
      EXPECT_TRUE(platform::makeFolders(path.substr(0, path.rfind('/')))) << path;
      writeFile(path, content);
    }
    const auto report = inspectFloors("src", floorsOf(table));
    EXPECT_EQ(report.files, static_cast<int>(sources.size()));
    return report.violations;
  }

 private:
  ScratchFolder scratch_;
};

/// The house itself, and the pages that tell of it, in the checkout that this program was built from.
class TheHouse : public testing::Test {
 protected:
  void SetUp() override {
    if (platform::folderSeparator == '\\' && !fs::exists(checkout()))
      GTEST_SKIP() << "the sources are not on this machine: " << checkout();
    floors_ = floorsOf(content("src/floors.txt"));
    ASSERT_GT(floors_.size(), 5U);
  }

  /// Under Wine it is on drive Z:.
  static fs::path checkout() {
    const std::string path = checkoutFolder();  // UTF-8, whatever this process's own set is
    const fs::path folder(std::u8string(path.begin(), path.end()));
    return platform::folderSeparator == '\\' && !folder.has_root_name() ? fs::path("Z:") / folder : folder;
  }

  static std::string content(const char* name) {
    std::ifstream in(checkout() / name, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
  }

  /// What this expression captures at each of its places in a text.
  static std::vector<std::smatch> placesOf(const std::regex& expression, const std::string& text) {
    return {std::sregex_iterator(text.begin(), text.end(), expression), std::sregex_iterator()};
  }

  Floors floors_;
};

TEST_F(TheHouse, holds) {
  const auto report = inspectFloors(checkout() / "src", floors_);
  EXPECT_GT(report.files, 20);
  EXPECT_GT(report.includes, 20);
  for (const auto& violation : report.violations) ADD_FAILURE() << violation;
}

TEST_F(TheHouse, standsOnThePageAsInTheTable) {
  const std::string page = content("docs/architecture.md");
  std::vector<std::string> told;
  for (const auto& row : placesOf(std::regex(R"(\n\| (\d+) \| `([a-z]+)/`)"), page))
    told.push_back(row.str(1) + ' ' + row.str(2));
  std::vector<std::string> built;
  for (const auto& floor : floors_) built.insert(built.begin(), std::to_string(floor.height) + ' ' + floor.folder);
  EXPECT_EQ(told, built) << "docs/architecture.md, from the top down";
}

TEST_F(TheHouse, isDrawnAsInTheTable) {
  const std::string drawing = content("docs/architecture.svg");
  std::vector<std::pair<int, std::string>> drawn;
  for (const auto& name : placesOf(std::regex(R"re(y="(\d+)" class="name">([a-z]+)/<)re"), drawing))
    drawn.emplace_back(std::stoi(name.str(1)), name.str(2));
  const auto heightOf = [this](const std::string& folder) {
    const auto floor = std::find_if(floors_.begin(), floors_.end(), [&](const auto& f) { return f.folder == folder; });
    return floor == floors_.end() ? -1 : floor->height;
  };
  EXPECT_EQ(drawn.size(), floors_.size()) << "docs/architecture.svg";
  for (const auto& [y, folder] : drawn) {
    EXPECT_GE(heightOf(folder), 0) << folder << "/ stands on no floor";
    for (const auto& [otherY, other] : drawn) {
      EXPECT_EQ(y<otherY, heightOf(folder)> heightOf(other)) << folder << "/ and " << other << "/";
    }
  }
}

TEST_F(FloorsTest, theTableTellsFloorFolderAndLinks) {
  const Floors floors = floorsOf("# A remark.\n0 platform\n\n12 app base platform\n");
  ASSERT_EQ(floors.size(), 2U);
  EXPECT_EQ(floors[0].folder, "platform");
  EXPECT_EQ(floors[0].links, Lines{});
  EXPECT_EQ(floors[1].height, 12);
  EXPECT_EQ(floors[1].links, (Lines{"base", "platform"}));
}

TEST_F(FloorsTest, anIncludeOfWhatIsNotLinkedIsFound) {
  EXPECT_EQ(violationsOf({{"settings/Settings.h", "#pragma once\n"},
                          {"console/View.cpp", "#include \"settings/Settings.h\"\n"}}),
            Lines{"console/View.cpp:1: \"settings/Settings.h\" is in a folder that console/ does not link"});
}

TEST_F(FloorsTest, aLinkThatIsOfNoUseIsFound) {
  EXPECT_EQ(allViolationsOf({{"base/Text.h", "#pragma once\n"}, {"app/App.cpp", "#include \"base/Text.h\"\n"}},
                            "0 base\n1 process\n2 app base process\n"),
            Lines{"app/ links process/ and includes nothing of it"});
}

TEST_F(FloorsTest, aLinkThatDoesNotGoDownIsFound) {
  EXPECT_EQ(allViolationsOf({{"base/Text.h", "#pragma once\n"}}, "0 base app\n1 app shed\n1 tools app\n"),
            (Lines{"app/ links shed/, which stands on no floor", "base/ links app/, which is not below it",
                   "tools/ links app/, which is not below it"}));
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

TEST_F(FloorsTest, aMessageBoxBelowTheViewsIsFound) {
  const std::string what = ": a message box is for dialogs, views and what is above them";
  EXPECT_EQ(violationsOf({{"base/Text.cpp", "void f(Desktop* d) { d->message(\"x\"); }\n"},
                          {"process/Runner.cpp", "\n  if (desktop_.askYesNo(\"Go on?\")) return;\n"},
                          {"settings/Settings.cpp", "  context().desktop.askOkCancel(text);\n"},
                          {"source/Compiler.cpp", "desktop_\n    .message(\"first\");\nother.message (text);\n"},
                          {"console/TarnwickDoc.cpp", "  desktop_.message(fault);\n"}}),
            (Lines{"base/Text.cpp:1" + what, "console/TarnwickDoc.cpp:1" + what, "process/Runner.cpp:2" + what,
                   "settings/Settings.cpp:1" + what, "source/Compiler.cpp:2" + what, "source/Compiler.cpp:3" + what}));
}

TEST_F(FloorsTest, aMessageBoxOfADialogAViewOrAboveThemIsNone) {
  EXPECT_EQ(violationsOf({{"source/WarningDlg.cpp", "desktop_.message(text);\n"},
                          {"console/TarnwickView.cpp", "desktop_.message(text);\n"},
                          {"app/FileView.cpp", "desktop_.message(failure.message);\n"},
                          {"process/Runner.cpp", "throw RunE(failure.message + text);  // not desktop.message(text)\n"},
                          {"source/Reader.cpp", "log.messages(1); message(2);\n"}}),
            Lines{});
}

TEST_F(FloorsTest, whatStandsInACommentIsNotRead) {
  EXPECT_EQ(violationsOf({{"base/Text.cpp",
                           "// #include \"ui/Frame.h\"\n/*\n#include \"ui/Frame.h\"\n*/\n"
                           "const char* text = \"/* no comment\";\n#include \"app/App.h\"  // up\n"}}),
            Lines{"base/Text.cpp:6: \"app/App.h\" goes up"});
}

}  // namespace
}  // namespace tarnwick::test
