#include "settingsdialog/JdbPage.h"

#include "settings/SettingsContext.h"
#include "settings/SettingsResources.h"
#include "settingsdialog/SettingsPageLayouts.h"

#include <array>

namespace tarnwick {

namespace {

enum Control { LAUNCH = 1125, OWN_STREAMS = 2160, F5 = 1158, F6 = 1162, SHIFT = 1261, CTRL = 1262, ALT = 1263 };

/// What the modifiers add to the number of a group.
enum Modifier { WITH_SHIFT = 1, WITH_CTRL = 2, WITH_ALT = 4 };

/// The fields of F5 to F12.
constexpr std::array<int, 8> keyFields = {F5, F6, 1163, 1164, 1166, 1167, 1168, 1169};

std::vector<ToolTip> jdbToolTips() {
  std::vector<ToolTip> tips = {
      {LAUNCH, "Launch application upon jdb startup (removes the need for the run command)"},
      {OWN_STREAMS,
       "A program that reads its input can be debugged: java runs it, and jdb takes hold of it. In the console you "
       "choose "
       "who gets what you type. The program always waits at its start; run or cont lets it go on."},
      {F6, "String sent to jdb when pressing key F6 (Alt+F6 and Alt+Shift+F6 not available on Win98!)"},
      {SHIFT, "Function key definitions for Shift+Functionkey. Shift/Ctrl/Alt combinations possible"},
      {CTRL, "Function key definitions for Ctrl+Functionkey. Shift/Ctrl/Alt combinations possible"},
      {ALT, "Function key definitions for Alt+Functionkey. Shift/Ctrl/Alt combinations possible"},
  };
  for (std::size_t i = 0; i < keyFields.size(); ++i) {
    tips.push_back({keyFields[i], "String sent to jdb when pressing key F" + std::to_string(5 + i) +
                                      " (possibly with Shift, Ctrl or Alt)"});
  }
  return tips;
}

}  // namespace

JdbPage::JdbPage(SettingsContext& context, const TagRow* rows)
    : TabPage(context.desktop, JDB_PAGE, SETTINGS_DIALOG, jdbPageLayout()), context_(context) {
  tags_ = rows;
  toolTips_ = jdbToolTips();
}

void JdbPage::initialise(DialogWindow& window) {
  mask_ = 0;
  TabPage::initialise(window);
}

void JdbPage::updateControls() {
  TabPage::updateControls();
  if (!initialised()) return;
  for (std::size_t i = 0; i < keyFields.size(); ++i) {
    setFieldText(keyFields[i], keys_.key(mask_, static_cast<int>(i)));
  }
  enableControl(F6, true);
  // That system keeps Alt+F6 for itself.
  // Deliberate: the emptied field reaches the group with the next store.
  const bool withAlt = mask_ == WITH_ALT || mask_ == WITH_ALT + WITH_SHIFT;
  if (withAlt && context_.isWindows98()) {
    setFieldText(F6, "");
    enableControl(F6, false);
  }
}

void JdbPage::onCommand(int control) {
  if (control != SHIFT && control != CTRL && control != ALT) return;
  keys_ = keysWithFields();
  mask_ = WITH_SHIFT * getCheck(SHIFT) + WITH_CTRL * getCheck(CTRL) + WITH_ALT * getCheck(ALT);
  updateControls();
}

FunctionKeys JdbPage::keysWithFields() const {
  std::vector<std::string> texts;
  texts.reserve(std::size(keyFields));
  for (const int field : keyFields) texts.push_back(fieldText(field));
  FunctionKeys keys = keys_;
  keys.setGroup(mask_, texts);
  return keys;
}

void JdbPage::setText(int control, const std::string& text) {
  if (control != F5) return TabPage::setText(control, text);
  keys_.fromString(text);
  updateControls();
}

std::string JdbPage::getText(int control) const {
  return control == F5 ? keysWithFields().toString() : TabPage::getText(control);
}

}  // namespace tarnwick
