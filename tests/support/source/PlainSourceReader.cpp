#include "support/source/PlainSourceReader.h"

#include "base/Tarnwickfile.h"

#include <cctype>
#include <cstdio>

namespace tarnwick::test {

PlainSourceReader::PlainSourceReader(Tarnwickfile& file) : file_(file) {
  file_.open(FileMode::Read);
}

PlainSourceReader::~PlainSourceReader() {
  file_.close();
}

bool PlainSourceReader::atEof() {
  atEnd_ = atEnd_ || inputEnded_;
  return atEnd_;
}

bool PlainSourceReader::next(char& c) {
  if (closingBrace_) endLevel();
  bool inside = false;
  if (pushedBack_ != 0) {
    c = pushedBack_;
    pushedBack_ = 0;
  } else {
    while (readCharacter(c, inside) && comment_ != 0 && !atEof()) {
    }
  }
  if (atEof()) {
    c = 0;
    return false;
  }
  if (comment_ == 0) countBrace(c);
  return inside;
}

void PlainSourceReader::readStatement(std::string_view& code, std::string_view* raw) {
  rawText_.clear();
  codeText_.clear();
  while (!atEof()) {
    char c = 0;
    const bool inside = next(c);
    if (atEof()) break;
    if (c == '{' && !inside && !rawText_.empty()) {
      --depth_;
      pushedBack_ = c;
      break;
    }
    rawText_ += c;
    if (inside) continue;
    codeText_ += c;
    if (c == ';') break;
  }
  code = codeText_;
  if (raw) *raw = rawText_;
}

void PlainSourceReader::pushLevel() {
  if (depth_ > levels_.back()) levels_.push_back(depth_);
}

bool PlainSourceReader::readCharacter(char& c, bool& inside) {
  const int byte = readByte();
  const bool isEnd = byte == EOF || byte == 255;
  c = isEnd ? '\0' : static_cast<char>(byte);
  const bool inCode = comment_ == 0;
  if (inCode) followQuotes(c);
  inside = inCode && quote_ != 0;
  if (isEnd && !inCode) atEnd_ = true;
  if (c == 0) return false;
  if (c == '\n' || c == '\r') ++line_;
  followComments(c, inside);
  return true;
}

int PlainSourceReader::readByte() {
  const int byte = std::fgetc(file_.stream());
  if (byte == EOF) inputEnded_ = true;
  return byte;
}

void PlainSourceReader::followQuotes(char c) {
  if (quote_ == 0)
    quote_ = c == '"' ? 1 : c == '\'' ? 3 : 0;
  else if (quote_ == 1)
    quote_ = c == '"' ? 0 : c == '\\' ? 2 : 1;
  else if (quote_ == 2)
    quote_ = 1;
  else if (quote_ == 3)
    quote_ = c == '\\' ? 4 : 6;
  else if (quote_ == 4)
    quote_ = c == 'u' ? 5 : 6;
  else if (quote_ == 6 || !std::isxdigit(static_cast<unsigned char>(c)))
    endConstant(c);
}

void PlainSourceReader::endConstant(char c) {
  quote_ = 0;
  if (c != '\'') throw badData("Invalid character constant.");
}

void PlainSourceReader::followComments(char& c, bool inside) {
  if (comment_ == 0) {
    if (c == '/' && !inside) comment_ = 1;
  } else if (comment_ == 1) {
    comment_ = c == '*' ? 2 : c == '/' ? 3 : 0;
    if (comment_ == 0) {
      pushedBack_ = c;
      c = '/';
    }
  } else if (comment_ == 2) {
    if (c == '*') comment_ = 4;
  } else if (comment_ == 3) {
    if (c == '\n' || c == '\r') comment_ = 0;
  } else if (comment_ == 4) {
    comment_ = c == '/' ? 5 : c == '*' ? 4 : 2;
  } else {
    comment_ = 0;
  }
}

void PlainSourceReader::countBrace(char c) {
  if (c == '{') ++depth_;
  if (c != '}') return;
  --depth_;
  if (depth_ <= levels_.back()) closingBrace_ = true;
}

void PlainSourceReader::endLevel() {
  closingBrace_ = false;
  if (levels_.size() > 1) levels_.pop_back();
  if (depth_ >= 0) throw EndBraceE{};
  throw badData("Too many }");
}

PlainSourceReader::BadDataE PlainSourceReader::badData(const std::string& what) const {
  return {"Line " + std::to_string(line_) + ": " + what, file_.name().quoted()};
}

}  // namespace tarnwick::test
