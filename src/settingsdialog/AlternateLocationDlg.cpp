#include "settingsdialog/AlternateLocationDlg.h"

#include "base/ProgramInfo.h"
#include "dialogbase/Desktop.h"
#include "dialogbase/DirDialog.h"
#include "platform/FileSystem.h"
#include "resources/DialogLayout.h"
#include "settingsdialog/SettingsLayouts.h"

namespace tarnwick {

namespace {

enum Control { BROWSE = 1164, RETAINED = 1165, FAILED = 1167 };

/// The leading run of printable characters; bytes beyond ASCII belong to letters.
std::string printableStart(const std::string& text) {
  std::size_t end = 0;
  while (end < text.size() && static_cast<unsigned char>(text[end]) >= ' ' && text[end] != 127) ++end;
  return text.substr(0, end);
}

}  // namespace

AlternateLocationDlg::AlternateLocationDlg(Desktop& desktop, const ProgramInfo& program,
                                           const Tarnwickfile::FileNotOpenE& failure)
    : ToolTipDlg(desktop, alternateLocationLayout().resource, 0),
      program_(program),
      title_(printableStart(failure.message)),
      failedFile_(failure.file) {}

int AlternateLocationDlg::runModal() {
  return desktop_.runDialog(alternateLocationLayout(), *this);
}

void AlternateLocationDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  window.setTitle(title_);
  window.setText(RETAINED, "The new definition will be retained in the environment variable " +
                               program_.configDirVariable + " until Tarnwick is terminated.");
  window.setText(FAILED, window.text(FAILED) + "\n" + failedFile_);
}

void AlternateLocationDlg::onCommand(int control) {
  if (control == BROWSE)
    browse();
  else
    ToolTipDlg::onCommand(control);
}

void AlternateLocationDlg::browse() {
  const std::string folder = DirDialog(desktop_).browse();
  if (folder.empty()) return;
  definition_ = program_.configDirVariable + "=" + folder;
  if (!platform::setEnvironment(definition_)) {
    desktop_.message("Error defining environment variable " + definition_);
  }
  close(DIALOG_OK);
}

}  // namespace tarnwick
