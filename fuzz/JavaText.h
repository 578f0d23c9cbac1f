#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::fuzz {

/// A sound Java source whose shape the bytes of an input choose, and what is to be found in it.
class JavaText {
 public:
  struct Type {
    bool isClass = true;
    std::string name;
    bool isPublic = false;
    std::vector<std::string> extendsList;
    std::vector<std::string> implementsList;
    int mainCount = 0;
    std::string piece;  ///< package and imports so far, and the type, without comments
  };

  explicit JavaText(std::string_view choices);

  const std::string& source() const { return source_; }
  const std::string& package() const { return package_; }
  const std::vector<Type>& types() const { return types_; }

 private:
  /// A number below `count`; 0 when the choices are used up.
  unsigned choice(unsigned count);
  void write(std::string_view text);
  void gap();
  std::string name(char letter);
  void addImport();
  void addType();
  void addMembers(Type& type);
  void addMain(Type& type);
  std::vector<std::string> names(std::string_view word, unsigned most);

  std::string_view choices_;
  std::string source_;
  std::string delivered_;  ///< the source without comments, from the last statement's end on
  std::string head_;
  std::string package_;
  std::vector<Type> types_;
  int named_ = 0;
};

}  // namespace tarnwick::fuzz
