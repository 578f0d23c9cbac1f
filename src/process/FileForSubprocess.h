#pragma once

#include "base/StringableM.h"
#include "base/Tarnwickfile.h"
#include "dialogbase/DialogWindow.h"

#include <string>
#include <vector>

namespace tarnwick {

/// A file as the user types it in a field: a name that may be followed by arguments for the tool. Also a setting.
class FileForSubprocess : public Tarnwickfile, public StringableM {
 public:
  /// There is no argument with this index.
  struct NoMoreArgsE {
    int index;
  };

  FileForSubprocess() = default;
  /// Trims the name and removes one pair of enclosing double quotes.
  explicit FileForSubprocess(const std::string& name);
  FileForSubprocess(const std::string& folder, const std::string& name);
  /// Mirrors the field `controlId` of `dialog` and reads it at once.
  FileForSubprocess(DialogWindow& dialog, int controlId);

  /// Ties the object to a field (or to none, with null) without reading it.
  void bind(DialogWindow* dialog, int controlId);

  /// Takes a new name; keeps `args`, remembers the old name.
  void setName(const std::string& text);
  void setName(const std::string& folder, const std::string& name);
  void reset(bool keepArgs);
  /// Takes name and arguments from the field. Does nothing without a dialog.
  void readFromControl();
  /// Puts the text into the field; null puts the name, quoted if it holds a blank.
  void writeToControl(const char* text);

  /// Throws NoMoreArgsE.
  std::string& arg(int index);
  std::vector<std::string>& args() { return args_; }
  const std::vector<std::string>& args() const { return args_; }

  bool isEmpty() const { return isEmpty_; }
  const std::string& previousName() const { return previousName_; }
  const std::string& lastFolder() const { return lastFolder_; }
  void setLastFolder(const std::string& folder) { lastFolder_ = folder; }

  /// Name and last folder as a TokenString.
  std::string toString() override;
  /// Resets before it parses; malformed text leaves the entry as far as it got.
  void fromString(const std::string& text) override;

 private:
  void take(const Filename& newName);

  int controlId_ = 0;
  std::string previousName_;
  std::string lastFolder_;
  DialogWindow* dialog_ = nullptr;
  bool isEmpty_ = true;
  std::vector<std::string> args_;
};

}  // namespace tarnwick
