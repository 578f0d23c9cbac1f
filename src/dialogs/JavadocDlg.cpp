#include "dialogs/JavadocDlg.h"

#include "base/ProgramInfo.h"
#include "base/Text.h"
#include "dialogbase/Desktop.h"
#include "dialogs/DialogRules.h"
#include "dialogs/JavadocInput.h"
#include "dialogs/JavadocLayout.h"
#include "dialogs/JavadocRoots.h"
#include "platform/ArgumentFiles.h"
#include "platform/FileSystem.h"
#include "platform/Folders.h"
#include "project/ProjectContext.h"
#include "resources/DialogLayout.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"

#include <cerrno>
#include <cstring>

namespace tarnwick {

namespace {

std::string projectFolderOf(const Settings& settings) {
  const auto* project = openProject(settings);
  return project ? project->folder() : "";
}

void writeLine(const Tarnwickfile& file, const std::string& text) {
  if (std::fputs((text + '\n').c_str(), file.stream()) == EOF)
    throw Tarnwickfile::FileNotOpenE(std::strerror(errno), file.name().fullName());
}

}  // namespace

JavadocDlg::JavadocDlg(Settings& settings, std::string inputFiles)
    : TabbedDialog(settings.context().desktop, javadocLayout().resource, Javadoc::TABS),
      settings_(settings),
      inputFiles_(std::move(inputFiles)),
      sourcesPage_(desktop_, settings, inputFiles_, projectFolderOf(settings)),
      pathsPage_(desktop_, settings, run_),
      optionsPage_(desktop_, settings),
      docletPathsPage_(desktop_, settings),
      docletOptionsPage_(desktop_, settings) {
  run_.sourcePath = settings.sourcepath;
  run_.classPath = settings.effectiveClasspath();
  run_.bootClassPath = settings.bootpath;
  run_.extDirs = settings.extdirs;
  addTab("source files", sourcesPage_);
  addTab("javadoc files and paths", pathsPage_);
  addTab("javadoc options", optionsPage_);
  addTab("doclet files and paths", docletPathsPage_);
  addTab("doclet options", docletOptionsPage_);
}

int JavadocDlg::runModal() {
  return desktop_.runDialog(javadocLayout(), *this);
}

void JavadocDlg::onCommand(int control) {
  if (control == Javadoc::HELP)
    settings_.context().showHelp("#javadocmenu");
  else
    TabbedDialog::onCommand(control);
}

void JavadocDlg::storePages() {
  optionsPage_.storeToTags();
  pathsPage_.storeToTags();
  sourcesPage_.storeToTags();
  docletPathsPage_.storeToTags();
  docletOptionsPage_.storeToTags();
}

void JavadocDlg::onOk() {
  run_.packageText.clear();
  listFile_.reset();
  storePages();
  settings_.saveDefaultConfiguration();
  inputFiles_ = trimLeft(inputFiles_);
  if (inputFiles_.empty()) {
    // Packages alone don't do: a list of files is needed beside them.
    desktop_.hint("No input files for javadoc selected.");
    onCancel();
    return;
  }
  try {
    gather();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    listFile_.reset();
    desktop_.message(failure.message);
    return;
  }
  if (fitsOneCommandLine()) close(DIALOG_OK);
}

void JavadocDlg::gather() {
  const auto names = inputNames(inputFiles_);
  const std::string words = inputWords(names, run_.sourcePath);
  listFile_ = std::make_unique<TempFile>("Tarnwick_javadoc_list", settings_.context().program.configDirectory());
  const char* step = "open";
  try {
    listFile_->openTemp(FileMode::Undefined);
    step = "write";
    if (!writeList(names)) run_.packageText = platform::withNamesFilledIn(words);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    run_.packageText = words;
    throw Tarnwickfile::FileNotOpenE(failure.message + "\nCan't " + step + " list file " + failure.file, failure.file);
  }
  listFile_->close();
}

bool JavadocDlg::writeList(const std::vector<std::string>& names) {
  for (const auto& name : names) {
    if (!platform::fitsArgumentFile(name) || !reach(name)) return false;
    writeLine(*listFile_, inputArgument(name, run_.sourcePath));
  }
  if (std::fflush(listFile_->stream()) != 0)
    throw Tarnwickfile::FileNotOpenE(std::strerror(errno), listFile_->name().fullName());
  return true;
}

bool JavadocDlg::reach(const std::string& name) const {
  if (canBeRead(name)) return true;
  return canBeRead(Filename(run_.sourcePath, name).fullName()) &&
         platform::changeDirectory(cleanedPath(run_.sourcePath));
}

JavadocRun JavadocDlg::run() const {
  JavadocRun gathered = run_;
  if (listFile_) gathered.listFile = listFile_->name().fullName();
  addRootsOfSources(gathered, settings_, inputNames(inputFiles_));
  return gathered;
}

bool JavadocDlg::fitsOneCommandLine() {
  const std::string words = tooLongMessage(javadocArguments(settings_, run()),
                                           "Select fewer files at a time, or files whose whole names hold no blanks.");
  if (words.empty()) return true;
  listFile_.reset();
  desktop_.message(words);
  return false;
}

}  // namespace tarnwick
