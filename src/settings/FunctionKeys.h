#pragma once

#include "base/TokenString.h"

#include <string>
#include <vector>

namespace tarnwick {

/// The 64 texts of the function keys: eight groups by modifiers (Shift 1, Ctrl 2, Alt 4), in each the keys F5 to F12.
/// The two characters backslash and n in a text stand for Return.
class FunctionKeys : public StringableM {
 public:
  /// The built-in texts, in the form of the file.
  static const char defaultText[];

  /// Holds the built-in texts.
  FunctionKeys();

  /// The groups with "!" between them, the texts of a group with ";".
  std::string toString() override { return groups_.toString(); }
  /// Malformed text, or not exactly eight groups, puts the built-in default back; nothing is thrown.
  void fromString(const std::string& text) override;

  /// The text of a key; empty for one that is not there.
  std::string key(int group, int index) const;
  /// Takes the texts of F5 to F12 for a group.
  void setGroup(int group, const std::vector<std::string>& keys);

 private:
  TokenString groups_;
};

}  // namespace tarnwick
