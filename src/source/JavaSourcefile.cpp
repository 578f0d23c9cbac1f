#include "source/JavaSourcefile.h"

#include "base/ClassFile.h"
#include "platform/FileSystem.h"
#include "settings/PathRules.h"
#include "source/CompileFailures.h"
#include "source/JavaOutline.h"
#include "source/OutlineTypes.h"
#include "source/SourceOutline.h"
#include "source/SourceText.h"
#include "source/TypeIndex.h"

#include <algorithm>
#include <optional>

namespace tarnwick {

namespace {

CannotCompileE cannotProcess(const std::string& message, const std::string& file) {
  return CannotCompileE(message + "\nCan't process file " + file);
}

/// The class, without extension, that the compiler makes of a source that describes a module or a package; empty if it
/// makes none.
std::string describedClass(const JavaOutline& outline) {
  if (!outline.module.empty()) return "module-info";
  return outline.packageIsAnnotated ? "package-info" : "";
}

}  // namespace

JavaSourcefile::JavaSourcefile(const Tarnwickfile& named) : Tarnwickfile(named.name(), FileMode::Undefined) {}

JavaSourcefile::JavaSourcefile(const std::string& path, FileMode mode) : Tarnwickfile(path, mode) {}

JavaSourcefile::JavaSourcefile(const std::string& folder, const std::string& name, FileMode mode)
    : Tarnwickfile(folder, name, mode) {}

JavaSourcefile& JavaSourcefile::operator=(JavaSourcefile& source) {
  if (&source == this) return *this;
  timestamp_ = source.timestamp_;
  classes_ = source.classes_;
  interfaces_ = source.interfaces_;
  reading_ = source.reading_;
  description_ = source.description_;
  Tarnwickfile::operator=(source);
  return *this;
}

std::time_t JavaSourcefile::earlyMarker() {
  static const std::time_t marker = [] {
    std::tm early{};
    early.tm_year = 80;
    early.tm_mday = 1;
    early.tm_hour = early.tm_min = early.tm_sec = 1;
    early.tm_isdst = -1;
    return std::mktime(&early);
  }();
  return marker;
}

void JavaSourcefile::analyse(JavaReading reading) {
  reading_ = reading;
  try {
    reading.newer ? analyseNewer() : analyseClassic();
  } catch (const FileNotOpenE& failure) {
    timestamp_ = earlyMarker();
    throw cannotProcess(failure.message, failure.file);
  } catch (const SourceReader::BadDataE& failure) {
    timestamp_ = earlyMarker();
    throw RefusedE(cannotProcess(failure.message, failure.file), name().fullName());
  } catch (const CannotCompileE& failure) {
    timestamp_ = earlyMarker();
    throw RefusedE(failure, name().fullName());
  }
}

void JavaSourcefile::analyseClassic() {
  SourceReader reader(*this);
  clearTypes();
  SourceOutline(*this, reader).run();
}

void JavaSourcefile::analyseNewer() {
  const JavaOutline outline = outlineOfFile(sourceText(name().fullName()), name().baseName());
  clearTypes();
  enterTypes(outline, reading_.javaVersion, *this);
  description_ = describedClass(outline);
}

void JavaSourcefile::clearTypes() {
  classes_.clear();
  interfaces_.clear();
  while (!types_.empty()) types_.pop_back();
  scope_ = {};
  description_.clear();
}

void JavaSourcefile::addClass(const SourceClass& record) {
  classes_.push_back(std::make_shared<SourceClass>(record));
  types_.push_back(classes_.back());
}

void JavaSourcefile::addInterface(const SourceInterface& record) {
  interfaces_.push_back(std::make_shared<SourceInterface>(record));
  types_.push_back(interfaces_.back());
}

bool JavaSourcefile::isCurrent(JavaReading reading) {
  const auto now = platform::lastChange(name().fullName());
  if (!now) return false;
  return std::exchange(timestamp_, *now) == *now && reading == reading_;
}

std::string JavaSourcefile::mainClass() const {
  const SourceClass* found = nullptr;
  long long count = 0;
  for (const auto& candidate : classes_) {
    if (candidate->mainCount == 0) continue;
    found = candidate.get();
    count += candidate->mainCount;
    // The text speaks of one class, even where two have one main method each; and no blank stands before the bracket.
    if (count > 1)
      throw MultiplePublicStaticVoidMainE("Class " + found->name + "(File " + name().quoted() +
                                          ") has multiple main() methods.\n");
  }
  if (!found) return {};
  return package().empty() ? found->name : package() + '.' + found->name;
}

std::string JavaSourcefile::indexedName(const SourceType& type) const {
  return reading_.newer && !package().empty() ? package() + '.' + type.name : type.name;
}

std::vector<std::string> JavaSourcefile::meaningsOf(const std::string& supertype) const {
  return reading_.newer ? possibleNames(supertype, scope_) : std::vector{supertype};
}

/// Where the compiler puts the classes.
std::string JavaSourcefile::classFolderOf(const std::string& destination, const std::string& projectFolder) const {
  const bool inRoot = reading_.newer && classesFollowPackages(destination);
  return Filename(inRoot ? root() : classFolder(destination, projectFolder), foldersOfPackage(package())).fullName();
}

bool JavaSourcefile::isUpToDate(const TypeIndex& typeIndex, const std::string& destination,
                                const std::string& projectFolder) const {
  const std::string targetFolder = classFolderOf(destination, projectFolder);
  if (!description_.empty()) {
    const auto sourceTime = typeIndex.timeOf(*this);
    const std::string classFile = Filename(targetFolder, description_ + ".class").fullName();
    const auto classTime = typeIndex.timeOfClass(classFile);
    if (!sourceTime || !classTime || *sourceTime > *classTime || !canRun(classFile, *classTime)) return false;
  }
  return std::all_of(types_.rbegin(), types_.rend(),
                     [&](const auto& type) { return isUpToDate(*type, typeIndex, targetFolder); });
}

bool JavaSourcefile::canRun(const std::string& classFile, std::time_t classTime) const {
  if (!reading_.newer || reading_.javaVersion == 0) return true;
  const auto [seen, isNew] = seenClasses_.try_emplace(classFile);
  if (isNew || seen->second.time != classTime) seen->second = {classTime, classFileVersion(classFile).value_or(0)};
  return seen->second.javaVersion <= reading_.javaVersion;
}

bool JavaSourcefile::isUpToDate(const SourceType& type, const TypeIndex& typeIndex,
                                const std::string& targetFolder) const {
  const std::string classFile = Filename(targetFolder, type.name + ".class").fullName();
  const auto classTime = typeIndex.timeOfClass(classFile);
  if (typeIndex.first(indexedName(type))) {
    const auto sourceTime = typeIndex.timeOf(*this);
    if (!sourceTime || !classTime || *sourceTime > *classTime) return false;
    // Deliberate: a class of the same second counts as out of date, but no longer in the newer way.
    if (!reading_.newer && *sourceTime == *classTime) return false;
    if (!canRun(classFile, *classTime)) return false;
  }
  const auto passes = [&](const std::string& supertype) { return typeIndex.isOlder(*this, supertype, classTime); };
  return std::all_of(type.extendsList.begin(), type.extendsList.end(), passes) &&
         std::all_of(type.implementsList.begin(), type.implementsList.end(), passes);
}

}  // namespace tarnwick
