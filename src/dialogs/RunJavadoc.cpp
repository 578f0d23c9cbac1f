#include "dialogs/RunJavadoc.h"

#include "dialogbase/Messages.h"
#include "process/EditorLaunch.h"
#include "process/Subprocess.h"
#include "settings/EditorChoice.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "tools/Relaunch.h"

namespace tarnwick {

namespace {

const char tool[] = "javadoc";

void document(Settings& settings, const JavadocRun& run) {
  const SettingsContext& context = settings.context();
  Subprocess process(context.desktop, context.log, jdkToolPath(settings, tool));
  for (const auto& argument : javadocArguments(settings, run)) process.addArg(argument);
  if (settings.watchRuns) process.showWhileItRuns("");
  try {
    const RunResult result = process.run(nullptr, FileMode::Write);
    showEach(context.desktop, result.failures);
    if (result.said)
      showEach(context.desktop, showLog(context.log, settings.editorChoice()));
    else
      showSilence(settings.editorChoice());
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    context.desktop.message(failure.message);
  }
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
