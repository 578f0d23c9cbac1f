#include "project/ProjMainClassDlg.h"

#include "project/SortedNames.h"
#include "resources/ProjectLayouts.h"

namespace tarnwick {

ProjMainClassDlg::ProjMainClassDlg(Desktop& desktop, ProjectContext* project)
    : ToolTipDlg(desktop, mainClassLayout().resource, 0), project_(project) {}

int ProjMainClassDlg::runModal() {
  return desktop_.runDialog(mainClassLayout(), *this);
}

void ProjMainClassDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  try {
    fillList();
  } catch (const Tarnwickexception& failure) {
    desktop_.message(failure.message);
    onCancel();
  }
}

void ProjMainClassDlg::fillList() {
  if (!project_) throw Tarnwickexception("You have not opened a project yet.");
  project_->update();
  // Every class counts, whether or not it has a main method.
  std::vector<std::string> names;
  for (const auto& found : project_->collectClasses(ProjectContext::CLASSES)) names.push_back(found.type.name);
  if (names.empty()) throw Tarnwickexception("No classes defined in this project.");
  sortNames(names);
  window()->setEntries(CLASS_LIST, names);
}

void ProjMainClassDlg::onDoubleClick(int) {
  onOk();
}

void ProjMainClassDlg::onOk() {
  const int chosen = window()->selection(CLASS_LIST);
  if (chosen >= 0) project_->mainClass = window()->entries(CLASS_LIST).at(static_cast<std::size_t>(chosen));
  close(DIALOG_OK);
}

}  // namespace tarnwick
