#include "process/Subprocess.h"

#include "base/FileForSubprocess.h"
#include "base/NoThreadE.h"
#include "base/Tarnwickfile.h"
#include "base/Text.h"
#include "dialogbase/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/Folders.h"
#include "platform/Process.h"
#include "process/LoggedRun.h"
#include "process/ToolLog.h"

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

std::string behind(const std::vector<std::string>& earlier, const std::string& text) {
  std::string all;
  for (const auto& one : earlier) all += one + "\n\n";
  return all + text;
}

std::optional<std::string> enterFolderOf(const Filename& file) {
  const std::string folder = file.directory();
  if (folder.empty() || platform::changeDirectory(folder)) return std::nullopt;
  return "Subprocess::run(): _chdir error";
}

std::string detachedStartFailure(const std::string& program, const platform::SystemError& failure) {
  return withReason("Unable to start " + program, failure);
}

std::string withReason(const std::string& what, const platform::SystemError& failure) {
  return what + ".\n\n" + failure.reason + "  (" + std::to_string(failure.code) + ')';
}

Subprocess::Subprocess(Desktop& desktop, ToolLog& log, std::string executable)
    : Subprocess(desktop, log, std::move(executable), RunMeans()) {}

Subprocess::Subprocess(Desktop& desktop, ToolLog& log, std::string executable, const RunMeans& means)
    : desktop_(desktop),
      log_(log),
      executable_(std::move(executable)),
      means_(std::make_shared<const RunMeans>(means)) {}

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

std::optional<std::vector<std::string>> Subprocess::collectVector(const FileForSubprocess* file,
                                                                  Failures& failures) const {
  std::vector<std::string> collected = arguments_;
  const char* fault = collected.size() >= vectorSlots ? "Subprocess argument list too long (1)." : nullptr;
  if (fault == nullptr && file != nullptr && !file->args().empty()) {
    collected.insert(collected.end(), file->args().begin(), file->args().end());
    if (collected.size() >= vectorSlots) fault = "Subprocess argument list too long (2).";
  }
  if (fault == nullptr) return collected;
  failures.emplace_back(fault);
  return std::nullopt;
}

bool Subprocess::enterFolder(const FileForSubprocess* file, Failures& failures) {
  const auto fault = file == nullptr ? std::nullopt : enterFolderOf(file->name());
  if (fault) failures.push_back(*fault);
  return !fault;
}

std::unique_ptr<platform::ChildProcess> Subprocess::startChild(const std::string& arguments, const std::string& title,
                                                               Failures& failures) const {
  const auto report = [&failures](const platform::SystemError& fault) { failures.push_back(fault.text()); };
  try {
    return means_->start({executable_, arguments, false, hasConsole_ ? std::optional(title) : std::nullopt, report});
  } catch (const platform::SystemError& error) {
    failures.push_back("Can't start " + executable_ + '\n' + error.text());
    return nullptr;
  }
}

BusyWork Subprocess::shownFor(LoggedRun& run) const {
  BusyWork busy{[&run] { run.waitForEnd(); }, [&run] { run.giveUp(); }};
  if (!shown_) return busy;
  busy.stop = [&run] { run.stop(); };
  if (!arguments_.empty()) busy.tool = arguments_.front();
  busy.on = *shown_;
  return busy;
}

RunResult Subprocess::run(const FileForSubprocess* file, FileMode logOpenMode) {
  RunResult result;
  auto& failures = result.failures;
  const auto collected = collectVector(file, failures);
  if (!collected) return result;
  const std::string command = joined(*collected);
  if (!enterFolder(file, failures)) return result;

  // The first word is the tool's own name, in whose place the system gets the executable.
  const auto blank = command.find(' ');
  const std::string tail = blank == std::string::npos ? "" : command.substr(blank);
  const auto child = startChild(fillsInNames_ ? platform::withNamesFilledIn(tail) : tail, command, failures);
  if (!child) return result;

  std::optional<Tarnwickfile::FileNotOpenE> logFault;
  try {
    log_.open(logOpenMode);
  } catch (const Tarnwickfile::FileNotOpenE& e) {
    logFault.emplace(behind(failures, e.message + "\nCan't open log file " + e.file), e.file);
  }
  LoggedRun run(*child, log_, *means_, command, replaced_);
  try {
    desktop_.whileBusy(shownFor(run));
  } catch (NoThreadE& fault) {
    fault.message = behind(failures, fault.message);
    throw;
  }
  if (logFault) throw Tarnwickfile::FileNotOpenE(*logFault);
  if (run.lostOutput()) failures.emplace_back("Not enough memory for all that the tool has said.");
  const std::string unwritten = log_.fault();
  if (!unwritten.empty()) failures.push_back(unwritten + "\nCan't write log file " + log_.path());
  result.said = run.hadOutput();
  result.end = run.end();
  return result;
}

RunResult DetachedSubprocess::start(const FileForSubprocess& file) const {
  return startIn(&file);
}

RunResult DetachedSubprocess::run(const FileForSubprocess* file, FileMode /*logOpenMode*/) {
  return startIn(file);
}

RunResult DetachedSubprocess::startIn(const FileForSubprocess* file) const {
  RunResult result;
  const auto collected = collectVector(file, result.failures);
  if (!collected || !enterFolder(file, result.failures)) return result;
  std::fflush(nullptr);
  try {
    platform::startDetached(executable(), *collected);
  } catch (const platform::SystemError& error) {
    result.failures.push_back(detachedStartFailure(executable(), error));
  }
  return result;
}

}  // namespace tarnwick
