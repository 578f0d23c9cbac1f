#pragma once

#include "base/PackageRoot.h"
#include "base/Tarnwickfile.h"
#include "source/JavaReading.h"
#include "source/SourceType.h"
#include "source/TypeNames.h"

#include <ctime>
#include <memory>
#include <string>
#include <unordered_map>
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
  /// the next `isCurrent` gives false. Read the newer way, a source fails only if it can't be opened.
  void analyse(JavaReading reading = {});
  /// Forgets all types and the package.
  void clearTypes();
  /// A copy goes to the end of the classes and of the types.
  void addClass(const SourceClass& record);
  /// A copy goes to the end of the interfaces and of the types.
  void addInterface(const SourceInterface& record);

  /// True if the file has not changed since the last look, and was read as it is to be read now. Callers analyse it if
  /// this is false.
  bool isCurrent(JavaReading reading = {});

  /// The qualified name of the class with a main method, or empty. Throws MultiplePublicStaticVoidMainE if there is
  /// more than one main method.
  std::string mainClass() const;

  /// The folder where its packages begin; the one in which it lies where that is not named as its package.
  std::string root() const { return rootOfSource(name(), package()); }

  /// True if the class file of each type is newer than this source and than the sources of all that the type is built
  /// on, as far as `typeIndex` knows them. Read the newer way, a class file of the source's second is new enough, and
  /// a description of a module or of a package has a class file, too; but one that the JDK can't run, since a newer one
  /// has made it, is none. `destination` is the setting JAVAC_DESTINATION; where it names no folder, the newer way
  /// looks for classes where the source's packages begin.
  bool isUpToDate(const TypeIndex& typeIndex, const std::string& destination, const std::string& projectFolder) const;

  /// Empty for the unnamed package.
  const std::string& package() const { return scope_.package; }
  void setPackage(const std::string& package) { scope_.package = package; }
  void setImports(std::vector<std::string> imports) { scope_.imports = std::move(imports); }
  /// The name under which one of this source's types is known among those of a project. Read the newer way it has its
  /// package before it.
  std::string indexedName(const SourceType& type) const;
  /// The names of that kind which a supertype's name here may stand for; whichever is known first is meant.
  std::vector<std::string> meaningsOf(const std::string& supertype) const;
  // All in the order of the source. The records live as long as somebody holds them.
  const std::vector<std::shared_ptr<SourceClass>>& classes() const { return classes_; }
  const std::vector<std::shared_ptr<SourceInterface>>& interfaces() const { return interfaces_; }
  const std::vector<std::shared_ptr<SourceType>>& types() const { return types_; }
  /// The time of the file's last change at the last look.
  std::time_t timestamp() const { return timestamp_; }

 private:
  static std::time_t earlyMarker();
  void analyseClassic();
  void analyseNewer();
  /// False for a class file that is of a newer Java than the JDK by which the source was read.
  bool canRun(const std::string& classFile, std::time_t classTime) const;
  std::string classFolderOf(const std::string& destination, const std::string& projectFolder) const;
  bool isUpToDate(const SourceType& type, const TypeIndex& typeIndex, const std::string& targetFolder) const;

  NameScope scope_;
  std::vector<std::shared_ptr<SourceClass>> classes_;
  std::vector<std::shared_ptr<SourceInterface>> interfaces_;
  std::vector<std::shared_ptr<SourceType>> types_;
  std::time_t timestamp_ = earlyMarker();
  JavaReading reading_;
  /// What class files have told, so that one that has not changed need not be opened again.
  struct SeenClass {
    std::time_t time;
    int javaVersion;
  };
  mutable std::unordered_map<std::string, SeenClass> seenClasses_;
  std::string description_;  ///< the class that a description of a module or of a package becomes
};

}  // namespace tarnwick
