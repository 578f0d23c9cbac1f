// What a look at a Java source finds of its types, in any version of the language.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

enum class TypeKind { Class, Interface, Enum, Record, Annotation };

/// Where a program may begin in a type of its own; a method that is inherited is not seen.
enum class MainMethod {
  None,
  Classic,  ///< `public static void main` with an array of strings
  Newer,    ///< one that only a JDK of version 25 or newer starts: not public, not static, or without parameters
};

/// A type at the top of a source, or a member of such a type. Types inside of methods, initialisers and enum constants
/// are not entered.
struct OutlineType {
  /// True if `java` of that version can begin with this type's own main method.
  bool hasMain(int javaVersion) const;

  TypeKind kind = TypeKind::Class;
  std::string name;                   ///< the simple name
  std::optional<std::size_t> parent;  ///< the place in `JavaOutline::types` of the type that this is a member of
  bool isPublic = false;              ///< it says so itself
  bool isSealed = false;
  bool namesPermitted = false;  ///< it has a list of `permits`
  MainMethod main = MainMethod::None;
  // The names as they stand in the source, without type arguments and annotations.
  std::vector<std::string> extendsList;  ///< in an interface any number, else at most one
  std::vector<std::string> implementsList;
  // Places in the source, as numbers of bytes.
  std::size_t lead = 0;   ///< where the piece of text before it ends; its comments stand from here on
  std::size_t begin = 0;  ///< its first modifier or annotation, or its keyword
  std::size_t end = 0;    ///< behind its closing brace; the end of the text if that is missing
};

struct OutlineImport {
  std::string name;  ///< without blanks, as in "java.util.*"
  bool isStatic = false;
  bool isModule = false;
};

/// The outline of a source.
struct JavaOutline {
  /// The name of a class file without folder and extension, as in "Outer$Inner".
  std::string binaryName(const OutlineType& type) const;
  /// The same behind the package and a dot.
  std::string fullName(const OutlineType& type) const;
  /// The type of that full name; null if it is not declared here.
  const OutlineType* find(std::string_view fullName) const;

  std::string package;  ///< empty for the unnamed package
  bool packageIsAnnotated = false;
  std::string module;  ///< the module that is declared here; empty if none is
  bool moduleIsOpen = false;
  std::vector<OutlineImport> imports;
  /// Methods or fields stand outside of all types. The first type is then the class that the file itself is, from its
  /// first byte to its last, and all others are members.
  bool isCompact = false;
  bool isCutOff = false;           ///< the text ends within a type
  std::vector<OutlineType> types;  ///< in the order of the source, each before its members
};

/// The outline of a source that lies in a file, by a walk of OutlineReader. Its names are spelled as the system spells
/// those of files, so that they tell where sources and classes lie, whatever the source is written in.
JavaOutline outlineOfFile(std::string source, const std::string& fileName);

}  // namespace tarnwick
