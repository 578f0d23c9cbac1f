#include "app/TarnwickDlg.h"

#include "app/NewerJavaOffer.h"
#include "app/WelcomeDlg.h"
#include "base/ProgramInfo.h"
#include "base/Text.h"
#include "dialogbase/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/SystemVersion.h"
#include "resources/DialogLayout.h"
#include "resources/PanelLayouts.h"
#include "resources/SystemWords.h"
#include "settings/JdkDiscovery.h"
#include "settings/SettingsContext.h"
#include "settingsdialog/SettingsDialog.h"
#include "source/Compiler.h"
#include "source/PieceFolder.h"
#include "source/PrivatePieces.h"

#include <cstddef>
#include <optional>
#include <utility>

namespace tarnwick {

bool isProjectFile(const Filename& file) {
  return equalsIgnoringCase(file.extension(), ".twp");
}

bool isFieldFile(const Filename& file) {
  const std::string extension = file.extension();
  const auto has = [&extension](const char* other) { return equalsIgnoringCase(extension, other); };
  return has(".java") || has(".class") || has(".jar") || has(".htm") || has(".html");
}

TarnwickDlg::TarnwickDlg(Settings& settings, std::string argument)
    : ToolTipDlg(settings.context().desktop, mainLayout().resource, 0),
      settings_(settings),
      argument_(std::move(argument)),
      runs_(settings.context().log),
      fileView_(settings, mainDialog()),
      projectView_(settings, mainDialog()) {
  followRuns();
}

TarnwickDlg::~TarnwickDlg() {
  SettingsContext& context = settings_.context();
  context.mainWindow = nullptr;
  context.onRunBegins = [](const std::string&, std::size_t) {};
  context.onRunEnds = [](std::optional<bool>) {};
}

void TarnwickDlg::followRuns() {
  const auto show = [this] {
    fileView_.updateStatus();
    projectView_.updateStatus();
  };
  settings_.context().onRunBegins = [this, show](const std::string& what, std::size_t sources) {
    runs_.begins(what, sources);
    show();
  };
  settings_.context().onRunEnds = [this, show](std::optional<bool> said) {
    runs_.ends(said);
    show();
  };
}

void TarnwickDlg::setZipApplication(const WinApp& application) {
  fileView_.setZipApplication(application);
  projectView_.setZipApplication(application);
}

void TarnwickDlg::runModal() {
  desktop_.runMainDialog(mainLayout(), *this);
}

void TarnwickDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  settings_.context().mainWindow = &window;
  window.addSystemCommand("About Tarnwick ..", settings_.context().showAbout);
  readSettings();
  settings_.windowPosition.applyToWindow();
  createPanel(FILE_VIEW_SLOT, fileViewLayout(), fileView_, "Error creating fileview");
  createPanel(PROJECT_VIEW_SLOT, projectViewLayout(), projectView_, "Error creating projectview");
  arrangePanels();
  takeArgument();
  unsaved_ = true;
}

void TarnwickDlg::takeArgument() {
  if (!argument_.empty()) takeFile(Filename(argument_));
}

bool TarnwickDlg::takeFile(const Filename& file) {
  if (isFieldFile(file)) {
    fileView_.takeFile(file.fullName());
    return true;
  }
  if (!isProjectFile(file) || !projectView_.initialised()) return false;
  openProject(file.quoted());
  return true;
}

void TarnwickDlg::onFilesDropped(const std::vector<std::string>& files) {
  for (const auto& name : files) {
    if (holdsLineEnd(name)) continue;
    const Filename file(platform::absolutePath(name));
    if (isFieldFile(file) && projectView_.isShown()) projectView_.switchView();
    if (takeFile(file)) return;
  }
  desktop_.alert(AlertSound::Beep);
}

void TarnwickDlg::openProject(const std::string& path) {
  const std::string refused = openProject([this, &path] { projectView_.openAtStart(path); });
  if (offerNewerJava(settings_, refused)) openProject([this] { projectView_.lookAtStart(); });
}

std::string TarnwickDlg::openProject(const std::function<void()>& step) {
  std::string failed;
  std::string refused;
  try {
    step();
    fileView_.switchView();
    return refused;
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    failed = failure.message + "\nCan't open project file.";
  } catch (const Compiler::RefusedE& failure) {
    failed = failure.message;
    refused = failure.source;
  } catch (const Tarnwickexception& failure) {
    failed = failure.message;
  }
  // The project may be open all the same, and brings its own arrangement.
  if (fileView_.initialised()) fileView_.applyLayout();
  desktop_.message(failed);
  return refused;
}

void TarnwickDlg::onCloseRequest() {
  saveWhatStands();
  ToolTipDlg::onCloseRequest();
}

MainDialog TarnwickDlg::mainDialog() {
  MainDialog dialog;
  dialog.window = [this]() -> DialogWindow& { return *window(); };
  dialog.showFiles = [this] { fileView_.showFiles(); };
  dialog.emptyFileFields = [this] { fileView_.emptyFields(); };
  dialog.save = [this] { saveWhatStands(); };
  dialog.end = [this] { close(DIALOG_OK); };
  dialog.runs = [this] { return runs_.text(); };
  return dialog;
}

void TarnwickDlg::saveWhatStands() {
  // Once, as a save that failed has been told; and not where the program was told to end while it still welcomed its
  // user: a first use is to be one at the next start, too.
  if (!std::exchange(unsaved_, false)) return;
  if (fileView_.fieldsHaveChanged())
    settings_.saveCurrent();
  else
    settings_.saveIfWindowMoved();
}

void TarnwickDlg::createPanel(int slot, const DialogLayout& layout, PanelDlg& panel, const char* failed) {
  try {
    window()->addChild(slot, layout, panel);
  } catch (const std::exception&) {
    desktop_.message(failed);
  }
}

void TarnwickDlg::arrangePanels() {
  const bool both = fileView_.initialised() && projectView_.initialised();
  fileView_.setPartner(both ? &projectView_ : nullptr, "Projectview");
  projectView_.setPartner(both ? &fileView_ : nullptr, "Fileview");
  // The layouts rest on the places that the resources give. Both panels get the same room, so they are built together.
  window()->arrangeControls();
  for (PanelDlg* panel : std::initializer_list<PanelDlg*>{&fileView_, &projectView_}) {
    if (panel->initialised()) panel->buildLayouts();
  }
  if (fileView_.initialised()) fileView_.applyLayout();
}

void TarnwickDlg::detached() {
  // Where the session ends, or the program is told to, nobody has pressed anything before.
  saveWhatStands();
  settings_.context().mainWindow = nullptr;
  ToolTipDlg::detached();
}

void TarnwickDlg::readSettings() {
  int status = 0;
  settings_.readDefaultConfiguration(status);
  if (status == READ_FILE_LOST) tellRefusedConfiguration();
  // Deliberate: any bit counts as a first use, even one unknown tag. That is stricter than the failure mask.
  if (status != 0)
    welcomeFirstUse(status);
  else if (settings_.tarnwickVersion != settings_.context().program.version)
    welcomeUpgrade();
  // The source of the last run is where that may have been killed in the middle of a compile.
  PrivatePieces::clearLeftOvers(settings_.context().program.configDirectory());
  if (!settings_.fileviewSource.isEmpty()) PieceFolder::putBackLeftOvers(settings_.fileviewSource.name().directory());
}

void TarnwickDlg::tellRefusedConfiguration() {
  // What is missing is a first use; where there is a folder, or no right to read, the save tells it.
  const std::string path = settings_.configPath();
  try {
    refuseSpecial(path);
    refuseLarge(platform::fileSize(path).value_or(0), path);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message + "\nFile " + failure.file);
  }
}

void TarnwickDlg::welcomeFirstUse(int status) {
  WelcomeDlg(desktop_,
             "You seem to be using Tarnwick for the first time,\n"
             "as I can't find any data from a previous session.",
             inSystemWords("Please make sure that you have an installation of a JDK (J2SE) on your system.\n\n"
                           "On the next display you will have to tell Tarnwick where the JDK programs are located.\n"
                           "Look for a file \"javac.exe\" in a \"bin\" subfolder of the JDK installation tree and\n"
                           "enter it in the field \"Tools .exe directory\".\n"))
      .runModal();
  const bool noConfiguration = status == READ_FILE_LOST;
  const std::string known = settings_.javaPath;
  if (known.empty()) settings_.javaPath = preferredJdkTools(settings_.context().installedJdks());
  if (noConfiguration) suitJdk();
  const std::string offered = settings_.javaPath;
  const JdkChoices offeredChoices = jdkChoices();
  const bool accepted = SettingsDialog(settings_).runModal(0) == DIALOG_OK;
  if (noConfiguration && settings_.javaPath != offered) {
    // What the user has chosen himself stays.
    const JdkChoices chosen = jdkChoices();
    suitJdk();
    if (chosen.version != offeredChoices.version) settings_.javacMyJdkVersion = chosen.version;
    if (chosen.newerJava != offeredChoices.newerJava) settings_.newerJava = chosen.newerJava;
    if (chosen.oneRun != offeredChoices.oneRun) settings_.javacOneRun = chosen.oneRun;
    if (chosen.newerConsole != offeredChoices.newerConsole) settings_.newerConsole = chosen.newerConsole;
    if (chosen.watchRuns != offeredChoices.watchRuns) settings_.watchRuns = chosen.watchRuns;
    if (chosen.statusLine != offeredChoices.statusLine) settings_.statusLine = chosen.statusLine;
    if (chosen.toolsWithoutConsole != offeredChoices.toolsWithoutConsole)
      settings_.toolsWithoutConsole = chosen.toolsWithoutConsole;
    if (chosen.strictChecks != offeredChoices.strictChecks) settings_.javaXfuture = chosen.strictChecks;
  }
  // Into a configuration that is there nothing comes that its user has not accepted.
  if (!noConfiguration && !accepted) settings_.javaPath = known;
  settings_.saveDefaultConfiguration();
}

TarnwickDlg::JdkChoices TarnwickDlg::jdkChoices() const {
  return {settings_.javacMyJdkVersion, settings_.newerJava,   settings_.javacOneRun, settings_.newerConsole,
          settings_.watchRuns,         settings_.javaXfuture, settings_.statusLine,  settings_.toolsWithoutConsole};
}

void TarnwickDlg::suitJdk() {
  const int version = jdkVersion(settings_.javaPath);
  // With the last entry of the list, the warnings and the source option of all newer compilers can be used.
  if (version >= 5) settings_.javacMyJdkVersion = "1.5";
  // Before version 5 the language was what the classic way knows.
  settings_.newerJava = settings_.javacOneRun = settings_.newerConsole = version >= 5;
  settings_.watchRuns = settings_.statusLine = version >= 5;
  settings_.toolsWithoutConsole = version >= 5 && platform::isWindowsDesktop();
  // From version 13 on, java warns about -Xfuture, and later ones refuse it. An existing configuration keeps it.
  if (version >= 13) settings_.javaXfuture = false;
}

void TarnwickDlg::welcomeUpgrade() {
  WelcomeDlg(desktop_,
             "You seem to be upgrading from a previous Tarnwick version,\n"
             "as far as I can tell from data from a previous session.",
             "You may wish to review the javac options.\n"
             "Depending on the JDK version, different options exist for\n"
             "compiler warnings. They are not compatible across JDK versions,\n"
             "so you should select the options appropriate for your JDK.")
      .runModal();
  settings_.saveDefaultConfiguration();
}

}  // namespace tarnwick
