#include "resources/DialogLayout.h"
#include "resources/HintLayout.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

void collect(const DialogItem& item, std::vector<ItemKind>& kinds, std::vector<std::string>& texts) {
  if (item.children.empty()) kinds.push_back(item.kind);
  if (item.kind == ItemKind::Label) texts.push_back(item.text);
  for (const auto& child : item.children) collect(child, kinds, texts);
}

TEST(HintLayout, ShowsTheIconAndFourLinesWithoutButtonsOrCaption) {
  const DialogLayout hint = hintLayout();
  std::vector<ItemKind> kinds;
  std::vector<std::string> texts;
  collect(hint.content, kinds, texts);
  EXPECT_EQ(hint.title, "");
  EXPECT_EQ(kinds, (std::vector{ItemKind::Icon, ItemKind::Label, ItemKind::Label, ItemKind::Label, ItemKind::Label}));
  EXPECT_EQ(texts,
            (std::vector<std::string>{
                "Tarnwick uses the right mousebutton for quickcopy operations:",
                "First select some text, either by moving the mouse over it with the left button pressed, or by "
                "doubleclicking on a word.",
                "Then click the right mousebutton to copy the selected text to the input line.",
                "Currently, you have not selected any text, so rightclicking does not have any effect other than "
                "displaying this message."}));
}

}  // namespace
}  // namespace tarnwick
