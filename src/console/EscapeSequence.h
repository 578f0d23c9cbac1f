#pragma once

#include "console/TextStyle.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick {

/// Follows a program's control sequences byte by byte, wherever blocks cut them, and keeps in mind what those that set
/// colours say. All others do nothing.
class EscapeSequence {
 public:
  static constexpr char escape = '\x1B';

  /// An escape has come.
  void begin() { state_ = State::Escape; }
  bool underWay() const { return state_ != State::None; }
  /// The next byte, while a sequence is under way. False if the byte is none of the sequence's.
  bool take(char byte);

  const TextStyle& style() const { return style_; }

 private:
  enum class State { None, Escape, Intermediate, Control, Text, DataText, TextEscape };

  bool takeInEscape(char byte);
  bool takeInControl(char byte);
  bool takeInText(char byte);

  State state_ = State::None;
  std::string parameters_;
  std::size_t textSize_ = 0;
  TextStyle style_;
};

/// The style after the sequence that sets colours with these parameters, such as "1;38;5;208".
TextStyle styledBy(TextStyle style, std::string_view parameters);

}  // namespace tarnwick
