#include "settingsdialog/PathsPage.h"

#include "base/Text.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "settings/SettingsResources.h"
#include "settingsdialog/SettingsPageLayouts.h"

#include <algorithm>
#include <iterator>

namespace tarnwick {

namespace {

enum Control {
  NEVER = 1138,
  ALWAYS = 1139,
  CLASSPATH_FIELD = 1029,
  SOURCEPATH_FIELD = 1039,
  BOOTPATH_FIELD = 1043,
  EXTDIRS_FIELD = 1045,
  ADD_CLASSPATH = 1065,
  CLEAR_CLASSPATH = 1066,
  COPY_VARIABLE = 1137,
};

/// What the two buttons beside a field belong to.
struct PathButtons {
  int add;
  int clear;
  int field;
  const char* description;
};

constexpr PathButtons pathButtons[] = {
    {ADD_CLASSPATH, CLEAR_CLASSPATH, CLASSPATH_FIELD, "classpath"},
    {1067, 1068, SOURCEPATH_FIELD, "sourcepath"},
    {1069, 1070, BOOTPATH_FIELD, "bootclasspath"},
    {1071, 1072, EXTDIRS_FIELD, "extdirs"},
};

bool listsPaths(int control) {
  return std::any_of(std::begin(pathButtons), std::end(pathButtons),
                     [control](const PathButtons& buttons) { return buttons.field == control; });
}

std::vector<ToolTip> pathsToolTips() {
  return {
      {CLASSPATH_FIELD,
       "Folder/archive list where java will look for application classes. Leave empty for simple projects. See JDK "
       "documentation for details."},
      {SOURCEPATH_FIELD,
       "Folder/archive list where the compiler will look for class or interface definitions. Leave empty for simple "
       "projects. See JDK documentation for details."},
      {BOOTPATH_FIELD,
       "Folder/archive list where java will look for its internal classes. Leave empty for simple projects. See JDK "
       "documentation for details."},
      {EXTDIRS_FIELD,
       "Extension folder/archive list for cross compilations. Leave empty for simple projects. See JDK documentation "
       "for details."},
      {1065, "Select a single folder or archive and add it to the classpath list"},
      {1067, "Select a single folder or archive and add it to the sourcepath list"},
      {1069, "Select a single folder or archive and add it to the bootclasspath list"},
      {1071, "Select a single folder or archive and add it to the extdirs list"},
      {1066, "Clear the current classpath definition"},
      {1068, "Clear the current sourcepath definition"},
      {1070, "Clear the current bootclasspath definition"},
      {1072, "Clear the current extdirs definition"},
      {COPY_VARIABLE, "Insert the current value of the CLASSPATH environment variable into the above classpath field"},
      {NEVER, "If checked: Use classpath definition from this dialog. If there is no definition, use '.' instead."},
      {ALWAYS, "Disable the user's classpath specification and enable the environment variable."},
  };
}

}  // namespace

PathsPage::PathsPage(Desktop& desktop, const TagRow* rows, JdkVersion jdk)
    : MarkedPage(desktop, PATHS_PAGE, SETTINGS_DIALOG, pathsPageLayout(), std::move(jdk)) {
  tags_ = rows;
  bindings_ = {{NEVER, &never_},
               {ALWAYS, &always_},
               {CLASSPATH_FIELD, &classpath_},
               {SOURCEPATH_FIELD, &sourcepath_},
               {BOOTPATH_FIELD, &bootpath_},
               {EXTDIRS_FIELD, &extdirs_}};
  toolTips_ = pathsToolTips();
  marks_ = {{BOOTPATH_FIELD, Mark::BOOTPATH, "javac", "-bootclasspath"},
            {EXTDIRS_FIELD, Mark::EXTDIRS, "javac", "-extdirs"}};
}

void PathsPage::loadFromTags() {
  MarkedPage::loadFromTags();
  // Only a file made by hand has both.
  if (never_ && always_) never_ = always_ = 0;
  updateControls();
}

void PathsPage::updateControls() {
  MarkedPage::updateControls();
  if (!initialised()) return;
  for (const int control : {CLASSPATH_FIELD, ADD_CLASSPATH, CLEAR_CLASSPATH, COPY_VARIABLE}) {
    enableControl(control, !always_);
  }
}

std::string PathsPage::getText(int control) const {
  return platform::storedList(MarkedPage::getText(control));
}

std::string PathsPage::fieldText(int control) const {
  return window() && listsPaths(control) ? pathsOnOneLine(window()->text(control)) : MarkedPage::fieldText(control);
}

void PathsPage::onCommand(int control) {
  if (control == NEVER || control == ALWAYS) {
    updateVariables();
    // Both may be off: then the class path is used as it stands, and an empty one leaves it to the environment.
    if (control == NEVER && never_) always_ = 0;
    if (control == ALWAYS && always_) never_ = 0;
    updateControls();
  }
  for (const auto& buttons : pathButtons) {
    if (control == buttons.add) askPathEntry(buttons.field, buttons.description);
    if (control == buttons.clear) setText(buttons.field, "");
  }
  if (control == COPY_VARIABLE) copyFromEnvironment();
}

void PathsPage::copyFromEnvironment() {
  if (const auto value = platform::environment("CLASSPATH")) {
    setText(CLASSPATH_FIELD, platform::storedList(pathsOnOneLine(*value)));
  }
}

}  // namespace tarnwick
