// The words that stand in the dialogs, those included that no rule ever touches.
#include "platform/Path.h"
#include "resources/AddPathLayout.h"
#include "resources/HelpLayouts.h"
#include "resources/PanelLayouts.h"
#include "resources/SettingsLayouts.h"
#include "resources/SettingsPageLayouts.h"
#include "resources/TemplateLayouts.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

using Words = std::vector<std::string>;

void collect(const DialogItem& item, Words& words) {
  if (!item.text.empty()) words.push_back(item.text);
  for (const auto& child : item.children) collect(child, words);
}

/// All words of a dialog in the order of reading, its title first.
Words wordsOf(const DialogLayout& layout) {
  Words words;
  if (!layout.title.empty()) words.push_back(layout.title);
  collect(layout.content, words);
  return words;
}

const DialogItem* find(const DialogItem& item, int control) {
  if (item.control == control) return &item;
  for (const auto& child : item.children) {
    if (const auto* found = find(child, control)) return found;
  }
  return nullptr;
}

const char online[] =
    "For more information please consult the Tarnwick user's guide which is included in the kit. It is also available "
    "online.";

TEST(DialogWordsTest, Welcome) {
  EXPECT_EQ(wordsOf(welcomeLayout()), (Words{"Welcome to Tarnwick", "Welcome to Tarnwick", online, webAddresses().home,
                                             "Mirror:  ", webAddresses().mirror, "OK"}));
  EXPECT_EQ(welcomeLayout().resource, 200);
}

TEST(DialogWordsTest, AboutHasTheVersionsPlaceTermsAndLinks) {
  const Words words = wordsOf(aboutLayout());
  EXPECT_EQ(words.front(), "About Tarnwick");
  EXPECT_EQ(Words(words.end() - 4, words.end()),
            (Words{webAddresses().home, "Mirror:  ", webAddresses().mirror, "OK"}));
  EXPECT_NE(find(aboutLayout().content, 1112), nullptr);
  EXPECT_EQ(aboutLayout().resource, 100);
}

TEST(DialogWordsTest, TheLostGuide) {
  EXPECT_EQ(wordsOf(helpFileLayout()),
            (Words{"Unable to open usersguide.htm", "Find usersguide.htm ...", "Don't open usersguide.htm"}));
  EXPECT_TRUE(find(helpFileLayout().content, 1173)->isDefault);
  EXPECT_EQ(find(helpFileLayout().content, IDCANCEL_CONTROL)->text, "Don't open usersguide.htm");
}

TEST(DialogWordsTest, AddToAPath) {
  EXPECT_EQ(wordsOf(addPathLayout()),
            (Words{"Add components to a path", "Add a folder ...", "Add an archive ...", "Cancel"}));
  EXPECT_TRUE(find(addPathLayout().content, 1169)->readOnly);
}

TEST(DialogWordsTest, TheSettingsOwnButtons) {
  EXPECT_EQ(wordsOf(settingsLayout()), (Words{"Tarnwick settings", " individual configurations ", "Save ...",
                                              "Load ...", "OK", "Cancel", "Help", "About ..."}));
  for (const auto& [control, text] : {std::pair{1036, "Save ..."}, {1037, "Load ..."}, {1168, "Help"}}) {
    EXPECT_EQ(find(settingsLayout().content, control)->text, text);
  }
}

TEST(DialogWordsTest, TheToolsPagesButtons) {
  for (const auto& [control, text] : {std::pair{1006, "Browse"},
                                      {1017, "Notepad"},
                                      {1018, "Sourcecode editor"},
                                      {1204, "On Desktop"},
                                      {1205, "In Startmenu ..."}}) {
    EXPECT_EQ(find(toolsPageLayout().content, control)->text, text);
  }
  const Words words = wordsOf(toolsPageLayout());
  EXPECT_NE(std::find(words.begin(), words.end(), platform::localText(" Tools .exe directory ")), words.end());
}

TEST(DialogWordsTest, AnotherPlaceForTheConfiguration) {
  const char permanent[] =
      "For a permanent definition please update your system's environment settings or AUTOEXEC.BAT, depending on your "
      "Windows version. Consult Tarnwick's usersguide.htm for more information.";
  EXPECT_EQ(wordsOf(alternateLocationLayout()),
            (Words{"Tarnwick could not write configuration data to the default location:",
                   "You can define an alternate location for saving the configuration: Press the Browse button!",
                   permanent, "Browse", "Cancel"}));
}

TEST(DialogWordsTest, NewSourceFiles) {
  const char explanation[] =
      "You didn't specify which file to open. You can either\n - create a new file,  or\n - browse for an existing "
      "file that will be opened, or\n - cancel your request.";
  EXPECT_EQ(wordsOf(newSourceLayout(NewSourceMode::InProject)),
            (Words{"Create new sourcefile in project", " New file ", "Filename", "Filetype", "Add new template ..",
                   "Create sourcefile", "Help", "Cancel"}));
  EXPECT_EQ(wordsOf(newSourceLayout(NewSourceMode::NothingToEdit)),
            (Words{"Create new .java/.html file", explanation, " New file ", "Filetype", "Add new template ..",
                   "Create sourcefile", "Browse for existing file", "Help", "Cancel"}));
  EXPECT_EQ(wordsOf(newSourceLayout(NewSourceMode::NewFile)),
            (Words{"Create new .java/.html file", " New file ", "Filetype", "Add new template ..", "Create sourcefile",
                   "Help", "Cancel"}));
  EXPECT_TRUE(find(newSourceLayout(NewSourceMode::NewFile).content, IDOK_CONTROL)->isDefault);
}

TEST(DialogWordsTest, ANewTemplate) {
  const char introduction[] =
      "Extend or customize Tarnwick's list of templates.\nSpecify below your own template from which new sourcefiles "
      "can "
      "be created. Supply your template as a file. Press Help for an example of a template.";
  const char description[] =
      "The Description field is the text that appears in the dropdown list of templates. If you enter a description "
      "that "
      "already exists in the list, your new template will override the existing list entry.";
  EXPECT_EQ(wordsOf(addTemplateLayout()), (Words{"Add template for new sourcefiles", introduction, "File", "Browse",
                                                 "Description", description, "OK", "Cancel", "Help"}));
}

TEST(DialogWordsTest, TheFileViewsOwnGroup) {
  EXPECT_EQ(wordsOf(fileViewLayout()), (Words{" Source (.java) ", "New", "Browse", "Edit", "javac"}));
  EXPECT_EQ(mainLayout().title, "Tarnwick");
  EXPECT_TRUE(mainLayout().minimiseBox);
}

TEST(DialogWordsTest, TheOlderWarningsTakeThePlacesOfTheNewerOnes) {
  const std::function<bool(const DialogItem&, int, int)> share = [&share](const DialogItem& item, int one, int other) {
    const auto stands = [&item](int control) {
      return std::any_of(item.children.begin(), item.children.end(),
                         [control](const DialogItem& child) { return child.control == control; });
    };
    if (item.kind == ItemKind::Layers && stands(one) && stands(other)) return true;
    return std::any_of(item.children.begin(), item.children.end(),
                       [&](const DialogItem& child) { return share(child, one, other); });
  };
  EXPECT_TRUE(share(javacPageLayout().content, 1264, 1270)) << "\"no warnings\" where \"Conversions\" stands";
  EXPECT_TRUE(share(javacPageLayout().content, 1265, 1271)) << "\"switchcheck\" where \"Path\" stands";
}

}  // namespace
}  // namespace tarnwick::test
