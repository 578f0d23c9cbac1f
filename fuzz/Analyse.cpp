// The outline of a Java source: of any text the analysis comes to an end, always to the same one, and leaves the file
// alone; of a sound source it finds all types. The first byte chooses whether the rest is a source or the shape of one.
#include "JavaText.h"
#include "MemoryFile.h"
#include "Property.h"
#include "source/Compiler.h"
#include "source/JavaSourcefile.h"

#include <algorithm>

namespace tarnwick::fuzz {
namespace {

std::string joined(const std::vector<std::string>& names) {
  std::string text;
  for (const auto& name : names) text += name + ',';
  return text;
}

/// The whole model in one text, and what the analysis failed with.
std::string outlineOf(JavaSourcefile& source) {
  std::string text;
  try {
    source.analyse();
  } catch (const Compiler::CannotCompileE& failure) {
    text = "failure " + failure.message + '\n';
    require(!failure.message.empty(), "a failure says why");
  }
  text += "package " + source.package() + '\n';
  for (const auto& type : source.types()) {
    const auto* asClass = dynamic_cast<const SourceClass*>(type.get());
    text += (asClass ? "class " : "interface ") + type->name + (type->isPublic ? " public" : "") + " extends " +
            joined(type->extendsList) + " implements " + joined(type->implementsList) + " mains " +
            std::to_string(asClass ? asClass->mainCount : 0) + '\n';
  }
  return text;
}

std::string outlineOf(const JavaText& java) {
  std::string text = "package " + java.package() + '\n';
  for (const auto& type : java.types())
    text += (type.isClass ? "class " : "interface ") + type.name + (type.isPublic ? " public" : "") + " extends " +
            joined(type.extendsList) + " implements " + joined(type.implementsList) + " mains " +
            std::to_string(type.mainCount) + '\n';
  return text;
}

void requireWholeModel(const JavaSourcefile& source) {
  require(source.types().size() == source.classes().size() + source.interfaces().size(), "each type is of one kind");
  for (const auto& one : source.classes()) {
    require(std::count(source.types().begin(), source.types().end(), one) == 1, "each class is among the types");
    require(one->extendsList.size() <= 1, "a class extends one name at most");
  }
  for (const auto& one : source.interfaces()) {
    require(std::count(source.types().begin(), source.types().end(), one) == 1, "each interface is among the types");
    require(one->implementsList.empty(), "an interface implements nothing");
  }
}

/// The class with the only main method; a failure if there are several.
void requireMainClass(const JavaSourcefile& source) {
  int mains = 0;
  std::string name;
  for (const auto& one : source.classes()) {
    mains += one->mainCount;
    if (one->mainCount != 0) name = (source.package().empty() ? "" : source.package() + ".") + one->name;
  }
  bool several = false;
  try {
    const std::string found = source.mainClass();
    if (mains <= 1) requireSame(found, name, "the main class is the one with a main method");
  } catch (const JavaSourcefile::MultiplePublicStaticVoidMainE&) {
    several = true;
  }
  require(several == (mains > 1), "several main methods are refused");
}

std::string analyse(const std::string& text) {
  const MemoryFile content(text);
  JavaSourcefile source(content.path(), FileMode::Read);
  const std::string outline = outlineOf(source);
  requireWholeModel(source);
  requireMainClass(source);
  requireSame(outlineOf(source), outline, "a second analysis gives the same");
  requireSame(content.content(), text, "the source is not touched");
  return outline;
}

}  // namespace
}  // namespace tarnwick::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick::fuzz;
  if (size == 0) return 0;
  const std::string bytes = textOf(data + 1, size - 1);
  if (data[0] & 1) {
    const JavaText java(bytes);
    requireSame(analyse(java.source()), outlineOf(java), "the outline is that of the source");
  } else {
    analyse(bytes);
  }
  return 0;
}
