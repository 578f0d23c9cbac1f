// The table of options that later JDKs no longer know, held against the JDKs of this machine.
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "settings/GoneOptions.h"
#include "settings/JdkDiscovery.h"
#include "support/Children.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace tarnwick::test {
namespace {

/// The first version whose `java` runs a source as it is.
constexpr int runsSources = 11;

/// Tries options in one run of `java`, since each tool would take as long to start. Its arguments: the `java`, a
/// source, a folder for what is made, and a tool and an option in turn. It writes the option, and what the tool says.
const char tries[] = R"java(
import java.io.*;
import java.util.*;
import java.util.spi.ToolProvider;

public class Tries {
  public static void main(String[] arguments) throws Exception {
    for (int i = 3; i < arguments.length; i += 2) {
      List<String> command = new ArrayList<>(List.of(arguments[i + 1].split(" ")));
      String said = arguments[i].equals("java")
          ? ofJava(arguments[0], command)
          : ofTool(ToolProvider.findFirst(arguments[i]).get(), command, arguments[1], arguments[2]);
      System.out.println("option " + arguments[i] + " " + arguments[i + 1]);
      System.out.println(said);
    }
  }

  static String ofJava(String java, List<String> command) throws Exception {
    command.add(0, java);
    command.add("-version");
    Process process = new ProcessBuilder(command).redirectErrorStream(true).start();
    return new String(process.getInputStream().readAllBytes());
  }

  static String ofTool(ToolProvider tool, List<String> command, String source, String folder) {
    command.addAll(List.of("-d", folder, source));
    StringWriter said = new StringWriter();
    PrintWriter writer = new PrintWriter(said);
    tool.run(writer, writer, command.toArray(new String[0]));
    return said.toString();
  }
}
)java";

/// The option of a row so that it can be tried.
std::string tried(const GoneOption& row) {
  const std::string option = row.option;
  if (option == "-bootclasspath" || option == "-extdirs" || option == "-footer") return option + " x";
  if (option == "-Xrunhprof") return option + ":help";
  if (option == "-Xbootclasspath") return option + ":x";
  // A target is looked at only where it is not older than its source.
  return option.starts_with("-target") ? option + " -source 1.3" : option;
}

/// The line that names a row.
std::string nameOf(const GoneOption& row) {
  return std::string("option ") + row.tool + ' ' + tried(row);
}

/// True if a tool says of an option that it does not take it as it was meant.
bool isRefusal(const GoneOption& row, const std::string& said) {
  std::vector<std::string> words = {"Unrecognized option",     "invalid flag",
                                    "option is no longer",     "no longer a supported",
                                    "not allowed with target", "Could not find agent lib",
                                    "support was removed"};
  if (std::string(row.option).starts_with("-source")) words = {"Source option"};
  if (std::string(row.option).starts_with("-target")) words = {"Target option"};
  return std::any_of(words.begin(), words.end(),
                     [&](const auto& word) { return said.find(word) != std::string::npos; });
}

std::string quoted(const std::string& word) {
  return '"' + word + '"';
}

TEST(GoneOptionsTest, AnOptionIsGoneInTheVersionsBehindItsLast) {
  EXPECT_EQ(goneOption("java", "-Xprof", 9), nullptr);
  ASSERT_NE(goneOption("java", "-Xprof", 10), nullptr);
  EXPECT_STREQ(goneOption("java", "-Xprof", 25)->option, "-Xprof");
  EXPECT_EQ(goneOption("java", "-Xprof", 0), nullptr) << "nothing is known of this JDK";
  EXPECT_EQ(goneOption("javac", "-Xprof", 25), nullptr) << "another tool's";
  EXPECT_EQ(goneOption("java", "-verbose", 25), nullptr);
  EXPECT_EQ(goneOption("javac", "", 25), nullptr);
}

TEST(GoneOptionsTest, NoRowStandsThereTwice) {
  std::set<std::string> rows;
  for (const auto& row : goneOptions) EXPECT_TRUE(rows.insert(std::string(row.tool) + row.option).second) << row.option;
}

/// What the tools of a JDK say of each row that has an option, by the line that names it.
std::map<std::string, std::string> sayings(const std::string& java, const ScratchFolder& scratch) {
  std::string arguments = quoted(scratch.file("Tries.java")) + ' ' + quoted(java) + ' ' +
                          quoted(scratch.file("H.java")) + ' ' + quoted(scratch.file("made"));
  std::set<std::string> names;
  for (const auto& row : goneOptions) {
    if (!*row.option) continue;
    names.insert(nameOf(row));
    arguments += ' ' + std::string(row.tool) + ' ' + quoted(tried(row));
  }
  std::map<std::string, std::string> said;
  std::string name;
  std::istringstream output(outputOf(java, arguments));
  for (std::string line; std::getline(output, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (names.contains(line)) name = line;
    said[name] += line + '\n';
  }
  return said;
}

TEST(GoneOptionsTest, EachRowIsTrueOfTheJdksOfThisMachine) {
  const ScratchFolder scratch;
  // Otherwise a JDK finds no file whose path has letters beyond ASCII.
  const ScopedEnvironment locale("LC_ALL", "C.UTF-8");
  writeFile(scratch.file("Tries.java"), tries);
  writeFile(scratch.file("H.java"), "/** H. */\npublic class H {}\n");
  int seen = 0;
  for (const auto& jdk : installedJdks()) {
    const int version = jdkVersion(jdk.toolsFolder);
    if (version < runsSources) continue;
    ++seen;
    auto said = sayings(jdk.toolsFolder + platform::toolFileName("java"), scratch);
    for (const auto& row : goneOptions) {
      SCOPED_TRACE("JDK " + std::to_string(version) + ", " + row.tool + ' ' + row.option);
      const bool isGone = version > row.lastJdk;
      if (!*row.option) {
        EXPECT_NE(platform::isFile(jdk.toolsFolder + platform::toolFileName(row.tool)), isGone);
        continue;
      }
      ASSERT_TRUE(said.contains(nameOf(row))) << said[""];
      EXPECT_EQ(isRefusal(row, said[nameOf(row)]), isGone) << said[nameOf(row)];
    }
  }
  if (seen == 0) GTEST_SKIP() << "no JDK of version " << runsSources << " or newer is installed";
}

}  // namespace
}  // namespace tarnwick::test
