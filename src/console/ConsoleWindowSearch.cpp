#include "console/ConsoleWindowSearch.h"

#include "base/Filename.h"
#include "dialogbase/Desktop.h"

#include <thread>
#include <utility>

namespace tarnwick {

ConsoleWindowSearch::ConsoleWindowSearch(Desktop& desktop, const ConsoleProgram& program,
                                         std::function<int()> childState)
    : desktop_(desktop),
      windows_(*program.windows),
      timing_(program.timing),
      childState_(std::move(childState)),
      exeFile_(program.exeFile),
      fileName_(Filename(program.exeFile).baseName()) {}

void ConsoleWindowSearch::begin(ConsoleSurface& surface) {
  if (!windows_.exist() || consoleSearchState_ != STATE_NOT_BEGUN || childState_() != 1) return;
  surface_ = &surface;
  search();
}

void ConsoleWindowSearch::stop() {
  if (consoleSearchTimer_ > 0) desktop_.stopTimer(consoleSearchTimer_);
  consoleSearchTimer_ = 0;
}

void ConsoleWindowSearch::onTimer() {
  if (consoleSearchState_ < 1 && consoleSearchTries_ < mostTries) {
    ++consoleSearchTries_;
    search();
  } else {
    stop();
  }
}

void ConsoleWindowSearch::search() {
  if (consoleSearchState_ < STATE_SEARCHING) {
    consoleSearchTimer_ = desktop_.startTimer(period, [this] { onTimer(); });
    if (consoleSearchTimer_ > 0) consoleSearchState_ = STATE_SEARCHING;
  }
  if (childState_() != 1) return;
  if (tryWindow(windows_.titled(exeFile_)) || tryWindow(windows_.titled(fileName_))) return;
  walk();
}

void ConsoleWindowSearch::walk() {
  // From the top, so that the walk comes to all windows but ours.
  const platform::WindowNumber frame = surface_->bringToFront();
  for (const platform::WindowNumber window : windows_.below(frame)) {
    if (bearsName(windows_.title(window)) && tryWindow(window)) return;
  }
}

bool ConsoleWindowSearch::bearsName(const std::string& title) const {
  // Deliberate: case counts, so that the path's mixed case fits this console alone.
  const auto holds = [&title](const std::string& name) { return !name.empty() && title.find(name) != title.npos; };
  return holds(exeFile_) || holds(fileName_);
}

bool ConsoleWindowSearch::tryWindow(platform::WindowNumber window) {
  // One that is an icon already belongs to another console.
  if (window != 0 && !windows_.isIconic(window) && windows_.askToMinimise(window)) {
    ++consoleSearchState_;
    consoleWindow_ = window;
  }
  return consoleSearchState_ > STATE_SEARCHING;
}

bool ConsoleWindowSearch::close() {
  if (childState_() != 1 || consoleWindow_ == 0 || !windows_.lives(consoleWindow_)) return false;
  for (int tries = 0; tries < timing_.restoreTries && windows_.isIconic(consoleWindow_); ++tries) {
    windows_.restore(consoleWindow_);
    std::this_thread::sleep_for(timing_.restoreWait);
  }
  if (!windows_.askToClose(consoleWindow_)) {
    desktop_.hint("Please close also the console window associated with JDK.");
  }
  return true;
}

}  // namespace tarnwick
