#include "dialogs/JarDlg.h"

#include "base/ProgramInfo.h"
#include "base/TempFile.h"
#include "base/Text.h"
#include "dialogbase/WaitCursor.h"
#include "dialogs/DialogRules.h"
#include "dialogs/JarLayout.h"
#include "dialogs/SelectSubdirectoryDlg.h"
#include "platform/FileArgument.h"
#include "platform/FileSystem.h"
#include "platform/Folders.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "process/WinApp.h"
#include "project/ProjectContext.h"
#include "resources/DialogLayout.h"
#include "settings/PathRules.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "tools/ManifestClassPath.h"

#include <cerrno>
#include <cstring>

namespace tarnwick {

const char invalidBaseFolder[] = "Invalid basefolder specification.";

namespace {

const std::vector<int> listControls = {Jar::INDIVIDUAL_FILES, Jar::SELECT_FILES,       Jar::CLEAR_FILES,
                                       Jar::SUBFOLDERS,       Jar::ADD_ALL_SUBFOLDERS, Jar::SELECT_SUBFOLDERS,
                                       Jar::CLEAR_SUBFOLDERS};

std::vector<ToolTip> jarToolTips() {
  return {
      {Jar::CREATE_ARCHIVE, "Create a new archive from scratch"},
      {Jar::UPDATE_ARCHIVE, "Open an existing archive and update it with the files specified below"},
      {Jar::ARCHIVE, "Archive file specification"},
      {Jar::BASE_FOLDER, "Folder from which files and subfolders are accessed"},
      {Jar::BROWSE_BASE_FOLDER, "Locate folder from which files and subfolders are accessed"},
      {Jar::ALL_FILES, "Recursively add all files and subfolders"},
      {Jar::INDIVIDUAL_FILES, "Files to be included in the archive"},
      {Jar::SELECT_FILES, "Select one or more files and append them to the list of input files"},
      {Jar::CLEAR_FILES, "Clear the list of input files"},
      {Jar::SUBFOLDERS, "Subfolders to be added to the archive"},
      {Jar::ADD_ALL_SUBFOLDERS, "Add all subfolders of the basefolder"},
      {Jar::SELECT_SUBFOLDERS, "Select one or more subfolders and append them to the list of input subfolders"},
      {Jar::CLEAR_SUBFOLDERS, "Clear the list of input subfolders"},
      {Jar::MANIFEST_FILE, "Specification of a file containing a user-supplied manifest"},
      {Jar::BROWSE_MANIFEST, "Locate a file containing a user-supplied manifest"},
      {Jar::MAIN_CLASS, "Name of public static void main class for executable application packaged in a jar archive."},
      {Jar::CLASS_PATH, "Class path for an executable application packaged in a jar archive."},
      {Jar::ADD_TO_CLASS_PATH, "Click to add a folder or another jar archive to the classpath for the archive."},
      {Jar::CLEAR_CLASS_PATH, "Click to erase the contents of the classpath control."},
      {Jar::VERBOSE, "Display detail information about the jar execution"},
      {Jar::NO_COMPRESSION, "Do not use zip compression when creating archive"},
      {Jar::OPEN_AS_ZIP, "After having run jar, open archive as zip archive, using a zip utility like WinZip"},
      {Jar::CREATE_INDEX, "Create index in the archive"},
      {Jar::CANCEL, "Close without running jar"},
  };
}

bool isAbsolute(const std::string& path) {
  return !path.empty() && platform::absolutePath(path) == path;
}

/// Where the project's class files go, if that folder can be entered; otherwise the empty text.
std::string classFolderOf(const Settings& settings, const ProjectContext& project) {
  const std::string destination = cleanedPath(settings.javacDestination);
  const auto roots = project.sourceRoots();
  const bool haveOneRoot = classesFollowPackages(destination) && roots.size() == 1;
  const std::string inProject = haveOneRoot ? roots.front() : project.folderNoSlash();
  const std::string folder = isAbsolute(destination) ? destination : inProject;
  return platform::canEnter(folder) ? Filename(folder, "x.y").quotedDirectory() : "";
}

const char* runLabel(JarOperation operation) {
  switch (operation) {
    case JarOperation::Create:
      return "Create archive";
    case JarOperation::Update:
      return "Update archive";
    default:
      return "Run jar";
  }
}

bool holdsSomething(const std::string& path) {
  const Tarnwickfile file(path, FileMode::Read);
  return std::getc(file.stream()) != EOF;
}

/// Makes the archive, or empties it; what it held goes to the trash. Throws Tarnwickfile::FileNotOpenE.
void makeEmpty(Desktop& desktop, const JarSession& session, const std::string& path) {
  if (platform::isFile(path)) {
    // An archive that can't be emptied needs no copy.
    Tarnwickfile(path, FileMode::Append).close();
    const WaitCursor hourglass(desktop);
    if (canBeRead(path) && holdsSomething(path)) session.copyToTrash(path);
  }
  Tarnwickfile(path, FileMode::Write).close();
}

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const auto& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

/// The last name of a path as a word of a command text.
std::string nameWord(const std::string& path) {
  const auto parts = platform::splitPath(path);
  return platform::fileWord(parts.base + parts.extension);
}

/// The folder of a path, likewise. A separator at its end would take the meaning of the quote behind it.
std::string folderWord(const std::string& path) {
  const auto parts = platform::splitPath(path);
  std::string folder = parts.drive + parts.folder;
  if (parts.folder.size() > 1) folder.pop_back();
  return platform::commandWord(folder);
}

}  // namespace

JarDlg::JarDlg(Settings& settings, const JarSession& session)
    : ToolTipDlg(settings.context().desktop, jarLayout().resource, 0),
      settings_(settings),
      session_(session),
      baseFolder_(settings.lastJarBaseFolder),
      openAsZip_(settings.jarOpenAsZip != 0) {
  run_.archive = settings.lastJarArchive;
  run_.verbose = session.switches.verbose;
  run_.noCompression = session.switches.noCompression;
  run_.noManifest = session.switches.noManifest;
  toolTips_ = jarToolTips();
  if (const auto* project = openProject(settings)) {
    const std::string classes = classFolderOf(settings, *project);
    if (!classes.empty()) baseFolder_ = classes;
  }
}

JarDlg::~JarDlg() = default;

int JarDlg::runModal() {
  return desktop_.runDialog(jarLayout(), *this);
}

void JarDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  run_.operation = JarOperation::None;
  if (!platform::canEnter(Filename(baseFolder_, "*.*").directoryNoSlash())) baseFolder_.clear();
  run_.manifest.clear();
  run_.lastFilesFolder.clear();
  run_.individualFiles.clear();
  run_.subfolders.clear();
  showStart();
  baseFolderChanged();
  applyManifestRules();
  refresh();
}

void JarDlg::showStart() {
  setFieldText(Jar::ARCHIVE, run_.archive);
  setFieldText(Jar::BASE_FOLDER, baseFolder_);
  setCheck(Jar::ALL_FILES, false);
  setCheck(Jar::VERBOSE, run_.verbose);
  setCheck(Jar::NO_COMPRESSION, run_.noCompression);
  setCheck(Jar::NO_MANIFEST, run_.noManifest);
  const WinApp* const zip = session_.zipApplication;
  const bool opensZip = zip && !zip->commandText().empty();
  setCheck(Jar::OPEN_AS_ZIP, opensZip && openAsZip_);
  enableControl(Jar::OPEN_AS_ZIP, opensZip);
  if (const auto* project = openProject(settings_)) setText(Jar::MAIN_CLASS, project->fullNameOf(project->mainClass));
  enableControl(Jar::CREATE_INDEX, false);
}

void JarDlg::onCommand(int control) {
  switch (control) {
    case Jar::CREATE_ARCHIVE:
      return selectArchive(JarOperation::Create);
    case Jar::UPDATE_ARCHIVE:
      return selectArchive(JarOperation::Update);
    case Jar::BROWSE_BASE_FOLDER:
      return browseBaseFolder();
    case Jar::ALL_FILES:
      return allFilesChanged();
    case Jar::SELECT_FILES:
      return selectFiles();
    case Jar::CLEAR_FILES:
      return clearList(Jar::INDIVIDUAL_FILES);
    case Jar::ADD_ALL_SUBFOLDERS:
      return addAllSubfolders();
    case Jar::SELECT_SUBFOLDERS:
      return selectSubfolders();
    case Jar::CLEAR_SUBFOLDERS:
      return clearList(Jar::SUBFOLDERS);
    case Jar::NO_MANIFEST:
      return applyManifestRules();
    case Jar::BROWSE_MANIFEST:
      return browseManifest();
    case Jar::ADD_TO_CLASS_PATH:
      return askPathEntry(Jar::CLASS_PATH, "jar Classpath");
    case Jar::CLEAR_CLASS_PATH:
      return setText(Jar::CLASS_PATH, "");
    case Jar::CREATE_INDEX:
      return createIndex();
    case Jar::HELP:
      return settings_.context().showHelp("#jarmenu");
    default:
      return ToolTipDlg::onCommand(control);
  }
}

void JarDlg::onTextChanged(int control) {
  if (control == Jar::BASE_FOLDER) baseFolderChanged();
  if (control == Jar::INDIVIDUAL_FILES || control == Jar::SUBFOLDERS) listChanged(control);
  if (control == Jar::MANIFEST_FILE) applyManifestRules();
}

void JarDlg::refresh() {
  const bool hasContents = getCheck(Jar::ALL_FILES) || !trim(getText(Jar::INDIVIDUAL_FILES)).empty() ||
                           !trim(getText(Jar::SUBFOLDERS)).empty();
  const bool hasArchive = !trim(getText(Jar::ARCHIVE)).empty() && run_.operation != JarOperation::None;
  enableControl(Jar::RUN, hasContents && hasArchive);
  const std::string label = runLabel(run_.operation);
  if (getText(Jar::RUN) != label) setText(Jar::RUN, label);
  if (run_.operation != JarOperation::None) enableControl(Jar::CREATE_INDEX, run_.operation == JarOperation::Update);
}

void JarDlg::applyManifestRules() {
  const bool wanted = !getCheck(Jar::NO_MANIFEST);
  for (const int control : {Jar::MANIFEST_FILE, Jar::BROWSE_MANIFEST}) enableControl(control, wanted);
  const bool generated = wanted && trim(getText(Jar::MANIFEST_FILE)).empty();
  for (const int control : {Jar::MAIN_CLASS, Jar::CLASS_PATH, Jar::ADD_TO_CLASS_PATH, Jar::CLEAR_CLASS_PATH})
    enableControl(control, generated);
}

std::string JarDlg::typedBaseFolder() const {
  return cleanedPath(getText(Jar::BASE_FOLDER));
}

std::string JarDlg::startFolder(const std::string& preferred) const {
  return firstFolder({preferred, typedBaseFolder()}, "C:\\");
}

std::optional<std::string> JarDlg::askForArchive(JarOperation operation) {
  const Filename present(run_.archive);
  FileRequest request;
  request.filter = "jar archives (*.jar)|*.jar||";
  request.startFolder = startFolder(present.directory());
  request.name = present.nameWithExtension();
  request.extension = ".jar";
  request.mustExist = operation == JarOperation::Update;
  return operation == JarOperation::Create ? desktop_.saveFile(request) : desktop_.openFile(request);
}

void JarDlg::selectArchive(JarOperation operation) {
  const auto chosen = askForArchive(operation);
  if (!chosen) return;
  try {
    // Deliberate: an existing archive is emptied as soon as it is chosen for a new one.
    if (operation == JarOperation::Create)
      makeEmpty(desktop_, session_, *chosen);
    else
      Tarnwickfile(*chosen, FileMode::Read).close();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message + "\nCan't open output file.");
    return;
  }
  run_.archive = *chosen;
  run_.operation = operation;
  setFieldText(Jar::ARCHIVE, run_.archive);
  refresh();
}

void JarDlg::browseBaseFolder() {
  if (browseFolder(desktop_, *this, Jar::BASE_FOLDER)) baseFolderChanged();
}

void JarDlg::enableLists(bool on) {
  for (const int control : listControls) enableControl(control, on);
}

void JarDlg::baseFolderChanged() {
  const bool known = !trim(getText(Jar::BASE_FOLDER)).empty();
  enableLists(known);
  enableControl(Jar::ALL_FILES, known);
  if (known) {
    // Names as seen from another folder mean nothing any longer.
    setCheck(Jar::ALL_FILES, false);
    setText(Jar::INDIVIDUAL_FILES, "");
    setText(Jar::SUBFOLDERS, "");
  }
  refresh();
}

void JarDlg::allFilesChanged() {
  const bool all = getCheck(Jar::ALL_FILES);
  enableLists(!all);
  if (all) {
    setText(Jar::INDIVIDUAL_FILES, "");
    setText(Jar::SUBFOLDERS, "");
  }
  refresh();
}

void JarDlg::listChanged(int list) {
  if (!window()->enabled(list)) return;
  const bool empty = trim(getText(Jar::INDIVIDUAL_FILES)).empty() && trim(getText(Jar::SUBFOLDERS)).empty();
  enableControl(Jar::ALL_FILES, empty);
  if (!empty) setCheck(Jar::ALL_FILES, false);
  refresh();
}

bool JarDlg::fillList(int list, const std::string& text) {
  const bool whole =
      putWhole(desktop_, *this, list, text, list == Jar::SUBFOLDERS ? "take these subfolders" : "take these files");
  listChanged(list);
  return whole;
}

void JarDlg::clearList(int list) {
  setText(list, "");
  listChanged(list);
}

void JarDlg::selectFiles() {
  const std::string folder = typedBaseFolder();
  if (!platform::canEnter(folder)) {
    desktop_.message("Can't access basefolder");
    return;
  }
  FileRequest request;
  request.filter = "All files|*.*||";
  request.startFolder = folder;
  request.name = "*.*";
  const auto chosen = desktop_.openFiles(request);
  if (chosen.empty()) return;
  std::vector<std::string> words;
  for (const auto& path : chosen) words.push_back(nameWord(path));
  if (fillList(Jar::INDIVIDUAL_FILES, joined(words))) run_.lastFilesFolder = folderWord(chosen.back());
}

void JarDlg::addAllSubfolders() {
  const std::string folder = typedBaseFolder();
  if (!platform::canEnter(folder)) {
    desktop_.message("Can't access basefolder");
    return;
  }
  fillList(Jar::SUBFOLDERS, joined(subfolderWords(folder)));
}

void JarDlg::selectSubfolders() {
  const std::string folder = typedBaseFolder();
  try {
    SelectSubdirectoryDlg dialog(desktop_, folder);
    if (dialog.runModal() == DIALOG_OK) fillList(Jar::SUBFOLDERS, dialog.result());
  } catch (const SelectSubdirectoryDlg::NoSuchBasedirE&) {
    desktop_.message("Can't access basefolder " + folder);
  }
}

void JarDlg::browseManifest() {
  FileRequest request;
  request.filter = "Manifest files (*.mf)|*.mf|Text files (*.txt)|*.txt|All files (*.*)|*.*||";
  request.startFolder = startFolder(Filename(getText(Jar::MANIFEST_FILE)).directory());
  request.name = "*.mf";
  request.extension = ".mf";
  request.mustExist = true;
  const auto chosen = desktop_.openFile(request);
  if (!chosen) return;
  setFieldText(Jar::MANIFEST_FILE, platform::commandWord(*chosen));
  applyManifestRules();
}

void JarDlg::createIndex() {
  openAsZip_ = getCheck(Jar::OPEN_AS_ZIP);
  run_.operation = JarOperation::CreateIndex;
  close(DIALOG_OK);
}

void JarDlg::takeFields() {
  baseFolder_ = getText(Jar::BASE_FOLDER);
  run_.individualFiles = textUnlessBlank(Jar::INDIVIDUAL_FILES);
  run_.subfolders = textUnlessBlank(Jar::SUBFOLDERS);
  run_.allFiles = getCheck(Jar::ALL_FILES);
  run_.verbose = getCheck(Jar::VERBOSE);
  run_.noCompression = getCheck(Jar::NO_COMPRESSION);
  run_.noManifest = getCheck(Jar::NO_MANIFEST);
  openAsZip_ = getCheck(Jar::OPEN_AS_ZIP);
  run_.manifest = run_.noManifest ? "" : textUnlessBlank(Jar::MANIFEST_FILE);
}

std::string JarDlg::textUnlessBlank(int field) const {
  const std::string text = getText(field);
  return trim(text).empty() ? "" : text;
}

void JarDlg::onOk() {
  takeFields();
  if (!platform::canEnter(cleanedPath(baseFolder_))) {
    desktop_.message(invalidBaseFolder);
    return;
  }
  try {
    writeManifest();
  } catch (const Tarnwickexception&) {
    tempManifest_.reset();
    // Deliberate: despite the words, the archive is then made without these lines.
    desktop_.message("Unable to create temporary file for saving manifest input.\nRequest aborted");
  }
  if (fitsOneCommandLine()) close(DIALOG_OK);
}

bool JarDlg::fitsOneCommandLine() {
  const std::string words = tooLongMessage(jarArguments(run()), "Select fewer files at a time, or whole subfolders.");
  if (words.empty()) return true;
  tempManifest_.reset();
  desktop_.message(words);
  return false;
}

std::string JarDlg::generatedManifest() const {
  const std::string mainClass = trim(getText(Jar::MAIN_CLASS));
  const std::string classPath = trim(getText(Jar::CLASS_PATH));
  // Deliberate: the classic way writes the path as it stands, although Java reads no list of paths there.
  if (!settings_.newerJava) return manifestLines(mainClass, classPath);
  const std::string folder = Filename(run_.archive).directory();
  return continuedLines(manifestLines(mainClass, manifestClassPath(classPath, folder)));
}

void JarDlg::writeManifest() {
  if (run_.noManifest || !run_.manifest.empty()) return;
  const std::string text = generatedManifest();
  if (text.empty()) return;
  tempManifest_ = std::make_unique<TempFile>("Tarnwick_tempManifest", settings_.context().program.configDirectory());
  tempManifest_->openTemp(FileMode::Undefined);
  if (std::fputs(text.c_str(), tempManifest_->stream()) == EOF || std::fflush(tempManifest_->stream()) != 0)
    throw Tarnwickfile::FileNotOpenE(std::strerror(errno), tempManifest_->name().fullName());
  tempManifest_->close();
}

JarRun JarDlg::run() const {
  JarRun gathered = run_;
  if (tempManifest_) gathered.manifest = platform::commandWord(tempManifest_->name().fullName());
  gathered.archive = archiveForRun(run_, cleanedPath(baseFolder_));
  return gathered;
}

}  // namespace tarnwick
