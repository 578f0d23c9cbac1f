#include "app/TarnwickApp.h"

#include "app/AboutDlg.h"
#include "app/CMainFrame.h"
#include "app/SwitchLine.h"
#include "app/TarnwickDlg.h"
#include "app/UserEditor.h"
#include "app/UsersGuide.h"
#include "base/TempFile.h"
#include "base/Text.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "settingsdialog/SettingsOnDesktop.h"

#include <algorithm>

namespace tarnwick {

namespace {

constexpr int START_FAILED = 1;

ProgramInfo programAt(const std::string& executablePath) {
  ProgramInfo program;
  program.programDirectory = Filename(executablePath).directory();
  program.programPath = executablePath;
  return program;
}

/// Gives the user's configuration folder its whole path: a run changes the current folder, and the second copy of the
/// program begins in another one.
ProgramInfo withWholeConfigFolder(ProgramInfo program) {
  const std::string folder = Filename(platform::environment(program.configDirVariable).value_or("")).fullName();
  const std::string whole = platform::absolutePath(folder);
  if (whole != folder) platform::setEnvironment(program.configDirVariable + "=" + whole);
  return program;
}

/// What RUN holds: all the rest of the line, further marks included.
// Deliberate: counted from the end of the switch before it, since only blanks may stand between the two.
std::string childCommandLine(const std::string& line, std::size_t switchStart) {
  constexpr std::size_t introduction = 6;  // the mark, the name and what stands behind it
  const std::size_t opening = line.find_first_not_of(' ', switchStart);
  return line.substr(std::min(opening + introduction, line.size()));
}

/// True for a line that names a file which the panel opens or shows, and which can be read. A switch line is simply a
/// name that no file bears.
bool namesPanelFile(const std::string& commandLine) {
  const Filename name(commandLine);
  return canBeRead(name.fullName()) && (isProjectFile(name) || isFieldFile(name));
}

}  // namespace

TarnwickApp::TarnwickApp(Desktop& desktop, ConsoleFrameHost& frameHost, const std::string& executablePath)
    : desktop_(desktop),
      frameHost_(frameHost),
      program_(withWholeConfigFolder(programAt(executablePath))),
      zipApplication_(".ZIP"),
      log_([this] { return Filename(program_.configDirectory(), "x").directory(); }),
      context_(settingsOnDesktop(desktop, program_, log_)),
      settings_(context_),
      messages_(settings_, frameHost,
                [this](const std::string& file, const EditorPlace& place) { openUserEditor(settings_, file, place); }) {
  context_.showHelp = [this](const std::string& anchor) { showHelp(anchor); };
  context_.showAbout = [this] { showAbout(); };
  context_.showMessages = [this](bool said) { messages_.show(said); };
  context_.bringMessages = [this] { messages_.bringForward(); };
  context_.registerProjectType = [this] { registerProjectType(); };
}

void TarnwickApp::showHelp(const std::string& anchor) {
  showUsersGuide(context_, anchor, [this](const std::string& address, const std::string& place) {
    openInBrowser(desktop_, address, place);
  });
}

void TarnwickApp::showAbout() {
  AboutDlg(desktop_, program_).runModal();
}

int TarnwickApp::run(const std::string& commandLine) {
  if (commandLine.empty() || namesPanelFile(commandLine)) return runPanel(commandLine);
  return runConsole(commandLine);
}

int TarnwickApp::runPanel(const std::string& commandLine) {
  clearTempFiles(program_.configDirectory());
  TarnwickDlg dialog(settings_, commandLine);
  dialog.setZipApplication(zipApplication_);
  dialog.runModal();
  messages_.close();
  return 0;
}

void TarnwickApp::registerProjectType(const std::function<void(const std::string&)>& enter) {
  if (shellRegistered_) return;
  shellRegistered_ = true;
  enter(program_.programPath);
}

bool TarnwickApp::enterDefaultFolder(const std::string& value) {
  // The name that is joined makes a folder of the value, whatever ends it. An empty value names none, and fails.
  if (platform::changeDirectory(Filename(value, "*.*").directoryNoSlash())) return true;
  desktop_.message("Can't access folder " + value);
  return false;
}

bool TarnwickApp::parseSwitches(const std::string& line) {
  std::size_t cursor = 0;
  for (Switch found; nextSwitch(line, cursor, found);) {
    if (equalsIgnoringCase(found.name, "DEFAULTDIR")) {
      if (!enterDefaultFolder(found.value)) return false;
    } else if (equalsIgnoringCase(found.name, "EXEFILE")) {
      exeFile_ = cleanedPath(platform::keptExecutable(found.value));
    } else if (equalsIgnoringCase(found.name, "CFG")) {
      Tarnwickfile file(found.value, FileMode::Read);
      configFile_ = file;
    } else if (equalsIgnoringCase(found.name, "JDEBUG")) {
      debugging_ = true;
    } else if (equalsIgnoringCase(found.name, "PROGRAM")) {
      programFile_ = cleanedPath(platform::keptExecutable(found.value));
    } else if (equalsIgnoringCase(found.name, "JDBOPTIONS")) {
      debuggerOptions_ = found.value;
    } else if (equalsIgnoringCase(found.name, "TITLE")) {
      title_ = found.value;
    } else if (equalsIgnoringCase(found.name, "RUN")) {
      runArguments_ = childCommandLine(line, found.start);
      return true;
    }
  }
  return true;
}

bool TarnwickApp::readConsoleConfiguration(const std::string& commandLine) {
  std::string error;
  try {
    if (!parseSwitches(commandLine)) return false;
    int status = 0;
    settings_.readConfiguration(status, configFile_);
    configFile_.close();
    if (status & READ_FAILURE_MASK) error = "Encountered problems reading the configuration";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    error = failure.message + "\nFile " + failure.file;
  } catch (...) {
    error = "Encountered unexpected problems reading the configuration";
  }
  if (error.empty()) return true;
  desktop_.message(error);
  return false;
}

int TarnwickApp::runConsole(const std::string& commandLine) {
  if (!readConsoleConfiguration(commandLine)) return START_FAILED;
  CMainFrame frame(
      desktop_, settings_,
      {title_, exeFile_, runArguments_, debugging_, configFile_.name().fullName(), programFile_, debuggerOptions_});
  frameHost_.runConsoleFrame(frame);
  return 0;
}

}  // namespace tarnwick
