#include "app/PrintedAnswer.h"

#include "base/ProgramInfo.h"
#include "base/Text.h"

namespace tarnwick {

namespace {

const char usage[] =
    "Usage: tarnwick [FILE]\n"
    "Opens a small window in front of the tools of a Java Development Kit.\n"
    "\n"
    "FILE is a project (.twp), which is opened, or a source (.java), a class file\n"
    "(.class), an archive (.jar) or a page with an applet (.htm), which stands in\n"
    "its field then.\n"
    "\n"
    "  --help     print this and end\n"
    "  --version  print the version and end\n"
    "\n"
    "TARNWICK_CFGDIR names the folder of the settings, and JAVA_HOME the JDK that is\n"
    "offered at the first start. The user's guide is behind \"Help\" of the settings.\n";

}  // namespace

std::optional<std::string> printedAnswer(const std::string& commandLine, const ProgramInfo& program) {
  const std::string word = trim(commandLine);
  if (word == "--version") return program.version + "\n";
  if (word == "--help") return usage;
  return std::nullopt;
}

}  // namespace tarnwick
