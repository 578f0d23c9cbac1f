#include "support/source/PlainOutline.h"

#include "source/Compiler.h"
#include "source/Tokens.h"
#include "support/source/PlainSourceReader.h"

#include <regex>

namespace tarnwick::test {

namespace {

std::string described(const JavaSourcefile& file) {
  std::string text = "package " + file.package() + '\n';
  for (const auto& type : file.types()) {
    const auto* record = dynamic_cast<const SourceClass*>(type.get());
    text += (type->isPublic ? "public " : "") + (record ? "class " + type->name : "interface " + type->name);
    for (const auto& name : type->extendsList) text += " extends " + name;
    for (const auto& name : type->implementsList) text += " implements " + name;
    if (record) text += " main " + std::to_string(record->mainCount);
    text += '\n';
  }
  return text;
}

Token takeToken(Cursor& cursor) {
  return nextToken(cursor, javaKeywords, javaDelimiters);
}

class PlainOutline {
 public:
  explicit PlainOutline(JavaSourcefile& file) : file_(file), reader_(file) {}

  void run() {
    while (!reader_.atEof()) {
      std::string_view text;
      try {
        reader_.readStatement(text);
      } catch (const PlainSourceReader::EndBraceE&) {
        return;
      }
      if (text.empty()) return;
      std::string statement(text);
      walk(statement);
    }
  }

 private:
  void walk(Cursor statement) {
    bool isPublic = false;
    bool found = false;
    while (!statement.empty()) {
      const Token token = takeToken(statement);
      if (token == Token::Package) takePackage(statement);
      if (token == Token::Public) isPublic = true;
      if (found || (token != Token::Class && token != Token::Interface)) continue;
      found = true;
      if (token == Token::Class)
        takeClass(statement, isPublic);
      else
        takeInterface(statement, isPublic);
      statement = {};
    }
  }

  void takePackage(Cursor& statement) {
    if (!file_.package().empty())
      throw Compiler::CannotCompileE(file_.name().quotedNameWithExtension() + " line " +
                                     std::to_string(reader_.line()) + ": Package redefinition");
    file_.setPackage(nextWord(statement, ";"));
  }

  static void takeList(Cursor& cursor, std::vector<std::string>& list) {
    std::string word = nextWord(cursor, javaDelimiters);
    while (!word.empty()) {
      list.push_back(word);
      skipWhite(cursor);
      if (cursor.empty() || cursor.front() != ',') break;
      cursor.remove_prefix(1);
      word = nextWord(cursor, javaDelimiters);
    }
  }

  void takeClass(Cursor cursor, bool isPublic) {
    SourceClass record(nextWord(cursor, javaDelimiters), isPublic);
    reader_.pushLevel();
    while (!cursor.empty()) {
      const Token token = takeToken(cursor);
      if (token == Token::Implements) takeList(cursor, record.implementsList);
      if (token != Token::Extends) continue;
      const std::string word = nextWord(cursor, javaDelimiters);
      if (record.extendsList.empty()) record.extendsList.push_back(word);
    }
    try {
      takeMembers(record);
    } catch (const PlainSourceReader::EndBraceE&) {
      file_.addClass(record);
    }
  }

  [[noreturn]] void takeMembers(SourceClass& record) {
    std::string_view statement;
    while (!reader_.atEof()) {
      while (statement.empty() || statement.back() == ';') {
        if (reader_.atEof()) missingBrace();
        reader_.readStatement(statement);
      }
      reader_.pushLevel();
      bool isPublic = false;
      bool isStatic = false;
      bool isVoid = false;
      while (!statement.empty()) {
        const Token token = takeToken(statement);
        if (token == Token::Public) isPublic = true;
        if (token == Token::Static) isStatic = true;
        if (token == Token::Void) isVoid = true;
        if (token == Token::Main && isPublic && isStatic && isVoid) ++record.mainCount;
      }
      skipBody();
      reader_.readStatement(statement);
    }
    missingBrace();
  }

  void takeInterface(Cursor cursor, bool isPublic) {
    SourceInterface record(nextWord(cursor, javaDelimiters), isPublic);
    reader_.pushLevel();
    while (!cursor.empty()) {
      if (takeToken(cursor) != Token::Extends) continue;
      takeList(cursor, record.extendsList);
      break;
    }
    skipBody();
    file_.addInterface(record);
  }

  void skipBody() {
    try {
      char c = 0;
      while (!reader_.atEof()) reader_.next(c);
    } catch (const PlainSourceReader::EndBraceE&) {
      return;
    }
    missingBrace();
  }

  [[noreturn]] void missingBrace() const {
    throw PlainSourceReader::BadDataE("Unexpected end of file: Missing }", file_.name().quoted());
  }

  JavaSourcefile& file_;
  PlainSourceReader reader_;
};

JavaSourcefile sourceAt(const std::string& path) {
  return JavaSourcefile(Tarnwickfile::unopened(path, FileMode::Read));
}

std::string failureOf(JavaSourcefile& file) {
  try {
    file.analyse();
  } catch (const Compiler::CannotCompileE& failure) {
    return failure.message;
  }
  return {};
}

}  // namespace

std::string outlineOf(const std::string& path) {
  JavaSourcefile file = sourceAt(path);
  const std::string failure = failureOf(file);
  return failure + '\n' + described(file);
}

std::string plainOutlineOf(const std::string& path) {
  JavaSourcefile file = sourceAt(path);
  std::string failure;
  try {
    PlainOutline(file).run();
  } catch (const Tarnwickfile::FileNotOpenE& caught) {
    failure = caught.message + "\nCan't process file " + caught.file;
  } catch (const PlainSourceReader::BadDataE& caught) {
    failure = caught.message + "\nCan't process file " + caught.file;
  } catch (const Compiler::CannotCompileE& caught) {
    failure = caught.message;
  }
  return failure + '\n' + described(file);
}

std::string messageOf(const std::string& path) {
  JavaSourcefile file = sourceAt(path);
  const std::string message = failureOf(file);
  if (message.empty()) return {};
  return std::regex_replace(message.substr(0, message.find('\n')), std::regex(R"(^(.* line |Line )\d+: )"), "");
}

}  // namespace tarnwick::test
