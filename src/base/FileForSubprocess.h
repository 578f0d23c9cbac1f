#pragma once

#include "base/Filename.h"
#include "base/StringableM.h"

#include <string>
#include <vector>

namespace tarnwick {

/// A file as the user types it: a name that may be followed by arguments for the tool. A value, and a setting; whoever
/// wants to read the file opens one of that name.
class FileForSubprocess : public StringableM {
 public:
  /// There is no argument with this index.
  struct NoMoreArgsE {
    int index;
  };

  FileForSubprocess() = default;
  /// Trims the name and removes one pair of enclosing double quotes.
  explicit FileForSubprocess(const std::string& name);
  FileForSubprocess(const std::string& folder, const std::string& name);

  /// Takes a new name; keeps `args`, remembers the old name.
  void setName(const std::string& text);
  void setName(const std::string& folder, const std::string& name);
  void reset(bool keepArgs);
  /// Takes name and arguments from what stands in a field, and remembers the old name.
  void takeTyped(const std::string& typed);

  /// Throws NoMoreArgsE.
  std::string& arg(int index);
  std::vector<std::string>& args() { return args_; }
  const std::vector<std::string>& args() const { return args_; }

  const Filename& name() const { return name_; }
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

  Filename name_;
  std::string previousName_;
  std::string lastFolder_;
  bool isEmpty_ = true;
  std::vector<std::string> args_;
};

}  // namespace tarnwick
