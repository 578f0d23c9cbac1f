#include "source/JavaLexer.h"

#include <array>
#include <cstring>

namespace tarnwick {

namespace {

/// Between two lexemes it ends the text, in a word it is ignored.
constexpr char controlZ = '\x1A';

/// What a character may be, as bits in the table of all.
enum Class : unsigned char {
  space = 1,
  wordStart = 2,
  wordPart = 4,
  blockStop = 8,         ///< where code that is passed over wants a closer look: in a block
  parenthesisStop = 16,  ///< in parentheses
  semicolonStop = 32,    ///< before a semicolon
  quoteStop = 64,        ///< in strings, text blocks and character constants
  lineStop = 128,
};

constexpr std::array<unsigned char, 256> classesTable() {
  std::array<unsigned char, 256> table{};
  const auto enter = [&table](std::string_view characters, unsigned classes) {
    for (const char c : characters) table[static_cast<unsigned char>(c)] |= static_cast<unsigned char>(classes);
  };
  enter(" \t\f\n\r", space);
  enter("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$", wordStart | wordPart);
  enter("0123456789", wordPart);
  // Beyond ASCII everything counts as a letter, in whatever character set.
  for (std::size_t c = 128; c < 256; ++c) table[c] |= wordStart | wordPart;
  enter("\"'/{}", blockStop | parenthesisStop | semicolonStop);
  enter("()", parenthesisStop);
  enter(";", semicolonStop);
  enter("\"'\\\n\r", quoteStop);
  enter("\n\r", lineStop);
  // A character 0 stands behind the text.
  enter(std::string_view("\0\x1A", 2), blockStop | parenthesisStop | semicolonStop | quoteStop | lineStop);
  return table;
}

constexpr auto classes = classesTable();

bool is(char c, unsigned char someClasses) {
  return (classes[static_cast<unsigned char>(c)] & someClasses) != 0;
}

/// Java takes these for parts of a name that do not count.
bool isIgnorable(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code <= 8 || (code >= 0x0E && code <= 0x1B) || code == 0x7F;
}

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

}  // namespace

JavaLexer::JavaLexer(const std::string& text) : begin_(text.data()), at_(begin_), end_(begin_ + text.size()) {
  if (text.starts_with(byteOrderMark)) at_ += byteOrderMark.size();
}

Lexeme JavaLexer::next() {
  for (;;) {
    passSpace();
    const char c = *at_;
    if (is(c, wordStart)) return word();
    const char* const from = at_;
    const auto lexeme = [&](Lexeme::Kind kind) {
      return Lexeme{kind, {from, static_cast<std::size_t>(at_ - from)}, static_cast<std::size_t>(from - begin_)};
    };
    if (is(c, wordPart)) {
      passNumber();
      return lexeme(Lexeme::Kind::Literal);
    }
    if (c == '"' || c == '\'') {
      passQuoted(c);
      return lexeme(Lexeme::Kind::Literal);
    }
    if (c == '/' && passComment()) continue;
    if ((c == '\0' || c == controlZ) && endsHere()) return lexeme(Lexeme::Kind::End);
    ++at_;
    return lexeme(Lexeme::Kind::Mark);
  }
}

Lexeme JavaLexer::peek(unsigned ahead) {
  const char* const from = at_;
  while (ahead-- > 0) next();
  const Lexeme lexeme = next();
  at_ = from;
  return lexeme;
}

void JavaLexer::passBlock() {
  for (std::size_t depth = 1; depth > 0;) {
    const char stop = passTo<blockStop>();
    if (stop == '\0') return;
    ++at_;
    if (stop == '{')
      ++depth;
    else
      --depth;
  }
}

void JavaLexer::passParentheses() {
  for (std::size_t depth = 1; depth > 0;) {
    const char stop = passTo<parenthesisStop>();
    if (stop == '\0' || stop == '}') return;
    ++at_;
    if (stop == '{') passBlock();
    if (stop == '(') ++depth;
    if (stop == ')') --depth;
  }
}

void JavaLexer::passToSemicolon() {
  for (;;) {
    const char stop = passTo<semicolonStop>();
    if (stop == '\0' || stop == '}') return;
    ++at_;
    if (stop == ';') return;
    passBlock();
  }
}

void JavaLexer::passAngles() {
  for (std::size_t depth = 1; depth > 0;) {
    const std::size_t before = offset();
    const Lexeme lexeme = next();
    if (lexeme.isMark('<')) ++depth;
    if (lexeme.isMark('>')) --depth;
    if (lexeme.isMark('@')) passAnnotation();
    const bool cannotBe =
        lexeme.isMark('{') || lexeme.isMark('}') || lexeme.isMark(';') || lexeme.kind == Lexeme::Kind::End;
    if (!cannotBe) continue;
    returnTo(before);
    return;
  }
}

void JavaLexer::passAnnotation() {
  do {
    if (peek().kind != Lexeme::Kind::Word) break;
    next();
  } while (peek().isMark('.') && next().isMark('.'));
  if (!peek().isMark('(')) return;
  next();
  passParentheses();
}

/// To the first of the characters that is neither in a string nor in a comment; gives it, or 0 at the end.
template <unsigned char stops>
char JavaLexer::passTo() {
  for (;;) {
    while (!is(*at_, stops)) ++at_;
    switch (const char c = *at_) {
      case '"':
      case '\'':
        passQuoted(c);
        break;
      case '/':
        if (!passComment()) ++at_;
        break;
      case '\0':
      case controlZ:
        if (endsHere()) return '\0';
        ++at_;
        break;
      default:
        return c;
    }
  }
}

void JavaLexer::passSpace() {
  while (is(*at_, space)) ++at_;
}

/// False, without a move, if the slash begins no comment.
bool JavaLexer::passComment() {
  if (at_[1] == '*')
    passBlockComment();
  else if (at_[1] == '/')
    passLineComment();
  else
    return false;
  return true;
}

void JavaLexer::passBlockComment() {
  // The star that opens it can't be the one that closes it.
  const char* slash = at_ + 2;
  const char* const inside = slash;
  do {
    slash = static_cast<const char*>(std::memchr(slash, '/', static_cast<std::size_t>(end_ - slash)));
    if (!slash) {
      at_ = end_;
      return;
    }
    ++slash;
  } while (slash - 2 < inside || slash[-2] != '*');
  at_ = slash;
}

void JavaLexer::passLineComment() {
  for (;; ++at_) {
    while (!is(*at_, lineStop)) ++at_;
    if (*at_ == '\n' || *at_ == '\r' || at_ == end_) return;
  }
}

/// Over a string, a text block or a character constant. At the end of a line the first and the last end in any case, as
/// they do for the compiler, which complains.
void JavaLexer::passQuoted(char quote) {
  const bool isTextBlock = quote == '"' && at_[1] == '"' && at_[2] == '"';
  at_ += isTextBlock ? 3 : 1;
  for (;;) {
    while (!is(*at_, quoteStop)) ++at_;
    const char c = *at_;
    if (at_ == end_) return;
    if ((c == '\n' || c == '\r') && !isTextBlock) return;
    ++at_;
    // What an escape takes can't end anything; the end of a line is no such thing.
    if (c == '\\' && at_ != end_ && !is(*at_, lineStop)) ++at_;
    if (c != quote) continue;
    if (!isTextBlock) return;
    if (at_[0] != quote || at_[1] != quote) continue;
    at_ += 2;
    return;
  }
}

void JavaLexer::passNumber() {
  while (is(*at_, wordPart) || *at_ == '.') ++at_;
}

Lexeme JavaLexer::word() {
  const char* const from = at_;
  while (is(*at_, wordPart)) ++at_;
  Lexeme lexeme{
      Lexeme::Kind::Word, {from, static_cast<std::size_t>(at_ - from)}, static_cast<std::size_t>(from - begin_)};
  if (!passIgnorable()) return lexeme;
  std::string& cleaned = cleanedWords_.emplace_back(lexeme.text);
  do {
    const char* const part = at_;
    while (is(*at_, wordPart)) ++at_;
    cleaned.append(part, at_);
  } while (passIgnorable());
  lexeme.text = cleaned;
  return lexeme;
}

/// False if there is nothing of the kind.
bool JavaLexer::passIgnorable() {
  const char* const from = at_;
  while (at_ != end_ && isIgnorable(*at_)) ++at_;
  return at_ != from;
}

/// At a character 0 or a Ctrl-Z: true if the text ends there.
bool JavaLexer::endsHere() {
  if (at_ == end_) return true;
  if (*at_ != controlZ) return false;
  const char* start = at_;
  while (start != begin_ && (is(start[-1], wordPart) || isIgnorable(start[-1]))) --start;
  while (isIgnorable(*start) && start != at_) ++start;
  if (start == at_ || !is(*start, wordStart)) return true;
  // Within a word it does not count. Nor do others there: looking back again for each would take long.
  while (at_ != end_ && (is(at_[1], wordPart) || isIgnorable(at_[1])) && at_ + 1 != end_) ++at_;
  return false;
}

}  // namespace tarnwick
