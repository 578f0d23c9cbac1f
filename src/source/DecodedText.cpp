#include "source/DecodedText.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace tarnwick {

namespace {

std::optional<unsigned> hexadecimal(char c) {
  if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
  if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a' + 10);
  if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
  return std::nullopt;
}

bool isHighSurrogate(unsigned unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}

bool isLowSurrogate(unsigned unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

/// The bytes that half a character takes as long as the other half is missing.
constexpr std::size_t lengthOfHalf = 3;

}  // namespace

DecodedText::DecodedText(std::string source) : text_(std::move(source)) {
  const std::size_t first = text_.find('\\');
  std::size_t at = first;
  while (at != std::string::npos && text_[at + 1] != 'u') at = text_.find('\\', at + 1);
  if (at != std::string::npos) decode(first);
}

/// Decodes all; no backslash stands before `at`.
void DecodedText::decode(std::size_t at) {
  std::size_t behind = at;  // where the last backslash or escape ended
  bool takesNext = false;   // a backslash that stands there
  bool isBehindEscape = false;
  for (; at != std::string::npos; at = text_.find('\\', behind)) {
    if (at != behind) takesNext = isBehindEscape = false;
    // A backslash that another one has taken begins nothing, unless that one was written as an escape.
    const bool isFree = !takesNext || isBehindEscape;
    const Escape escape = isFree ? escapeAt(at) : Escape{'\\', 0};
    isBehindEscape = escape.end != 0;
    takesNext = escape.unit == '\\' && !takesNext;
    if (isBehindEscape) take(escape, at);
    behind = isBehindEscape ? escape.end : at + 1;
  }
  moveDown(done_, text_.size());
  text_.resize(length_);
}

DecodedText::Escape DecodedText::escapeAt(std::size_t at) const {
  constexpr Escape none = {'\\', 0};
  // A character 0 stands behind the text.
  if (text_[++at] != 'u') return none;
  while (text_[at] == 'u') ++at;
  unsigned unit = 0;
  for (const std::size_t end = at + 4; at != end; ++at) {
    const auto digit = hexadecimal(text_[at]);
    if (!digit) return none;
    unit = unit << 4U | *digit;
  }
  return {unit, at};
}

void DecodedText::take(const Escape& escape, std::size_t at) {
  const bool isBehindOther = !seams_.empty() && at == done_;
  moveDown(done_, at);
  if (isBehindOther && isHighSurrogate(lastUnit_) && isLowSurrogate(escape.unit)) {
    length_ -= lengthOfHalf;
    put(0x10000 + ((lastUnit_ - 0xD800) << 10U) + (escape.unit - 0xDC00));
  } else {
    put(escape.unit);
  }
  // Within a name, and there are texts that consist of escapes, nobody asks for places.
  if (isBehindOther && lastUnit_ >= 0x80 && escape.unit >= 0x80) seams_.pop_back();
  lastUnit_ = escape.unit;
  done_ = escape.end;
  seams_.push_back({length_, done_});
}

/// What is decoded never needs more room than the source.
void DecodedText::moveDown(std::size_t from, std::size_t to) {
  std::copy(text_.begin() + static_cast<std::ptrdiff_t>(from), text_.begin() + static_cast<std::ptrdiff_t>(to),
            text_.begin() + static_cast<std::ptrdiff_t>(length_));
  length_ += to - from;
}

void DecodedText::put(unsigned code) {
  const auto tail = [&](unsigned shift) { text_[length_++] = static_cast<char>(0x80U | ((code >> shift) & 0x3FU)); };
  const auto head = [&](unsigned bits) { text_[length_++] = static_cast<char>(bits); };
  if (code < 0x80) return head(code);
  if (code < 0x800) {
    head(0xC0U | (code >> 6U));
  } else {
    if (code < 0x10000) {
      head(0xE0U | (code >> 12U));
    } else {
      head(0xF0U | (code >> 18U));
      tail(12);
    }
    tail(6);
  }
  tail(0);
}

std::size_t DecodedText::sourceOffset(std::size_t offset) const {
  const auto next = std::upper_bound(seams_.begin(), seams_.end(), offset,
                                     [](std::size_t place, const Seam& seam) { return place < seam.decoded; });
  if (next == seams_.begin()) return offset;
  const Seam& seam = *std::prev(next);
  return seam.source + (offset - seam.decoded);
}

}  // namespace tarnwick
