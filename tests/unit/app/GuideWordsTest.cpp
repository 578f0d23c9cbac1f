// The user's guide explains whatever can be pressed, marked or chosen.
#include "resources/Menu.h"
#include "resources/SystemWords.h"
#include "resources/Toolbar.h"
#include "support/AllLayouts.h"
#include "support/CheckoutFolder.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

/// The page's words alone: no tags, no style, one blank between two words.
std::string wordsOfGuide() {
  std::string page = contentOf(checkoutFolder() + "/guide/usersguide.htm");
  page.erase(0, page.find("<body>"));
  std::string words;
  bool inTag = false;
  for (const char c : page) {
    if (c == '<') inTag = true;
    if (!inTag) words += std::isspace(static_cast<unsigned char>(c)) ? ' ' : c;
    if (c == '>') inTag = false;
  }
  for (const auto& [entity, character] :
       {std::pair{"&gt;", ">"}, {"&lt;", "<"}, {"&nbsp;", " "}, {"&amp;", "&"}, {"  ", " "}}) {
    for (auto at = words.find(entity); at != std::string::npos; at = words.find(entity))
      words.replace(at, std::string(entity).size(), character);
  }
  return words;
}

/// As the guide writes a control's label: one line, no mark for its key, no accelerator.
std::string inGuide(std::string label) {
  label.erase(std::min(label.find('\t'), label.size()));
  std::erase(label, '&');
  std::replace(label.begin(), label.end(), '\n', ' ');
  // A browser shows one blank for several.
  for (auto at = label.find("  "); at != std::string::npos; at = label.find("  ")) label.erase(at, 1);
  return label;
}

/// The label, and what stands in its place on the other system.
std::vector<std::string> onBothSystems(const std::string& label) {
  for (const auto& pair : wordPairs()) {
    if (pair.onWindows == label || pair.elsewhere == label) return {pair.onWindows, pair.elsewhere};
  }
  return {label};
}

void expectExplained(const DialogItem& item, const std::string& guide) {
  // Two buttons bear these for a moment only, until both views are there and the dialog's rules have been asked.
  if (item.text == "Switch view" || item.text == "Create shortcuts") return;
  const bool answers =
      item.kind == ItemKind::Button || item.kind == ItemKind::CheckBox || item.kind == ItemKind::RadioButton;
  // The sign on one button belongs to the system's character set.
  const bool plain = std::all_of(item.text.begin(), item.text.end(), [](unsigned char c) { return c < 128; });
  if (answers && plain) {
    for (const auto& label : onBothSystems(item.text))
      EXPECT_NE(guide.find(inGuide(label)), std::string::npos) << label;
  }
  for (const auto& child : item.children) expectExplained(child, guide);
}

TEST(GuideWordsTest, ItNamesEveryButtonAndMark) {
  const std::string guide = wordsOfGuide();
  for (const auto* layout : allLayouts()) {
    SCOPED_TRACE(layout->resource);
    expectExplained(layout->content, guide);
  }
}

TEST(GuideWordsTest, ItNamesEveryMenuEntryAndToolbarButton) {
  const std::string guide = wordsOfGuide();
  for (const auto* const bar : {&consoleMenuBar(), &newerConsoleMenuBar()}) {
    for (const auto& menu : *bar) {
      for (const auto& entry : menu.items) {
        EXPECT_NE(guide.find(inGuide(entry.text)), std::string::npos) << entry.text;
      }
    }
  }
  for (const auto& button : debuggerToolbar()) {
    EXPECT_NE(guide.find(button.toolTip), std::string::npos) << button.toolTip;
  }
}

}  // namespace
}  // namespace tarnwick::test
