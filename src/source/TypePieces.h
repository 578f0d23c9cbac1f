#pragma once

#include "source/JavaOutline.h"

#include <string>
#include <vector>

namespace tarnwick {

/// A source of one type out of a source that has several.
struct TypePiece {
  std::string fileName;
  std::string text;
};

/// True if a compiler would refuse the source for its several public types, and takes a source of each. A type that is
/// sealed and does not say for whom has its subtypes in the same source; a compact source may have public members; and
/// what is not whole is left to the compiler.
bool wantsSplitting(const JavaOutline& outline);

/// A piece for each type at the top. It is the source in which the others are blanks, with the comments before them,
/// so that everything keeps its line and column.
std::vector<TypePiece> piecesOf(const std::string& source, const JavaOutline& outline);

}  // namespace tarnwick
