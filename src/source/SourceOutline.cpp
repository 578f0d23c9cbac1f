#include "source/SourceOutline.h"

#include "source/CompileFailures.h"
#include "source/JavaSourcefile.h"

namespace tarnwick {

namespace {

Token takeToken(Cursor& cursor) {
  return nextToken(cursor, javaKeywords, javaDelimiters);
}

void takeNames(Cursor& cursor, std::vector<std::string>& names) {
  for (;;) {
    std::string name = nextWord(cursor, javaDelimiters);
    if (name.empty()) return;
    names.push_back(std::move(name));
    skipWhite(cursor);
    if (!cursor.starts_with(',')) return;
    cursor.remove_prefix(1);
  }
}

/// Counts "main" behind "public", "static" and "void", in any order.
// Deliberate: a parameter of that name counts, too.
int mainMethods(Cursor head) {
  if (head.find(javaKeywords[static_cast<std::size_t>(Token::Main)]) == Cursor::npos) return 0;
  bool isPublic = false;
  bool isStatic = false;
  bool isVoid = false;
  int count = 0;
  while (!head.empty()) {
    const Token token = takeToken(head);
    if (token == Token::Public) isPublic = true;
    if (token == Token::Static) isStatic = true;
    if (token == Token::Void) isVoid = true;
    if (token == Token::Main && isPublic && isStatic && isVoid) ++count;
  }
  return count;
}

}  // namespace

void SourceOutline::run() {
  while (!reader_.atEof()) {
    std::string_view statement;
    // A brace that closes what is no class or interface, such as an enumeration, ends the outline.
    if (!reader_.readStatementOfLevel(statement) || statement.empty()) return;
    walkStatement(statement);
  }
}

void SourceOutline::walkStatement(Cursor statement) {
  bool isPublic = false;
  while (!statement.empty()) {
    switch (takeToken(statement)) {
      case Token::Package:
        takePackage(statement);
        break;
      case Token::Public:
        isPublic = true;
        break;
      case Token::Class:
        return takeClass(statement, isPublic);
      case Token::Interface:
        return takeInterface(statement, isPublic);
      default:
        break;
    }
  }
}

void SourceOutline::takePackage(Cursor& cursor) {
  if (!file_.package().empty())
    throw CannotCompileE(file_.name().quotedNameWithExtension() + " line " + std::to_string(reader_.line()) +
                         ": Package redefinition");
  file_.setPackage(nextWord(cursor, ";"));
}

void SourceOutline::takeClass(Cursor& cursor, bool isPublic) {
  SourceClass record(nextWord(cursor, javaDelimiters), isPublic);
  reader_.pushLevel();
  while (!cursor.empty()) {
    const Token token = takeToken(cursor);
    if (token == Token::Implements) takeNames(cursor, record.implementsList);
    if (token != Token::Extends) continue;
    std::string name = nextWord(cursor, javaDelimiters);
    if (record.extendsList.empty()) record.extendsList.push_back(std::move(name));
  }
  walkClassBody(record);
  file_.addClass(record);
}

void SourceOutline::walkClassBody(SourceClass& record) {
  std::string_view statement;
  while (!reader_.atEof()) {
    if (statement.empty() || statement.back() == ';') {
      // A field, or something else without a body.
      if (!reader_.readStatementOfLevel(statement)) return;
      continue;
    }
    reader_.pushLevel();
    record.mainCount += mainMethods(statement);
    // Types in the body are not looked into, and their main methods do not count.
    skipBody();
    if (!reader_.readStatementOfLevel(statement)) return;
  }
  throw missingBrace();
}

void SourceOutline::takeInterface(Cursor& cursor, bool isPublic) {
  SourceInterface record(nextWord(cursor, javaDelimiters), isPublic);
  reader_.pushLevel();
  while (!cursor.empty() && takeToken(cursor) != Token::Extends) {
  }
  takeNames(cursor, record.extendsList);
  skipBody();
  file_.addInterface(record);
}

void SourceOutline::skipBody() {
  if (!reader_.skipLevel()) throw missingBrace();
}

SourceReader::BadDataE SourceOutline::missingBrace() const {
  return {"Unexpected end of file: Missing }", file_.name().quoted()};
}

}  // namespace tarnwick
