// A list of strings kept in one string: arbitrary text is parsed as by a plain reference, elements come back as they
// were added. The first byte chooses separator and escape, the rest is the text.
#include "base/TokenString.h"

#include "Property.h"
#include "base/Text.h"

#include <optional>
#include <vector>

namespace tarnwick::fuzz {
namespace {

using Elements = std::vector<std::string>;

struct Marks {
  char separator;
  char escape;
};

/// The elements of an encoded text; nothing if it is malformed.
std::optional<Elements> parsed(const std::string& text, Marks marks) {
  if (text.empty()) return Elements();
  Elements elements(1);
  bool escaped = false;
  for (const char c : text) {
    if (escaped) {
      if (c != marks.separator && c != marks.escape) return std::nullopt;
      elements.back() += c;
      escaped = false;
    } else if (c == marks.escape) {
      escaped = true;
    } else if (c == marks.separator) {
      elements.emplace_back();
    } else {
      elements.back() += c;
    }
  }
  if (escaped) return std::nullopt;
  return elements;
}

bool throwsOutOfBounds(const TokenString& list, int index) {
  try {
    list.element(index);
    return false;
  } catch (const TokenString::OutOfBoundsE&) {
    return true;
  }
}

int firstEqual(const Elements& elements, const std::string& text) {
  for (std::size_t i = 0; i < elements.size(); ++i)
    if (upperCase(elements[i]) == upperCase(text)) return static_cast<int>(i);
  return -1;
}

void requireElements(const TokenString& list, const Elements& elements) {
  const auto count = static_cast<int>(elements.size());
  require(list.count() == count, "the count is that of the elements");
  require(throwsOutOfBounds(list, -1) && throwsOutOfBounds(list, count), "an index outside the list is refused");
  for (int i = 0; i < count; ++i) {
    const std::string& expected = elements[static_cast<std::size_t>(i)];
    requireSame(list.element(i), expected, "each element stands at its index");
    require(list.find(expected) == firstEqual(elements, expected), "find gives the first equal element");
  }
}

TokenString listOf(const Elements& elements, Marks marks) {
  TokenString list(marks.separator, marks.escape);
  for (const auto& element : elements) list.add(element);
  return list;
}

/// The text read as an encoded list, into an object that held something before.
void readText(const std::string& text, Marks marks) {
  const auto expected = parsed(text, marks);
  TokenString list = listOf({"before", ""}, marks);
  bool refused = false;
  try {
    list.fromString(text);
  } catch (const StringableM::InvalidDataE&) {
    refused = true;
  }
  require(refused == !expected, "malformed text, and no other, is refused");
  requireElements(list, expected.value_or(Elements()));
  requireSame(list.toString(), expected ? text : "", "the text is kept; refused text leaves an empty list");
  if (expected) requireSame(listOf(*expected, marks).toString(), text, "the same elements give the same text");
}

/// The text cut at zero bytes into elements.
void addElements(const std::string& text, Marks marks) {
  Elements elements(1);
  for (const char c : text) {
    if (c == '\0')
      elements.emplace_back();
    else
      elements.back() += c;
  }
  TokenString list = listOf(elements, marks);
  requireElements(list, elements);
  const bool onlyEmpty = elements.size() == 1 && elements[0].empty();
  TokenString again(list.toString(), marks.separator, marks.escape);
  requireElements(again, onlyEmpty ? Elements() : elements);
}

/// A list within a list, as the function keys have it.
void nest(const std::string& text) {
  TokenString inner(';', ']');
  inner.add(text);
  inner.add(static_cast<int>(text.size()));
  TokenString outer('!', ']');
  outer += inner.toString();
  outer += -1;
  const TokenString outerAgain(outer.toString(), '!', ']');
  const TokenString innerAgain(outerAgain.element(0), ';', ']');
  requireElements(innerAgain, {text, std::to_string(text.size())});
  requireSame(outerAgain.element(1), "-1", "a number stands in decimal");
}

}  // namespace
}  // namespace tarnwick::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick::fuzz;
  if (size == 0) return 0;
  constexpr Marks choices[] = {{';', ']'}, {'!', ']'}, {' ', '\\'}, {'\0', '\xff'}};
  const Marks marks = choices[data[0] % 4];
  const std::string text = textOf(data + 1, size - 1);
  readText(text, marks);
  addElements(text, marks);
  nest(text);
  return 0;
}
