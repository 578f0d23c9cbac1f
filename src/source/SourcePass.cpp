#include "source/SourcePass.h"

#include "base/Text.h"

#include <algorithm>

namespace tarnwick {

namespace {

Token tokenAt(Cursor& cursor) {
  return nextToken(cursor, javaKeywords, javaDelimiters);
}

/// What else clings to a word, such as the brackets of an annotation, goes with it.
void dropWord(Cursor& cursor) {
  while (!cursor.empty() && !isWhite(cursor.front())) cursor.remove_prefix(1);
  skipWhite(cursor);
}

}  // namespace

SourcePass::SourcePass(Tarnwickfile& source, Purpose purpose, SplitPieces& pieces, std::string& complaints)
    : sourceName_(source.name().nameWithExtension()),
      purpose_(purpose),
      pieces_(pieces),
      complaints_(complaints),
      reader_(source) {}

void SourcePass::run() {
  while (!reader_.atEof()) {
    if (inBody_)
      copyFromBody();
    else
      readTopLevel();
  }
  pieces_.end();
}

void SourcePass::copyFromBody() {
  try {
    char c = 0;
    reader_.next(c);
    if (pieces_.writing() && c != 0 && c != '\xFF') pieces_.put(c);
  } catch (const SourceReader::EndBraceE&) {
    // It comes with the read after the closing brace, which is in the piece already.
    pieces_.end();
    inBody_ = false;
  } catch (const SourceReader::BadDataE& failure) {
    if (purpose_ == Purpose::Check) complaints_ += failure.message + '\n';
  }
}

void SourcePass::readTopLevel() {
  std::string_view code;
  std::string_view raw;
  try {
    reader_.readStatement(code, &raw);
  } catch (const SourceReader::EndBraceE&) {
    complainOfBrace(reader_.collected());
    readToEnd();
    return;
  }
  if (!code.empty()) takeStatement(code, raw);
}

void SourcePass::takeStatement(std::string_view code, std::string_view raw) {
  Cursor cursor = code;
  const Token first = tokenAt(cursor);
  if (first == Token::Import) {
    importText_ += raw;
  } else if (first == Token::Package) {
    packageText_ += raw;
  } else if (!findType(code, raw)) {
    complain(code, raw);
    readToEnd();
  }
}

bool SourcePass::findType(std::string_view code, std::string_view raw) {
  bool isPublic = false;
  Cursor cursor = code;
  // A word that ends with the statement says nothing any more.
  for (Token token = tokenAt(cursor); !cursor.empty(); token = tokenAt(cursor)) {
    if (token == Token::Interface || token == Token::Class) {
      enterType(nextWord(cursor, javaDelimiters), isPublic, raw);
      return true;
    }
    if (token == Token::Public)
      isPublic = true;
    else
      dropWord(cursor);
  }
  return false;
}

void SourcePass::enterType(const std::string& name, bool isPublic, std::string_view raw) {
  const std::string fileName = name + ".java";
  ++types_;
  if (isPublic) ++publicTypes_;
  // Without regard to case on every system: a split must never overwrite its own source, whatever its disk thinks of
  // case.
  if (equalsIgnoringCase(fileName, sourceName_)) ++(isPublic ? publicOfSameName_ : othersOfSameName_);
  if (purpose_ == Purpose::Split) beginPiece(name, fileName, raw);
  if (purpose_ == Purpose::Split || (purpose_ == Purpose::CollectNames && isPublic)) fileNames_.push_back(fileName);
  inBody_ = true;
}

void SourcePass::beginPiece(const std::string& name, const std::string& fileName, std::string_view raw) {
  const auto earlier = std::count(fileNames_.begin(), fileNames_.end(), fileName);
  for (auto i = earlier; i > 0; --i) complaints_ += "There is more than one class/interface " + name + ".\n";
  pieces_.begin(fileName, packageText_ + importText_ + std::string(raw));
}

void SourcePass::complain(std::string_view code, std::string_view raw) {
  skipWhite(code);
  if (code.empty()) return;
  const std::string place = "Line " + std::to_string(reader_.line());
  if (code.front() == '}')
    complainOfBrace(raw);
  else if (types_ > 0)
    complaints_.append(place + " doesn't seem to make sense.\nPossibly unbalanced { and }.\n").append(raw);
  else
    complaints_ += place + " doesn't seem to make sense.\nThe input file may not be in text format.";
}

void SourcePass::complainOfBrace(std::string_view raw) {
  complaints_.append("Line " + std::to_string(reader_.line()) + ": There are too many }\n").append(raw);
}

void SourcePass::readToEnd() {
  while (!reader_.atEof()) {
    try {
      char ignored = 0;
      reader_.next(ignored);
    } catch (const SourceReader::EndBraceE&) {
      // One complaint is enough.
    } catch (const SourceReader::BadDataE&) {
    }
  }
}

}  // namespace tarnwick
