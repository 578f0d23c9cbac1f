#include "app/ProjectView.h"

#include "resources/PanelLayouts.h"

namespace tarnwick {

namespace {

enum Control { TABS = 1231, NEW = 1134, OPEN = 1136, FILES = 1135, EDIT = 1139, JAVAC_ALL = 1133, JAVAC = 1140 };
enum Tab { MAIN_PROGRAM = 0, APPLET = 1, UTILITIES = 2 };

std::array<PageWords, 3> pageWords() {
  return {
      {{{"Select", "jdb debug", "java"},
        {{PanelPage::LEFT, "Select a class for execution (must have a public static void main() method!)"},
         {PanelPage::MIDDLE, "Execute application under debugger control"},
         {PanelPage::RIGHT, "Execute application"},
         {PanelPage::FIELD, "File name for executable class, optionally followed by runtime arguments"}}},
       {{"", "appletdebug", "appletviewer"},
        {{PanelPage::MIDDLE, "Start appletviewer under debugger control"}, {PanelPage::RIGHT, "Start appletviewer"}}},
       {{"jar", "javadoc", "WinShortcut"}, {}}}};
}

}  // namespace

ProjectView::ProjectView(Settings& settings, std::function<void()> endMainDialog)
    : PanelDlg(settings, projectViewLayout().resource, pageWords(), std::move(endMainDialog)) {
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

void ProjectView::refreshButtons() {
  // No project can be made or opened yet: so "New" and "Open" are disabled too, and all that needs a project is.
  for (const int control : ownControls()) window()->enable(control, false);
  for (const int page : {MAIN_PROGRAM, APPLET, UTILITIES}) {
    for (const int control : {PanelPage::FIELD, PanelPage::LEFT, PanelPage::MIDDLE, PanelPage::RIGHT}) {
      pageWindow(page).enable(control, false);
    }
  }
  for (const auto* bar : {&verticalBar_, &horizontalBar_, &flatBar_}) {
    bar->window()->enable(ButtonBar::SETTINGS, settings_.currentProject != nullptr);
  }
}

std::vector<int> ProjectView::ownControls() const {
  return {NEW, OPEN, FILES, EDIT, JAVAC_ALL, JAVAC};
}

void ProjectView::onPageButton(int, int) {}

void ProjectView::updateTitle() {
  std::string text = title();
  const auto& project = settings_.currentProject;
  if (project && settings_.panelLayout.value != LayoutValue::VERTICAL) text += " - project " + project->quotedPath();
  settings_.context().mainWindow->setTitle(text);
}

}  // namespace tarnwick
