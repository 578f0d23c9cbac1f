#include "app/CompileForUser.h"

#include "dialogbase/Messages.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "settingsdialog/ToolsFolder.h"
#include "source/PortabilityWarningDlg.h"
#include "tools/RunForUser.h"

namespace tarnwick {

Compiler compilerForUser(Settings& settings, const std::optional<std::string>& classpath) {
  // Deliberate: a class path that is changed in the settings dialog counts from the next command on.
  askForToolsFolder(settings);
  return Compiler(settings, classpath, [&settings] { return maySplit(settings); });
}

void takeRun(const Settings& settings, const RunResult& result, CompilerRuns& runs) {
  showEach(settings.context().desktop, result.failures);
  runs.said |= result.said;
  runs.failed |= !result.failures.empty();
}

CompileEnd compileForUser(const Settings& settings, const std::function<CompilerRuns()>& compile,
                          const std::function<void()>& afterwards) {
  Desktop& desktop = settings.context().desktop;
  const auto& onRunEnds = settings.context().onRunEnds;
  try {
    const auto [said, failed] = compile();
    onRunEnds(failed && !said ? std::nullopt : std::optional(said));
    if (said ? settings.javacSoundOnError : settings.javacSoundOnSuccess)
      desktop.alert(said ? AlertSound::Exclamation : AlertSound::Asterisk);
    showRun(settings, said);
    afterwards();
    return {!said && !failed};
  } catch (const DontWantToSplitE&) {
    // The user has said so; there is nothing to tell.
    onRunEnds(std::nullopt);
  } catch (const RefusedE& failure) {
    onRunEnds(std::nullopt);
    desktop.message(failure.message);
    return {false, failure.source};
  } catch (const Tarnwickexception& failure) {
    onRunEnds(std::nullopt);
    desktop.message(failure.message);
  }
  return {};
}

}  // namespace tarnwick
