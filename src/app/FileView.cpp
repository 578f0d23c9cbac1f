#include "app/FileView.h"

#include "app/CompileForUser.h"
#include "app/NewerJavaOffer.h"
#include "base/Tarnwickfile.h"
#include "base/Text.h"
#include "dialogbase/Messages.h"
#include "platform/FileNames.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "resources/DialogLayout.h"
#include "resources/PanelLayouts.h"
#include "settings/SettingsContext.h"
#include "source/ClassToRun.h"
#include "source/JavaSourcefile.h"
#include "source/TypeIndex.h"
#include "templates/NewSourceFileDlg.h"
#include "tools/AppletviewerLauncher.h"
#include "tools/JavaLauncher.h"

namespace tarnwick {

namespace {

enum Control { SOURCE_FIELD = 1009, NEW = 1240, BROWSE = 1006, EDIT = 1007, JAVAC = 1008 };

/// In the place of a file's name.
const char fileWanted[] = "Browse, or drop a file here";

const char sourceFilter[] = "Java source files|*.JAVA||";
const char classFilter[] = "Java class files|*.CLASS||";
const char programFilter[] = "Java class files and archives|*.CLASS;*.JAR||";
const char htmlFilter[] = "htm* files|*.htm*||";

std::array<PageWords, 2> pageWords() {
  return {{{{"Browse", "jdb debug", "java"},
            {{PanelPage::LEFT, "Select executable class file"},
             {PanelPage::MIDDLE, "Execute class file under debugger control"},
             {PanelPage::RIGHT,
              "Execute class file; Ctrl+click, or Ctrl+Return in the field, compiles first what is not up to date"},
             {PanelPage::FIELD, "File specification for executable class, optionally followed by runtime arguments"}}},
           {{"Browse", "appletdebug", "appletviewer"},
            {{PanelPage::LEFT, "Select HTML file"},
             {PanelPage::MIDDLE, "Start appletviewer under debugger control"},
             {PanelPage::RIGHT, "Start appletviewer"},
             {PanelPage::FIELD, "HTML file specification"}}}}};
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

FileView::FileView(Settings& settings, MainDialog mainDialog)
    : PanelDlg(settings, fileViewLayout().resource, pageWords(), std::move(mainDialog)),
      sourceFile_(settings.fileviewSource),
      classFile_(settings.fileviewClass),
      htmlFile_(settings.fileviewHtml),
      sourceField_(sourceFile_, settings.lastSources),
      classField_(classFile_, settings.lastClasses),
      htmlField_(htmlFile_, settings.lastPages) {
  shown_ = true;  // at first
}

void FileView::initialise(DialogWindow& window) {
  initialPage_ = settings_.fileviewTab;
  PanelDlg::initialise(window);
  bindFields(window);
  storedSource_ = sourceFile_.name();
}

void FileView::bindFields(DialogWindow& window) {
  sourceField_.bind(&window, SOURCE_FIELD);
  classField_.bind(&pageWindow(MAIN_PROGRAM), PanelPage::FIELD);
  htmlField_.bind(&pageWindow(APPLET), PanelPage::FIELD);
  window.setEmptyText(SOURCE_FIELD, fileWanted);
  for (const int page : {MAIN_PROGRAM, APPLET}) pageWindow(page).setEmptyText(PanelPage::FIELD, fileWanted);
  showFiles();
  pageWindow(UTILITIES).show(PanelPage::FIELD, false);
}

void FileView::readFields() {
  for (auto* field : {&sourceField_, &classField_, &htmlField_}) field->read();
}

void FileView::showFiles() {
  for (auto* field : {&sourceField_, &classField_, &htmlField_}) field->write();
  offerLastFiles();
}

void FileView::emptyFields() {
  for (auto* field : {&sourceField_, &classField_, &htmlField_}) field->write("");
  // A project has last files of its own.
  offerLastFiles();
}

void FileView::offerLastFiles() {
  for (auto* field : {&sourceField_, &classField_, &htmlField_}) field->offer();
}

void FileView::takeFile(const std::string& path) {
  // A run makes other folders the current one.
  const Filename whole(platform::absolutePath(path));
  const std::string extension = lowerCase(whole.extension());
  const bool isPage = extension == ".htm" || extension == ".html";
  FileField& field = extension == ".java" ? sourceField_ : isPage ? htmlField_ : classField_;
  field.file().takeTyped(whole.quoted());
  field.write();
  // On the command line a name may stand that is still to become a file.
  if (canBeRead(whole.fullName())) field.remember();
  if (extension != ".java") openPage(isPage ? APPLET : MAIN_PROGRAM);
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
  for (auto* field : {&sourceField_, &classField_, &htmlField_}) field->bind(nullptr, 0);
  PanelDlg::detached();
}

void FileView::updateTitle() {
  mainWindow().setTitle(title());
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
    browse(sourceFilter, sourceField_);
  else if (control == NEW)
    newSource();
  else if (control == EDIT)
    editSource();
  else if (control == JAVAC)
    compileSource();
  else
    PanelDlg::onCommand(control);
}

void FileView::onSelectionChanged(int control) {
  if (control == SOURCE_FIELD)
    sourceField_.takeChosen();
  else
    PanelDlg::onSelectionChanged(control);
}

void FileView::onPageFileChosen() {
  if (currentPage() == MAIN_PROGRAM) classField_.takeChosen();
  if (currentPage() == APPLET) htmlField_.takeChosen();
}

void FileView::onPageButton(int page, int control) {
  if (page == MAIN_PROGRAM && control == PanelPage::LEFT) browse(runFilter(), classField_);
  if (page == MAIN_PROGRAM && control == PanelPage::MIDDLE) debugClass();
  if (page == MAIN_PROGRAM && control == PanelPage::RIGHT) {
    if (desktop_.controlKeyHeld())
      compileAndRun();
    else
      runClass();
  }
  if (page == APPLET && control == PanelPage::LEFT) browse(htmlFilter, htmlField_);
  if (page == APPLET && control == PanelPage::MIDDLE) runApplet(true);
  if (page == APPLET && control == PanelPage::RIGHT) runApplet(false);
  PanelDlg::onPageButton(page, control);
}

void FileView::compileAndRun() {
  if (bringUpToDate()) runClass();
}

void FileView::makeShortcut() {
  // The dialog asks for the application where the files of the fields lie.
  readFields();
  PanelDlg::makeShortcut();
}

bool FileView::prepareFile(const char* filter, FileField& field) {
  field.read();
  FileForSubprocess& file = field.file();
  if (!file.isEmpty()) {
    try {
      Tarnwickfile::unopened(file.name(), FileMode::Read).open(FileMode::Undefined);
      complete(field);
      field.remember();
      return true;
    } catch (const Tarnwickfile::FileNotOpenE&) {
      // The user is asked for one that is there, but may believe that this one is.
      const std::string reason = platform::whyNoFile(file.name().fullName());
      if (!reason.empty()) desktop_.message("Can't open " + file.name().fullName() + "\n" + reason);
    }
  }
  return askForFile(filter, folderToAskIn(file), field);
}

void FileView::complete(FileField& field) {
  FileForSubprocess& file = field.file();
  // A run changes the current folder; afterwards the same words would name another file.
  const std::string whole = platform::absolutePath(file.name().fullName());
  if (whole == file.name().fullName()) return;
  file.setName(whole);
  std::string text = file.name().quoted();
  for (const auto& argument : file.args()) text += ' ' + argument;
  field.write(text);
}

void FileView::browse(const char* filter, FileField& field) {
  field.read();
  const FileForSubprocess& file = field.file();
  const std::string& name = file.name().fullName();
  // Only a file that is there makes the current folder the one of a bare name.
  const std::string own = Filename(canBeRead(name) ? platform::absolutePath(name) : name).directory();
  std::string startFolder = entered(file.lastFolder());
  if (startFolder.empty()) startFolder = entered(own);
  if (startFolder.empty()) startFolder = platform::startFolder("C:\\");
  askForFile(filter, startFolder, field);
  settings_.saveIfWindowMoved();
}

bool FileView::askForFile(const char* filter, const std::string& startFolder, FileField& field) {
  FileRequest request;
  request.filter = filter;
  request.startFolder = startFolder;
  request.name = patternOf(filter);
  request.mustExist = true;
  const auto chosen = desktop_.openFile(request);
  if (!chosen) return false;
  field.file().setName(*chosen);
  field.write();
  field.remember();
  return true;
}

bool FileView::askForNewSource(NewSourceMode mode) {
  sourceField_.read();
  NewSourceFileDlg dialog(settings_, mode, &sourceFile_);
  if (dialog.runModal() != DIALOG_OK) return false;
  sourceField_.write();
  return true;
}

void FileView::newSource() {
  if (askForNewSource(NewSourceMode::NewFile)) editSource();
}

void FileView::editSource() {
  sourceField_.read();
  if (sourceFile_.isEmpty() && !askForNewSource(NewSourceMode::NothingToEdit)) return;
  // After Cancel the editor opens with nothing in it.
  const bool known = prepareFile(sourceFilter, sourceField_);
  openEditor(known ? sourceFile_.name().fullName() : "");
  rememberSourceFolder();
}

bool FileView::compileSource() {
  if (!prepareFile(sourceFilter, sourceField_)) {
    desktop_.hint("No .java file known.");
    return false;
  }
  CompileEnd end = compileFile();
  if (offerNewerJava(settings_, end.refused)) end = compileFile();
  if (settings_.newerJava) showCompiledClass();
  rememberSourceFolder();
  return end.wasClean;
}

bool FileView::bringUpToDate() {
  sourceField_.read();
  if (sourceFile_.isEmpty()) return true;
  try {
    JavaSourcefile source(platform::absolutePath(sourceFile_.name().fullName()), FileMode::Read);
    source.close();
    source.analyse(javaReading(settings_));
    std::vector<ClassRef> types;
    for (const auto& type : source.types()) types.push_back({*type, source});
    if (source.isUpToDate(TypeIndex(types), settings_.javacDestination, source.name().directoryNoSlash())) return true;
  } catch (const Tarnwickexception&) {
    // Whoever compiles it tells what the matter is.
  }
  return compileSource();
}

void FileView::showCompiledClass() {
  const Filename source = sourceFile_.name();
  if (!givenClass_) givenClass_ = classToRun(settings_, storedSource_);
  const std::string now = classToRun(settings_, source);
  classField_.read();
  const std::string& shown = classFile_.name().fullName();
  if (!shown.empty() && now == shown) givenClass_ = now;
  if (now == shown || (!shown.empty() && shown != givenClass_)) return;
  const auto classTime = platform::lastChange(now);
  // One that is older was there before: the compiler has not come as far.
  if (!classTime || *classTime < platform::lastChange(source.fullName())) return;
  classFile_.setName(now);
  classFile_.args().clear();
  classField_.write();
  givenClass_ = now;
}

CompileEnd FileView::compileFile() {
  const auto compile = [this] {
    Compiler compiler = compilerForUser(settings_, compilerClasspath(settings_));
    CompilerRuns runs;
    takeRun(settings_, compiler.compile(sourceFile_, FileMode::Write), runs);
    return runs;
  };
  return compileForUser(settings_, compile, [] {});
}

void FileView::rememberSourceFolder() {
  const std::string folder = sourceFile_.name().directory();
  sourceFile_.setLastFolder(folder);
  classFile_.setLastFolder(folder);
  settings_.saveCurrent();
}

const char* FileView::runFilter() const {
  return settings_.newerJava ? programFilter : classFilter;
}

bool FileView::prepareClass() {
  if (prepareFile(runFilter(), classField_)) return true;
  desktop_.hint("No known .class file");
  return false;
}

void FileView::runClass() {
  if (!prepareClass()) return;
  const std::string folder = classFile_.name().directory();
  classFile_.setLastFolder(folder);
  settings_.saveCurrent();
  runJava(settings_, classFile_);
  htmlFile_.setLastFolder(folder);
}

void FileView::debugClass() {
  if (!prepareClass()) return;
  settings_.saveCurrent();
  runJdb(settings_, classFile_);
  htmlFile_.setLastFolder(classFile_.name().directory());
}

void FileView::runApplet(bool debugging) {
  if (!prepareFile(htmlFilter, htmlField_)) {
    desktop_.hint("no htm* file known");
    return;
  }
  if (!debugging) htmlFile_.setLastFolder(htmlFile_.name().directory());
  settings_.saveCurrent();
  runAppletviewer(settings_, htmlFile_, debugging);
}

}  // namespace tarnwick
