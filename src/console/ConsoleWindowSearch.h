#pragma once

#include "console/ConsoleProgram.h"
#include "console/ConsoleSurface.h"
#include "platform/ConsoleWindows.h"

#include <functional>
#include <string>

namespace tarnwick {

class Desktop;

/// Looks for the console window that the system gives to the child beside ours, minimises it, and closes it in the end.
/// Where there are no such windows it does nothing. User-interface thread only.
class ConsoleWindowSearch {
 public:
  static constexpr int period = 500;    ///< milliseconds between two tries
  static constexpr int mostTries = 41;  ///< after the first: about twenty seconds

  static constexpr int STATE_NOT_BEGUN = -1;
  static constexpr int STATE_SEARCHING = 0;  ///< above: how many windows have been taken

  /// `desktop` and the program's windows outlive the object. `childState` gives 1 while the child runs.
  ConsoleWindowSearch(Desktop& desktop, const ConsoleProgram& program, std::function<int()> childState);

  /// Begins the search, once the child runs. `surface` stays until `close` or `stop`.
  void begin(ConsoleSurface& surface);
  /// Tells the child's console window, if it was found, to close; that ends the programs in it. False if there is none.
  bool close();
  void stop();

  int consoleSearchState() const { return consoleSearchState_; }
  int consoleSearchTries() const { return consoleSearchTries_; }
  platform::WindowNumber consoleWindow() const { return consoleWindow_; }

 private:
  void onTimer();
  void search();
  void walk();
  bool bearsName(const std::string& title) const;
  /// Minimises the window and takes it for the child's. True once the search is done.
  bool tryWindow(platform::WindowNumber window);

  Desktop& desktop_;
  platform::ConsoleWindows& windows_;
  const ConsoleTiming timing_;
  const std::function<int()> childState_;
  const std::string exeFile_;
  const std::string fileName_;  ///< of the executable, without folder and extension
  ConsoleSurface* surface_ = nullptr;
  int consoleSearchState_ = STATE_NOT_BEGUN;
  int consoleSearchTries_ = 0;
  int consoleSearchTimer_ = 0;
  platform::WindowNumber consoleWindow_ = 0;
};

}  // namespace tarnwick
