#pragma once

#include "source/JavaLexer.h"
#include "source/JavaOutline.h"
#include "source/Modifiers.h"

#include <cstdint>

namespace tarnwick {

/// Collects what decides whether a program can begin in a type: its main methods, and for those that want an object
/// whether one can be made without arguments.
class MainMethods {
 public:
  /// As far as main methods have such.
  enum class Parameters : std::uint8_t { None, Strings, Other };

  MainMethods() = default;
  /// Of a type of that kind.
  explicit MainMethods(TypeKind kind) : kind_(kind) {}

  /// Behind the opening parenthesis: reads to behind the closing one, or to before what can't stand there.
  static Parameters readParameters(JavaLexer& lexer);

  void addMain(const Modifiers& modifiers, Parameters parameters);
  void addConstructor(const Modifiers& modifiers, bool hasParameters);
  /// The record has a constructor with parameters from its head.
  void addComponents() { hasComponents_ = true; }

  bool hasComponents() const { return hasComponents_; }
  /// The outcome for a type with these modifiers; `isInner` if its objects belong to objects of an outer type.
  MainMethod result(const Modifiers& ofType, bool isInner) const;

 private:
  /// What a main method is called on.
  enum class Callee : std::uint8_t { None, Object, Class };
  enum class Constructor : std::uint8_t { None, Hidden, Usable };

  bool canBeMade(const Modifiers& ofType) const;

  TypeKind kind_ = TypeKind::Class;
  bool hasComponents_ = false;
  bool hasConstructor_ = false;
  Constructor withoutParameters_ = Constructor::None;
  bool isClassic_ = false;
  Callee withStrings_ = Callee::None;
  Callee withNothing_ = Callee::None;
};

}  // namespace tarnwick
