#include "settings/JdkDiscovery.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <utility>

namespace tarnwick {

namespace {

/// The folder if a `javac` lies in it; links lead to the real folder.
std::string toolsIn(const std::string& folder) {
  const std::string tool = platform::toolFileName("javac");
  const Filename javac(folder, tool);
  // What was found is remembered in a file of lines.
  if (holdsLineEnd(platform::resolvedPath(javac.fullName())) || holdsLineEnd(folder)) return "";
  if (!platform::isFile(javac.fullName())) return "";
  const Filename real(platform::resolvedPath(javac.fullName()));
  if (platform::sameFileName(real.nameWithExtension(), tool) && platform::isFile(real.fullName()))
    return real.directory();
  // The link of a version manager leads to its own program, which goes by the name that it is called by.
  return Filename(platform::resolvedPath(folder), tool).directory();
}

std::string toolsOfHome(const std::string& home) {
  return home.empty() ? "" : toolsIn(Filename(home, "bin").fullName());
}

std::string toolsOfJavaHome() {
  return toolsOfHome(platform::environment("JAVA_HOME").value_or(""));
}

/// The folders of the PATH in which a `javac` lies.
std::vector<std::string> toolsOnSearchPath() {
  const std::string path = platform::storedList(platform::environment("PATH").value_or(""));
  std::vector<std::string> found;
  for (std::size_t begin = 0; begin <= path.size();) {
    const auto end = std::min(path.find(';', begin), path.size());
    const std::string folder = path.substr(begin, end - begin);
    if (!folder.empty()) found.push_back(toolsIn(folder));
    begin = end + 1;
  }
  std::erase(found, "");
  return found;
}

/// The folder above that of the tools, with its last separator.
std::string homeOf(const std::string& toolsFolder) {
  return Filename(Filename(toolsFolder, "x").directoryNoSlash()).directory();
}

/// True for the tools of a JDK of its own. What else bears the name `javac`, a version manager's or an installer's,
/// looks for a JDK whenever it is called: it tells no version, and may come without the other tools.
bool liesInJdk(const std::string& toolsFolder) {
  const std::string home = homeOf(toolsFolder);
  return platform::isFile(home + "release") || platform::isFile(Filename(home + "lib", "tools.jar").fullName());
}

/// <jdk>/release beside <jdk>/bin holds a line JAVA_VERSION="17.0.15".
std::string versionOf(const std::string& toolsFolder) {
  std::ifstream release(homeOf(toolsFolder) + "release");
  const std::string key = "JAVA_VERSION=";
  for (std::string line; std::getline(release, line);) {
    if (line.compare(0, key.size(), key) == 0) return cleanedPath(line.substr(key.size()));
  }
  return "";
}

/// The numbers of a version, the main one first: up to 8 a version begins with "1.".
std::vector<int> numbersOf(const std::string& version) {
  std::vector<int> numbers;
  bool inNumber = false;
  for (const char c : version) {
    const bool digit = std::isdigit(static_cast<unsigned char>(c)) != 0;
    // What follows, as in "26-ea+5", names a build.
    if (!numbers.empty() && (c == '-' || c == '+')) break;
    if (digit && !inNumber) numbers.push_back(0);
    if (digit && numbers.back() < 1000000) numbers.back() = numbers.back() * 10 + (c - '0');
    inNumber = digit;
  }
  if (numbers.size() > 1 && numbers.front() == 1) numbers.erase(numbers.begin());
  // "17.0.0" is "17".
  while (numbers.size() > 1 && numbers.back() == 0) numbers.pop_back();
  return numbers;
}

bool isNewer(const std::string& left, const std::string& right) {
  // A version with early access comes before the one that it leads to.
  const auto order = [](const std::string& version) {
    return std::pair(numbersOf(version), version.find("-ea") == std::string::npos);
  };
  return order(left) > order(right);
}

void addOnce(std::vector<Jdk>& jdks, const std::string& tools) {
  const auto isThis = [&tools](const Jdk& jdk) { return platform::sameFileName(jdk.toolsFolder, tools); };
  if (tools.empty() || std::any_of(jdks.begin(), jdks.end(), isThis)) return;
  jdks.push_back({tools, versionOf(tools)});
}

}  // namespace

std::vector<Jdk> findJdks(const platform::JdkPlaces& places) {
  std::vector<Jdk> jdks;
  addOnce(jdks, toolsOfJavaHome());
  for (const auto& tools : toolsOnSearchPath()) addOnce(jdks, tools);
  for (const auto& home : places.homes) addOnce(jdks, toolsOfHome(home));
  for (const auto& parent : places.parents) {
    for (const auto& home : platform::subfolders(parent)) addOnce(jdks, toolsOfHome(home));
  }
  std::stable_sort(jdks.begin(), jdks.end(),
                   [](const Jdk& left, const Jdk& right) { return isNewer(left.version, right.version); });
  return jdks;
}

std::vector<Jdk> installedJdks() {
  return findJdks(platform::jdkPlaces());
}

std::string preferredJdkTools(const std::vector<Jdk>& installed) {
  const std::string named = toolsOfJavaHome();
  if (!named.empty()) return named;
  const auto onPath = toolsOnSearchPath();
  const auto own = std::find_if(onPath.begin(), onPath.end(), liesInJdk);
  if (own != onPath.end()) return *own;
  const std::string newest = installed.empty() ? "" : installed.front().toolsFolder;
  return onPath.empty() || liesInJdk(newest) ? newest : onPath.front();
}

int jdkVersion(const std::string& toolsFolder) {
  const std::string real = toolsIn(toolsFolder);
  const auto numbers = numbersOf(versionOf(real.empty() ? toolsFolder : real));
  return numbers.empty() ? 0 : numbers.front();
}

}  // namespace tarnwick
