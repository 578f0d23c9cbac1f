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

bool hasSaid(const Settings& settings, const RunResult& result) {
  showEach(settings.context().desktop, result.failures);
  return result.said;
}

CompileEnd compileForUser(const Settings& settings, const std::function<bool()>& compile,
                          const std::function<void()>& afterwards) {
  Desktop& desktop = settings.context().desktop;
  const auto& onRunEnds = settings.context().onRunEnds;
  try {
    const bool said = compile();
    onRunEnds(said);
    if (said ? settings.javacSoundOnError : settings.javacSoundOnSuccess)
      desktop.alert(said ? AlertSound::Exclamation : AlertSound::Asterisk);
    showRun(settings, said);
    afterwards();
    return {!said};
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
