#pragma once

#include "base/Tarnwickexception.h"
#include "platform/Shortcuts.h"

#include <functional>
#include <memory>
#include <string>

namespace tarnwick {

struct ProgramInfo;

/// Says whether a shortcut that is there may be replaced.
using OverwriteQuestion = std::function<bool(const std::string& question)>;

/// What became of a shortcut.
enum class ShortcutResult {
  Kept,      ///< there was one, which was not to be replaced
  Made,      ///< it is there as it was asked for
  Truncated  ///< it is there, but the system has not kept all of its arguments
};

/// What is said of arguments that the system has not kept whole.
std::string truncatedArguments();

/// Makes the files of one shortcut. Asks by the question alone, and shows nothing.
class ShortcutMaker {
 public:
  /// Throws Tarnwickexception.
  ShortcutMaker(const platform::ShortcutShells& shells, const platform::Shortcut& shortcut);

  /// The three that follow throw Tarnwickexception.
  ShortcutResult makeOnDesktop(const OverwriteQuestion& mayOverwrite);
  /// `folder` as the user gave it: a name alone is a folder of the start menu, which is made; nothing stands for the
  /// start menu itself.
  ShortcutResult makeInStartMenu(const std::string& folder, const OverwriteQuestion& mayOverwrite);
  /// Quotes around the folder and the shortcut's name don't count.
  ShortcutResult makeIn(const std::string& folder, const OverwriteQuestion& mayOverwrite);

 private:
  [[noreturn]] void fail(const std::string& file, const platform::ShortcutFailure& failure) const;

  platform::Shortcut shortcut_;
  std::unique_ptr<platform::ShortcutShell> shell_;
};

/// The start menu's folder; empty if it is not known.
std::string startMenuFolder(const platform::ShortcutShells& shells);

/// A shortcut to the program itself.
platform::Shortcut shortcutToProgram(const ProgramInfo& program);

}  // namespace tarnwick
