#include "support/Floors.h"

#include <algorithm>
#include <fstream>
#include <limits>
#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace tarnwick::test {
namespace {

namespace fs = std::filesystem;

struct Include {
  int line = 0;
  std::string target;
  bool ours = false;  ///< written in double quotes
};

struct Directive {
  int line = 0;
  std::string word;
  std::string rest;
};

struct Source {
  std::string folder;  ///< empty for main.cpp
  std::vector<Include> includes;
  std::vector<Directive> directives;
  std::vector<int> boxes;  ///< lines that open a message box
};

using House = std::map<std::string, Source>;

std::string contentOfSource(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

/// Blanks out comments of both kinds and keeps the line ends. Knows strings, so that "/*" in one opens nothing.
std::string withoutComments(const std::string& text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.compare(i, 2, "//") == 0) {
      while (i < text.size() && text[i] != '\n') ++i;
    } else if (text.compare(i, 2, "/*") == 0) {
      const std::size_t end = std::min(text.find("*/", i + 2), text.size());
      result.append(static_cast<std::size_t>(std::count(text.begin() + static_cast<std::ptrdiff_t>(i),
                                                        text.begin() + static_cast<std::ptrdiff_t>(end), '\n')),
                    '\n');
      i = end + 2;
    } else if (text[i] == '"') {
      const std::size_t start = i++;
      while (i < text.size() && text[i] != '"' && text[i] != '\n') i += text[i] == '\\' ? 2 : 1;
      i = std::min(i, text.size() - 1);
      result.append(text, start, i - start);
    }
    if (i < text.size()) result += text[i];
  }
  return result;
}

Source readSource(const std::string& name, const std::string& content) {
  static const std::regex directive(R"(^\s*#\s*([a-z]+)\s*(.*?)\s*$)");
  static const std::regex include(R"re(^(?:"([^"]*)"|<([^>]*)>))re");
  static const std::regex box(R"((?:\.|->)\s*(?:message|hint|askYesNo|askOkCancel)\s*\()");
  Source source;
  const auto slash = name.find('/');
  if (slash != std::string::npos) source.folder = name.substr(0, slash);
  std::istringstream lines(withoutComments(content));
  std::string line;
  std::smatch match;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (std::regex_search(line, box)) source.boxes.push_back(number);
    if (!std::regex_match(line, match, directive)) continue;
    const std::string word = match[1];
    const std::string rest = match[2];
    source.directives.push_back({number, word, rest});
    if (word == "include" && std::regex_search(rest, match, include))
      source.includes.push_back({number, match[1].matched ? match[1].str() : match[2].str(), match[1].matched});
  }
  return source;
}

House readHouse(const fs::path& folder) {
  static const std::set<std::string> suffixes = {".h", ".hpp", ".inc", ".c", ".cc", ".cpp"};
  House house;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file() || !suffixes.count(entry.path().extension().string())) continue;
    const auto name = entry.path().lexically_relative(folder).generic_string();
    house[name] = readSource(name, contentOfSource(entry.path()));
  }
  return house;
}

/// Conditional compilation, the guard of a header aside.
bool isConditional(const Source& source, std::size_t index) {
  const auto& directive = source.directives[index];
  if (directive.word == "ifdef" || directive.word == "if" || directive.word == "elif") return true;
  if (directive.word != "ifndef") return false;
  const bool isGuard = index == 0 && source.directives.size() > 1 && source.directives[1].word == "define" &&
                       source.directives[1].rest == directive.rest;
  return !isGuard;
}

/// Where nothing opens a message box but a dialog: what goes wrong is thrown or given back. Of the console that is its
/// text; the rest stands on the side of its window.
bool mustNotShow(const std::string& name, const std::string& folder) {
  static const std::set<std::string> silent = {"base", "settings", "process", "source", "project"};
  static const std::set<std::string> consoleWindow = {"TarnwickView", "TarnwickViewToday",   "ConsoleChild",
                                                      "ConsoleFiles", "ConsoleWindowSearch", "InputWriter"};
  const std::string stem = fs::path(name).stem().string();
  if (folder == "console") return !consoleWindow.count(stem);
  return silent.count(folder) && !stem.ends_with("Dlg");
}

/// Above all floors.
constexpr int floorOfMain = std::numeric_limits<int>::max();

class Inspector {
 public:
  Inspector(const House& house, const Floors& floors) : house_(house) {
    for (const auto& floor : floors) floors_[floor.folder] = floor;
  }

  std::vector<std::string> violations() {
    for (const auto& [name, source] : house_) {
      if (!source.folder.empty() && !floors_.count(source.folder))
        found_.push_back(name + ":1: " + source.folder + "/ stands on no floor");
      for (const auto& include : source.includes) inspect(name, source, include);
      inspectConditions(name, source);
      inspectBoxes(name, source);
      if (!done_.count(name)) walk(name);
    }
    for (const auto& [folder, floor] : floors_) inspectLinks(floor);
    return found_;
  }

 private:
  void report(const std::string& name, int line, const std::string& what) {
    found_.push_back(name + ":" + std::to_string(line) + ": " + what);
  }

  void inspect(const std::string& name, const Source& source, const Include& include) {
    const bool knowsToolkit = source.folder == "ui" || name == "main.cpp";
    if (include.target.rfind("wx/", 0) == 0 && !knowsToolkit)
      report(name, include.line, include.target + " is for ui/ and main.cpp alone");
    if (!include.ours || include.target.rfind("wx/", 0) == 0) return;
    const auto target = include.target.substr(0, include.target.find('/'));
    if (include.target.find('/') == std::string::npos || target == ".." || target == ".") {
      report(name, include.line, "\"" + include.target + "\" does not name its folder");
      return;
    }
    if (target == source.folder) return;
    const auto to = floors_.find(target);
    if (to == floors_.end()) {
      report(name, include.line, "\"" + include.target + "\" stands on no floor");
      return;
    }
    included_[source.folder].insert(target);
    const auto from = floors_.find(source.folder);
    const int height = source.folder.empty() ? floorOfMain : from == floors_.end() ? -1 : from->second.height;
    if (to->second.height > height)
      report(name, include.line, "\"" + include.target + "\" goes up");
    else if (to->second.height == height)
      report(name, include.line, "\"" + include.target + "\" crosses to a folder of the same floor");
    else if (!source.folder.empty() && !reachedFrom(source.folder).count(target))
      report(name, include.line, "\"" + include.target + "\" is in a folder that " + source.folder + "/ does not link");
  }

  /// What a folder links, in its turn too.
  std::set<std::string> reachedFrom(const std::string& folder) const {
    std::set<std::string> reached;
    const auto floor = floors_.find(folder);
    if (floor == floors_.end()) return reached;
    for (const auto& link : floor->second.links) {
      // An arrow that goes up is told by itself, and could lead round in a circle.
      if (const auto to = floors_.find(link); to == floors_.end() || to->second.height >= floor->second.height)
        continue;
      reached.insert(link);
      reached.merge(reachedFrom(link));
    }
    return reached;
  }

  void inspectLinks(const Floor& floor) {
    for (const auto& link : floor.links) {
      const auto to = floors_.find(link);
      if (to == floors_.end())
        found_.push_back(floor.folder + "/ links " + link + "/, which stands on no floor");
      else if (to->second.height >= floor.height)
        found_.push_back(floor.folder + "/ links " + link + "/, which is not below it");
      else if (!included_[floor.folder].count(link))
        found_.push_back(floor.folder + "/ links " + link + "/ and includes nothing of it");
    }
  }

  void inspectConditions(const std::string& name, const Source& source) {
    if (source.folder == "platform" || source.folder == "ui") return;
    for (std::size_t i = 0; i < source.directives.size(); ++i)
      if (isConditional(source, i))
        report(name, source.directives[i].line, "#" + source.directives[i].word + " is for platform/ and ui/ alone");
  }

  void inspectBoxes(const std::string& name, const Source& source) {
    if (!mustNotShow(name, source.folder)) return;
    for (const int line : source.boxes)
      report(name, line, "a message box is for dialogs, views and what is above them");
  }

  /// Depth first; an include of a file that is still being walked closes a circle.
  void walk(const std::string& name) {
    path_.push_back(name);
    for (const auto& include : house_.at(name).includes) {
      if (!include.ours || !house_.count(include.target)) continue;
      const auto start = std::find(path_.begin(), path_.end(), include.target);
      if (start != path_.end()) {
        std::string circle;
        for (auto step = start; step != path_.end(); ++step) circle += *step + " > ";
        report(name, include.line, "closes the circle " + circle + include.target);
      } else if (!done_.count(include.target)) {
        walk(include.target);
      }
    }
    path_.pop_back();
    done_.insert(name);
  }

  const House& house_;
  std::map<std::string, Floor> floors_;
  std::map<std::string, std::set<std::string>> included_;  ///< by each folder, of the others
  std::vector<std::string> found_;
  std::vector<std::string> path_;
  std::set<std::string> done_;
};

}  // namespace

Floors floorsOf(const std::string& table) {
  Floors floors;
  std::istringstream lines(table);
  std::string line;
  while (std::getline(lines, line)) {
    std::istringstream words(line);
    Floor floor;
    if (!(words >> floor.height >> floor.folder)) continue;  // a comment
    for (std::string link; words >> link;) floor.links.push_back(link);
    floors.push_back(floor);
  }
  return floors;
}

FloorReport inspectFloors(const fs::path& sourceFolder, const Floors& floors) {
  const House house = readHouse(sourceFolder);
  FloorReport report;
  report.files = static_cast<int>(house.size());
  for (const auto& [name, source] : house)
    report.includes += static_cast<int>(std::count_if(source.includes.begin(), source.includes.end(),
                                                      [](const auto& include) { return include.ours; }));
  report.violations = Inspector(house, floors).violations();
  return report;
}

}  // namespace tarnwick::test
