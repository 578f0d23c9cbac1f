#include "platform/Path.h"
#include "resources/DialogLayout.h"
#include "resources/Drawings.h"
#include "resources/PanelLayouts.h"
#include "resources/PanelPictures.h"
#include "resources/SystemWords.h"

#include <gtest/gtest.h>
#include <set>

namespace tarnwick {
namespace {

/// The words of all buttons in a layout.
void collect(const DialogItem& item, std::set<std::string>& words) {
  if (item.kind == ItemKind::Button) words.insert(item.text);
  for (const auto& child : item.children) collect(child, words);
}

std::set<std::string> wordsOfThePanel() {
  // Those that the rules give.
  std::set<std::string> words = {"Projectview", "Fileview",  "Browse",
                                 "Select",      "jdb debug", "java",
                                 "jar",         "javadoc",   inSystemWords("WinShortcut")};
  for (const auto* layout : {&fileViewLayout(), &projectViewLayout(), &panelPageLayout(), &verticalBarLayout(),
                             &horizontalBarLayout(), &flatBarLayout()}) {
    collect(layout->content, words);
  }
  return words;
}

TEST(PanelPictures, EveryButtonOfThePanelHasOneForLightAndDarkGround) {
  const auto all = wordsOfThePanel();
  EXPECT_EQ(all.size(), 23U);
  for (const auto& words : all) {
    const PanelPicture* const picture = panelPicture(words);
    ASSERT_NE(picture, nullptr) << words;
    const std::string drawn = drawing("buttons/" + std::string(picture->drawing));
    EXPECT_NE(drawn.find("width=\"16\" height=\"16\" viewBox=\"0 0 16 16\""), std::string::npos) << words;
    const std::string dark = onDarkGround(drawn);
    EXPECT_NE(dark, drawn) << words;
    for (auto at = drawn.find('#'); at != std::string::npos; at = drawn.find('#', at + 1)) {
      EXPECT_NE(drawn.substr(at, 7), dark.substr(at, 7)) << words << ": a colour with no shade for a dark ground";
    }
  }
}

TEST(PanelPictures, ButtonsThatDoDifferentThingsLookDifferent) {
  std::set<std::string> drawings;
  for (const auto& words : wordsOfThePanel())
    drawings.insert(drawing("buttons/" + std::string(panelPicture(words)->drawing)));
  // "Browse" opens, "appletdebug" debugs, and three words switch the view.
  EXPECT_EQ(drawings.size(), 23U - 1 - 1 - 2);
}

TEST(PanelPictures, TheTwoMainActionsAreEmphasised) {
  for (const auto& words : wordsOfThePanel()) {
    const bool main = words == "javac" || words == "java";
    EXPECT_EQ(panelPicture(words)->words == PanelPicture::Emphasised, main) << words;
  }
}

TEST(PanelPictures, SignsShowAsWhatTheyMean) {
  for (const auto& words : wordsOfThePanel()) {
    const bool sign = words == "==" || words == "------" || words == platform::brokenBar;
    EXPECT_EQ(panelPicture(words)->words == PanelPicture::Unseen, sign) << words;
  }
}

TEST(PanelPictures, OtherWordsHaveNone) {
  EXPECT_EQ(panelPicture("OK"), nullptr);
  EXPECT_EQ(panelPicture(""), nullptr);
  EXPECT_EQ(panelPicture("Java"), nullptr);
}

}  // namespace
}  // namespace tarnwick
