#include "source/OutlineTypes.h"

#include "source/JavaSourcefile.h"

#include <algorithm>
#include <utility>

namespace tarnwick {

namespace {

/// The class file's name of a type that `user` is built on. Members are known by their simple names in the types around
/// them. A name of another package stays as it is: no type of the model is called so.
std::string nameSeenFrom(const OutlineType& user, const std::string& name, const JavaOutline& outline) {
  const auto point = name.find('.');
  const std::string first = name.substr(0, point);
  const auto isMemberOf = [&](std::size_t outer) {
    return std::any_of(outline.types.begin(), outline.types.end(),
                       [&](const auto& type) { return type.parent == outer && type.name == first; });
  };
  std::string found = name;
  for (auto outer = user.parent; outer; outer = outline.types[*outer].parent) {
    if (!isMemberOf(*outer)) continue;
    found = outline.binaryName(outline.types[*outer]) + '$' + name;
    break;
  }
  const bool beginsWithPackage = !first.empty() && first.front() >= 'a' && first.front() <= 'z';
  if (!beginsWithPackage) std::replace(found.begin(), found.end(), '.', '$');
  return found;
}

template <typename Record>
Record recordOf(const OutlineType& type, const JavaOutline& outline) {
  Record record(outline.binaryName(type), type.isPublic);
  for (const auto& name : type.extendsList) record.extendsList.push_back(nameSeenFrom(type, name, outline));
  for (const auto& name : type.implementsList) record.implementsList.push_back(nameSeenFrom(type, name, outline));
  return record;
}

bool isClass(const OutlineType& type) {
  return type.kind != TypeKind::Interface && type.kind != TypeKind::Annotation;
}

}  // namespace

void enterTypes(const JavaOutline& outline, int javaVersion, JavaSourcefile& file) {
  file.setPackage(outline.package);
  std::vector<std::string> imports;
  for (const auto& import : outline.imports)
    if (!import.isModule) imports.push_back(import.name);
  file.setImports(std::move(imports));
  for (const auto& type : outline.types) {
    if (isClass(type) || type.hasMain(javaVersion)) {
      auto record = recordOf<SourceClass>(type, outline);
      record.mainCount = !type.parent && type.hasMain(javaVersion) ? 1 : 0;
      file.addClass(record);
    } else {
      file.addInterface(recordOf<SourceInterface>(type, outline));
    }
  }
}

}  // namespace tarnwick
