#include "source/MainMethods.h"

#include <string>

namespace tarnwick {

namespace {

using Access = Modifiers::Access;
using Kind = Lexeme::Kind;

/// One parameter, as far as it has been read.
struct Parameter {
  std::string words;  ///< type and name, a blank behind each word but "final"
  int arrays = 0;
  bool isReceiver() const { return words.ends_with("this "); }
  /// Of whatever name, which is one word more.
  bool isStrings() const { return arrays == 1 && (isOneMoreThan("String ") || isOneMoreThan("java . lang . String ")); }

 private:
  bool isOneMoreThan(std::string_view type) const {
    return words.starts_with(type) && words.find(' ', type.size()) == words.size() - 1 && words.size() > type.size();
  }
};

}  // namespace

MainMethods::Parameters MainMethods::readParameters(JavaLexer& lexer) {
  Parameters found = Parameters::None;
  Parameter parameter;
  const auto endParameter = [&] {
    // The object itself may be named in front of the parameters.
    if (!parameter.words.empty() && !parameter.isReceiver())
      found = found == Parameters::None && parameter.isStrings() ? Parameters::Strings : Parameters::Other;
    parameter = {};
  };
  for (;;) {
    const std::size_t before = lexer.offset();
    const Lexeme lexeme = lexer.next();
    if (lexeme.kind == Kind::Word) {
      if (lexeme.text != "final") parameter.words += std::string(lexeme.text) + ' ';
    } else if (lexeme.isMark('.')) {
      // Three of them stand for an array.
      const bool isEllipsis = lexer.peek().isMark('.');
      if (isEllipsis) ++parameter.arrays;
      if (isEllipsis && lexer.next().isMark('.') && lexer.peek().isMark('.')) lexer.next();
      if (!isEllipsis) parameter.words += ". ";
    } else if (lexeme.isMark('[')) {
      ++parameter.arrays;
    } else if (lexeme.isMark('@')) {
      lexer.passAnnotation();
    } else if (lexeme.isMark('<')) {
      lexer.passAngles();
    } else if (lexeme.isMark(',')) {
      endParameter();
    } else if (lexeme.isMark(')')) {
      endParameter();
      return found;
    } else if (!lexeme.isMark(']')) {
      // No compiler takes that. It may be the end of the type.
      lexer.returnTo(before);
      return Parameters::Other;
    }
  }
}

void MainMethods::addMain(const Modifiers& modifiers, Parameters parameters) {
  const bool isInInterface = kind_ == TypeKind::Interface || kind_ == TypeKind::Annotation;
  const bool isPublic = modifiers.access == Access::Public || (isInInterface && modifiers.access == Access::Package);
  if (modifiers.access == Access::Private) return;
  const Callee callee = modifiers.isStatic ? Callee::Class : Callee::Object;
  if (parameters == Parameters::None) withNothing_ = callee;
  if (parameters != Parameters::Strings) return;
  withStrings_ = callee;
  if (isPublic && modifiers.isStatic) isClassic_ = true;
}

void MainMethods::addConstructor(const Modifiers& modifiers, bool hasParameters) {
  hasConstructor_ = true;
  if (hasParameters) return;
  withoutParameters_ = modifiers.access == Access::Private ? Constructor::Hidden : Constructor::Usable;
}

MainMethod MainMethods::result(const Modifiers& ofType, bool isInner) const {
  if (isClassic_) return MainMethod::Classic;
  // Of the two shapes the one with parameters is tried, whether it works or not.
  const Callee callee = withStrings_ != Callee::None ? withStrings_ : withNothing_;
  if (callee == Callee::Class) return MainMethod::Newer;
  return callee == Callee::Object && !isInner && canBeMade(ofType) ? MainMethod::Newer : MainMethod::None;
}

bool MainMethods::canBeMade(const Modifiers& ofType) const {
  if (withoutParameters_ != Constructor::None && (kind_ == TypeKind::Class || kind_ == TypeKind::Record))
    return withoutParameters_ == Constructor::Usable && !ofType.isAbstract;
  // One that nobody has written is as accessible as its type.
  const bool isImplied = kind_ == TypeKind::Record ? !hasComponents_ : kind_ == TypeKind::Class && !hasConstructor_;
  return isImplied && ofType.access != Access::Private && !ofType.isAbstract;
}

}  // namespace tarnwick
