#include "source/SourceReader.h"

#include "base/Tarnwickfile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>

namespace tarnwick {

namespace {

/// A byte of this value is taken for the end: at once in a comment, and in code as the character 0.
constexpr int endByte = 255;

bool isHexadecimal(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

constexpr std::size_t blockSize = std::size_t{64} * 1024;

/// A set of characters, as a bit in the table of all.
enum Stops : unsigned char {
  statementStops = 1,  ///< where code that makes a statement wants a closer look
  bodyStops = 2,       ///< where code that is passed over does
  stringStops = 4,
  blockStops = 8,  ///< in a block comment
  lineStops = 16,  ///< in a line comment
};

constexpr std::array<unsigned char, 256> stopsTable() {
  std::array<unsigned char, 256> table{};
  const auto enter = [&table](std::string_view characters, unsigned char stops) {
    for (const char c : characters) table[static_cast<unsigned char>(c)] |= stops;
  };
  enter("\"'/{};", statementStops);
  enter("\"'/{}", bodyStops);
  enter("\"\\{}", stringStops);
  enter("*", blockStops);
  enter("\n\r", lineStops);
  // The end of each block, and what is taken for the end.
  table[0] = table[endByte] = statementStops | bodyStops | stringStops | blockStops | lineStops;
  return table;
}

constexpr auto allStops = stopsTable();

/// The first of `stops` from `at` on. There is one: a character 0 stands behind the block.
template <Stops stops>
const char* skippedTo(const char* at) {
  while (!(allStops[static_cast<unsigned char>(*at)] & stops)) ++at;
  return at;
}

}  // namespace

SourceReader::SourceReader(Tarnwickfile& file)
    : file_(file), block_(std::make_unique_for_overwrite<char[]>(blockSize + 1)) {
  file_.openContent(FileMode::Read);
  at_ = end_ = counted_ = block_.get();
  block_[0] = '\0';
}

SourceReader::~SourceReader() {
  file_.close();
}

bool SourceReader::next(char& c) {
  if (levelEnds()) throw EndBraceE{};
  return deliver(c);
}

void SourceReader::readStatement(std::string_view& code, std::string_view* raw) {
  if (!collect(raw != nullptr)) throw EndBraceE{};
  code = codeText_;
  if (raw) *raw = rawText_;
}

bool SourceReader::readStatementOfLevel(std::string_view& code) {
  if (!collect(false)) return false;
  code = codeText_;
  return true;
}

bool SourceReader::skipLevel() {
  char c = 0;
  while (!atEof()) {
    if (levelEnds()) return true;
    skipCode();
    deliver(c);
  }
  return false;
}

/// Reads a statement; false if the level has ended.
bool SourceReader::collect(bool withRaw) {
  rawText_.clear();
  codeText_.clear();
  bool empty = true;
  while (!atEof()) {
    if (levelEnds()) return false;
    if (collectRun(withRaw)) empty = false;
    char c = 0;
    const bool inside = deliver(c);
    if (atEof()) break;
    if (c == '{' && !inside && !empty) {
      // It begins the next statement, and is counted again there.
      --depth_;
      pushedBack_ = c;
      break;
    }
    empty = false;
    if (withRaw) rawText_ += c;
    if (inside) continue;
    codeText_ += c;
    if (c == ';') break;
  }
  return true;
}

/// Takes at once what needs no closer look; false if there is nothing of that kind.
bool SourceReader::collectRun(bool withRaw) {
  const char* const from = at_;
  if (isInPlainCode()) {
    at_ = skippedTo<statementStops>(at_);
    codeText_.append(from, at_);
  } else if (quote_ == Quote::String && pushedBack_ == 0 && comment_ == Comment::None) {
    at_ = skippedTo<stringStops>(at_);
  }
  if (withRaw) rawText_.append(from, at_);
  return at_ != from;
}

/// Passes over code as far as it needs no closer look, and keeps count of its braces.
void SourceReader::skipCode() {
  if (!isInPlainCode()) return;
  const int level = levels_.back();
  for (;;) {
    at_ = skippedTo<bodyStops>(at_);
    if (*at_ == '{') {
      ++depth_;
    } else if (*at_ == '}' && depth_ - 1 > level) {
      --depth_;
    } else if (*at_ != '"' || !skipString()) {
      return;
    }
    ++at_;
  }
}

/// From an opening quote to its closing one; false, without a move, if what is between needs a closer look.
bool SourceReader::skipString() {
  const char* const close = skippedTo<stringStops>(at_ + 1);
  if (*close != '"') return false;
  at_ = close;
  return true;
}

/// Passes over what leaves the state of the comment as it is.
void SourceReader::skipComment() {
  if (comment_ == Comment::Line) at_ = skippedTo<lineStops>(at_);
  while (comment_ == Comment::Block) {
    at_ = skippedTo<blockStops>(at_);
    // A star that something else follows ends nothing.
    if (*at_ != '*' || (allStops[static_cast<unsigned char>(at_[1])] & blockStops) || at_[1] == '/') return;
    at_ += 2;
  }
}

/// Delivers one character as `next` does, in a level that goes on.
bool SourceReader::deliver(char& c) {
  bool inside = false;
  if (pushedBack_ != 0) {
    c = std::exchange(pushedBack_, '\0');
  } else {
    while (readCharacter(c, inside) && comment_ != Comment::None && !atEof()) skipComment();
  }
  if (atEof()) {
    c = 0;
    return false;
  }
  if (comment_ == Comment::None) countBrace(c);
  return inside;
}

void SourceReader::pushLevel() {
  if (depth_ > levels_.back()) levels_.push_back(depth_);
}

bool SourceReader::readCharacter(char& c, bool& inside) {
  const int byte = readByte();
  const bool isEnd = byte == EOF || byte == endByte;
  c = isEnd ? '\0' : static_cast<char>(byte);
  // What stands in a comment or directly behind one passes the quotes by: there a quote opens nothing.
  const bool inCode = comment_ == Comment::None;
  if (inCode) followQuotes(c);
  inside = inCode && quote_ != Quote::None;
  if (isEnd && !inCode) atEnd_ = true;
  if (c == 0) return false;
  followComments(c, inside);
  return true;
}

int SourceReader::readByte() {
  // Where nothing more can be read is the end, whatever the reason.
  if (at_ == end_ && !fill()) {
    atEnd_ = true;
    return EOF;
  }
  return static_cast<unsigned char>(*at_++);
}

bool SourceReader::fill() {
  // The last block stays in hand: as a rule it is the whole file, and nobody asks for its lines.
  if (std::feof(file_.stream())) return false;
  countLines(end_);
  const std::size_t count = std::fread(block_.get(), 1, blockSize, file_.stream());
  // A file may grow while it is read.
  read_ += count;
  refuseLarge(read_, file_.name().fullName());
  block_[count] = '\0';
  at_ = counted_ = block_.get();
  end_ = at_ + count;
  return count > 0;
}

int SourceReader::line() const {
  countLines(at_);
  return line_;
}

/// Few ask for the line, so it is counted when they do.
void SourceReader::countLines(const char* to) const {
  line_ += static_cast<int>(std::count_if(counted_, to, [](char c) { return c == '\n' || c == '\r'; }));
  counted_ = to;
}

void SourceReader::followQuotes(char c) {
  switch (quote_) {
    case Quote::None:
      if (c == '"') quote_ = Quote::String;
      if (c == '\'') quote_ = Quote::Constant;
      break;
    case Quote::String:
      if (c == '"') quote_ = Quote::None;
      if (c == '\\') quote_ = Quote::StringEscape;
      break;
    case Quote::StringEscape:
      quote_ = Quote::String;
      break;
    case Quote::Constant:
      quote_ = c == '\\' ? Quote::ConstantEscape : Quote::ConstantEnd;
      break;
    case Quote::ConstantEscape:
      quote_ = c == 'u' ? Quote::Unicode : Quote::ConstantEnd;
      break;
    case Quote::Unicode:
      if (!isHexadecimal(c)) endConstant(c);
      break;
    case Quote::ConstantEnd:
      endConstant(c);
      break;
  }
}

void SourceReader::endConstant(char c) {
  quote_ = Quote::None;
  if (c == '\'') return;
  if (c == '\n' || c == '\r') {
    // Such a line end is not counted.
    countLines(at_ - 1);
    counted_ = at_;
  }
  throw badData("Invalid character constant.");
}

void SourceReader::followComments(char& c, bool inside) {
  switch (comment_) {
    case Comment::None:
      if (c == '/' && !inside) comment_ = Comment::Slash;
      break;
    case Comment::Slash:
      comment_ = c == '*' ? Comment::Block : c == '/' ? Comment::Line : Comment::None;
      if (comment_ == Comment::None) pushedBack_ = std::exchange(c, '/');
      break;
    case Comment::Block:
      if (c == '*') comment_ = Comment::BlockStar;
      break;
    case Comment::BlockStar:
      if (c != '*') comment_ = c == '/' ? Comment::AfterBlock : Comment::Block;
      break;
    case Comment::Line:
      if (c == '\n' || c == '\r') comment_ = Comment::None;
      break;
    case Comment::AfterBlock:
      comment_ = Comment::None;
      break;
  }
}

void SourceReader::countBrace(char c) {
  // Deliberate: braces count wherever they stand, in strings and character constants too.
  if (c == '{') ++depth_;
  if (c != '}') return;
  --depth_;
  if (depth_ <= levels_.back()) closingBrace_ = true;
}

/// True where the last brace has ended a level; throws BadDataE if there was none to end.
bool SourceReader::levelEnds() {
  if (!closingBrace_) return false;
  closingBrace_ = false;
  if (levels_.size() > 1) levels_.pop_back();
  if (depth_ < 0) throw badData("Too many }");
  return true;
}

SourceReader::BadDataE SourceReader::badData(const std::string& what) const {
  return {"Line " + std::to_string(line()) + ": " + what, file_.name().quoted()};
}

}  // namespace tarnwick
