#include "support/source/OutlineText.h"

#include <vector>

namespace tarnwick::test {

namespace {

const char* nameOf(TypeKind kind) {
  switch (kind) {
    case TypeKind::Class:
      return "class";
    case TypeKind::Interface:
      return "interface";
    case TypeKind::Enum:
      return "enum";
    case TypeKind::Record:
      return "record";
    case TypeKind::Annotation:
      return "annotation_type";
  }
  return "";
}

std::string listText(const char* word, const std::vector<std::string>& names) {
  std::string text = names.empty() ? "" : word;
  for (const std::string& name : names) text += ' ' + name;
  return text;
}

std::string typeText(const JavaOutline& outline, const OutlineType& type) {
  std::string text = std::string("type ") + nameOf(type.kind) + ' ' + outline.binaryName(type);
  if (type.isPublic) text += " public";
  if (type.isSealed) text += " sealed";
  if (type.namesPermitted) text += " permits";
  text += ' ' + std::to_string(type.begin) + ' ' + std::to_string(type.end);
  text += listText(" extends", type.extendsList) + listText(" implements", type.implementsList);
  if (type.main == MainMethod::Classic) text += " main classic";
  if (type.main == MainMethod::Newer) text += " main newer";
  return text + '\n';
}

}  // namespace

std::string outlineText(const JavaOutline& outline) {
  std::string text;
  if (!outline.package.empty())
    text += "package " + outline.package + (outline.packageIsAnnotated ? " annotated" : "") + '\n';
  for (const OutlineImport& import : outline.imports)
    text += std::string("import ") + (import.isStatic ? "static " : "") + (import.isModule ? "module " : "") +
            import.name + '\n';
  if (!outline.module.empty()) text += "module " + outline.module + (outline.moduleIsOpen ? " open" : "") + '\n';
  if (outline.isCompact) text += "compact\n";
  for (const OutlineType& type : outline.types) text += typeText(outline, type);
  return text;
}

}  // namespace tarnwick::test
