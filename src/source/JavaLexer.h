#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

namespace tarnwick {

/// The smallest piece of Java code.
struct Lexeme {
  enum class Kind {
    Word,     ///< a name or keyword
    Mark,     ///< a single character such as a brace
    Literal,  ///< a string, a text block, a character constant or a number
    End,      ///< of the text
  };

  bool isWord(std::string_view word) const { return kind == Kind::Word && text == word; }
  bool isMark(char mark) const { return kind == Kind::Mark && text.front() == mark; }

  Kind kind = Kind::End;
  std::string_view text;  ///< of a word or mark; belongs to the lexer
  std::size_t begin = 0;
};

/// Cuts the text of a Java source into lexemes, and passes quickly over what need not be cut. Comments and white space
/// are passed over. Whatever the text, it goes on to the end; there it stays.
class JavaLexer {
 public:
  /// The text must outlive this object.
  explicit JavaLexer(const std::string& text);
  JavaLexer(const JavaLexer&) = delete;
  JavaLexer& operator=(const JavaLexer&) = delete;

  Lexeme next();
  /// What `next` will deliver, or with `ahead` what it will deliver after so many others.
  Lexeme peek(unsigned ahead = 0);

  /// Where the last lexeme ended, or what was passed over last.
  std::size_t offset() const { return static_cast<std::size_t>(at_ - begin_); }
  /// Takes back what was delivered since that offset.
  void returnTo(std::size_t offset) { at_ = begin_ + offset; }

  /// Behind an opening brace: to behind its closing brace.
  void passBlock();
  /// Behind an opening parenthesis: to behind its closing one, or to before a brace that closes more than was opened.
  void passParentheses();
  /// Behind an opening angle bracket: to behind its closing one, or to before what can't stand in type arguments.
  void passAngles();
  /// Behind the "@": over the name, and over what follows in parentheses.
  void passAnnotation();
  /// To behind the next semicolon outside of braces, or to before a brace that closes more than was opened.
  void passToSemicolon();

 private:
  template <unsigned char stops>
  char passTo();
  void passSpace();
  bool passComment();
  void passBlockComment();
  void passLineComment();
  void passQuoted(char quote);
  void passNumber();
  Lexeme word();
  bool passIgnorable();
  bool endsHere();

  const char* const begin_;
  const char* at_;
  const char* const end_;
  std::deque<std::string> cleanedWords_;  ///< without the characters that Java ignores in names
};

}  // namespace tarnwick
