#include "console/EscapeSequence.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

namespace tarnwick {
namespace {

constexpr char bell = '\a';
constexpr char cancel = '\x18';
constexpr char substitute = '\x1A';
/// More belongs to no sequence that sets colours.
constexpr std::size_t mostParameters = 256;

/// A program that has ended in the middle of such a text must not take all that comes for it.
constexpr std::size_t mostText = std::size_t{1024} * 1024;

bool between(char byte, char first, char last) {
  return byte >= first && byte <= last;
}

bool breaksOff(char byte) {
  return byte == cancel || byte == substitute;
}

/// A parameter with its parts: "38:5:208" has three.
using Parameter = std::vector<int>;

int numberOf(std::string_view digits) {
  constexpr int most = 99999;
  int number = 0;
  for (const char digit : digits) {
    if (!between(digit, '0', '9')) return -1;
    number = std::min(number * 10 + (digit - '0'), most);
  }
  return number;
}

template <typename Use>
void eachPiece(std::string_view text, char separator, Use use) {
  for (;;) {
    const std::size_t end = text.find(separator);
    use(text.substr(0, end));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + 1);
  }
}

std::vector<Parameter> parametersOf(std::string_view text) {
  std::vector<Parameter> all;
  eachPiece(text, ';', [&all](std::string_view piece) {
    Parameter parts;
    eachPiece(piece, ':', [&parts](std::string_view part) { parts.push_back(numberOf(part)); });
    all.push_back(std::move(parts));
  });
  return all;
}

std::optional<TextStyle::Code> colourOfParts(int red, int green, int blue) {
  const auto isPart = [](int value) { return value >= 0 && value <= 255; };
  if (!isPart(red) || !isPart(green) || !isPart(blue)) return std::nullopt;
  return TextStyle::trueColour | red << 16 | green << 8 | blue;
}

std::optional<TextStyle::Code> colourOfNumber(int number) {
  if (number < 0 || number > 255) return std::nullopt;
  return number;
}

/// Sets the parameters of one sequence one after the other.
class StyleSetter {
 public:
  StyleSetter(TextStyle style, std::vector<Parameter> parameters) : style_(style), all_(std::move(parameters)) {}

  TextStyle set() {
    for (at_ = 0; at_ < all_.size(); ++at_) setOne(all_[at_].front());
    return style_;
  }

 private:
  void setOne(int code) {
    constexpr int brightInk = 90;
    constexpr int brightGround = 100;
    if (code == 0) style_ = {};
    if (code == 1) style_.bold = true;
    if (code == 22) style_.bold = false;
    // Sub-parameter 0 is the one kind of line under the text that is none.
    if (code == 4) style_.underline = all_[at_].size() < 2 || all_[at_][1] != 0;
    if (code == 21) style_.underline = true;
    if (code == 24) style_.underline = false;
    if (code == 7) style_.inverse = true;
    if (code == 27) style_.inverse = false;
    if (code == 39) style_.ink = TextStyle::plain;
    if (code == 49) style_.ground = TextStyle::plain;
    if (code >= 30 && code <= 37) style_.ink = code - 30;
    if (code >= 40 && code <= 47) style_.ground = code - 40;
    if (code >= brightInk && code < brightInk + 8) style_.ink = code - brightInk + 8;
    if (code >= brightGround && code < brightGround + 8) style_.ground = code - brightGround + 8;
    if (code == 38) style_.ink = chosenColour().value_or(style_.ink);
    if (code == 48) style_.ground = chosenColour().value_or(style_.ground);
    if (code == 58) chosenColour();  // of the line below the text, which is the text's own here
  }

  /// The colour behind 38 or 48: "5;N" or "2;R;G;B", with colons in one parameter, or spread over the next ones.
  std::optional<TextStyle::Code> chosenColour() {
    const Parameter& parts = all_[at_];
    if (parts.size() > 1) {
      if (parts[1] == 5 && parts.size() > 2) return colourOfNumber(parts[2]);
      if (parts[1] != 2 || parts.size() < 5) return std::nullopt;
      const std::size_t last = parts.size() > 5 ? 5 : 4;  // six of them: one names a space of colours
      return colourOfParts(parts[last - 2], parts[last - 1], parts[last]);
    }
    const int way = next();
    if (way == 5) return colourOfNumber(next());
    if (way != 2) return std::nullopt;
    const int red = next();
    const int green = next();
    return colourOfParts(red, green, next());
  }

  int next() { return at_ + 1 < all_.size() ? all_[++at_].front() : -1; }

  TextStyle style_;
  const std::vector<Parameter> all_;
  std::size_t at_ = 0;
};

}  // namespace

TextStyle styledBy(TextStyle style, std::string_view parameters) {
  return StyleSetter(style, parametersOf(parameters)).set();
}

bool EscapeSequence::take(char byte) {
  if (state_ == State::Text || state_ == State::DataText) return takeInText(byte);
  if (state_ == State::TextEscape) {
    // Whatever follows but a backslash begins a sequence of its own.
    state_ = byte == '\\' ? State::None : State::Escape;
    if (state_ == State::None) return true;
  }
  if (breaksOff(byte)) {
    state_ = State::None;
    return true;
  }
  if (byte == escape) {
    state_ = State::Escape;
    return true;
  }
  // Other control characters do what they do anywhere, and the sequence goes on behind them.
  if (between(byte, '\0', '\x1F')) return false;
  return state_ == State::Control ? takeInControl(byte) : takeInEscape(byte);
}

bool EscapeSequence::takeInEscape(char byte) {
  const bool first = state_ == State::Escape;
  if (between(byte, ' ', '/')) {
    state_ = State::Intermediate;
    return true;
  }
  state_ = State::None;
  if (first && byte == '[') {
    state_ = State::Control;
    parameters_.clear();
  } else if (first && (byte == ']' || byte == 'P' || byte == 'X' || byte == '^' || byte == '_')) {
    state_ = byte == 'P' ? State::DataText : State::Text;
    textSize_ = 0;
  }
  // A letter beyond ASCII ends no sequence.
  return between(byte, '0', '~');
}

bool EscapeSequence::takeInControl(char byte) {
  if (between(byte, ' ', '?')) {
    if (parameters_.size() <= mostParameters) parameters_ += byte;
    return true;
  }
  state_ = State::None;
  if (!between(byte, '@', '~')) return false;
  const bool plain = std::all_of(parameters_.begin(), parameters_.end(), [](char c) { return between(c, '0', ';'); });
  if (byte == 'm' && plain && parameters_.size() <= mostParameters) style_ = styledBy(style_, parameters_);
  return true;
}

/// Pictures, which alone may have several lines, are data; titles and links end with their line at the latest.
bool EscapeSequence::takeInText(char byte) {
  const bool isLineEnd = byte == '\n' || byte == '\r';
  if (++textSize_ > mostText || (isLineEnd && state_ == State::Text)) {
    state_ = State::None;
    return false;
  }
  if (byte == bell || breaksOff(byte)) state_ = State::None;
  if (byte == escape) state_ = State::TextEscape;
  return true;
}

}  // namespace tarnwick
