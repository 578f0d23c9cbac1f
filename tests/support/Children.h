// What tests of child processes share.
#pragma once

#include "platform/Process.h"
#include "support/TestProgram.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace tarnwick::test {

/// All that one of the child's outputs still brings.
std::string readAll(platform::ChildProcess& child, platform::ChildProcess::Stream stream);

/// What a program writes to standard output, from its start to its end.
std::string outputOf(const std::string& executable, const std::string& arguments);

/// True once `condition` holds; false if it does not within ten seconds.
bool waitUntil(const std::function<bool()>& condition);

/// True once `condition` holds; false if it does not within the time, which is counted in short naps: a machine that
/// is too busy to let anybody on gets longer by the clock.
bool waitInNaps(std::chrono::milliseconds time, const std::function<bool()>& condition);

/// True while a process with this number runs; one that has ended but was not waited for does not count.
bool processLives(int process);

/// Ends the process, if it still runs.
void endProcess(int process);

/// A stand-in tool with its script, in a scratch folder of its own. Its grandchildren end with it.
class StandInScript {
 public:
  explicit StandInScript(const std::string& script);
  ~StandInScript();
  StandInScript(const StandInScript&) = delete;
  StandInScript& operator=(const StandInScript&) = delete;

  const ScratchFolder& folder() const { return folder_; }
  /// The stand-in for this tool.
  static std::string tool(const std::string& name);
  void setScript(const std::string& script) const { writeFile(folder_.file("script"), script); }

  bool hasRecord() const;
  /// The work of the command "lastwork" is done.
  bool lastWorkDone() const;
  /// The arguments that were recorded, one a line.
  std::string record() const { return contentOf(folder_.file("record")); }
  /// Waits for `count` grandchildren and gives their process numbers.
  std::vector<int> grandchildren(std::size_t count) const;

 private:
  /// Those that have been noted down whole.
  std::vector<int> notedGrandchildren() const;

  ScratchFolder folder_;
  ScopedEnvironment script_;
  ScopedEnvironment record_;
};

}  // namespace tarnwick::test
