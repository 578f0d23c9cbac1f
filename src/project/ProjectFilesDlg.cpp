#include "project/ProjectFilesDlg.h"

#include "base/Text.h"
#include "dialogbase/WaitCursor.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "project/SortedNames.h"
#include "resources/ProjectLayouts.h"
#include "templates/NewSourceFileDlg.h"

namespace tarnwick {

namespace {

bool isJava(const std::string& name) {
  return equalsIgnoringCase(Filename(name).extension(), ".java");
}

/// As the mask "*.htm*" finds them.
bool isHtml(const std::string& name) {
  return lowerCase(name).find(".htm") != std::string::npos;
}

}  // namespace

ProjectFilesDlg::ProjectFilesDlg(Settings& settings, ProjectContext& project)
    : ToolTipDlg(settings.context().desktop, projectFilesLayout().resource, 0),
      settings_(settings),
      project_(project),
      sourcesSnapshot_(project.sources.toString()) {
  toolTips_ = {
      {PROJECT_FILES, "Files belonging to the current project"},
      {OTHER_FILES, "Files found in the current project directory that do not belong to the project"},
      {ADD_FILES, "Add selected files to project context"},
      {REMOVE_FILES, "Remove selected files from project context"},
      {SELECT_ALL_FILES, "Select all files in both list boxes"},
      {SELECT_NO_FILES, "Deselect all files in both list boxes"},
      {CREATE_FILE, "Create a new source file in the project directory, add it to the project."},
      {ALLOW_MULTIPLE_MAIN,
       "[Checked: Manual] [Unchecked: Automatic] selection of class containing public static void main() method for "
       "execution."},
      {PROJECT_FILES_HELP, "Start HTML browser to display the Tarnwick user's guide"},
      {IDOK_CONTROL, "Update project context to include the files from the current selection"},
      {IDCANCEL_CONTROL, "Close without modifying the current project context"},
  };
}

int ProjectFilesDlg::runModal() {
  return desktop_.runDialog(projectFilesLayout(), *this);
}

void ProjectFilesDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  fillLists();
  setCheck(ALLOW_MULTIPLE_MAIN, project_.multiMain);
}

void ProjectFilesDlg::onCommand(int control) {
  switch (control) {
    case ADD_FILES:
      return move(OTHER_FILES, PROJECT_FILES);
    case REMOVE_FILES:
      return move(PROJECT_FILES, OTHER_FILES);
    case SELECT_ALL_FILES:
      return selectAll(true);
    case SELECT_NO_FILES:
      return selectAll(false);
    case CREATE_FILE:
      return createFile();
    case PROJECT_FILES_HELP:
      return settings_.context().showHelp("#projectfiles");
    default:
      return ToolTipDlg::onCommand(control);
  }
}

void ProjectFilesDlg::fillLists() {
  std::vector<std::string> members;
  int missing = 0;
  for (std::size_t i = project_.sources.size(); i-- > 0;) {
    const Filename& name = project_.sources[i].name();
    if (canBeRead(name.fullName()))
      members.push_back(name.nameWithExtension());
    else
      ++missing;
  }
  const std::string html = Filename(project_.htmlFile).nameWithExtension();
  if (!html.empty()) members.push_back(html);
  std::vector<std::string> others;
  for (const auto& name : platform::filesIn(project_.folder())) {
    const bool known = platform::sameFileName(name, html) || project_.sources.holds(name);
    if (!known && (isJava(name) || isHtml(name))) others.push_back(name);
  }
  sortNames(members);
  sortNames(others);
  window()->setEntries(PROJECT_FILES, members);
  window()->setEntries(OTHER_FILES, others);
  if (missing > 0) {
    desktop_.message(std::to_string(missing) + " files belonging to the project could not be opened.");
  }
}

void ProjectFilesDlg::move(int from, int to) {
  std::vector<std::string> staying;
  std::vector<std::string> target = window()->entries(to);
  const auto entries = window()->entries(from);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const bool goes = window()->selected(from, static_cast<int>(i));
    (goes ? target : staying).push_back(entries[i]);
  }
  sortNames(target);
  window()->setEntries(from, staying);
  window()->setEntries(to, target);
}

void ProjectFilesDlg::selectAll(bool on) {
  for (const int list : {PROJECT_FILES, OTHER_FILES}) {
    const int count = static_cast<int>(window()->entries(list).size());
    for (int i = 0; i < count; ++i) window()->setSelected(list, i, on);
  }
}

void ProjectFilesDlg::createFile() {
  NewSourceFileDlg dialog(settings_, NewSourceMode::InProject, nullptr, project_.folder());
  if (dialog.runModal() != DIALOG_OK) return;
  const std::string name = Filename(dialog.createdFile()).nameWithExtension();
  const bool isProjectsHtml = platform::sameFileName(name, Filename(project_.htmlFile).nameWithExtension());
  if (!isProjectsHtml && !project_.sources.holds(name)) {
    try {
      // A new HTML file, too, is held as a source until "OK" looks at its extension.
      project_.sources.add(name);
      ++createdCount_;
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      desktop_.message(failure.message + "\nCan't open " + failure.file);
    }
  }
  fillLists();
}

void ProjectFilesDlg::onOk() {
  const WaitCursor hourglass(desktop_);
  try {
    if (!takeMembers(window()->entries(PROJECT_FILES))) return;
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message + "\nCan't open " + failure.file);
    return;
  }
  project_.multiMain = getCheck(ALLOW_MULTIPLE_MAIN);
  close(DIALOG_OK);
}

bool ProjectFilesDlg::takeMembers(const std::vector<std::string>& names) {
  std::string html;
  // All sources are fresh, so that the next look at the project reads them.
  ProjectSourceList sources(desktop_, project_.file);
  for (const auto& name : names) {
    if (isJava(name)) {
      sources.add(name);
      continue;
    }
    const Tarnwickfile probe(project_.folder(), name, FileMode::Read);
    if (!html.empty()) {
      desktop_.message("You can include only 1 html file in the project!");
      return false;
    }
    html = quotedIfBlank(name);
  }
  project_.htmlFile = html;
  project_.sources.swap(sources);
  return true;
}

void ProjectFilesDlg::onCancel() {
  if (createdCount_ > 0) {
    desktop_.message("You have created " + std::to_string(createdCount_) + " new project file" +
                     (createdCount_ == 1 ? ". \nIt" : "s.\nThey") +
                     " will remain in your project folder,\nalthough not as part of your project.");
    project_.sources.fromString(sourcesSnapshot_);
  }
  close(DIALOG_CANCEL);
}

}  // namespace tarnwick
