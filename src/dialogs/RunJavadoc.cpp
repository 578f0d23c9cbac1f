#include "dialogs/RunJavadoc.h"

#include "process/Subprocess.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "tools/Relaunch.h"
#include "tools/RunForUser.h"

namespace tarnwick {

namespace {

const char tool[] = "javadoc";

void document(Settings& settings, const JavadocRun& run) {
  const SettingsContext& context = settings.context();
  Subprocess process(context.desktop, context.log, jdkToolPath(settings, tool));
  for (const auto& argument : javadocArguments(settings, run)) process.addArg(argument);
  if (settings.watchRuns) process.showWhileItRuns("");
  runForUser(settings, process);
}

}  // namespace

void runJavadoc(Settings& settings, std::string& inputFiles) {
  if (!jdkToolReady(settings, tool)) return;
  // The list of files goes with the dialog, so that is kept until the run has ended.
  JavadocDlg dialog(settings, inputFiles);
  if (dialog.runModal() == DIALOG_OK) {
    inputFiles = dialog.inputFiles();
    document(settings, dialog.run());
  }
  settings.saveIfWindowMoved();
}

}  // namespace tarnwick
