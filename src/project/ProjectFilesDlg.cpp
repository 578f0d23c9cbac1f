#include "project/ProjectFilesDlg.h"

#include "base/RelativeName.h"
#include "base/Text.h"
#include "dialogbase/WaitCursor.h"
#include "platform/FileSystem.h"
#include "platform/FolderEntries.h"
#include "platform/Path.h"
#include "project/ProjectContext.h"
#include "project/SortedNames.h"
#include "resources/DialogLayout.h"
#include "resources/ProjectLayouts.h"
#include "settings/PathRules.h"
#include "settings/SettingsContext.h"
#include "templates/NewSourceFileDlg.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace tarnwick {

namespace {

bool isJava(const std::string& name) {
  return equalsIgnoringCase(Filename(name).extension(), ".java");
}

std::vector<std::string> wordsOf(const std::string& text) {
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), {}};
}

bool hasAll(const std::string& name, const std::vector<std::string>& words) {
  return std::all_of(words.begin(), words.end(),
                     [&name](const auto& word) { return name.find(word) != std::string::npos; });
}

/// As the mask "*.htm*" finds them.
bool isHtml(const std::string& name) {
  return lowerCase(name).find(".htm") != std::string::npos;
}

}  // namespace

ProjectFilesDlg::ProjectFilesDlg(Settings& settings, ProjectContext& project, std::size_t mostNames)
    : ToolTipDlg(settings.context().desktop, projectFilesLayout().resource, 0),
      settings_(settings),
      project_(project),
      members_{PROJECT_FILES, PROJECT_FILES_COUNT, "The project has no files yet."},
      others_{OTHER_FILES, OTHER_FILES_COUNT, "There are no other files."},
      mostNames_(mostNames),
      sourcesSnapshot_(project.sources.toString()) {
  toolTips_ = {
      {PROJECT_FILES, "Files belonging to the current project"},
      {OTHER_FILES, "Files found in the current project directory that do not belong to the project"},
      {ADD_FILES, "Add selected files to project context"},
      {REMOVE_FILES, "Remove selected files from project context"},
      {FILES_FILTER, "Show only the files whose names have all words that you type here"},
      {ADD_ALL_FILES, "Add all java files that the list of other files shows to project context"},
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
      return move(others_, members_);
    case REMOVE_FILES:
      return move(members_, others_);
    case ADD_ALL_FILES:
      return addAll();
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

void ProjectFilesDlg::onTextChanged(int control) {
  if (control == FILES_FILTER) showLists();
}

std::vector<std::string> ProjectFilesDlg::filesOfFolder() {
  foundAll_ = true;
  std::vector<std::string> names;
  for (const auto& name : platform::filesIn(project_.folder()))
    if (isJava(name) ? !settings_.newerJava : isHtml(name)) names.push_back(name);
  if (!settings_.newerJava) return names;
  const WaitCursor hourglass(desktop_);
  const bool hasDestination = !classesFollowPackages(settings_.javacDestination);
  const std::string classes = classFolder(settings_.javacDestination, project_.folderNoSlash());
  const auto found = SourceFinder(project_.folderNoSlash(), isJava, hasDestination ? classes : "").find(mostNames_);
  foundAll_ = found.isAll;
  names.insert(names.end(), found.names.begin(), found.names.end());
  return names;
}

void ProjectFilesDlg::fillLists() {
  members_.names.clear();
  others_.names.clear();
  Names known;
  int missing = 0;
  for (std::size_t i = project_.sources.size(); i-- > 0;) {
    known.insert(platform::fileNameKey(project_.sources.nameOf(i)));
    if (canBeRead(project_.sources[i].name().fullName()))
      members_.names.push_back(project_.sources.nameOf(i));
    else
      ++missing;
  }
  const std::string html = Filename(project_.htmlFile).nameWithExtension();
  if (!html.empty()) members_.names.push_back(html);
  known.insert(platform::fileNameKey(html));
  for (const auto& name : filesOfFolder())
    if (known.count(platform::fileNameKey(name)) == 0) others_.names.push_back(name);
  sortNames(members_.names);
  sortNames(others_.names);
  showLists();
  if (missing > 0) {
    desktop_.message(std::to_string(missing) + " files belonging to the project could not be opened.");
  }
}

void ProjectFilesDlg::showLists() {
  show(members_);
  show(others_);
}

void ProjectFilesDlg::show(List& list) {
  const auto words = wordsOf(lowerCase(getText(FILES_FILTER)));
  list.shown.clear();
  for (const auto& name : list.names)
    if (hasAll(lowerCase(name), words)) list.shown.push_back(name);
  window()->setEntries(list.control, list.shown);
  window()->setEmptyText(list.control, wordsInEmpty(list));
  window()->setText(list.countLabel, countOf(list));
}

std::string ProjectFilesDlg::countOf(const List& list) const {
  if (list.names.empty()) return list.wordsIfEmpty;
  const std::string count = std::to_string(list.shown.size()) + " of " + std::to_string(list.names.size());
  if (list.control == OTHER_FILES && !foundAll_) return count + ", and more further down";
  return list.shown.empty() ? count + ": none has such a name" : count;
}

std::string ProjectFilesDlg::wordsInEmpty(const List& list) const {
  if (!list.names.empty()) return "No name here has all of these words. Empty the field above to see all names.";
  if (members_.names.empty() && others_.names.empty())
    return "There is no java or html file here. Press \"Create new file ....\" to make one.";
  if (list.control == PROJECT_FILES)
    return "Select files in the other list and press \"<--\", or press \"Add all\" for all java files.";
  return "All files here belong to the project. Press \"Create new file ....\" to make another.";
}

void ProjectFilesDlg::move(List& from, List& to) {
  Names going;
  for (std::size_t i = 0; i < from.shown.size(); ++i)
    if (window()->selected(from.control, static_cast<int>(i))) going.insert(from.shown[i]);
  transfer(going, from, to);
}

void ProjectFilesDlg::transfer(const Names& going, List& from, List& to) {
  const auto goes = [&going](const std::string& name) { return going.count(name) > 0; };
  std::copy_if(from.names.begin(), from.names.end(), std::back_inserter(to.names), goes);
  std::erase_if(from.names, goes);
  sortNames(to.names);
  showLists();
}

void ProjectFilesDlg::addAll() {
  Names going;
  std::copy_if(others_.shown.begin(), others_.shown.end(), std::inserter(going, going.end()), isJava);
  transfer(going, others_, members_);
}

void ProjectFilesDlg::selectAll(bool on) {
  for (const int list : {PROJECT_FILES, OTHER_FILES}) {
    const int count = static_cast<int>((list == PROJECT_FILES ? members_ : others_).shown.size());
    for (int i = 0; i < count; ++i) window()->setSelected(list, i, on);
  }
}

void ProjectFilesDlg::createFile() {
  NewSourceFileDlg dialog(settings_, NewSourceMode::InProject, nullptr, project_.folder());
  if (dialog.runModal() != DIALOG_OK) return;
  const std::string name = relativeName(dialog.createdFile().substr(project_.folder().size()));
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
    if (!takeMembers(members_.names)) return;
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
  ProjectSourceList sources(settings_, project_.file);
  for (const auto& name : names) {
    if (isJava(name)) {
      sources.add(name);
      continue;
    }
    const Tarnwickfile probe(project_.folder(), name, FileMode::Read);
    if (!html.empty()) {
      desktop_.hint("You can include only 1 html file in the project!");
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
    desktop_.hint("You have created " + std::to_string(createdCount_) + " new project file" +
                  (createdCount_ == 1 ? ". \nIt" : "s.\nThey") +
                  " will remain in your project folder,\nalthough not as part of your project.");
    project_.sources.fromString(sourcesSnapshot_);
  }
  close(DIALOG_CANCEL);
}

}  // namespace tarnwick
