// The windows that the system itself gives to programs of the command line, beside those of ours.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick::platform {

/// A window of any program, as the system numbers it; 0 for none.
using WindowNumber = std::uintptr_t;

/// What can be done with other programs' windows: finding the console window of a child among them, putting it away,
/// closing it.
class ConsoleWindows {
 public:
  /// Those of the system that this runs on.
  static ConsoleWindows& ofSystem();

  virtual ~ConsoleWindows() = default;

  /// False where programs have no console windows: then nothing else may be asked.
  virtual bool exist() const = 0;

  /// A window of exactly this title, but for the case of its letters; 0 if there is none, or no title.
  virtual WindowNumber titled(const std::string& title) const = 0;
  /// All windows that lie below this one, the uppermost first. None if this one has gone.
  virtual std::vector<WindowNumber> below(WindowNumber window) const = 0;
  /// At most 255 characters of it.
  virtual std::string title(WindowNumber window) const = 0;

  virtual bool lives(WindowNumber window) const = 0;
  virtual bool isIconic(WindowNumber window) const = 0;
  /// Tells the window to minimise itself, and does not wait for that. False if it can't be told.
  virtual bool askToMinimise(WindowNumber window) = 0;
  /// Brings an iconic window back to its place.
  virtual void restore(WindowNumber window) = 0;
  /// Tells the window to close, and does not wait for that. A console window then ends the programs in it, which get
  /// time for their last steps. False if it can't be told.
  virtual bool askToClose(WindowNumber window) = 0;
};

}  // namespace tarnwick::platform
