// What a configuration file does to the settings, and how they are saved to files of somebody's choice.
#include "support/SettingsFixture.h"
#include "support/SystemWords.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>

namespace tarnwick::test {
namespace {

const char debugWithFastcode[] =
    "Javac settings:\n\nAs of JDK 1.2, you can combine -g and -O, but you may get surprising results,\n"
    "such as missing variables or relocated or missing code.";

class ConfigurationTest : public SettingsFixture {
 protected:
  int readDefault() {
    int status = -1;
    settings().readDefaultConfiguration(status);
    return status;
  }

  int read(const std::string& content) {
    writeFile(configFile(), content);
    return readDefault();
  }

  std::string written() const {
    std::string text = contentOf(configFile());
    std::erase(text, '\r');
    return text;
  }
};

TEST_F(ConfigurationTest, AFileWithCarriageReturnsReadsAsOneWithout) {
  EXPECT_EQ(read("REM\r\nJAVA_XMS  64m\r\nJAVAC_DEBUG  OFF\r\nFILEVIEW_TAB  2\r\nWINDOW_POSITION  1;2\r\n"), 0);
  EXPECT_EQ(settings().javaXms, "64m");
  EXPECT_FALSE(settings().javacDebug);
  EXPECT_EQ(settings().fileviewTab, 2);
  EXPECT_EQ(settings().windowPosition.toString(), "1;2");
}

TEST_F(ConfigurationTest, TheEdgesOfTheFormat) {
  EXPECT_EQ(read("JAVA_VERBOSE\n") & READ_FAILURE_MASK, 0);
  EXPECT_FALSE(settings().javaVerbose);
  EXPECT_EQ(read("FILEVIEW_TAB  12x\n"), READ_BAD_VALUE);
  EXPECT_EQ(settings().fileviewTab, 12);
  EXPECT_EQ(read("FILEVIEW_TAB  -5\n"), 0);
  EXPECT_EQ(settings().fileviewTab, -5);
  EXPECT_EQ(read("JAVAC_DEBUG  maybe\n"), READ_BAD_VALUE);
  EXPECT_TRUE(settings().javacDebug);
  EXPECT_EQ(read("javac_debug  off\n"), 0);
  EXPECT_FALSE(settings().javacDebug);
  EXPECT_EQ(read("editor=notepad on and more\n"), 0);
  EXPECT_TRUE(settings().editWithNotepad);
}

TEST_F(ConfigurationTest, BadTextOfAValueLeavesTheStatusClean) {
  EXPECT_EQ(read("FUNCTIONKEYS  a!b\nPANEL_LAYOUT  DIAGONAL\nRECENT_PROJECTS  a]x\nWINDOW_POSITION  ]\n"
                 "FILEVIEW_SOURCE  a]\nJDOC_TAG  ]x\nPERSONAL_TEMPLATES  x]\n"),
            0);
  EXPECT_EQ(settings().functionKeys.toString(), FunctionKeys::defaultText);
  EXPECT_EQ(settings().panelLayout.value, LayoutValue::VERTICAL);
  EXPECT_EQ(settings().recentProjects.count(), 0);
  EXPECT_EQ(settings().windowPosition.toString(), "");
  EXPECT_TRUE(settings().fileviewSource.isEmpty());
}

TEST_F(ConfigurationTest, AnEmptyWindowPositionInTheFileLeavesWhatWasThere) {
  settings().windowPosition.fromString("3;4");
  EXPECT_EQ(read("WINDOW_POSITION  \n"), 0);
  EXPECT_EQ(settings().windowPosition.toString(), "3;4");
}

TEST_F(ConfigurationTest, TheFileTellsWhichVersionWroteIt) {
  settings().tarnwickVersion = "Tarnwick V1.0";
  settings().saveDefaultConfiguration();
  EXPECT_EQ(settings().tarnwickVersion, "Tarnwick V4.7a") << "set before each write";
  EXPECT_NE(written().find("\nTARNWICK_VERSION  Tarnwick V4.7a\n"), std::string::npos);
  EXPECT_EQ(read("TARNWICK_VERSION  Tarnwick V3.2\n"), 0);
  EXPECT_EQ(settings().tarnwickVersion, "Tarnwick V3.2") << "after a read, that of the file";
}

TEST_F(ConfigurationTest, AFileInTheConfigurationFolderComesBeforeTheOneBesideTheProgram) {
  writeFile(programFolder() + defaultConfigurationName, "JAVA_XMS  beside\n");
  EXPECT_EQ(read("JAVA_XMS  own\n"), 0);
  EXPECT_EQ(settings().javaXms, "own");
}

TEST_F(ConfigurationTest, TheStatusOfTheDefaultConfigurationIsThatOfItsFile) {
  for (int set = 0; set < 8; ++set) {
    std::string content = "JAVA_XMS  " + std::to_string(set) + '\n';
    if (set & READ_UNKNOWN_TAG) content += "NO_SUCH_TAG\n";
    if (set & READ_BAD_VALUE) content += "FILEVIEW_TAB  x\n";
    if (set & READ_NO_VALUE) content += "JAVA_VERBOSE\n";
    EXPECT_EQ(read(content), set);
    EXPECT_EQ(settings().javaXms, std::to_string(set));
  }
}

TEST_F(ConfigurationTest, TheGuidesLocationStaysWhereTheFileIsNotClean) {
  writeFile(configFile(), "HELPFILE  from the file\nNO_SUCH_TAG\n");
  settings().helpFile = "live";
  settings().saveDefaultConfiguration();
  EXPECT_EQ(settings().helpFile, "live");
  EXPECT_NE(written().find("\nHELPFILE  live\n"), std::string::npos);
}

TEST_F(ConfigurationTest, AFileThatIsCleanButTellsNoGuideStandsForTheOneBesideTheProgram) {
  writeFile(configFile(), "JAVA_XMS  1m\n");
  settings().helpFile = "live";
  settings().saveDefaultConfiguration();
  EXPECT_EQ(settings().helpFile, programFolder() + "usersguide.htm");
}

TEST_F(ConfigurationTest, TheGuidesLocationStaysWhereThereIsNoFile) {
  settings().helpFile = "live";
  settings().saveDefaultConfiguration();
  EXPECT_EQ(settings().helpFile, "live");
}

TEST_F(ConfigurationTest, ReadConfigurationIsSilentUnlessBothSwitchesAreOn) {
  for (const char* content : {"JAVAC_DEBUG  ON\nJAVAC_FASTCODE  OFF\n", "JAVAC_DEBUG  OFF\nJAVAC_FASTCODE  ON\n"}) {
    writeFile(configFile(), content);
    Tarnwickfile file(configFile(), FileMode::Read);
    int status = -1;
    settings().readConfiguration(status, file);
    EXPECT_EQ(status, 0);
  }
}

TEST_F(ConfigurationTest, ReadingTheDefaultConfigurationNeverWarns) {
  EXPECT_EQ(read("JAVAC_DEBUG  ON\nJAVAC_FASTCODE  ON\n"), 0);
  settings().saveDefaultConfiguration();
}

TEST_F(ConfigurationTest, ReadConfigurationWarnsWhateverTheStatusIs) {
  writeFile(configFile(), "JAVAC_FASTCODE  ON\nFILEVIEW_TAB  x\n");
  Tarnwickfile file(configFile(), FileMode::Read);
  desktop_.expectMessage(debugWithFastcode);
  int status = -1;
  settings().readConfiguration(status, file);
  EXPECT_EQ(status, READ_BAD_VALUE);
}

TEST_F(ConfigurationTest, ReadConfigurationThrowsForAFileThatCannotBeOpened) {
  Tarnwickfile file = Tarnwickfile::unopened(userFolder() + "missing.cfg", FileMode::Read);
  int status = -1;
  EXPECT_THROW(settings().readConfiguration(status, file), Tarnwickfile::FileNotOpenE);
  EXPECT_EQ(status, -1);
}

TEST_F(ConfigurationTest, AFileThatIsGivenIsWrittenAndLeftOpen) {
  const std::string path = userFolder() + "own.cfg";
  {
    Tarnwickfile file(path, FileMode::Write);
    settings().saveInto(file);
    EXPECT_TRUE(file.isOpen());
  }
  EXPECT_EQ(contentOf(path).find("REM  This configuration file was written by Tarnwick V4.7a"), 0U);
  EXPECT_FALSE(platform::isFile(configFile()));
}

TEST_F(ConfigurationTest, AGivenFileThatIsClosedLeadsToAnotherFolder) {
  const std::string other = scratch_.file("elsewhere");
  platform::makeFolders(other);
  Tarnwickfile file = Tarnwickfile::unopened(userFolder() + "own.cfg", FileMode::Write);
  desktop_.expectDialog("Attempt to access file that has not been opened.", [&](ScriptedWindow& window) {
    EXPECT_EQ(window.text(1167),
              "Tarnwick could not write configuration data to the default location:\n" + userFolder() + "own.cfg");
    desktop_.expectBrowseFolder(other);
    window.press(1164);
  });
  desktop_.expectHint("The following environment variable definition has been created:\n\nTARNWICK_CFGDIR=\"" + other +
                      "\"\n\nThis definition remains effective until you terminate Tarnwick." +
                      said("\nUpdate your system's environment settings or AUTOEXEC.BAT\nfor a permanent definition!",
                           "\nAdd it to the file .profile in your home folder\nfor a permanent definition!"));
  settings().saveInto(file);
  EXPECT_EQ(settings().configPath(), other + platform::folderSeparator + defaultConfigurationName);
  EXPECT_TRUE(platform::isFile(settings().configPath()));
}

TEST_F(ConfigurationTest, SavesOnlyWhenTheWindowHasMoved) {
  ScriptedWindow* window = nullptr;
  struct NoRules : DialogHandler {
    void initialise(DialogWindow& /*window*/) override {}
    void onCommand(int /*control*/) override {}
    void onCloseRequest() override {}
  } rules;
  const DialogLayout layout{1, "Main", false, {}, 0};
  ScriptedWindow main(layout, rules);
  window = &main;
  context_.mainWindow = window;
  settings().windowPosition.fromString("7;9");
  window->moveByHand({7, 9});
  settings().saveIfWindowMoved();
  EXPECT_FALSE(platform::isFile(configFile()));
  window->moveByHand({7, 10});
  settings().saveIfWindowMoved();
  EXPECT_NE(written().find("\nWINDOW_POSITION  7;10\n"), std::string::npos);
  EXPECT_FALSE(settings().windowPosition.hasMoved()) << "the save takes the new place";

  struct Project : OpenProject {
    explicit Project(int& count) : saves(count) {}
    void save() override { ++saves; }
    std::string name() const override { return "p"; }
    std::string quotedPath() const override { return "p.twp"; }
    int& saves;
  };
  int saves = 0;
  settings().currentProject = std::make_unique<Project>(saves);
  settings().saveIfWindowMoved();
  EXPECT_EQ(saves, 0);
  window->moveByHand({8, 10});
  settings().saveIfWindowMoved();
  EXPECT_EQ(saves, 1) << "with a project open, the project is what is saved";
  EXPECT_NE(written().find("\nWINDOW_POSITION  7;10\n"), std::string::npos);
  context_.mainWindow = nullptr;
}

}  // namespace
}  // namespace tarnwick::test
