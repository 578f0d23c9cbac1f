#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick::fuzz {

/// The rules of the scanner of Java sources once more, over a text in memory, as plainly as they can be written.
class PlainReader {
 public:
  enum class Outcome { Delivered, EndBrace, TooManyBraces, BadConstant };

  struct Character {
    Outcome outcome = Outcome::Delivered;
    char c = 0;
    bool inside = false;  ///< in a string or character constant
  };

  struct Statement {
    Outcome outcome = Outcome::Delivered;
    std::string code;
    std::string raw;
  };

  explicit PlainReader(std::string text) : text_(std::move(text)) {}

  bool atEnd() const { return ended_; }
  int line() const { return line_; }
  Character next();
  Statement readStatement();
  void pushLevel();

 private:
  enum class Place { Code, Slash, Block, BlockStar, AfterBlock, Line };
  enum class Quote { None, String, StringEscape, Constant, ConstantEscape, Unicode, ConstantEnd };

  int read();
  Character fromText();
  Character deliver(char c, bool inside);
  /// A zero character, which may be the end.
  Character zero(bool inside) const;
  /// Moves on through quotes; false for a bad character constant.
  bool quote(char c);

  std::string text_;
  std::size_t at_ = 0;
  bool ended_ = false;
  int line_ = 1;
  Place place_ = Place::Code;
  Quote quote_ = Quote::None;
  char held_ = 0;  ///< to be delivered again
  bool closing_ = false;
  int depth_ = 0;
  std::vector<int> levels_{0};
};

}  // namespace tarnwick::fuzz
