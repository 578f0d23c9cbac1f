#include "source/TypePieces.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string_view>

namespace tarnwick {

namespace {

bool isTail(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

/// The bytes of the UTF-8 character that begins there; 0 if none does.
std::size_t lengthOfCharacter(std::string_view text) {
  const auto head = static_cast<unsigned char>(text.front());
  const std::size_t length = head < 0x80   ? 1
                             : head < 0xC2 ? 0
                             : head < 0xE0 ? 2
                             : head < 0xF0 ? 3
                             : head < 0xF5 ? 4
                                           : 0;
  if (length > text.size()) return 0;
  const std::string_view tail = text.substr(std::min<std::size_t>(1, length), length == 0 ? 0 : length - 1);
  return std::all_of(tail.begin(), tail.end(), isTail) ? length : 0;
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = lengthOfCharacter(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

/// A blank for each character; white space stays.
std::string blanked(std::string_view text, bool isUtf8) {
  std::string blanks;
  blanks.reserve(text.size());
  for (const char c : text) {
    const bool isWhite = c == '\n' || c == '\r' || c == '\t' || c == '\f';
    // A character of four bytes counts for two in Java.
    const bool isCounted = !isUtf8 || !isTail(c);
    if (isCounted) blanks += isWhite ? c : ' ';
    if (isUtf8 && static_cast<unsigned char>(c) >= 0xF0) blanks += ' ';
  }
  return blanks;
}

std::vector<const OutlineType*> typesAtTop(const JavaOutline& outline) {
  std::vector<const OutlineType*> types;
  for (const OutlineType& type : outline.types)
    if (!type.parent) types.push_back(&type);
  return types;
}

}  // namespace

bool wantsSplitting(const JavaOutline& outline) {
  std::set<std::string_view> names;
  int publicTypes = 0;
  if (outline.isCutOff) return false;
  // At the top of a compact source is one class.
  for (const OutlineType* type : typesAtTop(outline)) {
    if (type->isPublic) ++publicTypes;
    if (!names.insert(type->name).second) return false;
  }
  return publicTypes > 1 && std::none_of(outline.types.begin(), outline.types.end(),
                                         [](const OutlineType& type) { return type.isSealed && !type.namesPermitted; });
}

std::vector<TypePiece> piecesOf(const std::string& source, const JavaOutline& outline) {
  const auto types = typesAtTop(outline);
  const bool isInUtf8 = isUtf8(source);
  std::vector<TypePiece> pieces;
  for (const OutlineType* kept : types) {
    TypePiece piece{kept->name + ".java", {}};
    std::size_t done = 0;
    for (const OutlineType* type : types) {
      if (type == kept) continue;
      piece.text.append(source, done, type->lead - done);
      piece.text += blanked(std::string_view(source).substr(type->lead, type->end - type->lead), isInUtf8);
      done = type->end;
    }
    piece.text.append(source, done);
    pieces.push_back(std::move(piece));
  }
  return pieces;
}

}  // namespace tarnwick
