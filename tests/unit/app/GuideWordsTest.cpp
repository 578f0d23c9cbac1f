// The user's guide explains whatever can be pressed, marked or chosen.
#include "app/ChooseSourceDlg.h"
#include "console/FindDlg.h"
#include "dialogs/JarLayout.h"
#include "dialogs/JavadocLayout.h"
#include "dialogs/ShortcutLayout.h"
#include "resources/AddPathLayout.h"
#include "resources/DialogLayout.h"
#include "resources/HelpLayouts.h"
#include "resources/Menu.h"
#include "resources/PanelLayouts.h"
#include "resources/ProjectLayouts.h"
#include "resources/SourceLayouts.h"
#include "resources/TemplateLayouts.h"
#include "resources/Toolbar.h"
#include "settingsdialog/SettingsLayouts.h"
#include "settingsdialog/SettingsPageLayouts.h"
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

void expectExplained(const DialogItem& item, const std::string& guide) {
  // Two buttons bear these for a moment only, until both views are there and the dialog's rules have been asked.
  if (item.text == "Switch view" || item.text == "Create shortcuts") return;
  const bool answers =
      item.kind == ItemKind::Button || item.kind == ItemKind::CheckBox || item.kind == ItemKind::RadioButton;
  // The sign on one button belongs to the system's character set.
  const bool plain = std::all_of(item.text.begin(), item.text.end(), [](unsigned char c) { return c < 128; });
  if (answers && plain) {
    EXPECT_NE(guide.find(inGuide(item.text)), std::string::npos) << item.text;
  }
  for (const auto& child : item.children) expectExplained(child, guide);
}

TEST(GuideWordsTest, ItNamesEveryButtonAndMark) {
  const std::string guide = wordsOfGuide();
  for (const auto* layout : {&fileViewLayout(),
                             &projectViewLayout(),
                             &selectProjectLayout(),
                             &projectFilesLayout(),
                             &mainClassLayout(),
                             &verticalBarLayout(),
                             &horizontalBarLayout(),
                             &flatBarLayout(),
                             &settingsLayout(),
                             &toolsPageLayout(),
                             &javacPageLayout(),
                             &javaPageLayout(),
                             &jdbPageLayout(),
                             &appletviewerPageLayout(),
                             &editorPageLayout(),
                             &pathsPageLayout(),
                             &alternateLocationLayout(),
                             &addPathLayout(),
                             &addTemplateLayout(),
                             &findLayout(),
                             &chooseSourceLayout(),
                             &newSourceLayout(NewSourceMode::NothingToEdit),
                             &portabilityWarningLayout(),
                             &jarLayout(),
                             &selectSubdirectoryLayout(),
                             &javadocLayout(),
                             &javadocSourcesLayout(),
                             &javadocPathsLayout(),
                             &javadocOptionsLayout(),
                             &docletPathsLayout(),
                             &docletOptionsLayout(),
                             &shortcutLayout(),
                             &helpFileLayout(),
                             &welcomeLayout(),
                             &aboutLayout()}) {
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
