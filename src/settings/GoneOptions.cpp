#include "settings/GoneOptions.h"

#include <algorithm>

namespace tarnwick {

namespace {

const char onlyFor8[] = "taken only where -source and -target are 8 or less";

}  // namespace

const std::vector<GoneOption> goneOptions = {
    {"java", "-Xfuture", 24},
    {"java", "-Xprof", 9, "ignored"},
    {"java", "-Xrunhprof", 8},
    {"java", "-Xbootclasspath", 8},
    {"java", "-Xincgc", 8},
    {"java", "-Xconcgc", 13},
    {"javac", "-Xswitchcheck", 4},
    {"javac", "-source 1.3", 8},
    {"javac", "-source 1.4", 8},
    {"javac", "-source 1.5", 8},
    {"javac", "-target 1.1", 8},
    {"javac", "-target 1.2", 8},
    {"javac", "-target 1.3", 8},
    {"javac", "-target 1.4", 8},
    {"javac", "-target 1.5", 8},
    {"javac", "-bootclasspath", 8, onlyFor8},
    {"javac", "-extdirs", 8, onlyFor8},
    {"javadoc", "-bootclasspath", 8, onlyFor8},
    {"javadoc", "-extdirs", 8, onlyFor8},
    {"javadoc", "-footer", 15, "ignored"},
    {"appletviewer", "", 10},
};

const GoneOption* goneOption(const std::string& tool, const std::string& option, int jdk) {
  const auto row = std::find_if(goneOptions.begin(), goneOptions.end(),
                                [&](const GoneOption& one) { return tool == one.tool && option == one.option; });
  return row == goneOptions.end() || jdk <= row->lastJdk ? nullptr : &*row;
}

}  // namespace tarnwick
