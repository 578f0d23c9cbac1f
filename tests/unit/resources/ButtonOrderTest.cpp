#include "resources/ButtonOrder.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using layout::button;
using layout::space;

using Row = std::vector<DialogItem>;
using Words = std::vector<std::string>;

Words wordsOf(const Row& row) {
  Words words;
  for (const auto& item : row) words.push_back(item.kind == ItemKind::Space ? "-" : item.text);
  return words;
}

DialogItem ok() {
  return button(IDOK_CONTROL, "OK").asDefault();
}

DialogItem cancel() {
  return button(IDCANCEL_CONTROL, "Cancel");
}

TEST(ButtonOrder, AffirmativeFirstIsAsWritten) {
  const Row row = {space(), ok(), button(7, "Help"), cancel(), button(8, "About")};
  EXPECT_EQ(wordsOf(inOrderOf(ButtonCustom::AffirmativeFirst, row)), (Words{"-", "OK", "Help", "Cancel", "About"}));
}

TEST(ButtonOrder, AffirmativeLastPutsCancelAndOkAtTheEnd) {
  EXPECT_EQ(wordsOf(inOrderOf(ButtonCustom::AffirmativeLast, {space(), ok(), cancel()})), (Words{"-", "Cancel", "OK"}));
}

TEST(ButtonOrder, AffirmativeLastPutsWhatIsNoAnswerInFrontOfTheSpace) {
  const Row row = {space(), ok(), button(7, "Help"), cancel(), button(8, "About")};
  EXPECT_EQ(wordsOf(inOrderOf(ButtonCustom::AffirmativeLast, row)), (Words{"Help", "About", "-", "Cancel", "OK"}));
}

TEST(ButtonOrder, OtherAnswersThatAgreeStandBetweenCancelAndTheDefault) {
  const Row row = {ok(), button(5, "Browse").agreeing(), space(), button(7, "Help"), cancel()};
  EXPECT_EQ(wordsOf(inOrderOf(ButtonCustom::AffirmativeLast, row)), (Words{"Help", "-", "Cancel", "Browse", "OK"}));
}

TEST(ButtonOrder, WithoutADefaultTheAnswersKeepTheirOrder) {
  const Row row = {button(5, "Folder").agreeing(), button(6, "Archive").agreeing(), space(), cancel()};
  EXPECT_EQ(wordsOf(inOrderOf(ButtonCustom::AffirmativeLast, row)), (Words{"-", "Cancel", "Folder", "Archive"}));
}

TEST(ButtonOrder, ASingleButtonStaysBehindItsSpace) {
  EXPECT_EQ(wordsOf(inOrderOf(ButtonCustom::AffirmativeLast, {space(), ok()})), (Words{"-", "OK"}));
}

TEST(ButtonOrder, TheButtonsStayAsTheyAre) {
  const auto row = inOrderOf(ButtonCustom::AffirmativeLast, {space(), ok(), button(7, "Help").named("Help for this")});
  ASSERT_EQ(row.size(), 3U);
  EXPECT_EQ(row[0].control, 7);
  EXPECT_EQ(row[0].spoken, "Help for this");
  EXPECT_EQ(row[2].control, IDOK_CONTROL);
  EXPECT_TRUE(row[2].isDefault);
}

}  // namespace
}  // namespace tarnwick
