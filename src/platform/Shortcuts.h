// Shortcuts: small files that start a program from the desktop, from the start menu or from any folder.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace tarnwick::platform {

/// What a shortcut says.
struct Shortcut {
  std::string name;           ///< without the extension of its file
  std::string target;         ///< the program that it starts; may stand in double quotes
  std::string arguments;      ///< the text behind the program on its command line
  bool oneArgument = false;   ///< where programs get their arguments one by one, the whole text is one of them
  std::string description;    ///< may be empty
  std::string workingFolder;  ///< empty for none
  std::string picture;        ///< the program whose picture it bears
};

/// The system could not do it; in its words, of which it may have none.
struct ShortcutFailure {
  std::string reason;
};

/// What the system knows of shortcuts. Stands for the making of one or a few, on the user-interface thread.
class ShortcutShell {
 public:
  virtual ~ShortcutShell() = default;

  /// The extension of a shortcut's file, with its dot.
  virtual std::string extension() const = 0;
  /// The user's desktop. Throws ShortcutFailure, whose reason is then a whole message.
  virtual std::string desktopFolder() = 0;
  /// The user's start menu. Throws in the same way.
  virtual std::string startMenuFolder() = 0;
  /// Writes the shortcut whole, or leaves what was there; a link that bears the file's name is replaced itself. Then
  /// reads it back and sees whether its program is found. Gives the arguments as the system has kept them. Throws
  /// ShortcutFailure.
  virtual std::string write(const Shortcut& shortcut, const std::string& file) = 0;
};

/// The system's own. Throws ShortcutFailure if there is none to be had.
std::unique_ptr<ShortcutShell> openShortcutShell();

/// How one is opened.
using ShortcutShells = std::function<std::unique_ptr<ShortcutShell>()>;

}  // namespace tarnwick::platform
