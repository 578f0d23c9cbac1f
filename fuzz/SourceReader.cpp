// The scanner of Java sources: whatever the text, it delivers the characters, statements, lines and failures of a plain
// reference, and comes to an end. The first byte chooses how it is driven.
#include "source/SourceReader.h"

#include "MemoryFile.h"
#include "PlainReader.h"
#include "Property.h"
#include "TextMode.h"
#include "base/Text.h"
#include "source/Tokens.h"

#include <string_view>

namespace tarnwick::fuzz {
namespace {

using Outcome = PlainReader::Outcome;

/// What `read` ends with.
template <typename Read>
Outcome outcomeOf(const SourceReader& reader, const Tarnwickfile& file, Read read) {
  try {
    read();
    return Outcome::Delivered;
  } catch (const SourceReader::EndBraceE&) {
    return Outcome::EndBrace;
  } catch (const SourceReader::BadDataE& failure) {
    const std::string line = "Line " + std::to_string(reader.line());
    requireSame(failure.file, file.name().quoted(), "a failure names the file");
    if (failure.message == line + ": Too many }") return Outcome::TooManyBraces;
    requireSame(failure.message, line + ": Invalid character constant.", "a failure names the line and what is wrong");
    return Outcome::BadConstant;
  }
}

/// A scanner and its reference, driven alike.
class Pair {
 public:
  explicit Pair(const std::string& bytes)
      : content_(bytes),
        file_(Tarnwickfile::unopened(content_.path(), FileMode::Undefined)),
        reader_(file_),
        reference_(asText(bytes)) {
    require(file_.isOpen() && file_.mode() == FileMode::Read, "the file is opened for reading");
  }

  bool atEnd() {
    const bool end = reader_.atEof();
    require(end == reference_.atEnd(), "both are at the end at once");
    return end;
  }

  void character() {
    const auto expected = reference_.next();
    char c = 'x';
    bool inside = false;
    const auto outcome = outcomeOf(reader_, file_, [&] { inside = reader_.next(c); });
    require(outcome == expected.outcome, "both meet the same");
    requireSameLine();
    if (outcome != Outcome::Delivered) return;
    requireSame(std::string(1, c), std::string(1, expected.c), "the same character is delivered");
    require(inside == expected.inside, "and it is in a string, or not");
    lastWasBrace_ = c == '{';
  }

  void statement() {
    const auto expected = reference_.readStatement();
    std::string_view code;
    std::string_view raw;
    const auto outcome = outcomeOf(reader_, file_, [&] { reader_.readStatement(code, &raw); });
    require(outcome == expected.outcome, "both meet the same");
    requireSameLine();
    if (outcome != Outcome::Delivered) return;
    requireSame(std::string(raw), expected.raw, "the statement is the same");
    requireSame(std::string(code), expected.code, "and so it is without strings");
    walkTokens(code);
    lastWasBrace_ = false;
  }

  void level() {
    reader_.pushLevel();
    reference_.pushLevel();
  }
  bool lastWasBrace() const { return lastWasBrace_; }

 private:
  void requireSameLine() const { require(reader_.line() == reference_.line(), "both are in the same line"); }

  /// Each token takes something, until nothing is left; a word and what is passed over with it make the text.
  static void walkTokens(std::string_view code) {
    for (Cursor cursor = code; !cursor.empty();) {
      Cursor word = cursor;
      const std::string text = nextWord(word, javaDelimiters);
      const std::string_view passed = cursor.substr(0, cursor.size() - word.size());
      requireSame(text, trimLeft(std::string(passed)), "a word is what was passed over, but for white space");
      Cursor behind = cursor;
      const Token token = nextToken(behind, javaKeywords, javaDelimiters);
      skipWhite(cursor);
      require(behind.size() < cursor.size() || cursor.empty(), "a token takes something");
      const auto row = static_cast<std::size_t>(token);
      require(token == Token::Other ? !isKeyword(text) : row < javaKeywords.size() && text == javaKeywords[row],
              "a keyword is a keyword, whole");
      cursor = behind;
    }
  }

  static bool isKeyword(std::string_view text) {
    for (const auto word : javaKeywords)
      if (text == word) return true;
    return false;
  }

  MemoryFile content_;
  Tarnwickfile file_;
  SourceReader reader_;
  PlainReader reference_;
  bool lastWasBrace_ = false;
};

/// The bits of `way` tell for each step whether a statement is read, and whether a level begins.
void drive(const std::string& bytes, unsigned way) {
  Pair pair(bytes);
  const std::size_t most = 4 * bytes.size() + 16;
  for (std::size_t step = 0; !pair.atEnd(); ++step) {
    require(step < most, "the end comes");
    const unsigned bits = way >> (step % 4);
    if (bits & 1)
      pair.statement();
    else
      pair.character();
    if ((bits & 16) && (pair.lastWasBrace() || (way & 1))) pair.level();
  }
}

}  // namespace
}  // namespace tarnwick::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick::fuzz;
  if (size == 0) return 0;
  const std::string bytes = textOf(data + 1, size - 1);
  drive(bytes, 0);
  drive(bytes, data[0]);
  return 0;
}
