#pragma once

#include "base/Tarnwickexception.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnwick {

class Tarnwickfile;

/// A light scanner of Java sources: removes comments, tracks strings and character constants, counts braces and lines,
/// and cuts the text into statements.
class SourceReader {
 public:
  /// A level that was pushed has ended. No failure: the callers' whole control flow hangs on it. It comes with the read
  /// after the closing brace, which has already been delivered.
  struct EndBraceE {};

  struct BadDataE : Tarnwickexception {
    BadDataE(std::string text, std::string fileName) : Tarnwickexception(std::move(text)), file(std::move(fileName)) {}
    std::string file;  ///< the source's name, quoted
  };

  /// Opens the file for reading; the destructor closes it. Throws Tarnwickfile::FileNotOpenE, as a read does that finds
  /// more than Tarnwickfile::openContent takes.
  explicit SourceReader(Tarnwickfile& file);
  virtual ~SourceReader();
  SourceReader(const SourceReader&) = delete;
  SourceReader& operator=(const SourceReader&) = delete;

  /// True once a read has met the end of the text.
  bool atEof() const { return atEnd_; }

  /// Delivers one character of the text without comments, 0 at the end; true if it lies inside a string or character
  /// constant. Throws EndBraceE and BadDataE; after a bad character constant the caller may read on.
  bool next(char& c);

  /// Reads up to and including a ";" or to before a "{" that is not the first character. `code` is the text without the
  /// contents of strings, `raw` the whole; both belong to the reader and are replaced by the next call. Throws as
  /// `next`.
  void readStatement(std::string_view& code, std::string_view* raw = nullptr);

  /// As `readStatement` without the raw text, but gives false where that throws EndBraceE.
  bool readStatementOfLevel(std::string_view& code);

  /// Reads on with `next` to its EndBraceE, which is not thrown; false if the end of the file came first.
  bool skipLevel();

  /// Signals EndBraceE when the braces are back at the present depth; does nothing unless the depth is above the last
  /// level's.
  void pushLevel();

  /// What the statement that is being read holds so far, with strings; after EndBraceE the closing brace is in it.
  /// Only if `raw` was asked for.
  const std::string& collected() const { return rawText_; }

  /// The current line, from 1.
  int line() const;

 private:
  /// Where the text stands as to comments.
  enum class Comment { None, Slash, Block, BlockStar, AfterBlock, Line };
  /// Where the code stands as to strings and character constants.
  enum class Quote { None, String, StringEscape, Constant, ConstantEscape, Unicode, ConstantEnd };

  bool collect(bool withRaw);
  bool collectRun(bool withRaw);
  void skipCode();
  bool skipString();
  void skipComment();
  bool deliver(char& c);
  /// True for a character that the comment machine has seen; false for the character 0, which ends a read.
  bool readCharacter(char& c, bool& inside);
  int readByte();
  bool fill();
  void followQuotes(char c);
  void endConstant(char c);
  void followComments(char& c, bool inside);
  void countBrace(char c);
  bool levelEnds();
  void countLines(const char* to) const;
  BadDataE badData(const std::string& what) const;

  bool isInPlainCode() const {
    return comment_ == Comment::None && quote_ == Quote::None && pushedBack_ == 0 && !closingBrace_;
  }

  Comment comment_ = Comment::None;
  Quote quote_ = Quote::None;
  Tarnwickfile& file_;
  // The block in hand, with a character 0 behind its end; what stands before `counted_` is in `line_`.
  std::unique_ptr<char[]> block_;
  const char* at_ = nullptr;
  const char* end_ = nullptr;
  mutable const char* counted_ = nullptr;
  mutable int line_ = 1;
  std::size_t read_ = 0;  ///< how much has been read
  bool atEnd_ = false;
  char pushedBack_ = 0;
  std::string rawText_;
  std::string codeText_;
  bool closingBrace_ = false;
  int depth_ = 0;
  std::vector<int> levels_ = {0};
};

}  // namespace tarnwick
