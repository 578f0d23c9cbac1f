#include "base/TokenString.h"

#include "base/Text.h"

#include <cstddef>

namespace tarnwick {

TokenString::TokenString(char separator, char escape) : escape_(escape), separator_(separator) {}

TokenString::TokenString(const std::string& text, char separator, char escape) : TokenString(separator, escape) {
  // Not the virtual call: a constructor fills its own list only.
  TokenString::fromString(text);
}

void TokenString::fromString(const std::string& text) {
  text_ = text;
  count_ = 0;
  if (text_.empty()) return;
  count_ = 1;
  for (std::size_t i = 0; i < text_.size(); ++i) {
    if (text_[i] == escape_) {
      ++i;
      if (i < text_.size() && (text_[i] == separator_ || text_[i] == escape_)) continue;
      text_.clear();
      count_ = 0;
      throw InvalidDataE();
    }
    if (text_[i] == separator_) ++count_;
  }
}

int TokenString::find(const std::string& text) const {
  std::size_t at = 0;
  for (int i = 0; i < count_; ++i, ++at)
    if (equalsIgnoringCase(elementFrom(at), text)) return i;
  return -1;
}

void TokenString::add(int number) {
  add(std::to_string(number));
}

void TokenString::add(const std::string& text) {
  if (count_ != 0) text_ += separator_;
  for (const char c : text) {
    if (c == separator_ || c == escape_) text_ += escape_;
    text_ += c;
  }
  ++count_;
}

std::string TokenString::element(int index) const {
  if (index < 0 || index >= count_) throw OutOfBoundsE();
  std::size_t at = 0;
  for (int skipped = 0; skipped < index && at < text_.size(); ++at) {
    if (text_[at] == escape_)
      ++at;
    else if (text_[at] == separator_)
      ++skipped;
  }
  return elementFrom(at);
}

std::vector<std::string> TokenString::elements() const {
  std::vector<std::string> all;
  std::size_t at = 0;
  for (int i = 0; i < count_; ++i, ++at) all.push_back(elementFrom(at));
  return all;
}

std::string TokenString::elementFrom(std::size_t& at) const {
  std::string result;
  for (; at < text_.size() && text_[at] != separator_; ++at) {
    // An escape in the last place stays.
    if (text_[at] == escape_ && at + 1 < text_.size()) ++at;
    result += text_[at];
  }
  return result;
}

}  // namespace tarnwick
