#include "process/Subprocess.h"

#include "base/Text.h"
#include "platform/FileSystem.h"
#include "platform/Folders.h"

#include <cstdio>
#include <memory>
#include <utility>

namespace tarnwick {
namespace {

/// The vector's slots; the last one is for its end mark.
constexpr std::size_t vectorSlots = 256;
/// The command text: empty arguments add nothing to it, not even a blank.
std::string joined(const std::vector<std::string>& arguments) {
  std::string text;
  for (const auto& argument : arguments) {
    if (!argument.empty()) text += ' ';
    text += argument;
  }
  return trimLeft(text);
}

}  // namespace

bool enterFolderOf(Desktop& desktop, const Filename& file) {
  const std::string folder = file.directory();
  if (folder.empty() || platform::changeDirectory(folder)) return true;
  desktop.message("Subprocess::run(): _chdir error");
  return false;
}

std::string detachedStartFailure(const std::string& program, const platform::SystemError& failure) {
  return "Unable to start " + program + ".\n\n" + failure.reason + "  (" + std::to_string(failure.code) + ')';
}

Subprocess::Subprocess(Desktop& desktop, ToolLog& log, std::string executable, RunMeans means)
    : desktop_(desktop), log_(log), executable_(std::move(executable)), means_(std::move(means)) {}

void Subprocess::addArg(const std::string& text) {
  arguments_.push_back(text);
}

void Subprocess::addArg(const std::string& prefix, const std::string& tail) {
  arguments_.push_back(prefix + tail);
}

void Subprocess::reset(const std::string& executable) {
  executable_ = executable;
  arguments_.clear();
}

std::optional<std::vector<std::string>> Subprocess::collectVector(const FileForSubprocess* file) {
  std::vector<std::string> collected = arguments_;
  const char* fault = collected.size() >= vectorSlots ? "Subprocess argument list too long (1)." : nullptr;
  if (fault == nullptr && file != nullptr && !file->args().empty()) {
    collected.insert(collected.end(), file->args().begin(), file->args().end());
    if (collected.size() >= vectorSlots) fault = "Subprocess argument list too long (2).";
  }
  if (fault == nullptr) return collected;
  desktop_.message(fault);
  return std::nullopt;
}

bool Subprocess::enterFolder(const FileForSubprocess* file) {
  return file == nullptr || enterFolderOf(desktop_, file->name());
}

std::unique_ptr<platform::ChildProcess> Subprocess::startChild(const std::string& arguments, const std::string& title) {
  std::vector<std::string> texts;
  std::unique_ptr<platform::ChildProcess> child;
  const auto report = [&texts](const platform::SystemError& fault) { texts.push_back(fault.text()); };
  try {
    child = means_.start({executable_, arguments, false, title, report});
  } catch (const platform::SystemError& error) {
    texts.push_back("Can't start " + executable_ + '\n' + error.text());
  }
  for (const auto& text : texts) desktop_.message(text);
  return child;
}

bool Subprocess::run(FileForSubprocess* file, FileMode logOpenMode) {
  const auto collected = collectVector(file);
  if (!collected) return false;
  const std::string command = joined(*collected);
  if (!enterFolder(file)) return false;

  // The first word is the tool's own name, in whose place the system gets the executable.
  const auto blank = command.find(' ');
  const std::string tail = blank == std::string::npos ? "" : command.substr(blank);
  const auto child = startChild(fillsInNames_ ? platform::withNamesFilledIn(tail) : tail, command);
  if (!child) return false;

  std::optional<Tarnwickfile::FileNotOpenE> logFault;
  try {
    log_.open(logOpenMode);
  } catch (const Tarnwickfile::FileNotOpenE& e) {
    logFault.emplace(e.message + "\nCan't open log file " + e.file, e.file);
  }
  LoggedRun run(*child, log_, means_, command);
  desktop_.whileBusy([&run] { run.waitForEnd(); }, [&run] { run.giveUp(); });
  if (logFault) throw Tarnwickfile::FileNotOpenE(*logFault);
  if (run.lostOutput()) desktop_.message("Not enough memory for all that the tool has said.");
  const std::string unwritten = log_.fault();
  if (!unwritten.empty()) desktop_.message(unwritten + "\nCan't write log file " + log_.path());
  return run.hadOutput();
}

bool DetachedSubprocess::run(FileForSubprocess* file, FileMode /*logOpenMode*/) {
  const auto collected = collectVector(file);
  if (!collected || !enterFolder(file)) return false;
  std::fflush(nullptr);
  try {
    platform::startDetached(executable(), *collected);
  } catch (const platform::SystemError& error) {
    desktop_.message(detachedStartFailure(executable(), error));
  }
  return false;
}

}  // namespace tarnwick
