#include "settings/SettingsValues.h"
#include "support/SettingsFixture.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

/// The tags in the order of the file.
const char* const tagsInOrder[] = {"EDITOR=NOTEPAD",
                                   "EDITOR_OPEN_ALL",
                                   "PANEL_LAYOUT",
                                   "EDITOR_TARGET",
                                   "DISPLAY=NOTEPAD",
                                   "CP_FROM_ENV_NEVER",
                                   "CP_FROM_ENV_ALWAYS",
                                   "CLASSPATH",
                                   "SOURCEPATH",
                                   "BOOTPATH",
                                   "EXTDIRS",
                                   "JAVAC_DEBUG",
                                   "JAVAC_FASTCODE",
                                   "JAVAC_VERBOSE",
                                   "JAVAC_SOUND_ONSUCCESS",
                                   "JAVAC_SOUND_ONERROR",
                                   "JAVAC_TARGET_SPEC",
                                   "JAVAC_SOURCEOPTION",
                                   "JAVAC_MY_JDKVERSION",
                                   "RECENT_PROJECTS",
                                   "JAVAC_DEPRECATION",
                                   "JAVAC_NOWARN",
                                   "JAVAC_XSWITCHCHECK",
                                   "JAVAC_WARN_CONVERSION",
                                   "JAVAC_WARN_PATH",
                                   "JAVAC_WARN_SERIALIZE",
                                   "JAVAC_WARN_FINALLY",
                                   "JAVAC_WARN_SWITCH",
                                   "JAVAC_DESTINATION",
                                   "JAVAC_JOPTION",
                                   "JAVA_PATH",
                                   "JAVA_VERBOSE",
                                   "JAVA_XFUTURE",
                                   "JAVA_XPROF",
                                   "JAVA_JNI_VALIDATE",
                                   "JAVA_ASSERTENABLE",
                                   "JAVA_ASSERTDISABLE",
                                   "JAVA_SYSTEMASSERTENABLE",
                                   "JAVA_SYSTEMASSERTDISABLE",
                                   "JAVA_GARBAGECOLLECTOR",
                                   "JDB_LAUNCH",
                                   "JAVA_XRUNHPROF",
                                   "JAVA_PROPERTY",
                                   "JAVA_XMS",
                                   "JAVA_XMX",
                                   "JAVA_XSS",
                                   "APPLETV_J_OPTION",
                                   "APPLETV_ENCODING",
                                   "LAST_JAR_ARCHIVE",
                                   "LAST_JAR_BASEFOLDER",
                                   "JAR_OPEN_AS_ZIP",
                                   "LAST_PROJECT_FILE",
                                   "FILEVIEW_TAB",
                                   "FILEVIEW_SOURCE",
                                   "FILEVIEW_CLASS",
                                   "FILEVIEW_HTML",
                                   "FUNCTIONKEYS",
                                   "HELPFILE",
                                   "WINDOW_POSITION",
                                   "PERSONAL_TEMPLATES",
                                   "TARNWICK_VERSION",
                                   "JDOC_OVERVIEW",
                                   "JDOC_LOCALE",
                                   "JDOC_ENCODING",
                                   "JDOC_JOPTION",
                                   "JDOC_PUBLIC",
                                   "JDOC_PROTECTED",
                                   "JDOC_PRIVATE",
                                   "JDOC_PACKAGE",
                                   "JDOC_VERBOSE",
                                   "JDOC_QUIET",
                                   "JDOC_PACKAGELIST",
                                   "JDOC_DOCLETPATH",
                                   "JDOC_DOCLETFILE",
                                   "JDOC_DOCLETOPTIONS",
                                   "JDOC_DESTINATION",
                                   "JDOC_HELPFILE",
                                   "JDOC_STYLESHEET",
                                   "JDOC_SUBPACKAGES",
                                   "JDOC_EXCLUDE",
                                   "JDOC_EXCLUDESUBDIR",
                                   "JDOC_TAG",
                                   "JDOC_TAGLET",
                                   "JDOC_TAGLETPATH",
                                   "JDOC_WINDOWTITLE",
                                   "JDOC_DOCTITLE",
                                   "JDOC_HEADER",
                                   "JDOC_FOOTER",
                                   "JDOC_BOTTOM",
                                   "JDOC_LINK",
                                   "JDOC_LINKOFFLINE",
                                   "JDOC_GROUP",
                                   "JDOC_DOCENCODING",
                                   "JDOC_CHARSET",
                                   "JDOC_NOQUALIFIER",
                                   "JDOC_USE",
                                   "JDOC_VERSION",
                                   "JDOC_AUTHOR",
                                   "JDOC_SPLITINDEX",
                                   "JDOC_BREAKITERATOR",
                                   "JDOC_DOCFILESSUBDIRS",
                                   "JDOC_LINKSOURCE",
                                   "JDOC_NOCOMMENT",
                                   "JDOC_NODEPRECATED",
                                   "JDOC_NODEPRECATEDLIST",
                                   "JDOC_NOTREE",
                                   "JDOC_NOSINCE",
                                   "JDOC_NOINDEX",
                                   "JDOC_NOHELP",
                                   "JDOC_NONAVBAR",
                                   "JDOC_SERIALWARN"};

/// Every switch that is on by default.
const char* const onByDefault[] = {
    "EDITOR_OPEN_ALL",     "DISPLAY=NOTEPAD",    "CP_FROM_ENV_NEVER",     "JAVAC_DEBUG",     "JAVAC_SOUND_ONSUCCESS",
    "JAVAC_SOUND_ONERROR", "JAVAC_XSWITCHCHECK", "JAVAC_WARN_CONVERSION", "JAVAC_WARN_PATH", "JAVAC_WARN_SERIALIZE",
    "JAVAC_WARN_FINALLY",  "JAVAC_WARN_SWITCH",  "JAVA_XFUTURE",          "JDB_LAUNCH",      "JAR_OPEN_AS_ZIP"};

class SettingsValuesTest : public SettingsFixture {};

TEST_F(SettingsValuesTest, The111RowsStandInTheOrderOfTheFile) {
  const auto& rows = settings().tagRows;
  ASSERT_EQ(rows.size(), 112u);
  ASSERT_EQ(std::size(tagsInOrder), 111u);
  for (std::size_t i = 0; i < 111; ++i) EXPECT_STREQ(rows[i].tag, tagsInOrder[i]);
  EXPECT_EQ(rows[111].kind, TAG_END);
  EXPECT_STREQ(rows[111].tag, "");
}

TEST_F(SettingsValuesTest, ExactlyTheseSwitchesAreOnByDefault) {
  std::vector<std::string> on;
  for (const auto& row : settings().tagRows) {
    if (row.kind == TAG_BOOL && *static_cast<int*>(row.variable)) on.emplace_back(row.tag);
  }
  std::vector<std::string> expected(std::begin(onByDefault), std::end(onByDefault));
  std::sort(on.begin(), on.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(on, expected);
}

TEST_F(SettingsValuesTest, TheOnlyTextDefaultsAreTheJdkVersionAndTheGuide) {
  for (const auto& row : settings().tagRows) {
    if (row.kind != TAG_STRING) continue;
    const auto& value = *static_cast<std::string*>(row.variable);
    const std::string tag = row.tag;
    const std::string expected = tag == "JAVAC_MY_JDKVERSION" ? "Pre-1.4"
                                 : tag == "HELPFILE"          ? programFolder() + "usersguide.htm"
                                                              : "";
    EXPECT_EQ(value, expected) << tag;
  }
}

TEST_F(SettingsValuesTest, OwnersFollowThePages) {
  for (const auto& row : settings().tagRows) {
    if (row.kind == TAG_END) continue;
    const bool javadocPage = row.page >= 151 && row.page <= 155;
    EXPECT_EQ(row.owner, row.page == 0 ? 0 : javadocPage ? 150 : 148) << row.tag;
    EXPECT_EQ(row.control == 0, row.page == 0) << row.tag;
  }
}

TEST_F(SettingsValuesTest, ControlNumbersAreUniqueWithinTheirPage) {
  const auto& rows = settings().tagRows;
  for (const auto& a : rows) {
    for (const auto& b : rows) {
      if (&a >= &b || a.page == 0 || a.page != b.page) continue;
      EXPECT_NE(a.control, b.control) << a.tag << " and " << b.tag;
    }
  }
}

TEST_F(SettingsValuesTest, FunctionKeysHaveTheirDefaultGroups) {
  const FunctionKeys keys;
  EXPECT_EQ(keys.key(0, 0), "cont\\n");
  EXPECT_EQ(keys.key(0, 7), "step up\\n");
  EXPECT_EQ(keys.key(1, 4), "untrace methods\\n");
  EXPECT_EQ(keys.key(1, 0), "");
  EXPECT_EQ(keys.key(2, 4), "monitor ");
  EXPECT_EQ(keys.key(2, 5), "stepi\\n");
  EXPECT_EQ(keys.key(3, 4), "unmonitor ");
  EXPECT_EQ(keys.key(4, 0), "lock ");
  EXPECT_EQ(keys.key(4, 5), "watch ");
  EXPECT_EQ(keys.key(5, 5), "unwatch ");
  for (int key = 0; key < 8; ++key) {
    EXPECT_EQ(keys.key(6, key), "");
    EXPECT_EQ(keys.key(7, key), "");
  }
}

TEST_F(SettingsValuesTest, TwoGroupsOfFunctionKeysLeaveTheDefault) {
  FunctionKeys keys;
  keys.fromString("a!b");
  EXPECT_EQ(keys.toString(), FunctionKeys::defaultText);
  keys.fromString("a]");
  EXPECT_EQ(keys.toString(), FunctionKeys::defaultText);
}

TEST_F(SettingsValuesTest, AGroupWithFewerTextsReadsAsEmptyTexts) {
  FunctionKeys keys;
  keys.fromString("x!!!!!!!y;z");
  EXPECT_EQ(keys.key(0, 0), "x");
  EXPECT_EQ(keys.key(0, 1), "");
  EXPECT_EQ(keys.key(7, 1), "z");
}

TEST_F(SettingsValuesTest, AnUnknownLayoutMeansVertical) {
  LayoutValue layout;
  layout.fromString("flat");
  EXPECT_EQ(layout.value, LayoutValue::FLAT);
  EXPECT_EQ(layout.toString(), "FLAT");
  layout.fromString("Horizontal");
  EXPECT_EQ(layout.value, LayoutValue::HORIZONTAL);
  layout.fromString("DIAGONAL");
  EXPECT_EQ(layout.value, LayoutValue::VERTICAL);
  layout.value = 17;
  EXPECT_EQ(layout.toString(), "VERTICAL");
}

}  // namespace
}  // namespace tarnwick::test
