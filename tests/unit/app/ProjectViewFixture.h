#pragma once

#include "PanelFixture.h"
#include "project/ProjectContext.h"
#include "resources/PanelLayouts.h"
#include "resources/ProjectLayouts.h"
#include "support/Children.h"
#include "support/FileTimes.h"

#include <ctime>
#include <functional>
#include <string>
#include <vector>

namespace tarnwick::test {

enum ProjectControl { PROJECT_NEW = 1134, OPEN = 1136, FILES = 1135, PROJECT_EDIT = 1139, ALL = 1133, CHANGED = 1140 };
enum ProjectTab { MAIN_PROGRAM_TAB = 0, APPLET_TAB = 1 };

/// The project view, with projects in the user's folder.
class ProjectViewFixture : public PanelFixture {
 protected:
  std::string path(const std::string& name) const { return userFolder() + name; }

  /// A source with a class of its own name.
  void makeSource(const std::string& name, const std::string& body = "") {
    writeFile(path(name + ".java"), "public class " + name + " {" + body + "}\n");
    setFileTime(path(name + ".java"), sourceTime);
  }
  static std::string mainMethod() { return " public static void main(String[] words) {} "; }
  /// The class file that a compiler would have made after the source.
  void makeCurrent(const std::string& name) {
    writeFile(path(name + ".class"), "class");
    setFileTime(path(name + ".class"), sourceTime + 60);
  }
  void makeStale(const std::string& name) { setFileTime(path(name + ".class"), sourceTime - 60); }

  /// A project file with nothing of the settings in it.
  std::string makeProject(const std::string& rows, const std::string& name = "my demo.twp") {
    writeFile(path(name), rows);
    return path(name);
  }
  /// A project with one class that has a main method and is up to date.
  std::string makeRunnable() {
    makeSource("Main", mainMethod());
    makeCurrent("Main");
    return makeProject("PROJECT_SOURCES  Main.java\n");
  }

  /// Starts the program with this project; the script plays the user of the project view and has to leave it.
  void startWith(const std::string& project, const std::function<void(ScriptedWindow& panel)>& script) {
    desktop_.expectMainDialog([&](ScriptedWindow& main) { script(main.child(PROJECT_VIEW_SLOT)); });
    TarnwickDlg(settings(), project).runModal();
  }

  /// Starts the program without a project, and switches to the view.
  void inProjectView(const std::function<void(ScriptedWindow& panel)>& script) {
    runPanel([&](ScriptedWindow& main, ScriptedWindow& file) {
      bar(file).press(SWITCH_VIEW);
      script(main.child(PROJECT_VIEW_SLOT));
    });
  }

  /// What is told of main methods in two sources: the later one of the list comes first.
  static std::string conflict(const std::string& later, const std::string& earlier) {
    return "Files " + later + "\nand " + earlier +
           "\nboth have \"public static void main\" methods."
           "\n\nEdit source files to resolve conflict"
           "\nor switch to Tarnwick's fileview"
           "\nor press Files button and allow multiple classes with a main method.";
  }

  /// The system's reason why a file can't be opened so.
  static std::string refusal(const std::string& path, FileMode mode) {
    try {
      const Tarnwickfile file(path, mode);
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      return failure.message;
    }
    ADD_FAILURE() << path << " could be opened";
    return "";
  }
  /// A setting's value in a project's file.
  static std::string savedIn(const std::string& file, const std::string& tag) {
    const std::string content = contentOf(file);
    const auto begin = content.find("\n" + tag + "  ");
    if (begin == std::string::npos) return "(none)";
    const auto value = begin + tag.size() + 3;
    return content.substr(value, content.find_first_of("\r\n", value) - value);
  }

  /// What is told where no compiler is in this folder.
  static std::string noCompilerIn(const std::string& folder) {
    return "Can't access compiler " + folder + platform::toolFileName("javac") +
           "\nNo such file or directory"
           "\nIs the JDK installed? Is the tools directory (Settings!) set correctly?";
  }

  ProjectContext& project() { return *openProject(settings()); }

  /// What a tool, or the second copy of the program, was started with, once `last` is among it.
  std::string recordedUpTo(const std::string& last) {
    std::string recorded;
    waitUntil([&] {
      if (platform::isFile(scratch_.file("record"))) recorded = contentOf(scratch_.file("record"));
      return recorded.find(last) != std::string::npos;
    });
    return recorded;
  }

  static constexpr std::time_t sourceTime = 1'600'000'000;
};

}  // namespace tarnwick::test
