// What is known of one type at the top of a source.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarnwick {

/// The head of a class or an interface.
class SourceType {
 public:
  virtual ~SourceType() = default;

  virtual void clear();
  virtual std::size_t extendsCount() const { return extendsList.size(); }

  std::string name;  ///< the simple name as it stands in the source
  bool isPublic = false;
  std::vector<std::string> extendsList;     ///< for a class at most one name
  std::vector<std::string> implementsList;  ///< empty in an interface

 protected:
  SourceType() = default;
  SourceType(std::string typeName, bool isPublicType);
  SourceType(const SourceType&) = default;
  /// Appends the lists of the other to its own: only a cleared record takes over just what the other has.
  SourceType& operator=(const SourceType& other);
};

class SourceClass : public SourceType {
 public:
  SourceClass() = default;
  SourceClass(std::string className, bool isPublicClass);
  SourceClass(const SourceClass&) = default;
  SourceClass& operator=(const SourceClass&) = default;

  void clear() override;
  virtual std::size_t implementsCount() const { return implementsList.size(); }

  int mainCount = 0;  ///< methods recognised as main methods
};

class SourceInterface : public SourceType {
 public:
  SourceInterface() = default;
  SourceInterface(std::string interfaceName, bool isPublicInterface);
};

}  // namespace tarnwick
