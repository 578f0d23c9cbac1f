#pragma once

#include "project/ProjectContext.h"
#include "support/FileTimes.h"
#include "support/SettingsFixture.h"

#include <ctime>
#include <string>
#include <vector>

namespace tarnwick::test {

/// A project in a folder of its own, on a scripted desktop and with the stand-in tools as its JDK.
class ProjectFixture : public SettingsFixture {
 protected:
  /// When the sources were written.
  static constexpr std::time_t start = 1'500'000'000;

  ProjectFixture()
      : record_("STANDIN_RECORD", scratch_.file("record")), script_("STANDIN_SCRIPT", scratch_.file("script")) {
    platform::makeFolders(folder());
    writeFile(scratch_.file("script"), "");
    useStandIns();
    settings().saveDefaultConfiguration();
  }

  /// The project's folder, with its last separator.
  std::string folder() const { return scratch_.file("wo rk") + platform::folderSeparator; }
  std::string folderNoSlash() const { return scratch_.file("wo rk"); }
  std::string projectFile() const { return folder() + "my project.twp"; }
  static std::string quoted(const std::string& path) { return '"' + path + '"'; }

  void makeSource(const std::string& name, const std::string& text = "", std::time_t time = start) const {
    writeFile(folder() + name, text);
    setFileTime(folder() + name, time);
  }
  void makeClassFile(const std::string& name, std::time_t time = start + 1) const {
    writeFile(folder() + name + ".class", "");
    setFileTime(folder() + name + ".class", time);
  }
  static std::string mainMethod() { return "{ public static void main(String[] args) { } }\n"; }

  /// Opens a project whose file has these lines, as the program's project.
  ProjectContext& open(const std::string& lines) {
    writeFile(projectFile(), lines);
    return openAgain();
  }
  ProjectContext& openAgain() { return take(projectFile(), false); }
  ProjectContext& take(const std::string& path, bool create) {
    auto project = openedProject(settings(), path, create);
    ProjectContext& opened = *project;
    settings().currentProject = std::move(project);
    return opened;
  }
  /// Opens a project that has all sources of this list, with ";" between them.
  ProjectContext& openWith(const std::string& names) { return open("PROJECT_SOURCES  " + names + "\n"); }

  static std::vector<std::string> namesOf(const ProjectContext& project) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < project.sources.size(); ++i)
      names.push_back(project.sources[i].name().nameWithExtension());
    return names;
  }

  /// A file's text, with line ends as on Linux.
  static std::string linesOf(const std::string& path) {
    std::string text = contentOf(path);
    std::erase(text, '\r');
    return text;
  }
  /// The value of a tag in a file; "(none)" if it is not there. Of several the last.
  static std::string valueIn(const std::string& path, const std::string& tag) {
    const std::string text = linesOf(path);
    const auto line = text.rfind("\n" + tag + " ");
    if (line == std::string::npos) return "(none)";
    const auto begin = text.find_first_not_of(' ', line + tag.size() + 1);
    return text.substr(begin, text.find('\n', begin) - begin);
  }
  /// What the stand-ins were given, one argument a line; empty if none ran.
  std::string recorded() const {
    const std::string path = scratch_.file("record");
    return platform::isFile(path) ? contentOf(path) : "";
  }
  /// The system's reason why a file can't be opened so.
  static std::string refusal(const std::string& path, FileMode mode) {
    try {
      const Tarnwickfile file(path, mode);
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      return failure.message;
    }
    return "opened";
  }

  /// The message of what `work` throws of this kind.
  template <typename Failure, typename Work>
  static std::string messageOf(const Work& work) {
    try {
      work();
    } catch (const Failure& failure) {
      return failure.message;
    }
    return "(nothing thrown)";
  }

  ScopedEnvironment record_;
  ScopedEnvironment script_;
};

}  // namespace tarnwick::test
