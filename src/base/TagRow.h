#pragma once

#include <string>
#include <variant>

namespace tarnwick {

class StringableM;

/// What a row's variable is; the kinds are numbered as in `TagVariable`.
enum TagKind { TAG_STRING = 0, TAG_INT = 1, TAG_BOOL = 2, TAG_STRINGABLE = 3, TAG_END = 4 };

/// A variable that a row is tied to. None closes a table; a row with a tag but without a variable is a fault.
using TagVariable = std::variant<std::string*, int*, bool*, StringableM*, std::monostate>;

/// Ties a tag of the file to a variable.
struct TagRow {
  /// Empty for the row behind the last one.
  const char* tag;
  TagVariable variable;
  /// Default of a text; null for the empty text.
  const char* defaultText;
  /// Default of a number or switch.
  int defaultNumber;
  int page;     ///< the settings page that shows the row; 0 for none
  int owner;    ///< the dialog whose reset touches the row; 0 for none
  int control;  ///< the control on that page
  /// The row is written only where its value is not the default, and a file without it means the default: what came
  /// later leaves the files of those who do not use it as they are.
  bool isLater = false;

  TagKind kind() const { return static_cast<TagKind>(variable.index()); }
  bool isEnd() const { return *tag == '\0'; }
};

/// The row that closes a table.
inline constexpr TagRow endOfRows = {"", std::monostate(), nullptr, 0, 0, 0, 0};

/// One function made of several, for `std::visit`.
template <class... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

}  // namespace tarnwick
