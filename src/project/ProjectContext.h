#pragma once

#include "project/ProjectSourceList.h"
#include "settings/OpenProject.h"
#include "settings/Settings.h"
#include "source/TypeIndex.h"

#include <array>
#include <string>
#include <vector>

namespace tarnwick {

/// What a project file holds beside the settings, and the rows that tie it to its tags.
struct ProjectValues {
  ProjectValues(Desktop& desktop, const std::string& path, FileMode mode);

  /// The project file. Not kept open between operations.
  Tarnwickfile file;
  /// The class to execute: its qualified name where it is found automatically, the plain one where it was picked.
  std::string mainClass;
  ProjectSourceList sources;
  /// Name and extension, in double quotes if there is a blank; empty for none.
  std::string htmlFile;
  /// Several classes may have a main method, and the user picks one of them.
  int multiMain = 0;
  std::array<TagRow, 5> projectRows;
};

/// One open project. Its file carries all settings, too; while the project is open, the program's one Settings object
/// holds the project's values.
class ProjectContext : public OpenProject, public ProjectValues, public TagTable {
 public:
  enum Types { CLASSES = 1, INTERFACES = 2, ALL_TYPES = CLASSES | INTERFACES };

  /// Opens the project, or with `create` an empty one whose file is made or emptied and left to `save`. The path may
  /// stand in double quotes. Throws Tarnwickfile::FileNotOpenE before anything has been touched.
  ProjectContext(Settings& settings, const std::string& path, bool create);

  /// Reads settings and project from the file. Shows what went wrong, and throws nothing.
  void load();
  /// Writes settings and project to the file. Shows what went wrong, and throws nothing.
  void save() override;
  /// Looks at all sources again: finds the class to execute, and whether all classes are up to date. Analyses only what
  /// has changed. Throws JavaSourcefile::MultiplePublicStaticVoidMainE and what Compiler and the sources throw.
  void update();

  /// The project's types, the last source's first; within a source its classes before its interfaces.
  std::vector<ClassRef> collectClasses(int types) const;
  /// The class path for what the project runs.
  std::string runClasspath() const;
  /// The source path for the debugger: to the root of the main class's packages. Warns where they don't fit the
  /// folders.
  std::string derivedSourcepath() const;

  /// There is at least one source, and all class files are current; as of the last `update`.
  bool upToDate() const { return upToDate_; }

  std::string name() const override { return file.name().baseName(); }
  std::string quotedPath() const override { return file.name().quoted(); }
  /// The project's folder, without and with its last separator.
  std::string folderNoSlash() const { return file.name().directoryNoSlash(); }
  std::string folder() const { return file.name().directory(); }
  std::string quotedFolder() const { return file.name().quotedDirectory(); }

 private:
  void findMainClass();
  void findWhetherUpToDate();

  Settings& settings_;
  bool upToDate_ = false;
};

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
