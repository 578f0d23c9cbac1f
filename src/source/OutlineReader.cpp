#include "source/OutlineReader.h"

#include "platform/FileNames.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace tarnwick {

namespace {

using Kind = Lexeme::Kind;

/// What a declaration with that first word behind its modifiers declares; nothing if that is no type.
std::optional<TypeKind> kindOf(const Lexeme& first, const Modifiers& modifiers) {
  if (modifiers.isAnnotationType) return TypeKind::Annotation;
  if (first.isWord("class")) return TypeKind::Class;
  if (first.isWord("interface")) return TypeKind::Interface;
  if (first.isWord("enum")) return TypeKind::Enum;
  if (first.isWord("record")) return TypeKind::Record;
  return std::nullopt;
}

bool isInterface(TypeKind kind) {
  return kind == TypeKind::Interface || kind == TypeKind::Annotation;
}

}  // namespace

OutlineReader::OutlineReader(std::string source, const std::string& fileName)
    : fileName_(fileName), size_(source.size()), text_(std::move(source)), lexer_(text_.text()) {}

JavaOutline OutlineReader::run() {
  while (!atEnd_) {
    if (!open_.empty() && open_.back().inConstants)
      readConstant();
    else
      readDeclaration();
  }
  outline_.isCutOff = !open_.empty();
  while (!open_.empty()) finishType();
  if (outline_.isCompact) makeCompact();
  return std::move(outline_);
}

void OutlineReader::readDeclaration() {
  Lexeme first;
  const Modifiers modifiers = readModifiers(lexer_, first);
  if (first.kind == Kind::End) {
    atEnd_ = true;
  } else if (first.isMark('}')) {
    if (!open_.empty()) finishType();
  } else {
    const bool isDirective = open_.empty() && takeDirective(first, modifiers);
    if (!isDirective && !takeType(first, modifiers)) readMember(first, modifiers);
  }
}

/// False, without a move, if it is none.
bool OutlineReader::takeDirective(const Lexeme& first, const Modifiers& modifiers) {
  if (first.isWord("import")) {
    takeImport();
  } else if (first.isWord("package")) {
    outline_.package = takeQualifiedName();
    outline_.packageIsAnnotated = modifiers.isAnnotated;
  } else {
    return outline_.types.empty() && !outline_.isCompact && takeModule(first);
  }
  return true;
}

bool OutlineReader::takeModule(const Lexeme& first) {
  const std::size_t before = lexer_.offset();
  const bool isOpen = first.isWord("open");
  if (!(isOpen ? lexer_.next() : first).isWord("module")) {
    lexer_.returnTo(before);
    return false;
  }
  std::string name = takeQualifiedName();
  if (!lexer_.peek().isMark('{')) {
    lexer_.returnTo(before);
    return false;
  }
  lexer_.next();
  lexer_.passBlock();
  outline_.module = std::move(name);
  outline_.moduleIsOpen = isOpen;
  return true;
}

void OutlineReader::takeImport() {
  OutlineImport import;
  if (lexer_.peek().isWord("static")) {
    import.isStatic = true;
    lexer_.next();
  } else if (lexer_.peek().isWord("module") && lexer_.peek(1).kind == Kind::Word) {
    import.isModule = true;
    lexer_.next();
  }
  import.name = takeQualifiedName();
  if (import.name.ends_with('.') && lexer_.peek().isMark('*')) import.name += lexer_.next().text;
  if (!import.name.empty()) outline_.imports.push_back(std::move(import));
}

/// Words with dots between them, and a dot that no word follows.
std::string OutlineReader::takeQualifiedName() {
  std::string name;
  while (lexer_.peek().kind == Kind::Word) {
    name += lexer_.next().text;
    if (!lexer_.peek().isMark('.')) break;
    name += lexer_.next().text;
  }
  return name;
}

/// False, without a move, if no type begins there.
bool OutlineReader::takeType(const Lexeme& first, const Modifiers& modifiers) {
  const auto kind = kindOf(first, modifiers);
  if (!kind || lexer_.peek().kind != Kind::Word || (kind == TypeKind::Record && !isRecord())) return false;
  OpenType open{outline_.types.size(), *kind, lexer_.next().text, modifiers, kind == TypeKind::Enum,
                MainMethods(*kind)};
  OutlineType type;
  if (!takeHeader(type, open.mains)) return true;
  type.kind = *kind;
  type.name = open.name;
  if (!open_.empty()) type.parent = open_.back().place;
  type.isPublic = modifiers.access == Modifiers::Access::Public;
  type.isSealed = modifiers.isSealed;
  type.lead = text_.sourceOffset(modifiers.lead);
  type.begin = text_.sourceOffset(modifiers.begin);
  outline_.types.push_back(std::move(type));
  open_.push_back(open);
  return true;
}

/// Behind the word "record", which may be a name as well.
bool OutlineReader::isRecord() {
  const Lexeme behindName = lexer_.peek(1);
  return behindName.isMark('(') || behindName.isMark('<');
}

/// From behind the name to behind the brace that opens the body; false if there is none.
bool OutlineReader::takeHeader(OutlineType& type, MainMethods& mains) {
  std::vector<std::string>* list = nullptr;
  bool wantsName = false;
  bool isBehindDot = false;
  for (;;) {
    const std::size_t before = lexer_.offset();
    const Lexeme lexeme = lexer_.next();
    if (lexeme.isMark('{')) return true;
    if (lexeme.isMark(';') || lexeme.kind == Kind::End) return false;
    if (lexeme.isMark('}')) {
      lexer_.returnTo(before);
      return false;
    }
    if (lexeme.isMark('<')) lexer_.passAngles();
    if (lexeme.isMark('@')) lexer_.passAnnotation();
    if (lexeme.isMark('(')) {
      if (!lexer_.peek().isMark(')')) mains.addComponents();
      lexer_.passParentheses();
    }
    if (lexeme.isMark('.')) isBehindDot = wantsName = true;
    if (lexeme.isMark(',')) wantsName = true;
    if (lexeme.kind != Kind::Word) continue;
    if (wantsName) {
      if (list && isBehindDot && !list->empty())
        list->back().append(1, '.').append(lexeme.text);
      else if (list)
        list->emplace_back(lexeme.text);
      isBehindDot = wantsName = false;
      continue;
    }
    wantsName = true;
    if (lexeme.text == "extends") {
      list = &type.extendsList;
    } else if (lexeme.text == "implements") {
      list = &type.implementsList;
    } else {
      list = nullptr;
      wantsName = type.namesPermitted = lexeme.text == "permits";
    }
  }
}

/// One step in the list of an enum's constants. Their arguments and annotations need no look: what ends the list stands
/// there only within braces.
void OutlineReader::readConstant() {
  const Lexeme lexeme = lexer_.next();
  if (lexeme.kind == Kind::End) atEnd_ = true;
  if (lexeme.isMark('{')) lexer_.passBlock();
  if (lexeme.isMark(';')) open_.back().inConstants = false;
  if (lexeme.isMark('}')) finishType();
}

/// Ends the innermost type here.
void OutlineReader::finishType() {
  const OpenType open = std::move(open_.back());
  open_.pop_back();
  OutlineType& type = outline_.types[open.place];
  type.end = text_.sourceOffset(lexer_.offset());
  type.main = open.mains.result(open.modifiers, isInner(open));
  if (open_.empty() && type.kind == TypeKind::Class && !open.modifiers.isStatic && type.main == MainMethod::Newer &&
      open.mains.result(open.modifiers, true) == MainMethod::None)
    innerIfCompact_.push_back(open.place);
}

/// Of a type that is no longer open, but what it is a member of is.
bool OutlineReader::isInner(const OpenType& type) const {
  return type.kind == TypeKind::Class && !type.modifiers.isStatic && !open_.empty() && !isInterface(open_.back().kind);
}

void OutlineReader::Head::add(const Lexeme& lexeme) {
  beforeLast = std::exchange(last, lexeme);
  ++count;
}

bool OutlineReader::Head::isDeclared() const {
  if (last.kind != Kind::Word) return false;
  // Angle brackets that nothing comes before hold a method's own type parameters.
  return beforeLast.kind == Kind::Word || beforeLast.isMark(']') || (beforeLast.isMark('<') && count > 2);
}

void OutlineReader::readMember(const Lexeme& first, const Modifiers& modifiers) {
  Head head;
  for (Lexeme lexeme = first; lexeme.kind != Kind::End; lexeme = lexer_.next()) {
    const char mark = lexeme.kind == Kind::Mark ? lexeme.text.front() : '\0';
    if (mark == '@') {
      lexer_.passAnnotation();
      continue;
    }
    if (mark == '(') return readMethod(head, modifiers);
    if (mark == '=' || mark == ';' || mark == ',' || mark == '[') noteMember(head);
    if (mark == '=') return lexer_.passToSemicolon();
    if (mark == ';') return;
    if (mark == '}') return lexer_.returnTo(lexeme.begin);
    if (mark == '{') {
      // A record's constructor needs no parameters of its own.
      if (namesConstructor(head)) mains().addConstructor(modifiers, mains().hasComponents());
      return lexer_.passBlock();
    }
    if (mark == '<') lexer_.passAngles();
    head.add(lexeme);
  }
}

/// From behind its opening parenthesis to its end.
void OutlineReader::readMethod(const Head& head, const Modifiers& modifiers) {
  noteMember(head);
  if (head.last.isWord("main") && head.beforeLast.isWord("void")) {
    mains().addMain(modifiers, MainMethods::readParameters(lexer_));
  } else {
    if (namesConstructor(head)) mains().addConstructor(modifiers, !lexer_.peek().isMark(')'));
    lexer_.passParentheses();
  }
  passMethodsRest();
}

/// From behind the parameters on. The default value of an annotation's element ends as a body does, or before its
/// semicolon.
void OutlineReader::passMethodsRest() {
  for (;;) {
    const Lexeme lexeme = lexer_.next();
    if (lexeme.isMark(';') || lexeme.kind == Kind::End) return;
    if (lexeme.isMark('{')) return lexer_.passBlock();
    if (lexeme.isMark('}')) return lexer_.returnTo(lexeme.begin);
    if (lexeme.isMark('@')) lexer_.passAnnotation();
  }
}

bool OutlineReader::namesConstructor(const Head& head) const {
  if (open_.empty() || !head.last.isWord(open_.back().name)) return false;
  return head.count == 1 || (head.count == 2 && head.beforeLast.isMark('<'));
}

/// A method or field outside of all types.
void OutlineReader::noteMember(const Head& head) {
  if (open_.empty() && head.isDeclared()) outline_.isCompact = true;
}

void OutlineReader::makeCompact() {
  for (const std::size_t place : innerIfCompact_) outline_.types[place].main = MainMethod::None;
  for (OutlineType& type : outline_.types) type.parent = type.parent ? *type.parent + 1 : 0;
  OutlineType whole;
  whole.name = fileName_;
  whole.end = size_;
  whole.main = mainsOfFile_.result({}, false);
  outline_.types.insert(outline_.types.begin(), std::move(whole));
}

JavaOutline outlineOf(std::string source, const std::string& fileName) {
  return OutlineReader(std::move(source), fileName).run();
}

JavaOutline outlineOfFile(std::string source, const std::string& fileName) {
  JavaOutline outline = outlineOf(std::move(source), fileName);
  const auto spell = [](std::string& name) { name = platform::fileNameOf(name); };
  spell(outline.package);
  for (auto& import : outline.imports) spell(import.name);
  for (auto& type : outline.types) {
    spell(type.name);
    for (auto* names : {&type.extendsList, &type.implementsList}) std::for_each(names->begin(), names->end(), spell);
  }
  return outline;
}

}  // namespace tarnwick
