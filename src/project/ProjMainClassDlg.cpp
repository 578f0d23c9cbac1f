#include "project/ProjMainClassDlg.h"

#include "dialogbase/Desktop.h"
#include "project/ProjectContext.h"
#include "project/SortedNames.h"
#include "resources/DialogLayout.h"
#include "resources/ProjectLayouts.h"
#include "settingsdialog/ToolsFolder.h"
#include "source/TypeIndex.h"

#include <set>

namespace tarnwick {

ProjMainClassDlg::ProjMainClassDlg(Desktop& desktop, ProjectContext* project)
    : ToolTipDlg(desktop, mainClassLayout().resource, 0), project_(project) {}

int ProjMainClassDlg::runModal() {
  return desktop_.runDialog(mainClassLayout(), *this);
}

void ProjMainClassDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  try {
    const std::string missing = fillList();
    if (missing.empty()) return;
    desktop_.hint(missing);
    onCancel();
  } catch (const Tarnwickexception& failure) {
    desktop_.message(failure.message);
    onCancel();
  }
}

std::string ProjMainClassDlg::fillList() {
  if (!project_) return "You have not opened a project yet.";
  askForToolsFolder(project_->settings());
  project_->update();
  // Every class counts, whether or not it has a main method.
  const auto classes = project_->collectClasses(ProjectContext::CLASSES);
  if (classes.empty()) return "No classes defined in this project.";
  // Where packages have no roots, nothing would tell the run which class is meant.
  const bool tellsApart = !project_->sourceRoots().empty();
  std::map<std::string, std::set<const JavaSourcefile*>> declaring;
  for (const auto& [type, source] : classes) declaring[source.indexedName(type)].insert(&source);
  std::vector<std::string> shown;
  for (const auto& [type, source] : classes) {
    const std::string name = source.indexedName(type);
    const bool isAlone = !tellsApart || declaring[name].size() == 1;
    const Entry entry{name, isAlone ? "" : project_->nameOfSource(source)};
    shown.push_back(isAlone ? name : name + " (" + entry.source + ')');
    entries_[shown.back()] = entry;
  }
  sortNames(shown);
  window()->setEntries(CLASS_LIST, shown);
  return "";
}

void ProjMainClassDlg::onDoubleClick(int) {
  onOk();
}

void ProjMainClassDlg::onOk() {
  const int chosen = window()->selection(CLASS_LIST);
  if (chosen >= 0) {
    const Entry& entry = entries_.at(window()->entries(CLASS_LIST).at(static_cast<std::size_t>(chosen)));
    project_->mainClass = entry.name;
    project_->mainSource = entry.source;
  }
  close(DIALOG_OK);
}

}  // namespace tarnwick
