#pragma once

#include "base/StringableM.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tarnwick {

/// A list of strings kept in one string.
class TokenString : public StringableM {
 public:
  /// The index was outside the list.
  struct OutOfBoundsE {};

  /// An empty list.
  explicit TokenString(char separator = ';', char escape = ']');
  /// Reads the text as `fromString` does. Throws InvalidDataE.
  TokenString(const std::string& text, char separator, char escape);

  /// The elements with separators between them and an escape before each separator or escape that belongs to one.
  std::string toString() override { return text_; }
  /// Malformed text leaves an empty list and throws InvalidDataE.
  void fromString(const std::string& text) override;
  /// Index of the first element that equals the text without regard to case; -1 for none.
  virtual int find(const std::string& text) const;
  /// Adds the number in decimal.
  virtual void add(int number);
  /// Adds an element. Adding the empty string to an empty list is only counted until the text is read again.
  virtual void add(const std::string& text);
  virtual void operator+=(int number) { add(number); }
  virtual void operator+=(const std::string& text) { add(text); }
  /// The element with this index, counted from 0, without its escapes. Throws OutOfBoundsE.
  virtual std::string element(int index) const;
  /// All elements in their order, taken from the text in one pass.
  std::vector<std::string> elements() const;

  /// The number of elements.
  int count() const { return count_; }

 private:
  /// The element that begins at a place of the text; `at` then is where its separator stands, or the text's end.
  std::string elementFrom(std::size_t& at) const;

  char escape_;
  char separator_;
  std::string text_;
  int count_ = 0;
};

}  // namespace tarnwick
