// The outline of many Java sources in one process: outline LIST, with the name of a source in each line of the list.
#include "source/Compiler.h"
#include "source/JavaSourcefile.h"

#include <cstdio>
#include <fstream>
#include <string>

namespace {

/// The most memory that this program has held, in kB. Counted from its own start: the system's other figure begins with
/// what the program held that started this one.
std::string peakMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmHWM:")) return line.substr(line.find_first_of("0123456789"));
  return "unknown";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::ifstream list(argv[1]);
  std::size_t files = 0;
  std::size_t types = 0;
  std::size_t refused = 0;
  for (std::string path; std::getline(list, path); ++files) {
    tarnwick::JavaSourcefile source(path, tarnwick::FileMode::Read);
    try {
      source.analyse();
    } catch (const tarnwick::Compiler::CannotCompileE&) {
      ++refused;
    }
    types += source.types().size();
  }
  std::printf("%zu sources, %zu types, %zu sources refused, at most %s\n", files, types, refused, peakMemory().c_str());
  return 0;
}
