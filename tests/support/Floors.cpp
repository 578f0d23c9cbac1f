#include "support/Floors.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace tarnwick::test {
namespace {

namespace fs = std::filesystem;

const std::map<std::string, int> floorOfFolder = {
    {"platform", 0}, {"base", 1},    {"resources", 1}, {"dialogbase", 2}, {"process", 3},
    {"settings", 4}, {"source", 5},  {"console", 5},   {"templates", 5},  {"project", 6},
    {"tools", 7},    {"dialogs", 8}, {"app", 9},       {"ui", 10}};
const int floorOfMain = 11;

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
  Source source;
  const auto slash = name.find('/');
  if (slash != std::string::npos) source.folder = name.substr(0, slash);
  std::istringstream lines(withoutComments(content));
  std::string line;
  std::smatch match;
  for (int number = 1; std::getline(lines, line); ++number) {
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

class Inspector {
 public:
  explicit Inspector(const House& house) : house_(house) {}

  std::vector<std::string> violations() {
    for (const auto& [name, source] : house_) {
      if (!source.folder.empty() && !floorOfFolder.count(source.folder))
        found_.push_back(name + ":1: " + source.folder + "/ stands on no floor");
      for (const auto& include : source.includes) inspect(name, source, include);
      inspectConditions(name, source);
      if (!done_.count(name)) walk(name);
    }
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
    const auto to = floorOfFolder.find(target);
    if (to == floorOfFolder.end()) {
      report(name, include.line, "\"" + include.target + "\" stands on no floor");
      return;
    }
    const auto from = floorOfFolder.find(source.folder);
    const int height = source.folder.empty() ? floorOfMain : from == floorOfFolder.end() ? -1 : from->second;
    if (to->second > height) report(name, include.line, "\"" + include.target + "\" goes up");
    if (to->second == height)
      report(name, include.line, "\"" + include.target + "\" crosses to a folder of the same floor");
  }

  void inspectConditions(const std::string& name, const Source& source) {
    if (source.folder == "platform" || source.folder == "ui") return;
    for (std::size_t i = 0; i < source.directives.size(); ++i)
      if (isConditional(source, i))
        report(name, source.directives[i].line, "#" + source.directives[i].word + " is for platform/ and ui/ alone");
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
  std::vector<std::string> found_;
  std::vector<std::string> path_;
  std::set<std::string> done_;
};

}  // namespace

FloorReport inspectFloors(const fs::path& sourceFolder) {
  const House house = readHouse(sourceFolder);
  FloorReport report;
  report.files = static_cast<int>(house.size());
  for (const auto& [name, source] : house)
    report.includes += static_cast<int>(std::count_if(source.includes.begin(), source.includes.end(),
                                                      [](const auto& include) { return include.ours; }));
  report.violations = Inspector(house).violations();
  return report;
}

}  // namespace tarnwick::test
