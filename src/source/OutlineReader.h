#pragma once

#include "source/DecodedText.h"
#include "source/JavaLexer.h"
#include "source/JavaOutline.h"
#include "source/MainMethods.h"
#include "source/Modifiers.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// One walk over a Java source of any version of the language. It is no parser: it takes what a compiler would take and
/// looks for no fault, so that what no compiler takes has some outline, too. Its time is linear in the text's length.
class OutlineReader {
 public:
  /// `fileName`, without folder and extension, names the class that a compact source is. It must outlive this object.
  OutlineReader(std::string source, const std::string& fileName);

  /// To be called once.
  JavaOutline run();

 private:
  /// A type whose body is being read.
  struct OpenType {
    std::size_t place = 0;  ///< in the outline
    TypeKind kind = TypeKind::Class;
    std::string_view name;
    Modifiers modifiers;
    bool inConstants = false;  ///< of an enum
    MainMethods mains;
  };

  /// A member up to the present lexeme, without its modifiers.
  struct Head {
    void add(const Lexeme& lexeme);
    /// True if the last lexeme is a name behind a type.
    bool isDeclared() const;

    Lexeme last;
    Lexeme beforeLast;
    unsigned count = 0;
  };

  void readDeclaration();
  bool takeDirective(const Lexeme& first, const Modifiers& modifiers);
  bool takeModule(const Lexeme& first);
  void takeImport();
  std::string takeQualifiedName();
  bool takeType(const Lexeme& first, const Modifiers& modifiers);
  bool isRecord();
  bool takeHeader(OutlineType& type, MainMethods& mains);
  void readConstant();
  void finishType();
  bool isInner(const OpenType& type) const;
  void readMember(const Lexeme& first, const Modifiers& modifiers);
  void readMethod(const Head& head, const Modifiers& modifiers);
  void passMethodsRest();
  bool namesConstructor(const Head& head) const;
  MainMethods& mains() { return open_.empty() ? mainsOfFile_ : open_.back().mains; }
  void noteMember(const Head& head);
  void makeCompact();

  const std::string& fileName_;
  std::size_t size_;  ///< of the source
  DecodedText text_;
  JavaLexer lexer_;
  JavaOutline outline_;
  std::vector<OpenType> open_;
  MainMethods mainsOfFile_;
  std::vector<std::size_t> innerIfCompact_;  ///< types whose main method then has no object to be called on
  bool atEnd_ = false;
};

/// The outline of a source in memory; see OutlineReader.
JavaOutline outlineOf(std::string source, const std::string& fileName);

}  // namespace tarnwick
