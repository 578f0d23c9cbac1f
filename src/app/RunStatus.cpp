#include "app/RunStatus.h"

#include "app/MessagesText.h"
#include "base/Filename.h"
#include "process/ToolLog.h"
#include "settings/OpenProject.h"
#include "settings/Settings.h"

namespace tarnwick {

void RunStatus::begins(const std::string& what, std::size_t sources) {
  if (tool_.empty()) {
    sources_ = 0;
    runsBefore_ = log_.runs();
  }
  tool_ = what.substr(0, what.find(' '));
  sources_ += sources;
  text_ = what + " ...";
}

void RunStatus::ends(std::optional<bool> said) {
  // A command that came to its end without a run had nothing to compile.
  const bool hasBegun = !tool_.empty();
  if (said && !hasBegun) text_ = "All classes are up to date";
  if (hasBegun) text_ = said && log_.runs() != runsBefore_ ? endText(*said) : "";
  tool_.clear();
}

std::string RunStatus::endText(bool said) const {
  if (said) return saidText();
  const std::string time = secondsText(log_.elapsed());
  if (sources_ == 0) return tool_ + " has ended, " + time;
  return "Compiled " + std::to_string(sources_) + (sources_ == 1 ? " source in " : " sources in ") + time;
}

std::string RunStatus::saidText() const {
  try {
    return messagesSummary(textOfLog(log_), log_.elapsed(), log_.end());
  } catch (const Tarnwickfile::FileNotOpenE&) {
    // Whoever shows the log tells it.
    return "";
  }
}

std::string statusText(const Settings& settings, const std::string& runs) {
  const std::string separator = "   |   ";
  std::string text = runs.empty() ? "" : runs + separator;
  if (settings.currentProject) text += "Project " + settings.currentProject->name() + separator;
  return text + Filename(settings.configPath()).nameWithExtension();
}

}  // namespace tarnwick
