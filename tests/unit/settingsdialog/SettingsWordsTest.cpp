// The words that stand in the settings dialog and its pages, those included that no rule ever touches.
#include "settingsdialog/SettingsLayouts.h"
#include "settingsdialog/SettingsPageLayouts.h"
#include "support/LayoutWords.h"
#include "support/SystemWords.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(SettingsWordsTest, TheSettingsOwnButtons) {
  EXPECT_EQ(wordsOf(settingsLayout()), (Words{"Tarnwick settings", " individual configurations ", "Save ...",
                                              "Load ...", "OK", "Cancel", "Help", "About ..."}));
  for (const auto& [control, text] : {std::pair{1036, "Save ..."}, {1037, "Load ..."}, {1168, "Help"}}) {
    EXPECT_EQ(find(settingsLayout().content, control)->text, text);
  }
}

TEST(SettingsWordsTest, TheToolsPagesButtons) {
  for (const auto& [control, text] : {std::pair{1006, "Browse"},
                                      {1017, said("Notepad", "Text editor")},
                                      {1018, "Sourcecode editor"},
                                      {1204, "On Desktop"},
                                      {1205, said("In Startmenu ...", "In applications menu ...")}}) {
    EXPECT_EQ(find(toolsPageLayout().content, control)->text, text);
  }
  const Words words = wordsOf(toolsPageLayout());
  EXPECT_NE(std::find(words.begin(), words.end(), said(" Tools .exe directory ", " Tools directory ")), words.end());
}

TEST(SettingsWordsTest, AnotherPlaceForTheConfiguration) {
  const char* const permanent = said(
      "For a permanent definition please update your system's environment settings or AUTOEXEC.BAT, depending on your "
      "Windows version. Consult Tarnwick's usersguide.htm for more information.",
      "For a permanent definition please add it to the file .profile in your home folder, and log in again. Consult "
      "Tarnwick's usersguide.htm for more information.");
  EXPECT_EQ(wordsOf(alternateLocationLayout()),
            (Words{"Tarnwick could not write configuration data to the default location:",
                   "You can define an alternate location for saving the configuration: Press the Browse button!",
                   permanent, "Browse", "Cancel"}));
}

TEST(SettingsWordsTest, TheOlderWarningsTakeThePlacesOfTheNewerOnes) {
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
