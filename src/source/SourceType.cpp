#include "source/SourceType.h"

#include <utility>

namespace tarnwick {

namespace {

void append(std::vector<std::string>& list, const std::vector<std::string>& other) {
  const std::size_t count = other.size();  // the two may be one
  list.reserve(list.size() + count);
  for (std::size_t i = 0; i < count; ++i) list.push_back(other[i]);
}

}  // namespace

SourceType::SourceType(std::string typeName, bool isPublicType) : name(std::move(typeName)), isPublic(isPublicType) {}

SourceType& SourceType::operator=(const SourceType& other) {
  name = other.name;
  isPublic = other.isPublic;
  append(extendsList, other.extendsList);
  append(implementsList, other.implementsList);
  return *this;
}

void SourceType::clear() {
  name.clear();
  isPublic = false;
  extendsList.clear();
  implementsList.clear();
}

SourceClass::SourceClass(std::string className, bool isPublicClass) : SourceType(std::move(className), isPublicClass) {}

void SourceClass::clear() {
  SourceType::clear();
  mainCount = 0;
}

SourceInterface::SourceInterface(std::string interfaceName, bool isPublicInterface)
    : SourceType(std::move(interfaceName), isPublicInterface) {}

}  // namespace tarnwick
