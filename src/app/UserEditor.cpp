#include "app/UserEditor.h"

#include "dialogbase/Messages.h"
#include "process/EditorLaunch.h"
#include "settings/EditorChoice.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "settingsdialog/SettingsDialog.h"

namespace tarnwick {

namespace {

/// The settings dialog's page of the editor, counted from 0.
constexpr int EDITOR_PAGE_INDEX = 5;

}  // namespace

bool openUserEditor(Settings& settings, const std::string& name, const EditorPlace& place) {
  const EditorSource source{[&settings] { return settings.editorChoice(); },
                            [&settings] {
                              return SettingsDialog(settings).runModal(
                                         EDITOR_PAGE_INDEX, "Choose the editor for your sources") == DIALOG_OK;
                            }};
  const LaunchResult result = openEditor(source, name, place);
  showEach(settings.context().desktop, result.failures);
  return result.started;
}

}  // namespace tarnwick
