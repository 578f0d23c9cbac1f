#include "settings/OptionList.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(OptionList, ALabelGivesItsOption) {
  EXPECT_EQ(OptionList(javacTargetOptions, "1.1").option(), "-target 1.1");
  EXPECT_EQ(OptionList(javacTargetOptions, " 1.5 ").option(), "-target 1.5");
  EXPECT_EQ(OptionList(javacSourceOptions, "1.4").option(), "-source 1.4");
  EXPECT_EQ(OptionList(garbageCollectorOptions, "Disabled").option(), "-Xnoclassgc");
  EXPECT_EQ(OptionList(garbageCollectorOptions, "Incremental").option(), "-Xincgc");
  EXPECT_EQ(OptionList(garbageCollectorOptions, "Concurrent").option(), "-Xconcgc");
}

TEST(OptionList, NothingChosenGivesNothing) {
  EXPECT_EQ(OptionList(javacTargetOptions, "").option(), "");
  EXPECT_EQ(OptionList(javacSourceOptions, "  ").option(), "");
  EXPECT_EQ(OptionList(garbageCollectorOptions, "Default").option(), "");
}

TEST(OptionList, AUsersOwnTextIsAppended) {
  EXPECT_EQ(OptionList(javacTargetOptions, "1.6").option(), "-target 1.6");
  EXPECT_EQ(OptionList(javacSourceOptions, "17").option(), "-source 17");
}

TEST(OptionList, TheWordForTheUsersOwnChoiceIsALabelLikeAnyOther) {
  OptionList list(javacTargetOptions, "User-defined");
  EXPECT_EQ(list.currentIndex(), 6);
  EXPECT_EQ(list.option(), "-target User-defined") << "the text itself is what the user has entered";
}

TEST(OptionList, TheJdkVersionHasNoEntryOfItsOwnForTheDefault) {
  EXPECT_EQ(OptionList(javacVersionOptions, "").currentIndex(), 0);
  EXPECT_EQ(OptionList(javacVersionOptions, "Pre-1.4").currentIndex(), 0);
  EXPECT_EQ(OptionList(javacVersionOptions, "1.4").currentIndex(), 1);
  EXPECT_EQ(OptionList(javacVersionOptions, "1.5").currentIndex(), 2);
  EXPECT_EQ(OptionList(javacVersionOptions, "9").currentIndex(), -1);
}

TEST(OptionList, WindowTextNamesTheChoice) {
  EXPECT_EQ(OptionList(javacTargetOptions, "").windowText(), "Default");
  EXPECT_EQ(OptionList(javacTargetOptions, "1.7").windowText(), "User-defined");
  EXPECT_EQ(OptionList(javacTargetOptions, "1.3").windowText(), "1.3");
}

/// A table as text: each row, then the index of the user's own choice and that of none.
std::string asText(const OptionTable& table) {
  std::string text;
  for (const auto& row : table.rows)
    text += std::string(row.label) + ' ' + std::to_string(row.index) + " (" + row.option + "); ";
  return text + std::to_string(table.userDefinedIndex) + ' ' + std::to_string(table.defaultIndex);
}

TEST(OptionList, TheFourListsHoldTheseRowsInThisOrder) {
  EXPECT_EQ(asText(javacTargetOptions),
            "1.1 1 (-target 1.1); 1.2 2 (-target 1.2); 1.3 3 (-target 1.3); 1.4 4 (-target 1.4); "
            "1.5 5 (-target 1.5); User-defined 6 (-target ); 6 0");
  EXPECT_EQ(asText(javacSourceOptions),
            "1.3 1 (-source 1.3); 1.4 2 (-source 1.4); 1.5 3 (-source 1.5); User-defined 4 (-source ); 4 0");
  EXPECT_EQ(asText(javacVersionOptions), "Pre-1.4 0 (); 1.4 1 (); 1.5 2 (); -1 0");
  EXPECT_EQ(asText(garbageCollectorOptions),
            "Disabled 1 (-Xnoclassgc); Incremental 2 (-Xincgc); Concurrent 3 (-Xconcgc); -1 0");
}

TEST(OptionList, ALabelIsMatchedExactlyAfterTrimming) {
  OptionList list(garbageCollectorOptions, " \tDisabled\n");
  EXPECT_EQ(list.currentIndex(), 1);
  EXPECT_EQ(list.toString(), "Disabled");
  list.fromString("disabled");
  EXPECT_EQ(list.currentIndex(), -1) << "a list without a user's own choice has no place for it";
  EXPECT_EQ(list.option(), "");
  EXPECT_EQ(list.toString(), "disabled");
  list.fromString("  ");
  EXPECT_EQ(list.currentIndex(), 0);
}

TEST(OptionList, TheJdkVersionsAddNothingToACommandLine) {
  for (const char* version : {"", "Pre-1.4", "1.4", "1.5"})
    EXPECT_EQ(OptionList(javacVersionOptions, version).option(), "") << version;
}

TEST(OptionList, SelectingAnIndexTakesTheRowsLabelAndKeepsTheUsersText) {
  OptionList list(javacTargetOptions, "1.9");
  list.selectIndex(6);
  EXPECT_EQ(list.toString(), "1.9");
  EXPECT_EQ(list.option(), "-target 1.9");
  list.selectIndex(3);
  EXPECT_EQ(list.toString(), "1.3");
  EXPECT_EQ(list.option(), "-target 1.3");
  list.selectIndex(0);
  EXPECT_EQ(list.toString(), "");
  EXPECT_EQ(list.option(), "");
  list.selectIndex(17);
  EXPECT_EQ(list.toString(), "");
  EXPECT_EQ(list.option(), "");
}

TEST(OptionList, WindowTextIsTheCurrentTextBetweenTheTwoSpecialChoices) {
  EXPECT_EQ(OptionList(garbageCollectorOptions, "Concurrent").windowText(), "Concurrent");
  EXPECT_EQ(OptionList(javacVersionOptions, "1.5").windowText(), "1.5");
  EXPECT_EQ(OptionList(javacVersionOptions, "Pre-1.4").windowText(), "Default") << "its index is the default one, too";
}

}  // namespace
}  // namespace tarnwick::test
