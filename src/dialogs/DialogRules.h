// What the dialogs about archives, documentation and shortcuts have in common.
#pragma once

#include <string>
#include <vector>

namespace tarnwick {

class Desktop;
class ToolTipDlg;

/// The first of the folders that can be entered; where there is none, what file dialogs begin with that have nothing
/// better than `otherwise`.
std::string firstFolder(const std::vector<std::string>& folders, const std::string& otherwise);

/// Asks for a folder below `root`, and puts it into a field of the dialog's; false if the user has chosen none.
bool browseFolder(Desktop& desktop, ToolTipDlg& dialog, int field, const std::string& root = "");

/// Puts a list into a field of the dialog's, whole: a field may take no more than so much, and drops the rest without a
/// word. Then it gets back what it had, the user is told that he can't do `deed` ("add these files"), and this is
/// false.
bool putWhole(Desktop& desktop, ToolTipDlg& dialog, int field, const std::string& list, const std::string& deed);

/// What is said if the arguments are more than one command line takes, with `advice` behind it; empty if they are not.
std::string tooLongMessage(const std::vector<std::string>& arguments, const std::string& advice);

}  // namespace tarnwick
