// How the settings reach the disk and come back.
#include "support/SettingsFixture.h"
#include "support/SystemWords.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class SettingsFileTest : public SettingsFixture {
 protected:
  int readDefault(Settings& into) {
    int status = -1;
    into.readDefaultConfiguration(status);
    return status;
  }
};

TEST_F(SettingsFileTest, TheDefaultConfigurationByteForByte) {
  settings().saveDefaultConfiguration();
  const std::string keys = FunctionKeys::defaultText;
  const std::string expected =
      "REM  This configuration file was written by Tarnwick V4.7a\nREM\n"
      "EDITOR=NOTEPAD  OFF\nEDITOR_OPEN_ALL  ON\nPANEL_LAYOUT  VERTICAL\nEDITOR_TARGET \nDISPLAY=NOTEPAD  ON\n"
      "CP_FROM_ENV_NEVER  ON\nCP_FROM_ENV_ALWAYS  OFF\nCLASSPATH \nSOURCEPATH \nBOOTPATH \nEXTDIRS \n"
      "JAVAC_DEBUG  ON\nJAVAC_FASTCODE  OFF\nJAVAC_VERBOSE  OFF\nJAVAC_SOUND_ONSUCCESS  ON\n"
      "JAVAC_SOUND_ONERROR  ON\nJAVAC_TARGET_SPEC \nJAVAC_SOURCEOPTION \nJAVAC_MY_JDKVERSION  Pre-1.4\n"
      "RECENT_PROJECTS  \nJAVAC_DEPRECATION  OFF\nJAVAC_NOWARN  OFF\nJAVAC_XSWITCHCHECK  ON\n"
      "JAVAC_WARN_CONVERSION  ON\nJAVAC_WARN_PATH  ON\nJAVAC_WARN_SERIALIZE  ON\nJAVAC_WARN_FINALLY  ON\n"
      "JAVAC_WARN_SWITCH  ON\nJAVAC_DESTINATION \nJAVAC_JOPTION \nJAVA_PATH \nJAVA_VERBOSE  OFF\n"
      "JAVA_XFUTURE  ON\nJAVA_XPROF  OFF\nJAVA_JNI_VALIDATE  OFF\nJAVA_ASSERTENABLE \nJAVA_ASSERTDISABLE \n"
      "JAVA_SYSTEMASSERTENABLE  OFF\nJAVA_SYSTEMASSERTDISABLE  OFF\nJAVA_GARBAGECOLLECTOR \nJDB_LAUNCH  ON\n"
      "JAVA_XRUNHPROF \nJAVA_PROPERTY \nJAVA_XMS \nJAVA_XMX \nJAVA_XSS \nAPPLETV_J_OPTION \nAPPLETV_ENCODING \n"
      "LAST_JAR_ARCHIVE \nLAST_JAR_BASEFOLDER \nJAR_OPEN_AS_ZIP  ON\nLAST_PROJECT_FILE \nFILEVIEW_TAB  0\n"
      "FILEVIEW_SOURCE  ;\nFILEVIEW_CLASS  ;\nFILEVIEW_HTML  ;\nFUNCTIONKEYS  " +
      keys + "\n" + "HELPFILE  " + programFolder() +
      "usersguide.htm\nWINDOW_POSITION  \nPERSONAL_TEMPLATES  \n"
      "TARNWICK_VERSION  Tarnwick V4.7a\nJDOC_OVERVIEW \nJDOC_LOCALE \nJDOC_ENCODING \nJDOC_JOPTION \n"
      "JDOC_PUBLIC  OFF\nJDOC_PROTECTED  OFF\nJDOC_PRIVATE  OFF\nJDOC_PACKAGE  OFF\nJDOC_VERBOSE  OFF\n"
      "JDOC_QUIET  OFF\nJDOC_PACKAGELIST \nJDOC_DOCLETPATH \nJDOC_DOCLETFILE \nJDOC_DOCLETOPTIONS \n"
      "JDOC_DESTINATION \nJDOC_HELPFILE \nJDOC_STYLESHEET \nJDOC_SUBPACKAGES \nJDOC_EXCLUDE \n"
      "JDOC_EXCLUDESUBDIR \nJDOC_TAG  \nJDOC_TAGLET  \nJDOC_TAGLETPATH \nJDOC_WINDOWTITLE \nJDOC_DOCTITLE \n"
      "JDOC_HEADER \nJDOC_FOOTER \nJDOC_BOTTOM \nJDOC_LINK \nJDOC_LINKOFFLINE \nJDOC_GROUP \nJDOC_DOCENCODING \n"
      "JDOC_CHARSET \nJDOC_NOQUALIFIER \nJDOC_USE  OFF\nJDOC_VERSION  OFF\nJDOC_AUTHOR  OFF\n"
      "JDOC_SPLITINDEX  OFF\nJDOC_BREAKITERATOR  OFF\nJDOC_DOCFILESSUBDIRS  OFF\nJDOC_LINKSOURCE  OFF\n"
      "JDOC_NOCOMMENT  OFF\nJDOC_NODEPRECATED  OFF\nJDOC_NODEPRECATEDLIST  OFF\nJDOC_NOTREE  OFF\n"
      "JDOC_NOSINCE  OFF\nJDOC_NOINDEX  OFF\nJDOC_NOHELP  OFF\nJDOC_NONAVBAR  OFF\nJDOC_SERIALWARN  OFF\n";
  EXPECT_EQ(contentOf(configFile()), onDisk(expected));
}

TEST_F(SettingsFileTest, AllValuesComeBackUnchanged) {
  Settings& live = settings();
  live.javaPath = scratch_.file("jdk with blanks") + platform::folderSeparator;
  live.javacDebug = false;
  live.fileviewTab = 2;
  live.fileviewSource.setName(userFolder() + "A.java");
  live.recentProjects.add("one;two");
  live.helpFile = "kept from the file";
  live.saveDefaultConfiguration();
  const auto other = freshSettings();
  EXPECT_EQ(readDefault(*other), 0);
  EXPECT_EQ(other->javaPath, live.javaPath);
  EXPECT_FALSE(other->javacDebug);
  EXPECT_EQ(other->fileviewTab, 2);
  EXPECT_EQ(other->fileviewSource.name().fullName(), userFolder() + "A.java");
  EXPECT_EQ(other->fileviewSource.lastFolder(), userFolder());
  EXPECT_EQ(other->recentProjects.element(0), "one;two");
  const std::string before = contentOf(configFile());
  other->saveDefaultConfiguration();
  EXPECT_EQ(contentOf(configFile()), before);
}

TEST_F(SettingsFileTest, TheGuidesLocationIsKeptFromTheFile) {
  settings().helpFile = "there";
  settings().saveDefaultConfiguration();
  settings().helpFile = "elsewhere";
  settings().saveDefaultConfiguration();
  EXPECT_EQ(settings().helpFile, "there");
}

TEST_F(SettingsFileTest, NoConfigurationAnywhereIsALostFile) {
  EXPECT_EQ(readDefault(settings()), READ_FILE_LOST);
}

TEST_F(SettingsFileTest, TheFileBesideTheProgramIsReadWhereThereIsNoOther) {
  writeFile(programFolder() + defaultConfigurationName, "JAVA_XMS  64m\n");
  EXPECT_EQ(readDefault(settings()), 0);
  EXPECT_EQ(settings().javaXms, "64m");
  settings().saveCurrent();
  EXPECT_TRUE(platform::isFile(configFile())) << "saving goes to the configuration folder";
}

TEST_F(SettingsFileTest, ADirectoryInTheFilesPlaceIsLost) {
  platform::makeFolders(configFile());
  EXPECT_EQ(readDefault(settings()), READ_FILE_LOST);
}

TEST_F(SettingsFileTest, ReadConfigurationWarnsOfDebugTablesWithFastCode) {
  writeFile(configFile(), "JAVAC_DEBUG  ON\nJAVAC_FASTCODE  ON\n");
  desktop_.expectMessage(
      "Javac settings:\n\nAs of JDK 1.2, you can combine -g and -O, but you may get surprising results,\n"
      "such as missing variables or relocated or missing code.");
  int status = -1;
  Tarnwickfile file(configFile(), FileMode::Read);
  settings().readConfiguration(status, file);
  EXPECT_EQ(status, 0);
}

TEST_F(SettingsFileTest, AnOpenProjectIsSavedInItsPlace) {
  struct Project : OpenProject {
    explicit Project(int& count) : saves(count) {}
    void save() override { ++saves; }
    std::string name() const override { return "p"; }
    std::string quotedPath() const override { return "p.twp"; }
    int& saves;
  };
  int saves = 0;
  settings().currentProject = std::make_unique<Project>(saves);
  settings().saveCurrent();
  EXPECT_EQ(saves, 1);
  EXPECT_FALSE(platform::isFile(configFile()));
}

TEST_F(SettingsFileTest, AResetKeepsTheFilesAndTheVersion) {
  Settings& live = settings();
  live.fileviewSource.setName("a.java");
  live.tarnwickVersion = "old";
  live.javaXms = "1m";
  live.lastProjectFile = "p";
  live.fileviewTab = 1;
  live.jarOpenAsZip = false;
  live.javadoc.author = true;
  live.panelLayout.value = LayoutValue::FLAT;
  live.resetAll();
  EXPECT_EQ(live.fileviewSource.name().fullName(), "a.java");
  EXPECT_EQ(live.tarnwickVersion, "old");
  EXPECT_EQ(live.javaXms, "");
  EXPECT_EQ(live.lastProjectFile, "");
  EXPECT_EQ(live.fileviewTab, 0);
  EXPECT_TRUE(live.jarOpenAsZip);
  EXPECT_FALSE(live.javadoc.author);
  EXPECT_EQ(live.panelLayout.value, LayoutValue::VERTICAL);
}

class RelocationTest : public SettingsFileTest {
 protected:
  std::string refusal() {
    try {
      Tarnwickfile probe(configFile(), FileMode::Write);
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      return failure.message;
    }
    ADD_FAILURE() << "a folder could be opened for writing";
    return "";
  }
};

TEST_F(RelocationTest, AFailedSaveLeadsToAnotherFolder) {
  platform::makeFolders(configFile());
  const std::string title = refusal();
  const std::string other = scratch_.file("other place");
  platform::makeFolders(other);
  desktop_.expectDialog(title, [&](ScriptedWindow& window) {
    EXPECT_EQ(window.text(1167),
              "Tarnwick could not write configuration data to the default location:\n" + configFile());
    EXPECT_EQ(window.text(1165),
              "The new definition will be retained in the environment variable TARNWICK_CFGDIR until Tarnwick is "
              "terminated.");
    desktop_.expectBrowseFolder(other);
    window.press(1164);
  });
  desktop_.expectHint("The following environment variable definition has been created:\n\nTARNWICK_CFGDIR=\"" + other +
                      "\"\n\nThis definition remains effective until you terminate Tarnwick." +
                      said("\nUpdate your system's environment settings or AUTOEXEC.BAT\nfor a permanent definition!",
                           "\nAdd it to the file .profile in your home folder\nfor a permanent definition!"));
  settings().saveCurrent();
  EXPECT_EQ(settings().configPath(), other + platform::folderSeparator + defaultConfigurationName);
  EXPECT_TRUE(platform::isFile(settings().configPath()));
}

TEST_F(RelocationTest, CancelTellsWhatCouldNotBeSaved) {
  platform::makeFolders(configFile());
  const std::string reason = refusal();
  desktop_.expectDialog(reason, [&](ScriptedWindow& window) {
    desktop_.expectBrowseFolder(std::nullopt);
    window.press(1164);
    EXPECT_FALSE(window.closed()) << "Cancel in the browser leaves the dialog open";
    window.press(IDCANCEL_CONTROL);
  });
  desktop_.expectMessage(reason + "\nCan't save configuration data in " + configFile());
  settings().saveCurrent();
}

}  // namespace
}  // namespace tarnwick::test
