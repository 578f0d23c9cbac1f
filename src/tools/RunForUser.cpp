#include "tools/RunForUser.h"

#include "dialogbase/Messages.h"
#include "process/EditorLaunch.h"
#include "process/Subprocess.h"
#include "settings/EditorChoice.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"

namespace tarnwick {

void runForUser(const Settings& settings, Subprocess& tool, const FileForSubprocess* file, Silence silence) {
  Desktop& desktop = settings.context().desktop;
  try {
    const RunResult result = tool.run(file, FileMode::Write);
    showEach(desktop, result.failures);
    showRun(settings, result.said, silence);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop.message(failure.message);
  }
}

void showRun(const Settings& settings, bool said, Silence silence) {
  const SettingsContext& context = settings.context();
  if (context.desktop.isLeft()) return;
  if (said)
    showEach(context.desktop, showLog(context.log, settings.editorChoice()));
  else if (silence == Silence::Shown)
    showSilence(settings.editorChoice());
}

}  // namespace tarnwick
