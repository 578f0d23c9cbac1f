#include "dialogs/DialogRules.h"

#include "dialogbase/Desktop.h"
#include "dialogbase/DirDialog.h"
#include "dialogbase/ToolTipDlg.h"
#include "platform/Folders.h"
#include "platform/Path.h"

#include <algorithm>

namespace tarnwick {

std::string firstFolder(const std::vector<std::string>& folders, const std::string& otherwise) {
  const auto found = std::find_if(folders.begin(), folders.end(), platform::canEnter);
  return found != folders.end() ? *found : platform::startFolder(otherwise);
}

bool browseFolder(Desktop& desktop, ToolTipDlg& dialog, int field, const std::string& root) {
  const std::string folder = DirDialog(desktop, root).browse();
  if (!folder.empty()) dialog.setFieldText(field, folder);
  return !folder.empty();
}

bool putWhole(Desktop& desktop, ToolTipDlg& dialog, int field, const std::string& list, const std::string& deed) {
  const std::string before = dialog.getText(field);
  dialog.setFieldText(field, list);
  if (dialog.getText(field) == list) return true;
  dialog.setFieldText(field, before);
  desktop.message("Can't " + deed + ": the list would have " + std::to_string(list.size()) +
                  " characters, which is more than its field takes.");
  return false;
}

std::string tooLongMessage(const std::vector<std::string>& arguments, const std::string& advice) {
  const std::size_t most = platform::longestCommandLine();
  std::size_t length = 0;
  for (const auto& argument : arguments) length += argument.size() + 1;
  if (length <= most) return "";
  return "The command line for " + arguments.front() + " is too long: it has " + std::to_string(length) +
         " characters, and this system takes " + std::to_string(most) + ".\n" + advice;
}

}  // namespace tarnwick
