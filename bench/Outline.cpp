// The outline of many Java sources in one process: outline LIST [newer], with the name of a source in each line of the
// list. "newer" reads them as Java of today, else in the classic way.
#include "source/Compiler.h"
#include "source/JavaSourcefile.h"
#include "source/OutlineReader.h"
#include "source/SourceText.h"

#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>

namespace {

/// The most memory that this program has held, in kB. Counted from its own start: the system's other figure begins with
/// what the program held that started this one.
std::string peakMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmHWM:")) return line.substr(line.find_first_of("0123456789"));
  return "unknown";
}

struct Counts {
  std::size_t files = 0;
  std::size_t types = 0;
  std::size_t refused = 0;
};

void readClassically(const std::string& path, Counts& counts) {
  tarnwick::JavaSourcefile source(path, tarnwick::FileMode::Read);
  try {
    source.analyse();
  } catch (const tarnwick::Compiler::CannotCompileE&) {
    ++counts.refused;
  }
  counts.types += source.types().size();
}

void readNewly(const std::string& path, Counts& counts) {
  counts.types += tarnwick::outlineOf(tarnwick::sourceText(path), "File").types.size();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const auto read = argc > 2 && std::string_view(argv[2]) == "newer" ? &readNewly : &readClassically;
  std::ifstream list(argv[1]);
  Counts counts;
  for (std::string path; std::getline(list, path); ++counts.files) read(path, counts);
  std::printf("%zu sources, %zu types, %zu sources refused, at most %s\n", counts.files, counts.types, counts.refused,
              peakMemory().c_str());
  return 0;
}
