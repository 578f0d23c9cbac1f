// The rows of the configuration: what each is called, holds at first, and belongs to.
#include "base/TagRow.h"
#include "settings/SettingsResources.h"
#include "settings/SettingsValues.h"
#include "support/SettingsFixture.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace tarnwick::test {
namespace {

const char functionKeys[] = R"(cont\n;monitor list\n;list\n;locals\n;trace methods\n;next\n;step\n;step up\n!)"
                            R"(;;;;untrace methods\n;;;!)"
                            R"(;monitor\n;where\n;dump this\n;monitor ;stepi\n;;!)"
                            R"(;;;;unmonitor ;;;!)"
                            R"(lock ;monitor ;list ;dump ;trace methods ;watch ;;!)"
                            R"(;unmonitor ;;;untrace methods ;unwatch ;;!)"
                            R"(;;;;;;;!)"
                            R"(;;;;;;;)";

/// Stands for the guide beside the program, whose path is the test's.
const char guide[] = "(guide)";

struct Expected {
  const char* tag;
  int kind;
  const char* value;  ///< as the file has it, in a fresh object
  int page;
  int owner;
  int control;
};

/// In the order of the file.
// clang-format off
const Expected expected[] = {
    {"EDITOR=NOTEPAD", TAG_BOOL, "OFF", 143, 148, 1013},
    {"EDITOR_OPEN_ALL", TAG_BOOL, "ON", 143, 148, 1153},
    {"PANEL_LAYOUT", TAG_STRINGABLE, "VERTICAL", 0, 0, 0},
    {"EDITOR_TARGET", TAG_STRING, "", 143, 148, 1042},
    {"DISPLAY=NOTEPAD", TAG_BOOL, "ON", 144, 148, 1017},
    {"CP_FROM_ENV_NEVER", TAG_BOOL, "ON", 184, 148, 1138},
    {"CP_FROM_ENV_ALWAYS", TAG_BOOL, "OFF", 184, 148, 1139},
    {"CLASSPATH", TAG_STRING, "", 184, 148, 1029},
    {"SOURCEPATH", TAG_STRING, "", 184, 148, 1039},
    {"BOOTPATH", TAG_STRING, "", 184, 148, 1043},
    {"EXTDIRS", TAG_STRING, "", 184, 148, 1045},
    {"JAVAC_DEBUG", TAG_BOOL, "ON", 145, 148, 1026},
    {"JAVAC_FASTCODE", TAG_BOOL, "OFF", 145, 148, 1024},
    {"JAVAC_VERBOSE", TAG_BOOL, "OFF", 145, 148, 1027},
    {"JAVAC_SOUND_ONSUCCESS", TAG_BOOL, "ON", 145, 148, 1021},
    {"JAVAC_SOUND_ONERROR", TAG_BOOL, "ON", 145, 148, 1022},
    {"JAVAC_TARGET_SPEC", TAG_STRING, "", 145, 148, 1028},
    {"JAVAC_SOURCEOPTION", TAG_STRING, "", 145, 148, 1179},
    {"JAVAC_MY_JDKVERSION", TAG_STRING, "Pre-1.4", 145, 148, 1269},
    {"RECENT_PROJECTS", TAG_STRINGABLE, "", 0, 0, 0},
    {"JAVAC_DEPRECATION", TAG_BOOL, "OFF", 145, 148, 1044},
    {"JAVAC_NOWARN", TAG_BOOL, "OFF", 145, 148, 1270},
    {"JAVAC_XSWITCHCHECK", TAG_BOOL, "ON", 145, 148, 1271},
    {"JAVAC_WARN_CONVERSION", TAG_BOOL, "ON", 145, 148, 1264},
    {"JAVAC_WARN_PATH", TAG_BOOL, "ON", 145, 148, 1265},
    {"JAVAC_WARN_SERIALIZE", TAG_BOOL, "ON", 145, 148, 1266},
    {"JAVAC_WARN_FINALLY", TAG_BOOL, "ON", 145, 148, 1267},
    {"JAVAC_WARN_SWITCH", TAG_BOOL, "ON", 145, 148, 1268},
    {"JAVAC_DESTINATION", TAG_STRING, "", 145, 148, 1040},
    {"JAVAC_JOPTION", TAG_STRING, "", 145, 148, 1117},
    {"JAVA_PATH", TAG_STRING, "", 144, 148, 1041},
    {"JAVA_VERBOSE", TAG_BOOL, "OFF", 146, 148, 1032},
    {"JAVA_XFUTURE", TAG_BOOL, "ON", 146, 148, 1123},
    {"JAVA_XPROF", TAG_BOOL, "OFF", 146, 148, 1124},
    {"JAVA_JNI_VALIDATE", TAG_BOOL, "OFF", 146, 148, 1125},
    {"JAVA_ASSERTENABLE", TAG_STRING, "", 146, 148, 1180},
    {"JAVA_ASSERTDISABLE", TAG_STRING, "", 146, 148, 1181},
    {"JAVA_SYSTEMASSERTENABLE", TAG_BOOL, "OFF", 146, 148, 1182},
    {"JAVA_SYSTEMASSERTDISABLE", TAG_BOOL, "OFF", 146, 148, 1183},
    {"JAVA_GARBAGECOLLECTOR", TAG_STRING, "", 146, 148, 1184},
    {"JDB_LAUNCH", TAG_BOOL, "ON", 173, 148, 1125},
    {"JAVA_XRUNHPROF", TAG_STRING, "", 146, 148, 1126},
    {"JAVA_PROPERTY", TAG_STRING, "", 146, 148, 1031},
    {"JAVA_XMS", TAG_STRING, "", 146, 148, 1129},
    {"JAVA_XMX", TAG_STRING, "", 146, 148, 1130},
    {"JAVA_XSS", TAG_STRING, "", 146, 148, 1131},
    {"APPLETV_J_OPTION", TAG_STRING, "", 147, 148, 1033},
    {"APPLETV_ENCODING", TAG_STRING, "", 147, 148, 1034},
    {"LAST_JAR_ARCHIVE", TAG_STRING, "", 0, 0, 0},
    {"LAST_JAR_BASEFOLDER", TAG_STRING, "", 0, 0, 0},
    {"JAR_OPEN_AS_ZIP", TAG_BOOL, "ON", 0, 0, 0},
    {"LAST_PROJECT_FILE", TAG_STRING, "", 0, 0, 0},
    {"FILEVIEW_TAB", TAG_INT, "0", 0, 0, 0},
    {"FILEVIEW_SOURCE", TAG_STRINGABLE, ";", 0, 0, 0},
    {"FILEVIEW_CLASS", TAG_STRINGABLE, ";", 0, 0, 0},
    {"FILEVIEW_HTML", TAG_STRINGABLE, ";", 0, 0, 0},
    {"FUNCTIONKEYS", TAG_STRINGABLE, functionKeys, 173, 148, 1158},
    {"HELPFILE", TAG_STRING, guide, 0, 0, 0},
    {"WINDOW_POSITION", TAG_STRINGABLE, "", 0, 0, 0},
    {"PERSONAL_TEMPLATES", TAG_STRINGABLE, "", 0, 0, 0},
    {"TARNWICK_VERSION", TAG_STRING, "", 0, 0, 0},
    {"JDOC_OVERVIEW", TAG_STRING, "", 151, 150, 1057},
    {"JDOC_LOCALE", TAG_STRING, "", 152, 150, 1060},
    {"JDOC_ENCODING", TAG_STRING, "", 152, 150, 1062},
    {"JDOC_JOPTION", TAG_STRING, "", 152, 150, 1063},
    {"JDOC_PUBLIC", TAG_BOOL, "OFF", 152, 150, 1052},
    {"JDOC_PROTECTED", TAG_BOOL, "OFF", 152, 150, 1049},
    {"JDOC_PRIVATE", TAG_BOOL, "OFF", 152, 150, 1050},
    {"JDOC_PACKAGE", TAG_BOOL, "OFF", 152, 150, 1102},
    {"JDOC_VERBOSE", TAG_BOOL, "OFF", 152, 150, 1054},
    {"JDOC_QUIET", TAG_BOOL, "OFF", 152, 150, 1247},
    {"JDOC_PACKAGELIST", TAG_STRING, "", 155, 150, 1101},
    {"JDOC_DOCLETPATH", TAG_STRING, "", 151, 150, 1059},
    {"JDOC_DOCLETFILE", TAG_STRING, "", 151, 150, 1064},
    {"JDOC_DOCLETOPTIONS", TAG_STRING, "", 152, 150, 1066},
    {"JDOC_DESTINATION", TAG_STRING, "", 153, 150, 1046},
    {"JDOC_HELPFILE", TAG_STRING, "", 153, 150, 1048},
    {"JDOC_STYLESHEET", TAG_STRING, "", 153, 150, 1056},
    {"JDOC_SUBPACKAGES", TAG_STRING, "", 153, 150, 1253},
    {"JDOC_EXCLUDE", TAG_STRING, "", 153, 150, 1254},
    {"JDOC_EXCLUDESUBDIR", TAG_STRING, "", 153, 150, 1255},
    {"JDOC_TAG", TAG_STRINGABLE, "", 153, 150, 1256},
    {"JDOC_TAGLET", TAG_STRINGABLE, "", 153, 150, 1258},
    {"JDOC_TAGLETPATH", TAG_STRING, "", 153, 150, 1257},
    {"JDOC_WINDOWTITLE", TAG_STRING, "", 154, 150, 1068},
    {"JDOC_DOCTITLE", TAG_STRING, "", 154, 150, 1069},
    {"JDOC_HEADER", TAG_STRING, "", 154, 150, 1070},
    {"JDOC_FOOTER", TAG_STRING, "", 154, 150, 1071},
    {"JDOC_BOTTOM", TAG_STRING, "", 154, 150, 1072},
    {"JDOC_LINK", TAG_STRING, "", 154, 150, 1087},
    {"JDOC_LINKOFFLINE", TAG_STRING, "", 154, 150, 1088},
    {"JDOC_GROUP", TAG_STRING, "", 154, 150, 1089},
    {"JDOC_DOCENCODING", TAG_STRING, "", 154, 150, 1090},
    {"JDOC_CHARSET", TAG_STRING, "", 154, 150, 1102},
    {"JDOC_NOQUALIFIER", TAG_STRING, "", 154, 150, 1252},
    {"JDOC_USE", TAG_BOOL, "OFF", 154, 150, 1091},
    {"JDOC_VERSION", TAG_BOOL, "OFF", 154, 150, 1092},
    {"JDOC_AUTHOR", TAG_BOOL, "OFF", 154, 150, 1093},
    {"JDOC_SPLITINDEX", TAG_BOOL, "OFF", 154, 150, 1094},
    {"JDOC_BREAKITERATOR", TAG_BOOL, "OFF", 154, 150, 1249},
    {"JDOC_DOCFILESSUBDIRS", TAG_BOOL, "OFF", 154, 150, 1250},
    {"JDOC_LINKSOURCE", TAG_BOOL, "OFF", 154, 150, 1248},
    {"JDOC_NOCOMMENT", TAG_BOOL, "OFF", 154, 150, 1251},
    {"JDOC_NODEPRECATED", TAG_BOOL, "OFF", 154, 150, 1095},
    {"JDOC_NODEPRECATEDLIST", TAG_BOOL, "OFF", 154, 150, 1100},
    {"JDOC_NOTREE", TAG_BOOL, "OFF", 154, 150, 1096},
    {"JDOC_NOSINCE", TAG_BOOL, "OFF", 154, 150, 1185},
    {"JDOC_NOINDEX", TAG_BOOL, "OFF", 154, 150, 1097},
    {"JDOC_NOHELP", TAG_BOOL, "OFF", 154, 150, 1098},
    {"JDOC_NONAVBAR", TAG_BOOL, "OFF", 154, 150, 1099},
    {"JDOC_SERIALWARN", TAG_BOOL, "OFF", 154, 150, 1101},
};
// clang-format on

/// The value as the file has it.
std::string valueOf(const TagRow& row) {
  switch (row.kind()) {
    case TAG_STRING:
      return *std::get<std::string*>(row.variable);
    case TAG_INT:
      return std::to_string(*std::get<int*>(row.variable));
    case TAG_BOOL:
      return *std::get<bool*>(row.variable) ? "ON" : "OFF";
    default:
      return std::get<StringableM*>(row.variable)->toString();
  }
}

class SettingsRowsTest : public SettingsFixture {
 protected:
  std::string valueExpected(const Expected& row) const {
    return row.value == guide ? programFolder() + "usersguide.htm" : row.value;
  }
};

TEST_F(SettingsRowsTest, The111RowsHaveTheirTagsKindsPagesOwnersAndControlsInTheOrderOfTheFile) {
  const auto& rows = settings().tagRows;
  ASSERT_EQ(std::size(expected), 111U);
  ASSERT_EQ(rows.size(), 127U);
  for (std::size_t i = 0; i < 111; ++i) {
    EXPECT_STREQ(rows[i].tag, expected[i].tag);
    EXPECT_EQ(rows[i].kind(), expected[i].kind) << expected[i].tag;
    EXPECT_EQ(rows[i].page, expected[i].page) << expected[i].tag;
    EXPECT_EQ(rows[i].owner, expected[i].owner) << expected[i].tag;
    EXPECT_EQ(rows[i].control, expected[i].control) << expected[i].tag;
    EXPECT_FALSE(rows[i].isLater) << expected[i].tag;
  }
}

TEST_F(SettingsRowsTest, BehindThemStandTheRowsThatCameLater) {
  const auto& rows = settings().tagRows;
  EXPECT_STREQ(rows[111].tag, "NEWER_JAVA");
  EXPECT_EQ(rows[111].kind(), TAG_BOOL);
  EXPECT_EQ(rows[111].defaultNumber, 0);
  EXPECT_EQ(rows[111].page, 145);
  EXPECT_EQ(rows[111].owner, 148);
  EXPECT_TRUE(rows[111].isLater);
  EXPECT_STREQ(rows[112].tag, "JAVAC_ONE_RUN");
  EXPECT_EQ(rows[112].kind(), TAG_BOOL);
  EXPECT_EQ(rows[112].defaultNumber, 0);
  EXPECT_EQ(rows[112].page, 145);
  EXPECT_EQ(rows[112].owner, 148);
  EXPECT_EQ(rows[112].control, 2102);
  EXPECT_TRUE(rows[112].isLater);
  const struct {
    const char* tag;
    int page;
    int control;
  } texts[] = {{"JAVAC_OPTIONS", 145, 2103}, {"JAVA_OPTIONS", 146, 2104}};
  for (std::size_t i = 0; i < std::size(texts); ++i) {
    const TagRow& row = rows[113 + i];
    EXPECT_STREQ(row.tag, texts[i].tag);
    EXPECT_EQ(row.kind(), TAG_STRING);
    EXPECT_EQ(row.defaultText, nullptr);
    EXPECT_EQ(row.page, texts[i].page);
    EXPECT_EQ(row.owner, 148);
    EXPECT_EQ(row.control, texts[i].control);
    EXPECT_TRUE(row.isLater);
  }
  EXPECT_STREQ(rows[115].tag, "NEWER_CONSOLE");
  EXPECT_EQ(rows[115].kind(), TAG_BOOL);
  EXPECT_EQ(rows[115].defaultNumber, 0);
  EXPECT_EQ(rows[115].page, 146);
  EXPECT_EQ(rows[115].owner, 148);
  EXPECT_EQ(rows[115].control, 2131);
  EXPECT_TRUE(rows[115].isLater);
  EXPECT_STREQ(rows[116].tag, "EDITOR_PLACE");
  EXPECT_EQ(rows[116].kind(), TAG_STRING);
  EXPECT_EQ(rows[116].defaultText, nullptr);
  EXPECT_EQ(rows[116].page, 143);
  EXPECT_EQ(rows[116].owner, 148);
  EXPECT_EQ(rows[116].control, 2110);
  EXPECT_TRUE(rows[116].isLater);
  EXPECT_STREQ(rows[117].tag, "DISPLAY_MESSAGES");
  EXPECT_EQ(rows[117].kind(), TAG_BOOL);
  EXPECT_EQ(rows[117].defaultNumber, 0);
  EXPECT_EQ(rows[117].page, 144);
  EXPECT_EQ(rows[117].owner, 148);
  EXPECT_EQ(rows[117].control, 2111);
  EXPECT_TRUE(rows[117].isLater);
  EXPECT_STREQ(rows[118].tag, "MESSAGES_PLACE");
  EXPECT_EQ(rows[118].kind(), TAG_STRING);
  EXPECT_EQ(rows[118].owner, 0);
  EXPECT_TRUE(rows[118].isLater);
  EXPECT_STREQ(rows[119].tag, "WATCH_RUNS");
  EXPECT_EQ(rows[119].kind(), TAG_BOOL);
  EXPECT_EQ(rows[119].defaultNumber, 0);
  EXPECT_EQ(rows[119].page, 144);
  EXPECT_EQ(rows[119].owner, 148);
  EXPECT_EQ(rows[119].control, 2120);
  EXPECT_TRUE(rows[119].isLater);
  EXPECT_STREQ(rows[120].tag, "STATUS_LINE");
  EXPECT_EQ(rows[120].kind(), TAG_BOOL);
  EXPECT_EQ(rows[120].defaultNumber, 0);
  EXPECT_EQ(rows[120].page, 144);
  EXPECT_EQ(rows[120].owner, 148);
  EXPECT_EQ(rows[120].control, 2150);
  EXPECT_TRUE(rows[120].isLater);
  EXPECT_STREQ(rows[121].tag, "TOOLS_WITHOUT_CONSOLE");
  EXPECT_EQ(rows[121].kind(), TAG_BOOL);
  EXPECT_EQ(rows[121].defaultNumber, 0);
  EXPECT_EQ(rows[121].page, 144);
  EXPECT_EQ(rows[121].owner, 148);
  EXPECT_EQ(rows[121].control, 2170);
  EXPECT_TRUE(rows[121].isLater);
  const char* const lists[] = {"LAST_SOURCES", "LAST_CLASSES", "LAST_PAGES"};
  for (std::size_t i = 0; i < std::size(lists); ++i) {
    const TagRow& row = rows[122 + i];
    EXPECT_STREQ(row.tag, lists[i]);
    EXPECT_EQ(row.kind(), TAG_STRINGABLE);
    EXPECT_EQ(row.defaultText, nullptr);
    EXPECT_EQ(row.owner, 0);
    EXPECT_TRUE(row.isLater);
  }
  EXPECT_STREQ(rows[125].tag, "JDB_OWN_STREAMS");
  EXPECT_EQ(rows[125].kind(), TAG_BOOL);
  EXPECT_EQ(rows[125].defaultNumber, 0);
  EXPECT_EQ(rows[125].page, 173);
  EXPECT_EQ(rows[125].owner, 148);
  EXPECT_EQ(rows[125].control, 2160);
  EXPECT_TRUE(rows[125].isLater);
  EXPECT_EQ(rows[126].kind(), TAG_END);
  EXPECT_STREQ(rows[126].tag, "");
}

TEST_F(SettingsRowsTest, TheLastFilesAreKeptInTheFileOnlyWhereThereAreSome) {
  const std::vector<std::string> files = {"/a b/\xC3\x9C\xE6\x97\xA5.java", "x;y]z\".java"};
  for (const auto& file : files) settings().lastSources.add(file);
  settings().lastPages.add("C:\\page.html");
  settings().saveDefaultConfiguration();
  EXPECT_TRUE(contentOf(configFile())
                  .ends_with(onDisk("\nLAST_SOURCES  /a b/\xC3\x9C\xE6\x97\xA5.java;x];y]]z\".java\n"
                                    "LAST_PAGES  C:\\page.html\n")));
  const auto read = freshSettings();
  int status = -1;
  read->readDefaultConfiguration(status);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(read->lastSources.elements(), files);
  EXPECT_EQ(read->lastClasses.count(), 0);
  EXPECT_EQ(read->lastPages.elements(), std::vector<std::string>{"C:\\page.html"});
  read->resetAll();
  EXPECT_EQ(read->lastSources.count(), 0);
  settings().lastSources = settings().lastPages = TokenString();
  settings().saveDefaultConfiguration();
  EXPECT_EQ(contentOf(configFile()).find("LAST_SOURCES"), std::string::npos);
}

TEST_F(SettingsRowsTest, ARowThatCameLaterIsKeptInTheFileOnlyWhereItIsUsed) {
  settings().newerJava = true;
  settings().saveDefaultConfiguration();
  EXPECT_NE(contentOf(configFile()).find("\nNEWER_JAVA  ON"), std::string::npos);
  settings().newerJava = false;
  settings().saveDefaultConfiguration();
  EXPECT_EQ(contentOf(configFile()).find("NEWER_JAVA"), std::string::npos);
  settings().newerJava = true;
  int status = -1;
  settings().readDefaultConfiguration(status);
  EXPECT_FALSE(settings().newerJava) << "a file without the row means the classic way";
}

TEST_F(SettingsRowsTest, FurtherOptionsAreKeptInTheFileOnlyWhereThereAreSome) {
  settings().javacOptions = "-parameters";
  settings().javaOptions = "--enable-preview  -x";
  settings().saveDefaultConfiguration();
  EXPECT_TRUE(
      contentOf(configFile()).ends_with(onDisk("\nJAVAC_OPTIONS  -parameters\nJAVA_OPTIONS  --enable-preview  -x\n")));
  const auto read = freshSettings();
  int status = -1;
  read->readDefaultConfiguration(status);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(read->javacOptions, "-parameters");
  EXPECT_EQ(read->javaOptions, "--enable-preview  -x");
  settings().javacOptions = settings().javaOptions = "";
  settings().saveDefaultConfiguration();
  EXPECT_EQ(contentOf(configFile()).find("_OPTIONS"), std::string::npos);
}

TEST_F(SettingsRowsTest, AFreshObjectHoldsTheDefaults) {
  const auto& rows = settings().tagRows;
  for (std::size_t i = 0; i < std::size(expected); ++i)
    EXPECT_EQ(valueOf(rows[i]), valueExpected(expected[i])) << expected[i].tag;
}

TEST_F(SettingsRowsTest, TheDefaultConfigurationIsTheHeaderAndTheseRowsByteForByte) {
  std::string text = "REM  This configuration file was written by Tarnwick V4.7a\nREM\n";
  for (const auto& row : expected) {
    const std::string tag = row.tag;
    const std::string value = tag == "TARNWICK_VERSION" ? "Tarnwick V4.7a" : valueExpected(row);
    // An empty text has one blank behind its tag, every other row two.
    text += tag + (row.kind == TAG_STRING && value.empty() ? " " : "  " + value) + '\n';
  }
  settings().saveDefaultConfiguration();
  EXPECT_EQ(contentOf(configFile()), onDisk(text));
}

TEST_F(SettingsRowsTest, EveryTextDefaultButTheVersionsIsEmptyInTheTableItself) {
  for (const auto& row : settings().tagRows) {
    if (row.kind() != TAG_STRING) continue;
    const std::string byDefault = row.defaultText ? row.defaultText : "";
    EXPECT_EQ(byDefault, std::string(row.tag) == "JAVAC_MY_JDKVERSION" ? "Pre-1.4" : "") << row.tag;
  }
}

TEST_F(SettingsRowsTest, TheRowOfTheZipSwitchHasAnOwnDefaultThatIsNeverApplied) {
  for (const auto& row : settings().tagRows) {
    if (std::string(row.tag) != "JAR_OPEN_AS_ZIP") continue;
    EXPECT_EQ(row.defaultNumber, 0);
    EXPECT_EQ(valueOf(row), "ON");
  }
}

/// Another value than the default, in the form of the file.
std::string otherValue(const Expected& row) {
  const std::string tag = row.tag;
  if (row.kind == TAG_BOOL) return std::string(row.value) == "ON" ? "OFF" : "ON";
  if (row.kind == TAG_INT) return "-7";
  if (tag == "PANEL_LAYOUT") return "FLAT";
  if (tag == "WINDOW_POSITION") return "120;88";
  if (tag == "FUNCTIONKEYS") return "a;b!!!!!!!c]];d";
  if (row.kind == TAG_STRINGABLE) return "x];y;z]]";
  return "text of " + tag + "; = ] % and blanks  ";
}

TEST_F(SettingsRowsTest, EveryRowIsWrittenAndReadBackUnchanged) {
  std::string text = "REM  This configuration file was written by Tarnwick V4.7a\nREM\n";
  for (const auto& row : expected) {
    const std::string tag = row.tag;
    text += tag + "  " + (tag == "TARNWICK_VERSION" ? "Tarnwick V4.7a" : otherValue(row)) + '\n';
  }
  writeFile(configFile(), text);
  int status = -1;
  settings().readDefaultConfiguration(status);
  EXPECT_EQ(status, 0);
  const auto& rows = settings().tagRows;
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    if (std::string(rows[i].tag) == "TARNWICK_VERSION") continue;
    EXPECT_EQ(valueOf(rows[i]), otherValue(expected[i])) << rows[i].tag;
    EXPECT_NE(valueOf(rows[i]), valueExpected(expected[i])) << rows[i].tag;
  }
  settings().saveDefaultConfiguration();
  EXPECT_EQ(contentOf(configFile()), onDisk(text));
}

TEST_F(SettingsRowsTest, AResetGivesEveryRowItsDefaultButTheFilesAndTheVersion) {
  const std::string kept[] = {"FILEVIEW_SOURCE", "FILEVIEW_CLASS", "FILEVIEW_HTML", "TARNWICK_VERSION"};
  std::string text;
  for (const auto& row : expected) text += std::string(row.tag) + "  " + otherValue(row) + '\n';
  writeFile(configFile(), text);
  int status = -1;
  settings().readDefaultConfiguration(status);
  ASSERT_EQ(status, 0);
  settings().resetAll();
  const auto& rows = settings().tagRows;
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    const bool keeps = std::find(std::begin(kept), std::end(kept), rows[i].tag) != std::end(kept);
    EXPECT_EQ(valueOf(rows[i]), keeps ? otherValue(expected[i]) : valueExpected(expected[i])) << rows[i].tag;
  }
}

TEST_F(SettingsRowsTest, TheResetOfOneDialogLeavesTheRowsOfTheOther) {
  settings().javaXms = settings().javadoc.header = "1m";
  settings().resetToDefaults(JAVADOC_DIALOG);
  EXPECT_EQ(settings().javaXms, "1m");
  EXPECT_EQ(settings().javadoc.header, "");
  settings().javadoc.header = "h";
  settings().resetToDefaults(SETTINGS_DIALOG);
  EXPECT_EQ(settings().javaXms, "");
  EXPECT_EQ(settings().javadoc.header, "h");
}

TEST_F(SettingsRowsTest, AFileThatLacksATagKeepsTheValueInMemory) {
  writeFile(configFile(), "JAVA_XMS  64m\n");
  settings().javaXmx = "1g";
  int status = -1;
  settings().readDefaultConfiguration(status);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(settings().javaXms, "64m");
  EXPECT_EQ(settings().javaXmx, "1g") << "only a reset brings defaults";
}

}  // namespace
}  // namespace tarnwick::test
