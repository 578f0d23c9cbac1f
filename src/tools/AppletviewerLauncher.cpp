#include "tools/AppletviewerLauncher.h"

#include "base/ProgramInfo.h"
#include "platform/FileArgument.h"
#include "process/Subprocess.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "tools/Relaunch.h"
#include "tools/RunForUser.h"

#include <memory>

namespace tarnwick {

namespace {

const char tool[] = "appletviewer";

std::unique_ptr<Subprocess> runnerFor(Settings& settings, bool debugging) {
  auto& context = settings.context();
  if (debugging) return std::make_unique<DetachedSubprocess>(context.desktop, context.log, context.program.programPath);
  return std::make_unique<Subprocess>(context.desktop, context.log, jdkToolPath(settings, tool));
}

}  // namespace

std::vector<std::string> appletviewerArguments(const Settings& settings, const FileForSubprocess& file,
                                               bool debugging) {
  std::vector<std::string> arguments = {tool};
  if (debugging) {
    arguments = relaunchSwitches(settings, file, tool, debugging);
    arguments.push_back("-debug");
  }
  if (!settings.appletviewerEncoding.empty()) arguments.push_back("-encoding " + settings.appletviewerEncoding);
  if (!settings.appletviewerJOption.empty()) arguments.push_back(settings.appletviewerJOption);
  // The bare name: either way the run begins in the file's folder.
  arguments.push_back(platform::fileWord(file.name().nameWithExtension()));
  return arguments;
}

void runAppletviewer(Settings& settings, const FileForSubprocess& file, bool debugging) {
  if (debugging ? !relaunchReady(settings, tool) : !jdkToolReady(settings, tool)) return;
  const auto runner = runnerFor(settings, debugging);
  for (const auto& argument : appletviewerArguments(settings, file, debugging)) runner->addArg(argument);
  if (settings.watchRuns) runner->showWhileItRuns(file.name().nameWithExtension());
  runForUser(settings, *runner, &file, debugging ? Silence::Kept : Silence::Shown);
}

}  // namespace tarnwick
