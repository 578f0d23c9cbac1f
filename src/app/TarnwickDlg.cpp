#include "app/TarnwickDlg.h"

#include "app/WelcomeDlg.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "resources/PanelLayouts.h"
#include "settings/JdkDiscovery.h"
#include "source/PieceFolder.h"

#include <utility>

namespace tarnwick {

TarnwickDlg::TarnwickDlg(Settings& settings, std::string projectArgument)
    : ToolTipDlg(settings.context().desktop, mainLayout().resource, 0),
      settings_(settings),
      projectArgument_(std::move(projectArgument)),
      fileView_(settings, end()),
      projectView_(settings, end()) {}

TarnwickDlg::~TarnwickDlg() {
  settings_.context().mainWindow = nullptr;
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
  if (!projectArgument_.empty() && projectView_.initialised()) openProject();
  unsaved_ = true;
}

void TarnwickDlg::openProject() {
  std::string failed;
  try {
    projectView_.openAtStart(projectArgument_);
    fileView_.switchView();
    return;
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    failed = failure.message + "\nCan't open project file.";
  } catch (const Tarnwickexception& failure) {
    failed = failure.message;
  }
  // The project may be open all the same, and brings its own arrangement.
  if (fileView_.initialised()) fileView_.applyLayout();
  desktop_.message(failed);
}

void TarnwickDlg::onCloseRequest() {
  saveWhatStands();
  ToolTipDlg::onCloseRequest();
}

MainDialogEnd TarnwickDlg::end() {
  return {[this] { saveWhatStands(); }, [this] { close(DIALOG_OK); }};
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
  // Any bit counts as a first use, even one unknown tag; stricter than the failure mask, and meant so.
  if (status != 0)
    welcomeFirstUse(status);
  else if (settings_.tarnwickVersion != settings_.context().program.version)
    welcomeUpgrade();
  // The source of the last run is where that may have been killed in the middle of a compile.
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
  WelcomeDlg(
      desktop_,
      "You seem to be using Tarnwick for the first time,\n"
      "as I can't find any data from a previous session.",
      platform::localText("Please make sure that you have an installation of a JDK (J2SE) on your system.\n\n"
                          "On the next display you will have to tell Tarnwick where the JDK programs are located.\n"
                          "Look for a file \"javac.exe\" in a \"bin\" subfolder of the JDK installation tree and\n"
                          "enter it in the field \"Tools .exe directory\".\n"))
      .runModal();
  const bool noConfiguration = status == READ_FILE_LOST;
  const std::string known = settings_.javaPath;
  if (known.empty()) settings_.javaPath = preferredJdkTools(settings_.context().installedJdks());
  if (noConfiguration) suitJdk();
  const std::string offered = settings_.javaPath;
  const std::string offeredVersion = settings_.javacMyJdkVersion;
  const bool accepted = settings_.runModal(0) == DIALOG_OK;
  if (noConfiguration && settings_.javaPath != offered) {
    // A version that the user has chosen himself stays.
    const std::string chosen = settings_.javacMyJdkVersion;
    suitJdk();
    if (chosen != offeredVersion) settings_.javacMyJdkVersion = chosen;
  }
  // Into a configuration that is there nothing comes that its user has not accepted.
  if (!noConfiguration && !accepted) settings_.javaPath = known;
  settings_.saveDefaultConfiguration(nullptr);
}

void TarnwickDlg::suitJdk() {
  const int version = jdkVersion(settings_.javaPath);
  // With the last entry of the list, the warnings and the source option of all newer compilers can be used.
  if (version >= 5) settings_.javacMyJdkVersion = "1.5";
  // From version 13 on, java warns about -Xfuture, and later ones refuse it. An existing configuration keeps it.
  if (version >= 13) settings_.javaXfuture = 0;
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
  settings_.saveDefaultConfiguration(nullptr);
}

}  // namespace tarnwick
