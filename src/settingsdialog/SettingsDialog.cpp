#include "settingsdialog/SettingsDialog.h"

#include "base/ProgramInfo.h"
#include "base/ReplacingFile.h"
#include "dialogbase/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "settings/EditorChoice.h"
#include "settings/OpenProject.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "settings/SettingsResources.h"
#include "settingsdialog/AppletviewerPage.h"
#include "settingsdialog/EditorPage.h"
#include "settingsdialog/JavaPage.h"
#include "settingsdialog/JavacPage.h"
#include "settingsdialog/JdbPage.h"
#include "settingsdialog/PageSnapshot.h"
#include "settingsdialog/PathsPage.h"
#include "settingsdialog/SettingsLayouts.h"
#include "settingsdialog/ToolsPage.h"

#include <array>

namespace tarnwick {

namespace {

enum Control { REASON = 2003, TAB_CONTROL = 1092, SAVE_FILE = 1036, LOAD_FILE = 1037, ABOUT = 1038, HELP = 1168 };

/// Where the user's guide tells of each page, in the order of the tabs.
constexpr const char* helpAnchors[] = {"#configTab1", "#javacparameters",        "#javaparameters",
                                       "#jdbparams",  "#appletviewerparameters", "#editorparameters",
                                       "#paths"};

void prefixIfMissing(std::string& value, const std::string& prefix) {
  if (!value.empty() && value.compare(0, prefix.size(), prefix) != 0) value.insert(0, prefix);
}

}  // namespace

struct SettingsDialog::Pages {
  Pages(Settings& settings, Desktop& desktop, std::function<EditorChoice()> editors)
      : tools(settings.context(), settings.rows()),
        javac(desktop, settings.rows(), chosenJdk()),
        java(settings.context(), settings.rows(), tools, std::move(editors), chosenJdk()),
        jdb(settings.context(), settings.rows()),
        appletviewer(desktop, settings.rows(), chosenJdk()),
        editor(desktop, settings.rows()),
        paths(desktop, settings.rows(), chosenJdk()) {}

  /// Tells the version of the JDK whose folder stands in the field.
  MarkedPage::JdkVersion chosenJdk() {
    return [this] { return jdkVersion(tools.toolsFolder()); };
  }

  ToolsPage tools;
  JavacPage javac;
  JavaPage java;
  JdbPage jdb;
  AppletviewerPage appletviewer;
  EditorPage editor;
  PathsPage paths;
  /// In the order of the tabs.
  const std::array<TabPage*, 7> all{&tools, &javac, &java, &jdb, &appletviewer, &editor, &paths};
};

SettingsDialog::SettingsDialog(Settings& settings)
    : TabbedDialog(settings.context().desktop, SETTINGS_DIALOG, TAB_CONTROL),
      settings_(settings),
      context_(settings.context()),
      pages_(std::make_unique<Pages>(settings, desktop_, [this] { return editorsBesideDialog(); })) {
  toolTips_ = {{IDOK_CONTROL, "Apply new settings and close this window"},
               {IDCANCEL_CONTROL, "Continue with the previously active settings"},
               {SAVE_FILE, "Save settings in a separate file"},
               {LOAD_FILE, "Load settings from a separate file"},
               {HELP, "Start HTML browser to display the Tarnwick user's guide"}};
  const char* const labels[] = {"JDK tools", "javac", "java", "jdb", "appletviewer", "Sourcecode editor", "Paths"};
  for (std::size_t i = 0; i < pages_->all.size(); ++i) addTab(labels[i], *pages_->all[i]);
}

SettingsDialog::~SettingsDialog() = default;

void SettingsDialog::onTabChanged() {
  // Another JDK may have been chosen on the first page.
  for (MarkedPage* page :
       std::initializer_list<MarkedPage*>{&pages_->javac, &pages_->java, &pages_->appletviewer, &pages_->paths})
    page->showMarks();
}

EditorChoice SettingsDialog::editorsBesideDialog() const {
  EditorChoice choice = settings_.editorChoice();
  choice.showMessages = nullptr;
  return choice;
}

int SettingsDialog::runModal(int page, const std::string& reason) {
  initialPage_ = page;
  reason_ = reason;
  return desktop_.runDialog(settingsLayout(), *this);
}

void SettingsDialog::initialise(DialogWindow& window) {
  TabbedDialog::initialise(window);
  window.setText(REASON, reason_);
  window.show(REASON, !reason_.empty());
  const auto& project = settings_.currentProject;
  if (project) window.setTitle(window.title() + " for project " + project->name());
}

void SettingsDialog::onCommand(int control) {
  switch (control) {
    case SAVE_FILE:
      return saveSeparately();
    case LOAD_FILE:
      return loadSeparate();
    case HELP:
      return context_.showHelp(helpAnchors[currentPage()]);
    case ABOUT:
      return context_.showAbout();
    default:
      return TabbedDialog::onCommand(control);
  }
}

void SettingsDialog::collectPages() {
  for (TabPage* page : pages_->all) page->storeToTags();
  prefixIfMissing(settings_.javacJOption, "-J");
  prefixIfMissing(settings_.javaProperty, "-D");
  prefixIfMissing(settings_.appletviewerJOption, "-J");
  settings_.normaliseClasspath();
}

FileRequest SettingsDialog::separateFileRequest() const {
  FileRequest request;
  request.filter = "cfg file|*.cfg||";
  request.startFolder = Filename(settings_.configPath()).directory();
  request.name = "*.cfg";
  return request;
}

void SettingsDialog::saveSeparately() {
  // Deliberate: no warning about -g with -O here, since a separate file does not touch the running settings.
  settings_.tarnwickVersion = context_.program.version;
  FileRequest request = separateFileRequest();
  request.extension = ".cfg";
  request.confirmOverwrite = true;
  const auto chosen = desktop_.saveFile(request);
  if (!chosen) return;
  try {
    saveTo(*chosen);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message + "\nCan't save configuration data.");
  }
}

void SettingsDialog::saveTo(const std::string& path) {
  ReplacingFile target(path);
  const std::string defaultPath = settings_.configPath();
  Tarnwickfile defaults(defaultPath, FileMode::Read);
  // It may be the target too, and an open file is hard to replace on Windows.
  defaults.close();
  PageSnapshot live(settings_);
  collectPages();
  settings_.write(target);
  target.commit();
  // What stands in the default configuration is what runs, unless a project's own values do.
  const bool isDefault =
      platform::sameFileName(platform::resolvedPath(target.name().fullName()), platform::resolvedPath(defaultPath));
  if (isDefault && !settings_.currentProject) live.forget();
}

void SettingsDialog::loadSeparate() {
  FileRequest request = separateFileRequest();
  request.mustExist = true;
  const auto chosen = desktop_.openFile(request);
  if (!chosen) return;
  try {
    loadFrom(*chosen);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message + "\nCan't load configuration data.");
  }
}

void SettingsDialog::loadFrom(const std::string& path) {
  Tarnwickfile chosen(path, FileMode::Read);
  const Tarnwickfile defaults(settings_.configPath(), FileMode::Read);
  // The live values are not touched: they may be an open project's own, which stand in no other file.
  Settings loaded(context_);
  loaded.read(chosen);
  for (TabPage* page : pages_->all) page->loadFrom(loaded.rows());
}

void SettingsDialog::onOk() {
  collectPages();
  // After Cancel the dialog stays open; what was taken from the pages stays in the live object.
  const bool surprising = settings_.javacDebug && settings_.javacFastcode;
  if (surprising && !desktop_.askOkCancel(Settings::debugWithFastcodeWarning())) return;
  settings_.saveCurrent();
  close(DIALOG_OK);
}

}  // namespace tarnwick
