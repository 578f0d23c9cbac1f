#include "app/FileView.h"

#include "platform/FileNames.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "process/EditorLaunch.h"
#include "resources/PanelLayouts.h"
#include "source/Compiler.h"
#include "templates/NewSourceFileDlg.h"
#include "tools/AppletviewerLauncher.h"
#include "tools/JavaLauncher.h"

namespace tarnwick {

namespace {

enum Control { SOURCE_FIELD = 1009, NEW = 1240, BROWSE = 1006, EDIT = 1007, JAVAC = 1008 };
enum Tab { MAIN_PROGRAM = 0, APPLET = 1, UTILITIES = 2 };

const char sourceFilter[] = "Java source files|*.JAVA||";
const char classFilter[] = "Java class files|*.CLASS||";
const char htmlFilter[] = "htm* files|*.htm*||";

std::array<PageWords, 3> pageWords() {
  return {{{{"Browse", "jdb debug", "java"},
            {{PanelPage::LEFT, "Select executable class file"},
             {PanelPage::MIDDLE, "Execute class file under debugger control"},
             {PanelPage::RIGHT, "Execute class file"},
             {PanelPage::FIELD, "File specification for executable class, optionally followed by runtime arguments"}}},
           {{"Browse", "appletdebug", "appletviewer"},
            {{PanelPage::LEFT, "Select HTML file"},
             {PanelPage::MIDDLE, "Start appletviewer under debugger control"},
             {PanelPage::RIGHT, "Start appletviewer"},
             {PanelPage::FIELD, "HTML file specification"}}},
           {{"jar", "javadoc", "WinShortcut"}, {}}}};
}

/// The folder with its whole path if it could be made the current one; otherwise empty.
std::string entered(const std::string& folder) {
  const std::string whole = platform::absolutePath(folder);
  return !whole.empty() && platform::changeDirectory(whole) ? whole : "";
}

/// The nearest folder above a file whose own folder has gone, with its whole path; empty where only a root is left.
std::string enteredAbove(const Filename& file) {
  Filename folder(Filename(platform::absolutePath(file.fullName())).directoryNoSlash());
  while (!folder.nameWithExtension().empty()) {
    folder = Filename(folder.directoryNoSlash());
    const bool isRoot = folder.nameWithExtension().empty();
    if (!isRoot && !entered(folder.fullName()).empty()) return folder.fullName();
  }
  return "";
}

/// Where the dialog for a file opens that can't be found. The name itself may be a folder's.
std::string folderToAskIn(const FileForSubprocess& file) {
  const Filename& name = file.name();
  for (const auto& candidate : {name.fullName(), name.directory(), file.lastFolder(), file.previousName()}) {
    const std::string folder = entered(candidate);
    if (!folder.empty()) return folder;
  }
  const std::string above = enteredAbove(name);
  return above.empty() ? platform::startFolder("C:\\") : above;
}

/// What stands between the first and the second "|".
std::string patternOf(const std::string& filter) {
  const auto begin = filter.find('|') + 1;
  return filter.substr(begin, filter.find('|', begin) - begin);
}

}  // namespace

FileView::FileView(Settings& settings, MainDialogEnd mainDialog)
    : PanelDlg(settings, fileViewLayout().resource, pageWords(), std::move(mainDialog)),
      sourceFile_(settings.fileviewSource),
      classFile_(settings.fileviewClass),
      htmlFile_(settings.fileviewHtml) {}

void FileView::initialise(DialogWindow& window) {
  initialPage_ = settings_.fileviewTab;
  PanelDlg::initialise(window);
  bindFields(window);
  // Two of the utilities are not there yet.
  for (const int control : {PanelPage::MIDDLE, PanelPage::RIGHT}) pageWindow(UTILITIES).enable(control, false);
}

void FileView::bindFields(DialogWindow& window) {
  sourceFile_.bind(&window, SOURCE_FIELD);
  classFile_.bind(&pageWindow(MAIN_PROGRAM), PanelPage::FIELD);
  htmlFile_.bind(&pageWindow(APPLET), PanelPage::FIELD);
  for (auto* file : {&sourceFile_, &classFile_, &htmlFile_}) file->writeToControl(nullptr);
  pageWindow(UTILITIES).show(PanelPage::FIELD, false);
}

void FileView::readFields() {
  for (auto* file : {&sourceFile_, &classFile_, &htmlFile_}) file->readFromControl();
}

bool FileView::fieldsHaveChanged() {
  readFields();
  if (settings_.currentProject) return false;
  Settings stored(settings_.context());
  int status = 0;
  stored.readDefaultConfiguration(status);
  return status != READ_FILE_LOST && (sourceFile_.toString() != stored.fileviewSource.toString() ||
                                      classFile_.toString() != stored.fileviewClass.toString() ||
                                      htmlFile_.toString() != stored.fileviewHtml.toString());
}

void FileView::detached() {
  readFields();
  for (auto* file : {&sourceFile_, &classFile_, &htmlFile_}) file->bind(nullptr, 0);
  PanelDlg::detached();
}

void FileView::updateTitle() {
  settings_.context().mainWindow->setTitle(title());
}

std::vector<int> FileView::ownControls() const {
  return {SOURCE_FIELD, NEW, BROWSE, EDIT, JAVAC};
}

void FileView::onTabChanged() {
  settings_.fileviewTab = currentPage();
  settings_.saveCurrent();
}

void FileView::onCommand(int control) {
  if (control == BROWSE)
    browse(sourceFilter, sourceFile_);
  else if (control == NEW)
    newSource();
  else if (control == EDIT)
    editSource();
  else if (control == JAVAC)
    compileSource();
  else
    PanelDlg::onCommand(control);
}

void FileView::onPageButton(int page, int control) {
  if (page == MAIN_PROGRAM && control == PanelPage::LEFT) browse(classFilter, classFile_);
  if (page == MAIN_PROGRAM && control == PanelPage::MIDDLE) debugClass();
  if (page == MAIN_PROGRAM && control == PanelPage::RIGHT) runClass();
  if (page == APPLET && control == PanelPage::LEFT) browse(htmlFilter, htmlFile_);
  if (page == APPLET && control == PanelPage::MIDDLE) runApplet(true);
  if (page == APPLET && control == PanelPage::RIGHT) runApplet(false);
  if (page == UTILITIES && control == PanelPage::LEFT) runJar();
}

bool FileView::prepareFile(const char* filter, FileForSubprocess& file) {
  file.readFromControl();
  if (!file.isEmpty()) {
    try {
      file.open(FileMode::Read);
      file.close();
      complete(file);
      return true;
    } catch (const Tarnwickfile::FileNotOpenE&) {
      // The user is asked for one that is there, but may believe that this one is.
      const std::string reason = platform::whyNoFile(file.name().fullName());
      if (!reason.empty()) desktop_.message("Can't open " + file.name().fullName() + "\n" + reason);
    }
  }
  return askForFile(filter, folderToAskIn(file), file);
}

void FileView::complete(FileForSubprocess& file) {
  // A run changes the current folder; afterwards the same words would name another file.
  const std::string whole = platform::absolutePath(file.name().fullName());
  if (whole == file.name().fullName()) return;
  file.setName(whole);
  std::string text = file.name().quoted();
  for (const auto& argument : file.args()) text += ' ' + argument;
  file.writeToControl(text.c_str());
}

void FileView::browse(const char* filter, FileForSubprocess& file) {
  file.readFromControl();
  const std::string& name = file.name().fullName();
  // Only a file that is there makes the current folder the one of a bare name.
  const std::string own = Filename(canBeRead(name) ? platform::absolutePath(name) : name).directory();
  std::string startFolder = entered(file.lastFolder());
  if (startFolder.empty()) startFolder = entered(own);
  if (startFolder.empty()) startFolder = platform::startFolder("C:\\");
  askForFile(filter, startFolder, file);
  settings_.saveIfWindowMoved();
}

bool FileView::askForFile(const char* filter, const std::string& startFolder, FileForSubprocess& file) {
  FileRequest request;
  request.filter = filter;
  request.startFolder = startFolder;
  request.name = patternOf(filter);
  request.mustExist = true;
  const auto chosen = desktop_.openFile(request);
  if (!chosen) return false;
  file.setName(*chosen);
  file.writeToControl(nullptr);
  return true;
}

bool FileView::askForNewSource(NewSourceMode mode) {
  sourceFile_.readFromControl();
  NewSourceFileDlg dialog(settings_, mode, &sourceFile_);
  if (dialog.runModal() != DIALOG_OK) return false;
  sourceFile_.writeToControl(nullptr);
  return true;
}

void FileView::newSource() {
  if (askForNewSource(NewSourceMode::NewFile)) editSource();
}

void FileView::editSource() {
  sourceFile_.readFromControl();
  if (sourceFile_.isEmpty() && !askForNewSource(NewSourceMode::NothingToEdit)) return;
  // After Cancel the editor opens with nothing in it.
  const bool known = prepareFile(sourceFilter, sourceFile_);
  openEditor(known ? sourceFile_.name().fullName() : "");
  rememberSourceFolder();
}

void FileView::compileSource() {
  if (!prepareFile(sourceFilter, sourceFile_)) {
    desktop_.message("No .java file known.");
    return;
  }
  try {
    Compiler compiler(settings_, nullptr);
    if (compiler.compile(sourceFile_, FileMode::Write)) {
      if (settings_.javacSoundOnError) desktop_.alert(AlertSound::Exclamation);
      showLog(desktop_, settings_.context().log, settings_.editorChoice());
    } else if (settings_.javacSoundOnSuccess) {
      desktop_.alert(AlertSound::Asterisk);
    }
  } catch (const Compiler::DontWantToSplitE&) {
    // The user has said so; there is nothing to tell.
  } catch (const Tarnwickexception& failure) {
    desktop_.message(failure.message);
  }
  rememberSourceFolder();
}

void FileView::rememberSourceFolder() {
  const std::string folder = sourceFile_.name().directory();
  sourceFile_.setLastFolder(folder);
  classFile_.setLastFolder(folder);
  settings_.saveCurrent();
}

bool FileView::prepareClass() {
  if (prepareFile(classFilter, classFile_)) return true;
  desktop_.message("No known .class file");
  return false;
}

void FileView::runClass() {
  if (!prepareClass()) return;
  const std::string folder = classFile_.name().directory();
  classFile_.setLastFolder(folder);
  settings_.saveCurrent();
  runJava(settings_, classFile_, nullptr);
  htmlFile_.setLastFolder(folder);
}

void FileView::debugClass() {
  if (!prepareClass()) return;
  settings_.saveCurrent();
  runJdb(settings_, classFile_, nullptr, nullptr);
  htmlFile_.setLastFolder(classFile_.name().directory());
}

void FileView::runApplet(bool debugging) {
  if (!prepareFile(htmlFilter, htmlFile_)) {
    desktop_.message("no htm* file known");
    return;
  }
  if (!debugging) htmlFile_.setLastFolder(htmlFile_.name().directory());
  settings_.saveCurrent();
  runAppletviewer(settings_, htmlFile_, debugging);
}

}  // namespace tarnwick
