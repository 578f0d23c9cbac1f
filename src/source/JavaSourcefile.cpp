#include "source/JavaSourcefile.h"

#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "settings/PathRules.h"
#include "source/Compiler.h"
#include "source/SourceOutline.h"
#include "source/TypeIndex.h"

#include <algorithm>
#include <optional>

namespace tarnwick {

namespace {

Compiler::CannotCompileE cannotProcess(const std::string& message, const std::string& file) {
  return Compiler::CannotCompileE(message + "\nCan't process file " + file);
}

/// Where the compiler puts the classes of a package.
std::string packageFolder(const std::string& destination, const std::string& projectFolder, std::string package) {
  std::replace(package.begin(), package.end(), '.', platform::folderSeparator);
  return Filename(classFolder(destination, projectFolder), package).fullName();
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

void JavaSourcefile::analyse() {
  try {
    SourceReader reader(*this);
    clearTypes();
    SourceOutline(*this, reader).run();
  } catch (const FileNotOpenE& failure) {
    timestamp_ = earlyMarker();
    throw cannotProcess(failure.message, failure.file);
  } catch (const SourceReader::BadDataE& failure) {
    timestamp_ = earlyMarker();
    throw cannotProcess(failure.message, failure.file);
  } catch (const Compiler::CannotCompileE&) {
    timestamp_ = earlyMarker();
    throw;
  }
}

void JavaSourcefile::clearTypes() {
  classes_.clear();
  interfaces_.clear();
  while (!types_.empty()) types_.pop_back();
  package_.clear();
}

void JavaSourcefile::addClass(const SourceClass& record) {
  classes_.push_back(std::make_shared<SourceClass>(record));
  types_.push_back(classes_.back());
}

void JavaSourcefile::addInterface(const SourceInterface& record) {
  interfaces_.push_back(std::make_shared<SourceInterface>(record));
  types_.push_back(interfaces_.back());
}

bool JavaSourcefile::isCurrent() {
  const auto now = platform::lastChange(name().fullName());
  if (!now) return false;
  return std::exchange(timestamp_, *now) == *now;
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
  return package_.empty() ? found->name : package_ + '.' + found->name;
}

bool JavaSourcefile::isUpToDate(const TypeIndex& typeIndex, const std::string& destination,
                                const std::string& projectFolder) const {
  const std::string targetFolder = packageFolder(destination, projectFolder, package_);
  return std::all_of(types_.rbegin(), types_.rend(),
                     [&](const auto& type) { return isUpToDate(*type, typeIndex, targetFolder); });
}

bool JavaSourcefile::isUpToDate(const SourceType& type, const TypeIndex& typeIndex,
                                const std::string& targetFolder) const {
  const auto classTime = typeIndex.timeOfClass(Filename(targetFolder, type.name + ".class").fullName());
  if (typeIndex.first(type.name)) {
    const auto sourceTime = typeIndex.timeOf(*this);
    // A class of the same second counts as out of date.
    if (!sourceTime || !classTime || *sourceTime >= *classTime) return false;
  }
  const auto passes = [&](const std::string& supertype) { return typeIndex.isOlder(supertype, classTime); };
  return std::all_of(type.extendsList.begin(), type.extendsList.end(), passes) &&
         std::all_of(type.implementsList.begin(), type.implementsList.end(), passes);
}

}  // namespace tarnwick
