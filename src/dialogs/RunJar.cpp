#include "dialogs/RunJar.h"

#include "base/Text.h"
#include "dialogbase/Messages.h"
#include "platform/FileSystem.h"
#include "process/Subprocess.h"
#include "process/WinApp.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "tools/Relaunch.h"
#include "tools/RunForUser.h"

namespace tarnwick {

namespace {

const char tool[] = "jar";

/// False after the message that the dialog's result can't be used. The base folder is then the current one.
bool ready(Desktop& desktop, const JarDlg& dialog, JarOperation operation) {
  if (dialog.archive().empty() || operation == JarOperation::None) {
    desktop.message("No valid jar archive file specification available.");
    return false;
  }
  const std::string folder = cleanedPath(dialog.baseFolder());
  const bool needsNone = folder.empty() && operation == JarOperation::CreateIndex;
  if (needsNone || platform::changeDirectory(folder)) return true;
  desktop.message(invalidBaseFolder);
  return false;
}

void save(Settings& settings, const JarDlg& dialog) {
  settings.lastJarArchive = dialog.archive();
  settings.lastJarBaseFolder = trim(dialog.baseFolder());
  settings.jarOpenAsZip = dialog.openAsZip();
  settings.saveDefaultConfiguration();
}

}  // namespace

void runJar(Settings& settings, JarSession& session) {
  if (!jdkToolReady(settings, tool)) return;
  const SettingsContext& context = settings.context();
  JarDlg dialog(settings, session);
  if (dialog.runModal() != DIALOG_OK) return;
  const JarRun run = dialog.run();
  if (!ready(context.desktop, dialog, run.operation)) return;
  Subprocess process(context.desktop, context.log, jdkToolPath(settings, tool));
  process.fillInNames();
  for (const auto& argument : jarArguments(run)) process.addArg(argument);
  save(settings, dialog);
  session.switches = dialog.switches();
  if (settings.watchRuns) process.showWhileItRuns(Filename(dialog.archive()).nameWithExtension());
  runForUser(settings, process);
  if (dialog.openAsZip() && session.zipApplication && !context.desktop.isLeft())
    showEach(context.desktop, session.zipApplication->runApp(dialog.archive().c_str(), nullptr, 0).failures);
  settings.saveIfWindowMoved();
}

}  // namespace tarnwick
