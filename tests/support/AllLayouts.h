// The layouts of all windows and pages that the program is made of.
#pragma once

#include "app/ChooseSourceDlg.h"
#include "console/FindDlg.h"
#include "dialogs/JarLayout.h"
#include "dialogs/JavadocLayout.h"
#include "dialogs/ShortcutLayout.h"
#include "resources/AddPathLayout.h"
#include "resources/DialogLayout.h"
#include "resources/HelpLayouts.h"
#include "resources/PanelLayouts.h"
#include "resources/ProjectLayouts.h"
#include "resources/SourceLayouts.h"
#include "resources/TemplateLayouts.h"
#include "settingsdialog/SettingsLayouts.h"
#include "settingsdialog/SettingsPageLayouts.h"

#include <vector>

namespace tarnwick::test {

inline std::vector<const DialogLayout*> allLayouts() {
  return {&fileViewLayout(),
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
          &aboutLayout()};
}

}  // namespace tarnwick::test
