#include "dialogs/SelectSubdirectoryDlg.h"

#include "dialogbase/Desktop.h"
#include "dialogs/JarLayout.h"
#include "platform/FileArgument.h"
#include "platform/FileSystem.h"
#include "platform/Folders.h"
#include "project/SortedNames.h"
#include "resources/DialogLayout.h"

#include <algorithm>

namespace tarnwick {

std::vector<std::string> subfolderWords(const std::string& folder) {
  auto names = platform::foldersIn(folder);
  sortNames(names);
  std::transform(names.begin(), names.end(), names.begin(), platform::fileWord);
  return names;
}

SelectSubdirectoryDlg::SelectSubdirectoryDlg(Desktop& desktop, const std::string& folder)
    : ToolTipDlg(desktop, selectSubdirectoryLayout().resource, 0),
      folder_(folder.empty() ? platform::currentDirectory() : folder) {
  if (!platform::canEnter(folder_)) throw NoSuchBasedirE();
}

int SelectSubdirectoryDlg::runModal() {
  return desktop_.runDialog(selectSubdirectoryLayout(), *this);
}

void SelectSubdirectoryDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  const auto folders = subfolderWords(folder_);
  window.setEntries(SelectSubdirectory::FOLDERS, folders);
  if (!folders.empty()) return;
  desktop_.hint("This folder has no subfolders.");
  onCancel();
}

void SelectSubdirectoryDlg::onDoubleClick(int) {
  onOk();
}

void SelectSubdirectoryDlg::onOk() {
  const auto folders = window()->entries(SelectSubdirectory::FOLDERS);
  for (std::size_t i = 0; i < folders.size(); ++i) {
    if (!window()->selected(SelectSubdirectory::FOLDERS, static_cast<int>(i))) continue;
    result_ = folders[i] + ' ' + result_;
  }
  close(DIALOG_OK);
}

}  // namespace tarnwick
