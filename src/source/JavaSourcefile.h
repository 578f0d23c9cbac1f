#pragma once

#include "base/Tarnwickfile.h"
#include "source/SourceType.h"

#include <ctime>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick {

class TypeIndex;

/// What is known of one Java source without asking a compiler: its package and the types at its top.
class JavaSourcefile : public Tarnwickfile {
 public:
  struct MultiplePublicStaticVoidMainE : Tarnwickexception {
    using Tarnwickexception::Tarnwickexception;
  };

  /// No name, not open.
  JavaSourcefile() = default;
  /// The other's name; not open, mode `Undefined`.
  explicit JavaSourcefile(const Tarnwickfile& named);
  /// Opens the file at once. Throws FileNotOpenE.
  JavaSourcefile(const std::string& path, FileMode mode);
  /// Opens folder + name at once. Throws FileNotOpenE.
  JavaSourcefile(const std::string& folder, const std::string& name, FileMode mode);

  JavaSourcefile(const JavaSourcefile&) = delete;
  /// Takes the open state as a Tarnwickfile does, the time, and the other's classes and interfaces, but neither package
  /// nor `types`. Throws FileNotOpenE.
  JavaSourcefile& operator=(JavaSourcefile& source);

  /// Fills the model from the file. Throws Compiler::CannotCompileE in all failures; what was found before stays, and
  /// the next `isCurrent` gives false.
  void analyse();
  /// Forgets all types and the package.
  void clearTypes();
  /// A copy goes to the end of the classes and of the types.
  void addClass(const SourceClass& record);
  /// A copy goes to the end of the interfaces and of the types.
  void addInterface(const SourceInterface& record);

  /// True if the file has not changed since the last look. Callers analyse it if this is false.
  bool isCurrent();

  /// The qualified name of the class with a main method, or empty. Throws MultiplePublicStaticVoidMainE if there is
  /// more than one main method.
  std::string mainClass() const;

  /// True if the class file of each type is newer than this source and than the sources of all that the type is built
  /// on, as far as `typeIndex` knows them. `destination` is the setting JAVAC_DESTINATION.
  bool isUpToDate(const TypeIndex& typeIndex, const std::string& destination, const std::string& projectFolder) const;

  /// Empty for the unnamed package.
  const std::string& package() const { return package_; }
  void setPackage(const std::string& package) { package_ = package; }
  // All in the order of the source. The records live as long as somebody holds them.
  const std::vector<std::shared_ptr<SourceClass>>& classes() const { return classes_; }
  const std::vector<std::shared_ptr<SourceInterface>>& interfaces() const { return interfaces_; }
  const std::vector<std::shared_ptr<SourceType>>& types() const { return types_; }
  /// The time of the file's last change at the last look.
  std::time_t timestamp() const { return timestamp_; }

 private:
  static std::time_t earlyMarker();
  bool isUpToDate(const SourceType& type, const TypeIndex& typeIndex, const std::string& targetFolder) const;

  std::string package_;
  std::vector<std::shared_ptr<SourceClass>> classes_;
  std::vector<std::shared_ptr<SourceInterface>> interfaces_;
  std::vector<std::shared_ptr<SourceType>> types_;
  std::time_t timestamp_ = earlyMarker();
};

}  // namespace tarnwick
