#include "dialogbase/AddPathDlg.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "dialogbase/Desktop.h"
#include "dialogbase/DirDialog.h"
#include "resources/AddPathLayout.h"
#include "resources/DialogLayout.h"

namespace tarnwick {

namespace {

enum Control { CURRENT_PATH = 1169, DESCRIPTION = 1170, ADD_FOLDER = 1171, ADD_ARCHIVE = 1172 };

}  // namespace

std::string chosenFolderElement(Desktop& desktop) {
  const std::string folder = DirDialog(desktop).browse();
  // Joined with some name and taken apart again, a folder that may be quoted and may end in a separator comes out
  // clean.
  return folder.empty() ? "" : Filename(folder, "undefined").quotedDirectoryNoSlash();
}

AddPathDlg::AddPathDlg(Desktop& desktop, std::string description, std::string currentPath)
    : ToolTipDlg(desktop, addPathLayout().resource, 0),
      description_(std::move(description)),
      currentPath_(std::move(currentPath)) {}

std::string AddPathDlg::runModal() {
  desktop_.runDialog(addPathLayout(), *this);
  return result_;
}

void AddPathDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  window.setText(CURRENT_PATH, currentPath_);
  window.setText(DESCRIPTION, description_);
}

void AddPathDlg::onCommand(int control) {
  if (control == ADD_FOLDER)
    addFolder();
  else if (control == ADD_ARCHIVE)
    addArchive();
  else
    ToolTipDlg::onCommand(control);
}

void AddPathDlg::addFolder() {
  const std::string folder = chosenFolderElement(desktop_);
  if (folder.empty()) return;
  result_ = folder;
  close(DIALOG_OK);
}

void AddPathDlg::addArchive() {
  FileRequest request;
  request.filter = "jar and zip archives|*.jar;*.zip||";
  request.mustExist = true;
  const auto chosen = desktop_.openFile(request);
  if (!chosen) return;
  result_ = quotedIfBlank(cleanedPath(*chosen));
  close(DIALOG_OK);
}

}  // namespace tarnwick
