#pragma once

#include "source/JavaLexer.h"

#include <cstddef>
#include <cstdint>

namespace tarnwick {

/// What stands before a declaration in a Java source.
struct Modifiers {
  enum class Access : std::uint8_t { Private, Package, Protected, Public };

  std::size_t lead = 0;   ///< behind all that comes before the declaration
  std::size_t begin = 0;  ///< the first modifier or annotation; if there is none, what follows
  Access access = Access::Package;
  bool isStatic = false;
  bool isAbstract = false;
  bool isSealed = false;
  bool isAnnotated = false;
  bool isAnnotationType = false;  ///< the last was the "@" of "@interface"
};

/// Reads modifiers and annotations, maybe none, and what follows them, which goes to `first`.
Modifiers readModifiers(JavaLexer& lexer, Lexeme& first);

}  // namespace tarnwick
