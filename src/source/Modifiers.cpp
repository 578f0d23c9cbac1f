#include "source/Modifiers.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tarnwick {

namespace {

using Access = Modifiers::Access;
using Kind = Lexeme::Kind;

/// Those that nothing else is known of.
constexpr std::array<std::string_view, 8> otherModifiers = {"final",        "native",   "transient", "volatile",
                                                            "synchronized", "strictfp", "default",   "static"};

/// What may follow "sealed" where that is a modifier.
constexpr std::array<std::string_view, 12> behindSealed = {"public",   "protected", "private",  "static",
                                                           "abstract", "final",     "strictfp", "class",
                                                           "enum",     "interface", "sealed",   "record"};

template <std::size_t count>
bool isOneOf(std::string_view word, const std::array<std::string_view, count>& words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

/// Behind the word "non": true if the modifier is there, in one piece.
bool isNonSealed(JavaLexer& lexer, const Lexeme& non, unsigned ahead = 0) {
  constexpr std::string_view whole = "non-sealed";
  const Lexeme hyphen = lexer.peek(ahead);
  if (!hyphen.isMark('-') || hyphen.begin != non.begin + whole.find('-')) return false;
  const Lexeme sealed = lexer.peek(ahead + 1);
  return sealed.isWord("sealed") && sealed.begin == hyphen.begin + 1;
}

/// Behind the word "sealed", which may be a name as well.
bool isSealing(JavaLexer& lexer) {
  const Lexeme following = lexer.peek();
  if (following.isMark('@')) return true;
  if (following.kind != Kind::Word) return false;
  return isOneOf(following.text, behindSealed) || (following.text == "non" && isNonSealed(lexer, following, 1));
}

/// False if the word is no modifier.
bool takeWord(JavaLexer& lexer, const Lexeme& word, Modifiers& modifiers) {
  if (word.text == "public") {
    modifiers.access = Access::Public;
  } else if (word.text == "private") {
    modifiers.access = Access::Private;
  } else if (word.text == "protected") {
    modifiers.access = Access::Protected;
  } else if (word.text == "abstract") {
    modifiers.isAbstract = true;
  } else if (word.text == "sealed") {
    modifiers.isSealed = isSealing(lexer);
    return modifiers.isSealed;
  } else if (word.text == "non") {
    if (!isNonSealed(lexer, word)) return false;
    lexer.next();
    lexer.next();
  } else {
    if (word.text == "static") modifiers.isStatic = true;
    return isOneOf(word.text, otherModifiers);
  }
  return true;
}

}  // namespace

Modifiers readModifiers(JavaLexer& lexer, Lexeme& first) {
  Modifiers modifiers;
  modifiers.lead = lexer.offset();
  first = lexer.next();
  modifiers.begin = first.begin;
  for (;; first = lexer.next()) {
    if (first.kind == Kind::Word) {
      if (!takeWord(lexer, first, modifiers)) return modifiers;
    } else if (first.isMark('@')) {
      if (lexer.peek().isWord("interface")) {
        modifiers.isAnnotationType = true;
        first = lexer.next();
        return modifiers;
      }
      modifiers.isAnnotated = true;
      lexer.passAnnotation();
    } else {
      return modifiers;
    }
  }
}

}  // namespace tarnwick
