// The scanner of Java sources: whatever the text, it delivers the characters, statements, lines and failures of a plain
// reference, and comes to an end. The first byte chooses how it is driven.
#include "source/SourceReader.h"

#include "MemoryFile.h"
#include "Property.h"
#include "base/Tarnwickfile.h"
#include "base/Text.h"
#include "source/Tokens.h"
#include "support/source/PlainSourceReader.h"

#include <string>
#include <string_view>

namespace tarnwick::fuzz {
namespace {

/// What one step of a reader came to.
struct Step {
  std::string first;   ///< the character, or the statement without its strings
  std::string second;  ///< whether the character is in a string, or the whole statement
  std::string fault;   ///< what kept it from either
  int line = 0;
};

/// `read` fills the step that it is given.
template <typename Reader, typename Read>
Step stepOf(const Reader& reader, const Tarnwickfile& file, Read read) {
  Step step;
  try {
    read(step);
  } catch (const SourceReader::EndBraceE&) {
    step = {"", "", "end of a level"};
  } catch (const SourceReader::BadDataE& failure) {
    step = {"", "", failure.message};
    requireSame(failure.file, file.name().quoted(), "a failure names the file");
  }
  step.line = reader.line();
  return step;
}

template <typename Reader>
Step characterOf(Reader& reader, const Tarnwickfile& file) {
  return stepOf(reader, file, [&reader](Step& step) {
    char c = 'x';
    step.second = reader.next(c) ? "in a string" : "";
    step.first = std::string(1, c);
  });
}

template <typename Reader>
Step statementOf(Reader& reader, const Tarnwickfile& file) {
  return stepOf(reader, file, [&reader](Step& step) {
    std::string_view code;
    std::string_view raw;
    reader.readStatement(code, &raw);
    step.first = code;
    step.second = raw;
  });
}

/// A scanner and its reference, driven alike.
class Pair {
 public:
  explicit Pair(const std::string& bytes)
      : content_(bytes),
        file_(Tarnwickfile::unopened(content_.path(), FileMode::Undefined)),
        sameFile_(Tarnwickfile::unopened(content_.path(), FileMode::Undefined)),
        reader_(file_),
        reference_(sameFile_) {
    require(file_.isOpen() && file_.mode() == FileMode::Read, "the file is opened for reading");
  }

  bool atEnd() {
    const bool end = reader_.atEof();
    require(end == reference_.atEof(), "both are at the end at once");
    return end;
  }

  void character() {
    const Step step = characterOf(reader_, file_);
    requireLikeReference(step, characterOf(reference_, sameFile_));
    if (step.fault.empty()) lastWasBrace_ = step.first == "{";
  }

  void statement() {
    const Step step = statementOf(reader_, file_);
    requireLikeReference(step, statementOf(reference_, sameFile_));
    if (!step.fault.empty()) return;
    walkTokens(step.first);
    lastWasBrace_ = false;
  }

  void level() {
    reader_.pushLevel();
    reference_.pushLevel();
  }
  bool lastWasBrace() const { return lastWasBrace_; }

 private:
  static void requireLikeReference(const Step& step, const Step& expected) {
    requireSame(step.fault, expected.fault, "both meet the same failure, or none");
    requireSame(step.first, expected.first, "both read the same");
    requireSame(step.second, expected.second, "both tell strings from code");
    require(step.line == expected.line, "both are in the same line");
  }

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
  Tarnwickfile sameFile_;
  SourceReader reader_;
  test::PlainSourceReader reference_;
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
