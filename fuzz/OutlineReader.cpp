// The reader of today's Java: whatever the text, it comes to an end in linear time, and what it finds lies in the text
// as types lie in one another. A type that has ended does not change by what follows. In a sound source it finds what
// was put in. The first two bytes choose what is tried, and where.
#include "source/OutlineReader.h"

#include "JavaText.h"
#include "Property.h"
#include "source/TypePieces.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick::fuzz {
namespace {

bool isSame(const OutlineType& left, const OutlineType& right) {
  return left.kind == right.kind && left.name == right.name && left.isPublic == right.isPublic &&
         left.isSealed == right.isSealed && left.namesPermitted == right.namesPermitted && left.main == right.main &&
         left.extendsList == right.extendsList && left.implementsList == right.implementsList &&
         left.lead == right.lead && left.begin == right.begin && left.end == right.end && left.parent == right.parent;
}

/// Each type lies in the text, and in the one that it is a member of, behind the one before it there.
void requireOrder(const JavaOutline& outline, const std::string& source) {
  for (std::size_t i = 0; i < outline.types.size(); ++i) {
    const OutlineType& type = outline.types[i];
    require(type.lead <= type.begin && type.begin <= type.end && type.end <= source.size(), "a type lies in the text");
    const bool isFileItself = outline.isCompact && i == 0;
    require(!isFileItself || (type.begin == 0 && type.end == source.size()), "a compact source is one class");
    require(isFileItself || type.begin < type.end, "a type is not empty");
    if (type.parent) {
      require(*type.parent < i, "a type comes before its members");
      const OutlineType& outer = outline.types[*type.parent];
      require(outer.begin <= type.begin && type.end <= outer.end, "a member lies in its type");
    }
    if (i == 0) continue;
    const OutlineType& before = outline.types[i - 1];
    require(before.begin <= type.begin, "types come in the order of the source");
    require(type.lead >= before.end || type.end <= before.end, "types lie in one another, or side by side");
  }
}

/// What has ended before the cut is as it was.
void requireSameWhenCut(const JavaOutline& outline, const std::string& source, std::size_t length) {
  const std::string cut = source.substr(0, length);
  const JavaOutline part = outlineOf(cut, "File");
  requireOrder(part, cut);
  // There all types are members.
  if (part.isCompact || outline.isCompact) return;
  // A Ctrl-Z may end the text before its last byte; what it cuts off has not ended there.
  std::size_t textEnd = 0;
  for (const OutlineType& type : outline.types) textEnd = std::max(textEnd, type.end);
  for (std::size_t i = 0; i < outline.types.size() && outline.types[i].begin < length; ++i) {
    if (outline.types[i].end > length || (outline.isCutOff && outline.types[i].end == textEnd)) continue;
    require(i < part.types.size() && isSame(part.types[i], outline.types[i]), "a type that has ended stays as it is");
  }
}

bool isLineEnd(char c) {
  return c == '\n' || c == '\r';
}

std::string withoutRest(std::string text) {
  std::erase_if(text, [](char c) { return !isLineEnd(c); });
  return text;
}

/// A piece has all line ends of the source, and of its types one.
void requirePieces(const JavaOutline& outline, const std::string& source) {
  if (!wantsSplitting(outline)) return;
  const auto pieces = piecesOf(source, outline);
  for (const TypePiece& piece : pieces)
    requireSame(withoutRest(piece.text), withoutRest(source), "a piece has the lines of the source");
  // A backslash that has gone may have kept another one from beginning an escape.
  if (source.find('\\') != std::string::npos) return;
  auto whole = outline.types.begin();
  for (const TypePiece& piece : pieces) {
    const auto types = outlineOf(piece.text, "File").types;
    require(!types.empty() && !types.front().parent, "a piece has a type");
    for (const OutlineType& type : types) {
      requireSame(type.name, whole->name, "a piece has a type of the source, with its members");
      require(type.kind == whole->kind && type.isPublic == whole->isPublic && type.main == whole->main &&
                  type.extendsList == whole->extendsList && type.end - type.begin == whole->end - whole->begin,
              "a type is the same in its piece");
      ++whole;
    }
    require(whole == outline.types.end() || !whole->parent, "a piece has all members of its type");
  }
  require(whole == outline.types.end(), "each type has a piece");
}

/// Many times the same text must not take many times as long for each.
void repeat(const std::string& source) {
  constexpr std::size_t large = std::size_t{256} * 1024;
  std::string text;
  while (text.size() < large) text += source;
  requireOrder(outlineOf(text, "File"), text);
}

void tryGenerated(std::string_view choices) {
  const JavaText java(choices);
  const JavaOutline outline = outlineOf(java.source(), "File");
  requireSame(outline.package, java.package(), "the package is found");
  require(!outline.isCompact, "nothing stands outside of the types");
  std::size_t place = 0;
  for (const JavaText::Type& expected : java.types()) {
    while (place < outline.types.size() && outline.types[place].parent) ++place;
    require(place < outline.types.size(), "each type is found");
    const OutlineType& type = outline.types[place++];
    requireSame(type.name, expected.name, "a type has its name");
    require((type.kind == TypeKind::Class) == expected.isClass, "a type is of its kind");
    require(type.isPublic == expected.isPublic, "a type is public or not");
    require(type.extendsList == expected.extendsList, "a type extends what it extends");
    require(type.implementsList == expected.implementsList, "a type implements what it implements");
    require(!expected.isClass || (type.main == MainMethod::Classic) == (expected.mainCount > 0),
            "main methods are found");
  }
  while (place < outline.types.size() && outline.types[place].parent) ++place;
  require(place == outline.types.size(), "no other type is found");
}

}  // namespace
}  // namespace tarnwick::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick::fuzz;
  if (size < 3) return 0;
  const std::string source = textOf(data + 2, size - 2);
  const tarnwick::JavaOutline outline = tarnwick::outlineOf(source, "File");
  requireOrder(outline, source);
  requirePieces(outline, source);
  requireSameWhenCut(outline, source, (data[0] * 256U + data[1]) % (source.size() + 1));
  if (data[0] % 128 == 0) repeat(source);
  if (data[0] % 4 == 1) tryGenerated(source);
  return 0;
}
