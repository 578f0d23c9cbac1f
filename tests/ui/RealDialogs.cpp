#include "ui/RealDialogs.h"

#include "app/AboutDlg.h"
#include "app/ChooseSourceDlg.h"
#include "app/HelpFileDlg.h"
#include "app/TarnwickDlg.h"
#include "console/FindDlg.h"
#include "dialogbase/AddPathDlg.h"
#include "dialogs/JarDlg.h"
#include "dialogs/JarLayout.h"
#include "dialogs/JavadocDlg.h"
#include "dialogs/JavadocLayout.h"
#include "dialogs/SelectSubdirectoryDlg.h"
#include "dialogs/ShortcutDlg.h"
#include "dialogs/ShortcutLayout.h"
#include "platform/FileSystem.h"
#include "project/ProjMainClassDlg.h"
#include "project/ProjectFilesDlg.h"
#include "project/RecentProjects.h"
#include "project/SelectProjectDlg.h"
#include "settingsdialog/AlternateLocationDlg.h"
#include "source/PortabilityWarningDlg.h"
#include "templates/AddTemplateDlg.h"
#include "templates/NewSourceFileDlg.h"

#include <memory>
#include <utility>

namespace tarnwick::test {

namespace {

const char* const settingsTitle = "Tarnwick settings";
const char* const mainTitle = "Tarnwick";

int runMain(ProgramWorld& world) {
  TarnwickDlg(world.settings).runModal();
  return NO_RESULT;
}

int runUpgrade(ProgramWorld& world) {
  const std::string present = world.program.version;
  world.program.version = "Tarnwick V4.6";
  Settings(world.context).saveDefaultConfiguration();
  world.program.version = present;
  return runMain(world);
}

RealDialog newSource(const std::string& name, NewSourceMode mode) {
  return {name, [mode](ProgramWorld& world) { return NewSourceFileDlg(world.settings, mode, nullptr).runModal(); },
          IDOK_CONTROL};
}

/// A project with a source, a page and another source beside it.
std::unique_ptr<ProjectContext> makeProject(ProgramWorld& world) {
  world.settings.javaPath = standInFolder();
  world.settings.saveDefaultConfiguration();
  for (const char* name : {"Main", "AnotherSourceWithALongName"})
    writeFile(world.scratch.file(name + std::string(".java")), "public class " + std::string(name) + " {}\n");
  writeFile(world.scratch.file("page.html"), "");
  const std::string path = world.scratch.file("demo.twp");
  writeFile(path, "PROJECT_SOURCES  Main.java\nPROJECT_HTMLFILE  page.html\n");
  updateRecentProjects(world.context, path);
  return openedProject(world.settings, path, false);
}

/// A path as long as they come.
std::string longPath(const ProgramWorld& world) {
  std::string path = world.scratch.path();
  for (int i = 0; i < 8; ++i) path += "a folder with a long name/";
  return path;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const RealDialog& dialog) {
  return out << dialog.name;
}

std::vector<RealDialog> allDialogs() {
  return {
      {"about",
       [](ProgramWorld& world) {
         AboutDlg(desktop(), world.program).runModal();
         return NO_RESULT;
       },
       IDOK_CONTROL},
      {"welcomeFirstUse", runMain, IDOK_CONTROL, {settingsTitle, mainTitle}},
      {"welcomeUpgrade", runUpgrade, IDOK_CONTROL, {mainTitle}},
      {"helpFile",
       [](ProgramWorld& world) { return HelpFileDlg(desktop(), longPath(world) + "usersguide.htm").runModal(); }, 1173},
      newSource("newFile", NewSourceMode::NewFile),
      newSource("nothingToEdit", NewSourceMode::NothingToEdit),
      newSource("newInProject", NewSourceMode::InProject),
      {"addTemplate", [](ProgramWorld& world) { return AddTemplateDlg(world.context).runModal(); }, IDOK_CONTROL},
      {"portabilityWarning", [](ProgramWorld&) { return PortabilityWarningDlg(desktop()).runModal(); }, IDOK_CONTROL},
      {"selectProject",
       [](ProgramWorld& world) {
         const auto project = makeProject(world);
         return SelectProjectDlg(world.settings).runModal();
       },
       IDOK_CONTROL},
      {"projectFiles",
       [](ProgramWorld& world) {
         const auto project = makeProject(world);
         return ProjectFilesDlg(world.settings, *project).runModal();
       },
       IDOK_CONTROL},
      {"mainClass",
       [](ProgramWorld& world) {
         const auto project = makeProject(world);
         return ProjMainClassDlg(desktop(), project.get()).runModal();
       },
       IDOK_CONTROL},
      {"addPath",
       [](ProgramWorld& world) {
         AddPathDlg(desktop(), "Classpath (option -classpath)", longPath(world)).runModal();
         return NO_RESULT;
       }},
      {"alternateLocation",
       [](ProgramWorld& world) {
         const Tarnwickfile::FileNotOpenE failure("Read-only file system", longPath(world) + "Tarnwickdefault.CFG");
         return AlternateLocationDlg(desktop(), world.program, failure).runModal();
       },
       1164},
      {"jarAtFirst",
       [](ProgramWorld& world) {
         const JarSession session;
         return JarDlg(world.settings, session).runModal();
       },
       Jar::RUN},
      {"jarWithAProject",
       [](ProgramWorld& world) {
         world.settings.currentProject = makeProject(world);
         world.settings.lastJarArchive = longPath(world) + "demo.jar";
         const JarSession session;
         const int result = JarDlg(world.settings, session).runModal();
         world.settings.currentProject.reset();
         return result;
       },
       Jar::RUN},
      {"javadoc", [](ProgramWorld& world) { return JavadocDlg(world.settings, "\"Main.java\" ").runModal(); },
       Javadoc::RUN},
      {"shortcut", [](ProgramWorld& world) { return ShortcutDlg(world.settings).runModal(); },
       ShortcutControls::CREATE},
      {"shortcutWithAProject",
       [](ProgramWorld& world) {
         world.settings.currentProject = makeProject(world);
         static_cast<ProjectContext&>(*world.settings.currentProject).mainClass = "AnotherSourceWithALongName";
         const int result = ShortcutDlg(world.settings).runModal();
         world.settings.currentProject.reset();
         return result;
       },
       ShortcutControls::CREATE},
      {"selectSubdirectory",
       [](ProgramWorld& world) {
         for (const char* name : {"classes", "a folder with a long name"})
           platform::makeFolders(world.scratch.file(name));
         return SelectSubdirectoryDlg(desktop(), world.scratch.path()).runModal();
       },
       IDOK_CONTROL},
      {"find", [](ProgramWorld&) { return FindDlg(desktop(), "words").runModal() ? DIALOG_OK : DIALOG_CANCEL; },
       IDOK_CONTROL},
      {"chooseSource",
       [](ProgramWorld& world) {
         const std::string chosen =
             ChooseSourceDlg(desktop(), {longPath(world) + "Till.java", "/home/somebody/shop/Till.java"}).runModal();
         return chosen.empty() ? DIALOG_CANCEL : DIALOG_OK;
       },
       IDOK_CONTROL},
  };
}

}  // namespace tarnwick::test
