#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

class DialogHandler;
struct DialogLayout;

/// The alerts that the desktop knows.
enum class AlertSound { Exclamation, Asterisk, Beep };

/// What a file dialog is asked for.
struct FileRequest {
  /// Pairs of a description and patterns, as in "Java source files|*.JAVA||". Patterns ignore case.
  std::string filter;
  std::string startFolder;
  std::string name;               ///< preset file name
  std::string extension;          ///< added where the user gives none, for example ".cfg"; for saving
  bool mustExist = false;         ///< file and folder; for opening
  bool confirmOverwrite = false;  ///< for saving
};

/// Work that the program waits for, and what its user may see of it.
struct BusyWork {
  std::function<void()> work;
  /// Called if the program is told to end meanwhile; makes `work` end soon.
  std::function<void()> giveUp = {};
  /// The same, for a user who would not wait any longer. Where it is there, work that lasts is shown.
  std::function<void()> stop = {};
  std::string tool = {};  ///< what is shown as being at work,
  std::string on = {};    ///< and on what
};

/// Everything that shows, asks or sounds. The window toolkit implements it once, tests implement it with a script.
/// All operations but `post` belong to the user-interface thread.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// A message box with OK about what has failed.
  virtual void message(const std::string& text) = 0;
  /// The same where nothing has failed: it tells what is to be done first, or what has been done.
  virtual void hint(const std::string& text) = 0;
  virtual bool askOkCancel(const std::string& text) = 0;
  virtual bool askYesNo(const std::string& text) = 0;

  // The four that follow refuse names with line ends: such a name is told, and does not come back.

  /// One existing file; nothing after Cancel.
  std::optional<std::string> openFile(const FileRequest& request);
  /// One or more existing files, in the dialog's order; none after Cancel.
  std::vector<std::string> openFiles(const FileRequest& request);
  std::optional<std::string> saveFile(const FileRequest& request);
  /// The folder browser; nothing after Cancel. It begins in this folder, if it is given one.
  std::optional<std::string> browseFolder(const std::string& root = "");

  virtual void alert(AlertSound sound) = 0;
  /// Shows the wait cursor, or ends what the last such call began.
  virtual void showWaitCursor(bool on) = 0;

  /// True while the user holds the Control key.
  virtual bool controlKeyHeld() = 0;

  virtual std::optional<std::string> clipboardText() = 0;
  /// False if the clipboard would not take it.
  virtual bool setClipboardText(const std::string& text) = 0;

  /// Runs a modal dialog and gives the result that it was closed with.
  virtual int runDialog(const DialogLayout& layout, DialogHandler& handler) = 0;
  /// Runs the program's main dialog until it is closed. `initialise` may open modal dialogs before it shows.
  virtual void runMainDialog(const DialogLayout& layout, DialogHandler& handler) = 0;

  /// Runs `work` on another thread and returns when it has ended. Meanwhile windows repaint, nothing takes input but
  /// what shows the work, and the wait cursor shows. An exception of `work` is thrown on. If the program is told to end
  /// meanwhile, an exception that only the edge knows takes the place of returning.
  /// Throws NoThreadE, with nothing done, if there is no thread to be had.
  virtual void whileBusy(const BusyWork& busy) = 0;
  /// The work that follows is a step of one command, which has so many, and is shown as that. 0 of 0: it has ended.
  /// False if the user has stopped the command: its steps so far may have ended before they could be stopped.
  virtual bool showStep(std::size_t step, std::size_t steps) = 0;

  /// True once the user has chosen to leave the program while a tool ran.
  virtual bool isLeft() const = 0;

  /// Calls `tick` every so many milliseconds until the timer is stopped. Gives the timer's number, above 0; 0 if the
  /// system has no timer left.
  virtual int startTimer(int milliseconds, std::function<void()> tick) = 0;
  virtual void stopTimer(int timer) = 0;

  /// Runs `task` on the user-interface thread soon. May be called by any thread; tasks run in order.
  virtual void post(std::function<void()> task) = 0;

 protected:
  /// The dialogs behind the operations of like names above.
  virtual std::optional<std::string> pickFile(const FileRequest& request) = 0;
  virtual std::vector<std::string> pickFiles(const FileRequest& request) = 0;
  virtual std::optional<std::string> pickFileToSave(const FileRequest& request) = 0;
  virtual std::optional<std::string> pickFolder(const std::string& root) = 0;

 private:
  /// False after a message about a name that must not be used.
  bool takesName(const std::string& path);
  std::optional<std::string> checked(std::optional<std::string> path);
};

}  // namespace tarnwick
