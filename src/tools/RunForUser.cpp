#include "tools/RunForUser.h"

#include "dialogbase/Messages.h"
#include "process/EditorLaunch.h"
#include "process/Subprocess.h"
#include "settings/EditorChoice.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"

namespace tarnwick {

void runForUser(const Settings& settings, Subprocess& tool, const FileForSubprocess* file, Silence silence) {
  const SettingsContext& context = settings.context();
  if (settings.toolsWithoutConsole) tool.withoutConsole();
  // Of what goes its own way nobody knows the end.
  const bool isWaitedFor = silence == Silence::Shown;
  if (isWaitedFor && !tool.arguments().empty()) context.onRunBegins(tool.arguments().front(), 0);
  try {
    const RunResult result = tool.run(file, FileMode::Write);
    if (isWaitedFor) context.onRunEnds(result.said);
    showEach(context.desktop, result.failures);
    showRun(settings, result.said, silence);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    context.onRunEnds(std::nullopt);
    context.desktop.message(failure.message);
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
