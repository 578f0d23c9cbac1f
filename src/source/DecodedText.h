#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarnwick {

/// A Java source in which unicode escapes have become the characters that they stand for, in UTF-8. Java does so before
/// anything else: an escape may open a block or end a comment.
class DecodedText {
 public:
  /// Decodes in the memory that the text has already.
  explicit DecodedText(std::string source);
  DecodedText(const DecodedText&) = delete;
  DecodedText& operator=(const DecodedText&) = delete;

  const std::string& text() const { return text_; }

  /// Where in the source that place of `text` was. Places within a name or a string that is written in escapes count
  /// for the next place behind them.
  std::size_t sourceOffset(std::size_t offset) const;

 private:
  /// From these places on both texts go on alike.
  struct Seam {
    std::size_t decoded;
    std::size_t source;
  };
  struct Escape {
    unsigned unit;  ///< of UTF-16
    std::size_t end;
  };

  void decode(std::size_t at);
  /// What stands at a backslash; an end of 0 if that is no escape.
  Escape escapeAt(std::size_t at) const;
  void take(const Escape& escape, std::size_t at);
  void moveDown(std::size_t from, std::size_t to);
  void put(unsigned code);

  std::string text_;
  std::size_t length_ = 0;  ///< of what is decoded
  std::size_t done_ = 0;    ///< where in the source that ends
  std::vector<Seam> seams_;
  unsigned lastUnit_ = 0;
};

}  // namespace tarnwick
