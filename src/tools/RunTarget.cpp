#include "tools/RunTarget.h"

#include "base/ClassFile.h"
#include "base/PackageRoot.h"
#include "base/Text.h"
#include "platform/FileArgument.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "settings/Classpaths.h"
#include "settings/JdkDiscovery.h"
#include "settings/Settings.h"

#include <algorithm>

namespace tarnwick {

namespace {

bool isPlain(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 128; });
}

/// What a class file says, held against the place where it lies. Its names are in the platform's character set.
struct PlacedClass {
  std::string name;
  std::string package;
  bool bearsItsName = false;
  std::optional<std::string> root;  ///< where the folders of the package begin; nothing if it does not lie in such

  std::string fullName() const { return package.empty() ? name : package + '.' + name; }
};

/// A name of other letters is taken from the disk, which has it in the platform's character set.
std::string partOnDisk(const std::string& part, const std::string& onDisk) {
  return isPlain(part) ? part : onDisk;
}

PlacedClass placed(const ClassFile& content, const Filename& file) {
  const std::string folder = Filename(platform::absolutePath(file.fullName())).directoryNoSlash();
  PlacedClass result;
  result.name = partOnDisk(content.name.back(), file.baseName());
  result.bearsItsName = platform::sameFileName(result.name, file.baseName());
  Filename level(folder);
  for (std::size_t i = content.name.size() - 1; i-- > 0;) {
    const std::string part = partOnDisk(content.name[i], level.nameWithExtension());
    result.package = result.package.empty() ? part : part + '.' + result.package;
    level = Filename(level.directoryNoSlash());
  }
  result.root = rootOfPackage(folder, result.package);
  return result;
}

std::string misplaced(const PlacedClass& place, const Filename& file, const std::string& tool) {
  const std::string holds = file.nameWithExtension() + " holds the class " + place.fullName() + ", but ";
  const std::string fault = place.bearsItsName ? "does not lie in a folder " + foldersOfPackage(place.package) + "."
                                               : "does not bear its name.";
  return holds + fault + "\nIt is run as it is. " + tool + " may not find it.";
}

std::string tooNew(const std::string& name, int classVersion, int jdk) {
  return "The class " + name + " was compiled for Java " + std::to_string(classVersion) + ". The JDK " +
         std::to_string(jdk) + " of the settings can't run it.\nCompile its source anew, or choose a newer JDK.";
}

/// As one word even where the name holds a blank.
std::string className(const std::string& name) {
  const std::string argument = classArgument(name);
  return argument.find_first_of(" \t\"") == std::string::npos ? argument : platform::commandWord(argument);
}

RunTarget classTarget(const Settings& settings, const ClassFile& content, const Filename& file,
                      const std::string& tool) {
  const PlacedClass place = placed(content, file);
  RunTarget target{classArgument(file.baseName()), false, "", ""};
  if (place.bearsItsName && place.root) {
    target.words = className(place.fullName());
    target.root = *place.root;
  } else {
    target.warning = misplaced(place, file, tool);
  }
  const int jdk = jdkVersion(settings.javaPath);
  if (jdk > 0 && content.javaVersion > jdk) target.warning = tooNew(place.fullName(), content.javaVersion, jdk);
  return target;
}

std::vector<std::string> elementsOf(const std::string& list) {
  std::vector<std::string> elements;
  for (std::size_t begin = 0; begin <= list.size();) {
    const auto end = std::min(list.find(';', begin), list.size());
    elements.push_back(Filename(list.substr(begin, end - begin)).fullName());
    begin = end + 1;
  }
  return elements;
}

/// Where nobody names a class path, that of the environment holds, and without it the current folder.
std::string classpathIfNoneIsGiven() {
  const std::string list = classpathOfEnvironment();
  return list.empty() ? "." : list;
}

/// True if a class path leads to a folder when a tool runs in this current one.
bool leadsTo(const std::string& classpath, const std::string& folder, const std::string& current) {
  const auto whole = [](const std::string& path) {
    return platform::endsInSeparator(path) ? Filename(path).directoryNoSlash() : path;
  };
  const auto elements = elementsOf(classpath);
  return std::any_of(elements.begin(), elements.end(), [&](const std::string& element) {
    return platform::sameFileName(element == "." ? current : whole(element), folder);
  });
}

}  // namespace

std::string classArgument(const std::string& name) {
  std::string argument = name;
  // What the command line swallows in front of the name.
  const auto first = name.find_first_not_of(" \t\"");
  if (first == std::string::npos) return argument;
  // "@@" stands for a name that begins with "@". For one that begins with "-" there is no form that finds the class,
  // but none that is taken for an option either.
  if (name[first] == '@') return argument.insert(first, 1, '@');
  return name[first] == '-' ? "./" + name : argument;
}

RunTarget runTargetOf(const Settings& settings, const Filename& file, const std::string& tool) {
  RunTarget plain{classArgument(file.baseName()), false, "", ""};
  if (!settings.newerJava) return plain;
  if (lowerCase(file.extension()) == ".jar")
    return {"-jar " + platform::fileWord(file.nameWithExtension()), true, "", ""};
  const auto content = readClassFile(file.fullName());
  return content ? classTarget(settings, *content, file, tool) : plain;
}

std::optional<std::string> runClasspath(const Settings& settings, const std::optional<std::string>& given,
                                        const RunTarget& target, const Filename& file) {
  const std::string effective = settings.effectiveClasspath();
  auto own = given;
  if (!own && !effective.empty()) own = effective;
  if (target.root.empty()) return own;
  const std::string held = own ? *own : classpathIfNoneIsGiven();
  const std::string current = Filename(platform::absolutePath(file.fullName())).directoryNoSlash();
  if (leadsTo(held, target.root, current)) return own;
  const std::string root = Filename(target.root).quoted();
  return held.empty() ? root : held + ';' + root;
}

}  // namespace tarnwick
