#pragma once

#include "source/SourceReader.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::test {

/// The rules of SourceReader once more, one byte after the other and with no thought of speed: what the real one is
/// compared with.
class PlainSourceReader {
 public:
  using EndBraceE = SourceReader::EndBraceE;
  using BadDataE = SourceReader::BadDataE;

  explicit PlainSourceReader(Tarnwickfile& file);
  ~PlainSourceReader();
  PlainSourceReader(const PlainSourceReader&) = delete;
  PlainSourceReader& operator=(const PlainSourceReader&) = delete;

  bool atEof();
  bool next(char& c);
  void readStatement(std::string_view& code, std::string_view* raw = nullptr);
  void pushLevel();
  int line() const { return line_; }

 private:
  bool readCharacter(char& c, bool& inside);
  int readByte();
  void followQuotes(char c);
  void endConstant(char c);
  void followComments(char& c, bool inside);
  void countBrace(char c);
  void endLevel();
  BadDataE badData(const std::string& what) const;

  int comment_ = 0;
  int quote_ = 0;
  Tarnwickfile& file_;
  bool inputEnded_ = false;
  bool atEnd_ = false;
  int line_ = 1;
  char pushedBack_ = 0;
  std::string rawText_;
  std::string codeText_;
  bool closingBrace_ = false;
  int depth_ = 0;
  std::vector<int> levels_ = {0};
};

}  // namespace tarnwick::test
