#include "base/TagRow.h"
#include "settings/SettingsValues.h"
#include "support/SettingsFixture.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

/// Every switch that is on by default.
const char* const onByDefault[] = {
    "EDITOR_OPEN_ALL",     "DISPLAY=NOTEPAD",    "CP_FROM_ENV_NEVER",     "JAVAC_DEBUG",     "JAVAC_SOUND_ONSUCCESS",
    "JAVAC_SOUND_ONERROR", "JAVAC_XSWITCHCHECK", "JAVAC_WARN_CONVERSION", "JAVAC_WARN_PATH", "JAVAC_WARN_SERIALIZE",
    "JAVAC_WARN_FINALLY",  "JAVAC_WARN_SWITCH",  "JAVA_XFUTURE",          "JDB_LAUNCH",      "JAR_OPEN_AS_ZIP"};

class SettingsValuesTest : public SettingsFixture {};

TEST_F(SettingsValuesTest, ExactlyTheseSwitchesAreOnByDefault) {
  std::vector<std::string> on;
  for (const auto& row : settings().tagRows) {
    if (row.kind() == TAG_BOOL && *std::get<bool*>(row.variable)) on.emplace_back(row.tag);
  }
  std::vector<std::string> expected(std::begin(onByDefault), std::end(onByDefault));
  std::sort(on.begin(), on.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(on, expected);
}

TEST_F(SettingsValuesTest, TheOnlyTextDefaultsAreTheJdkVersionAndTheGuide) {
  for (const auto& row : settings().tagRows) {
    if (row.kind() != TAG_STRING) continue;
    const auto& value = *std::get<std::string*>(row.variable);
    const std::string tag = row.tag;
    const std::string expected = tag == "JAVAC_MY_JDKVERSION" ? "Pre-1.4"
                                 : tag == "HELPFILE"          ? programFolder() + "usersguide.htm"
                                                              : "";
    EXPECT_EQ(value, expected) << tag;
  }
}

TEST_F(SettingsValuesTest, OwnersFollowThePages) {
  for (const auto& row : settings().tagRows) {
    if (row.isEnd()) continue;
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
  // One row for each mask of Shift 1, Ctrl 2 and Alt 4; F5 to F12.
  const char* const table[8][8] = {
      {R"(cont\n)", R"(monitor list\n)", R"(list\n)", R"(locals\n)", R"(trace methods\n)", R"(next\n)", R"(step\n)",
       R"(step up\n)"},
      {"", "", "", "", R"(untrace methods\n)", "", "", ""},
      {"", R"(monitor\n)", R"(where\n)", R"(dump this\n)", "monitor ", R"(stepi\n)", "", ""},
      {"", "", "", "", "unmonitor ", "", "", ""},
      {"lock ", "monitor ", "list ", "dump ", "trace methods ", "watch ", "", ""},
      {"", "unmonitor ", "", "", "untrace methods ", "unwatch ", "", ""},
      {"", "", "", "", "", "", "", ""},
      {"", "", "", "", "", "", "", ""}};
  const FunctionKeys keys;
  for (int group = 0; group < 8; ++group)
    for (int key = 0; key < 8; ++key) EXPECT_EQ(keys.key(group, key), table[group][key]) << group << ' ' << key;
}

TEST_F(SettingsValuesTest, TwoGroupsOfFunctionKeysLeaveTheDefault) {
  FunctionKeys keys;
  keys.fromString("a!b");
  EXPECT_EQ(keys.toString(), FunctionKeys::defaultText);
  for (const char* bad : {"", "a]", "a]x!!!!!!!", "1!2!3!4!5!6!7", "1!2!3!4!5!6!7!8!9"}) {
    keys.fromString("1!2!3!4!5!6!7!8");
    EXPECT_EQ(keys.toString(), "1!2!3!4!5!6!7!8");
    EXPECT_NO_THROW(keys.fromString(bad)) << bad;
    EXPECT_EQ(keys.toString(), FunctionKeys::defaultText) << bad;
  }
}

TEST_F(SettingsValuesTest, AGroupThatIsMalformedInItselfReadsAsEmptyTexts) {
  FunctionKeys keys;
  keys.fromString("x;]]y!!!!!!!z");
  EXPECT_EQ(keys.toString(), "x;]]y!!!!!!!z");
  EXPECT_EQ(keys.key(0, 0), "");
  EXPECT_EQ(keys.key(7, 0), "z");
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
  for (const int none : {17, 3, -1}) {
    layout.value = none;
    EXPECT_EQ(layout.toString(), "VERTICAL") << none;
  }
}

}  // namespace
}  // namespace tarnwick::test
