// The window "Files" of a large project on the real desktop: projectfiles CONFIGURATION-FOLDER PROJECT ROUNDS. The
// project has no sources yet; they lie in folders below it. Prints medians: finding them alone, opening the window
// until its lists stand, narrowing the lists by a word, "Add all", and "OK".
#include "base/ProgramInfo.h"
#include "dialogbase/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "process/ToolLog.h"
#include "project/ProjectContext.h"
#include "project/ProjectFilesDlg.h"
#include "project/SourceFinder.h"
#include "resources/ProjectLayouts.h"
#include "settings/Settings.h"
#include "settingsdialog/SettingsOnDesktop.h"
#include "ui/RunProgram.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times.empty() ? 0 : times[times.size() / 2];
}

template <typename Work>
double timeOf(const Work& work) {
  const auto start = Clock::now();
  work();
  return millisecondsSince(start);
}

constexpr std::array<const char*, 5> steps = {"finding the sources alone", "the window, until its lists stand",
                                              "a word that narrows them", "\"Add all\"", "\"OK\""};
using Times = std::array<std::vector<double>, steps.size()>;

/// Presses its own buttons as soon as it stands.
class TimedFiles : public ProjectFilesDlg {
 public:
  TimedFiles(Settings& settings, ProjectContext& project, Times& times)
      : ProjectFilesDlg(settings, project), desktop_(settings.context().desktop), times_(times) {}

  void initialise(DialogWindow& window) override {
    ProjectFilesDlg::initialise(window);
    times_[1].push_back(millisecondsSince(start_));
    count_ = window.text(OTHER_FILES_COUNT);
    timer_ = desktop_.startTimer(1, [this, &window] { useAndClose(window); });
  }
  const std::string& count() const { return count_; }

 private:
  void useAndClose(DialogWindow& window) {
    desktop_.stopTimer(timer_);
    const auto narrow = [&](const std::string& word) {
      window.setText(FILES_FILTER, word);
      onTextChanged(FILES_FILTER);
    };
    times_[2].push_back(timeOf([&] { narrow("folder7 c"); }));
    narrow("");
    times_[3].push_back(timeOf([&] { onCommand(ADD_ALL_FILES); }));
    times_[4].push_back(timeOf([&] { onCommand(IDOK_CONTROL); }));
  }

  Desktop& desktop_;
  Times& times_;
  Clock::time_point start_ = Clock::now();
  std::string count_;
  int timer_ = 0;
};

bool isJava(const std::string& name) {
  return name.ends_with(".java");
}

int run(Desktop& desktop, const char* const* arguments) {
  const std::string folder = std::string(arguments[0]) + platform::folderSeparator;
  platform::setEnvironment("TARNWICK_CFGDIR=" + folder);
  const ProgramInfo program;
  ToolLog log(folder);
  SettingsContext context = settingsOnDesktop(desktop, program, log);
  Times times;
  std::string counts;
  for (int round = 0; round < std::atoi(arguments[2]); ++round) {
    Settings settings(context);
    settings.saveDefaultConfiguration();
    auto owned = openedProject(settings, arguments[1], false);
    ProjectContext& project = *owned;
    settings.currentProject = std::move(owned);
    times[0].push_back(timeOf([&] { SourceFinder(project.folderNoSlash(), isJava).find(); }));
    TimedFiles dialog(settings, project, times);
    dialog.runModal();
    counts = dialog.count() + " listed, " + std::to_string(project.sources.size()) + " taken";
    settings.currentProject.reset();
  }
  std::printf("  %s\n", counts.c_str());
  for (std::size_t i = 0; i < steps.size(); ++i) std::printf("  %-36s median %8.1f ms\n", steps[i], median(times[i]));
  return 0;
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char** argv) {
  using namespace tarnwick;
  if (argc < 4) return 2;
  platform::prepareProcess();
  return ui::runProgram(argc, argv, [argv](Desktop& desktop, ConsoleFrameHost&) { return run(desktop, argv + 1); });
}
