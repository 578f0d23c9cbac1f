// The words that stand in the dialogs, those included that no rule ever touches.
#include "resources/AddPathLayout.h"
#include "resources/HelpLayouts.h"
#include "resources/PanelLayouts.h"
#include "resources/TemplateLayouts.h"
#include "support/LayoutWords.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

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

}  // namespace
}  // namespace tarnwick::test
