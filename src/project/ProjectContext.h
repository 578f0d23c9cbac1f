#pragma once

#include "project/ProjectSourceList.h"
#include "settings/OpenProject.h"
#include "settings/Settings.h"

#include <memory>
#include <string>
#include <vector>

namespace tarnwick {

class TypeIndex;
struct ClassRef;
struct TagRow;

/// What a project file holds beside the settings, and the rows that tie it to its tags.
struct ProjectValues {
  ProjectValues(const Settings& settings, const std::string& path);
  ~ProjectValues();

  /// The project file. Not kept open between operations.
  Tarnwickfile file;
  /// The class to execute: its qualified name where it is found automatically, the plain one where it was picked.
  std::string mainClass;
  /// The source of the class that was picked, where several declare one of that name; empty otherwise.
  std::string mainSource;
  ProjectSourceList sources;
  /// Name and extension, in double quotes if there is a blank; empty for none.
  std::string htmlFile;
  /// Several classes may have a main method, and the user picks one of them.
  bool multiMain = false;
  std::vector<TagRow> projectRows;
};

/// One open project. Its file carries all settings, too; while the project is open, the program's one Settings object
/// holds the project's values.
class ProjectContext : public OpenProject, public ProjectValues, public TagTable {
 public:
  enum Types { CLASSES = 1, INTERFACES = 2, ALL_TYPES = CLASSES | INTERFACES };

  /// A project without sources over this file, which is not looked at. The path may stand in double quotes.
  ProjectContext(Settings& settings, const std::string& path);
  ~ProjectContext() override;

  /// Reads settings and project from the file. Tells what went wrong, and throws nothing.
  void load();
  /// Writes settings and project to the file. Tells what went wrong, and throws nothing.
  void save() override;
  ProjectContext* context() override { return this; }
  /// Looks at all sources again: finds the class to execute, and whether all classes are up to date. Analyses only what
  /// has changed. Throws JavaSourcefile::MultiplePublicStaticVoidMainE and what Compiler and the sources throw; so
  /// whoever calls it asks for the tools' folder before (`askForToolsFolder`).
  void update();

  /// The project's types, the last source's first; within a source its classes before its interfaces.
  std::vector<ClassRef> collectClasses(int types) const;
  /// The class path for what the project runs. Where sources are read the newer way it has the folders where their
  /// packages begin, as `sourceRoots` gives them.
  std::string runClasspath(const std::string& running = "") const;
  /// The source path for the debugger: to the root of the main class's packages. Warns where they don't fit the
  /// folders; in the newer way each source tells its own root.
  std::string derivedSourcepath(const std::string& running = "") const;
  /// The folders where the packages of the sources begin, as they were read last the newer way; none in the classic
  /// one. Those in which the class `running` is declared come before the others.
  std::vector<std::string> sourceRoots(const std::string& running = "") const;
  /// The name under which `java` finds a class that is called `name` here. Read the newer way, a class that bears it
  /// alone is known without its package, too.
  std::string fullNameOf(const std::string& name) const;
  /// The class file of a class that is called so, where the newer way has put it; empty if there is none.
  std::string classFileOf(const std::string& name) const;
  /// The name of one of the project's sources, as its list of sources has it.
  std::string nameOfSource(const JavaSourcefile& source) const;

  /// There is at least one source, and all class files are current; as of the last `update`.
  bool upToDate() const { return upToDate_; }

  Settings& settings() const { return settings_; }
  std::string name() const override { return file.name().baseName(); }
  std::string quotedPath() const override { return file.name().quoted(); }
  /// The project's folder, without and with its last separator.
  std::string folderNoSlash() const { return file.name().directoryNoSlash(); }
  std::string folder() const { return file.name().directory(); }
  std::string quotedFolder() const { return file.name().quotedDirectory(); }

 private:
  void findMainClass();
  /// The sources in which a type of that full name is declared, the one that the user has picked first.
  std::vector<const JavaSourcefile*> declaring(const std::string& fullName) const;
  /// What a text calls a source.
  std::string shownNameOf(std::size_t source) const;
  void findWhetherUpToDate();

  /// What the user is to know goes the way of what the settings tell.
  void tell(const std::string& text) const;

  Settings& settings_;
  bool upToDate_ = false;
};

/// The open project; null if there is none.
ProjectContext* openProject(const Settings& settings);

/// Opens the project, or with `create` an empty one whose file is made and left to `save`. The path may stand in double
/// quotes. The settings take its values, and the default configuration remembers it. Throws Tarnwickfile::FileNotOpenE
/// before anything has been touched.
std::unique_ptr<ProjectContext> openedProject(Settings& settings, const std::string& path, bool create);

/// True if the classes of all sources are current. Asks from the last source on, and no further than the first that has
/// a stale class.
bool allUpToDate(const ProjectSourceList& sources, const TypeIndex& index, const std::string& destination,
                 const std::string& projectFolder);

/// The default configuration's values take the place of a project's. What it lacks, or all if it has gone, gets its
/// default; only the window stays where it is.
void forgetProjectValues(Settings& settings);

/// The list of paths with the entry behind it, unless it is among them. A list that can't be read stays as it is.
std::string addToPathList(const std::string& list, const std::string& entry);

/// Such a list as it stands on a command line: only quotes keep a path with blanks together there. A list that can't be
/// read stays as it is.
std::string quotedPaths(const std::string& list);

/// The folder where the packages of a class begin whose source lies in `folder`; `fits` tells whether the names agree
/// all the way.
std::string packageRoot(const std::string& qualifiedName, std::string folder, bool& fits);

}  // namespace tarnwick
