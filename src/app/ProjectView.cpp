#include "app/ProjectView.h"

#include "app/NewerJavaOffer.h"
#include "app/ProjectBuild.h"
#include "dialogbase/Desktop.h"
#include "platform/FileSystem.h"
#include "project/ProjMainClassDlg.h"
#include "project/ProjectFilesDlg.h"
#include "project/RecentProjects.h"
#include "project/SelectProjectDlg.h"
#include "resources/DialogLayout.h"
#include "resources/PanelLayouts.h"
#include "settingsdialog/ToolsFolder.h"
#include "source/CompileFailures.h"
#include "tools/AppletviewerLauncher.h"
#include "tools/JavaLauncher.h"

#include <chrono>
#include <thread>

namespace tarnwick {

namespace {

enum Control { TABS = 1231, NEW = 1134, OPEN = 1136, FILES = 1135, EDIT = 1139, JAVAC_ALL = 1133, JAVAC = 1140 };

std::array<PageWords, 2> pageWords() {
  return {
      {{{"Select", "jdb debug", "java"},
        {{PanelPage::LEFT, "Select a class for execution (must have a public static void main() method!)"},
         {PanelPage::MIDDLE, "Execute application under debugger control"},
         {PanelPage::RIGHT,
          "Execute application; Ctrl+click, or Ctrl+Return in the field, compiles first what is not up to date"},
         {PanelPage::FIELD, "File name for executable class, optionally followed by runtime arguments"}}},
       {{"", "appletdebug", "appletviewer"},
        {{PanelPage::MIDDLE, "Start appletviewer under debugger control"}, {PanelPage::RIGHT, "Start appletviewer"}}}}};
}

/// What there is to do before there is a class to run.
const char* wordsInEmptyField(const ProjectContext* open, bool upToDate) {
  if (!open) return "Press \"New\" or \"Open\" for a project";
  if (open->sources.empty()) return "Press \"Files\" to add sources";
  if (!upToDate) return "Press \"javac\" to compile";
  return open->multiMain ? "Press \"Select\" to choose a class" : "No main() method yet: press \"Edit\"";
}

const char noProject[] = "You have not opened a project yet.";
const char notCompiled[] = "Not all classes are up-to-date. Compile!";

}  // namespace

ProjectView::ProjectView(Settings& settings, MainDialog mainDialog)
    : PanelDlg(settings, projectViewLayout().resource, pageWords(), std::move(mainDialog)) {
  toolTips_ = {
      {NEW, "Create new Tarnwick project"},
      {OPEN, "Open existing Tarnwick project"},
      {FILES, "Select files to be included in the project context"},
      {EDIT, "Start editor (for java source file editing)"},
      {JAVAC_ALL, "Compile all java source files known in the current project context"},
      {JAVAC, "Compile only those java source files that have been affected by source code changes"},
      {TABS,
       "Select execution environment: Java main program (*.class files), applet (*.htm file) or utility programs"},
  };
}

void ProjectView::initialise(DialogWindow& window) {
  PanelDlg::initialise(window);
  pageWindow(APPLET).show(PanelPage::LEFT, false);
  for (const int page : {APPLET, UTILITIES}) pageWindow(page).show(PanelPage::FIELD, false);
  refreshButtons();
}

ProjectContext* ProjectView::project() const {
  return tarnwick::openProject(settings_);
}

void ProjectView::refreshButtons() {
  const ProjectContext* const open = project();
  const bool sources = open && !open->sources.empty();
  const bool upToDate = sources && open->upToDate();
  const bool runs = upToDate && !open->mainClass.empty();
  const bool showsApplet = upToDate && !open->htmlFile.empty();
  for (const auto* bar : {&verticalBar_, &horizontalBar_, &flatBar_}) {
    bar->window()->enable(ButtonBar::SETTINGS, settings_.currentProject != nullptr);
  }
  for (const int control : {JAVAC_ALL, JAVAC, EDIT}) window()->enable(control, sources);
  window()->enable(FILES, open != nullptr);
  DialogWindow& mainPage = pageWindow(MAIN_PROGRAM);
  mainPage.enable(PanelPage::MIDDLE, runs);
  // With today's Java it can be compiled from here: "java" with the Control key, or Ctrl+Return in the field.
  const bool mayRun = runs || (settings_.newerJava && sources && !open->mainClass.empty());
  for (const int control : {PanelPage::RIGHT, PanelPage::FIELD}) mainPage.enable(control, mayRun);
  mainPage.enable(PanelPage::LEFT, sources && open->multiMain);
  for (const int control : {PanelPage::MIDDLE, PanelPage::RIGHT}) pageWindow(APPLET).enable(control, showsApplet);
  mainPage.setEmptyText(PanelPage::FIELD, wordsInEmptyField(open, upToDate));
  // Deliberate: arguments that were typed behind the class stay only until now.
  if (open && !open->mainClass.empty()) leftPage_.setFieldText(PanelPage::FIELD, open->mainClass);
}

std::vector<int> ProjectView::ownControls() const {
  return {NEW, OPEN, FILES, EDIT, JAVAC_ALL, JAVAC};
}

void ProjectView::onCommand(int control) {
  switch (control) {
    case NEW:
      return newProject();
    case OPEN:
      return openProject();
    case FILES:
      return chooseFiles();
    case EDIT:
      return editSources();
    case JAVAC_ALL:
      compile(true);
      return;
    case JAVAC:
      compile(false);
      return;
    default:
      return PanelDlg::onCommand(control);
  }
}

void ProjectView::onPageButton(int page, int control) {
  if (page == MAIN_PROGRAM && control == PanelPage::LEFT) selectMainClass();
  if (page == MAIN_PROGRAM && control == PanelPage::MIDDLE) runProject(true);
  if (page == MAIN_PROGRAM && control == PanelPage::RIGHT) {
    if (desktop_.controlKeyHeld())
      compileAndRun();
    else
      runProject(false);
  }
  if (page == APPLET && control == PanelPage::MIDDLE) runApplet(true);
  if (page == APPLET && control == PanelPage::RIGHT) runApplet(false);
  PanelDlg::onPageButton(page, control);
}

void ProjectView::compileAndRun() {
  if (bringUpToDate()) runProject(false);
}

void ProjectView::updateTitle() {
  std::string text = title();
  const auto& open = settings_.currentProject;
  if (open && settings_.panelLayout.value != LayoutValue::VERTICAL) text += " - project " + open->quotedPath();
  mainWindow().setTitle(text);
}

void ProjectView::take(const std::string& path, bool create) {
  settings_.currentProject = openedProject(settings_, path, create);
}

void ProjectView::lookAgain(ProjectContext& open) {
  askForToolsFolder(settings_);
  open.update();
}

void ProjectView::welcomeProject() {
  leftPage_.setFieldText(PanelPage::FIELD, "");
  updateRecentProjects(settings_.context(), project()->file.name().fullName());
}

std::array<FileForSubprocess*, 3> ProjectView::fileViewFiles() const {
  return {&settings_.fileviewSource, &settings_.fileviewClass, &settings_.fileviewHtml};
}

void ProjectView::pointFileView() {
  for (auto* file : fileViewFiles()) {
    file->reset(false);
    file->setLastFolder(project()->folder());
  }
  mainDialog().emptyFileFields();
}

void ProjectView::selectTab() {
  const bool applet = project()->mainClass.empty() && !project()->htmlFile.empty();
  openPage(applet ? APPLET : MAIN_PROGRAM);
}

void ProjectView::showProject() {
  refreshButtons();
  settings_.windowPosition.applyToWindow();
  applyLayout();
}

void ProjectView::openAtStart(const std::string& path) {
  take(path, false);
  // Whoever next asks whether the window was moved would otherwise take its present place for the project's.
  settings_.windowPosition.applyToWindow();
  lookAtStart();
}

void ProjectView::lookAtStart() {
  try {
    lookAgain(*project());
  } catch (const Tarnwickexception&) {
    refreshButtons();
    throw;
  }
  updateRecentProjects(settings_.context(), project()->file.name().fullName());
  if (offerNewerJava(settings_, *project())) project()->update();
  pointFileView();
  selectTab();
  refreshButtons();
}

void ProjectView::keepOrClose(const std::string& question, const std::string& none) {
  if (!settings_.currentProject) {
    desktop_.hint(none);
  } else if (!desktop_.askYesNo(question + settings_.currentProject->quotedPath() + " ?")) {
    settings_.currentProject.reset();
    forgetProjectValues(settings_);
    // Otherwise the file view's next action would take the emptied fields for the user's wish.
    mainDialog().showFiles();
  }
}

void ProjectView::newProject() {
  settings_.saveIfWindowMoved();
  if (makeProject()) {
    chooseFiles();
    welcomeProject();
    pointFileView();
  } else {
    keepOrClose("No new project created. Continue with ", "No project created.");
  }
  showProject();
}

bool ProjectView::makeProject() {
  FileRequest request;
  request.filter = projectFileFilter;
  request.extension = ".twp";
  request.confirmOverwrite = true;
  if (!settings_.lastProjectFile.empty()) request.startFolder = Filename(settings_.lastProjectFile).directory();
  const auto chosen = desktop_.saveFile(request);
  if (!chosen) return false;
  try {
    take(*chosen, true);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message + "\nCan't create project file.");
    return false;
  }
  project()->save();
  return true;
}

void ProjectView::openProject() {
  settings_.saveIfWindowMoved();
  if (takeExisting()) {
    welcomeProject();
  } else {
    keepOrClose("No new project opened. Continue with ", "No project opened.");
  }
  if (auto* const open = project()) {
    try {
      if (open->sources.empty()) {
        desktop_.hint(
            "This project doesn't have any Java source files!\nClick on the Files button to add files to this "
            "project's context.");
      }
      if (lookAt(*open)) {
        pointFileView();
        selectTab();
      }
    } catch (const Tarnwickexception& failure) {
      desktop_.message(failure.message);
    }
  }
  showProject();
}

bool ProjectView::lookAt(ProjectContext& opened) {
  bool wanted = false;
  try {
    lookAgain(opened);
    wanted = offerNewerJava(settings_, opened);
  } catch (const RefusedE& failure) {
    desktop_.message(failure.message);
    wanted = offerNewerJava(settings_, failure.source);
    if (!wanted) return false;
  }
  if (wanted) opened.update();
  return true;
}

bool ProjectView::takeExisting() {
  SelectProjectDlg dialog(settings_);
  if (dialog.runModal() != DIALOG_OK || dialog.path().empty()) return false;
  try {
    take(dialog.path(), false);
    return true;
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message + "\nCan't open project file.");
    return false;
  }
}

void ProjectView::chooseFiles() {
  ProjectContext* const open = project();
  if (!open) {
    desktop_.hint(noProject);
    return;
  }
  if (ProjectFilesDlg(settings_, *open).runModal() == DIALOG_OK) open->save();
  try {
    lookAgain(*open);
  } catch (const Tarnwickexception& failure) {
    desktop_.message(failure.message);
  }
  selectTab();
  refreshButtons();
  settings_.saveIfWindowMoved();
}

void ProjectView::editSources() {
  settings_.saveIfWindowMoved();
  if (!project()) {
    desktop_.hint(noProject);
    return;
  }
  using std::chrono::milliseconds;
  const auto names = sourcesToEdit();
  for (std::size_t i = 0; i < names.size(); ++i) {
    // An editor that collects its files in one window needs a moment to stand.
    if (i > 0) std::this_thread::sleep_for(milliseconds(i == 1 ? 800 : 200));
    if (!openEditor(names[i])) return;
  }
}

std::vector<std::string> ProjectView::sourcesToEdit() {
  if (!settings_.editorOpenAll) {
    FileRequest request;
    request.filter = "java source files (*.java)|*.java|All files (*.*)|*.*||";
    request.name = "*.java";
    request.startFolder = project()->folder();
    return desktop_.openFiles(request);
  }
  std::vector<std::string> names;
  const auto& sources = project()->sources;
  for (std::size_t i = sources.size(); i-- > 0;) names.push_back(sources[i].name().fullName());
  return names;
}

bool ProjectView::compile(bool all) {
  CompileEnd end;
  const auto saved = settings_.windowPosition.hasMoved() ? SettingsSaved::JustNow : SettingsSaved::NotYet;
  settings_.saveIfWindowMoved();
  if (auto* const open = project()) {
    end = compileProject(settings_, *open, all, saved);
    if (offerNewerJava(settings_, end.refused)) end = compileProject(settings_, *open, all);
  }
  refreshButtons();
  return end.wasClean;
}

void ProjectView::selectMainClass() {
  settings_.saveIfWindowMoved();
  if (ProjMainClassDlg(desktop_, project()).runModal() == DIALOG_OK) project()->save();
  refreshButtons();
}

bool ProjectView::bringUpToDate() {
  try {
    lookAgain(*project());
    if (project()->upToDate()) return true;
  } catch (const Tarnwickexception&) {
    // The run tells it.
    return true;
  }
  return compile(false);
}

bool ProjectView::readyToRun() {
  lookAgain(*project());
  if (project()->upToDate()) return true;
  refreshButtons();
  return false;
}

void ProjectView::runProject(bool debugging) {
  try {
    if (!readyToRun()) {
      desktop_.hint(notCompiled);
      return;
    }
    FileForSubprocess target;
    target.takeTyped(pageWindow(MAIN_PROGRAM).text(PanelPage::FIELD));
    completeRunTarget(settings_, *project(), target);
    const std::string running = target.name().baseName();
    const std::string classpath = quotedPaths(project()->runClasspath(running));
    if (debugging)
      runJdb(settings_, target, classpath, quotedPaths(project()->derivedSourcepath(running)));
    else
      runJava(settings_, target, classpath);
  } catch (const Tarnwickexception& failure) {
    refreshButtons();
    desktop_.message(failure.message);
  }
  settings_.saveIfWindowMoved();
}

void ProjectView::runApplet(bool debugging) {
  settings_.saveIfWindowMoved();
  try {
    const std::string missing = project()->htmlFile.empty() ? "No html file defined for this project."
                                : readyToRun()              ? ""
                                                            : notCompiled;
    if (!missing.empty()) {
      refreshButtons();
      desktop_.hint(missing);
      return;
    }
    if (!platform::changeDirectory(project()->folderNoSlash()))
      throw Tarnwickexception("Can't access project directory.");
    FileForSubprocess html(project()->quotedFolder(), project()->htmlFile);
    runAppletviewer(settings_, html, debugging);
  } catch (const Tarnwickexception& failure) {
    refreshButtons();
    desktop_.message(failure.message);
  }
}

}  // namespace tarnwick
