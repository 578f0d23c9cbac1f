#include "settingsdialog/SettingsOnDesktop.h"

#include "dialogbase/Desktop.h"
#include "resources/SystemWords.h"
#include "settingsdialog/AlternateLocationDlg.h"

namespace tarnwick {

namespace {

/// Leads the user to another folder, and saves there.
void moveConfiguration(Desktop& desktop, const ProgramInfo& program, const Tarnwickfile::FileNotOpenE& failure,
                       const std::function<void()>& saveAgain) {
  try {
    AlternateLocationDlg dialog(desktop, program, failure);
    if (dialog.runModal() != DIALOG_OK) throw Tarnwickfile::FileNotOpenE(failure);
    saveAgain();
    desktop.hint(
        "The following environment variable definition has been created:\n\n" + dialog.definition() +
        "\n\nThis definition remains effective until you terminate Tarnwick." +
        inSystemWords("\nUpdate your system's environment settings or AUTOEXEC.BAT\nfor a permanent definition!"));
  } catch (const Tarnwickfile::FileNotOpenE& further) {
    desktop.message(further.message + "\nCan't save configuration data in " + further.file);
  }
}

}  // namespace

SettingsContext settingsOnDesktop(Desktop& desktop, const ProgramInfo& program, ToolLog& log) {
  SettingsContext context{desktop, program, log};
  context.tell = [&desktop](const std::string& text) { desktop.message(text); };
  context.onSaveFailed = [&desktop, &program](const auto& failure, const auto& saveAgain) {
    moveConfiguration(desktop, program, failure, saveAgain);
  };
  return context;
}

}  // namespace tarnwick
