// Is each source of a project up to date: uptodate FOLDER COUNT ROUNDS [newer], with the sources C0.java and so on in
// the folder.
#include "platform/Path.h"
#include "source/JavaSourcefile.h"
#include "source/TypeIndex.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using Sources = std::vector<std::unique_ptr<JavaSourcefile>>;

Sources sourcesIn(const std::string& folder, int count, JavaReading reading) {
  Sources sources;
  for (int i = 0; i < count; ++i) {
    const std::string name = "C" + std::to_string(i) + ".java";
    sources.push_back(std::make_unique<JavaSourcefile>(folder, name, FileMode::Read));
    sources.back()->analyse(reading);
    sources.back()->close();
  }
  return sources;
}

/// What a run over a project does: an index of all types, then each source. Gives how many are up to date.
std::size_t check(const Sources& sources, const std::string& folder) {
  std::vector<ClassRef> entries;
  for (const auto& source : sources)
    for (const auto& type : source->types()) entries.push_back({*type, *source});
  const TypeIndex index(entries);
  return static_cast<std::size_t>(std::count_if(
      sources.begin(), sources.end(), [&](const auto& source) { return source->isUpToDate(index, "", folder); }));
}

double milliseconds(std::chrono::steady_clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char** argv) {
  using namespace tarnwick;
  if (argc < 4) return 2;
  const bool newer = argc > 4;
  const std::string folder = std::string(argv[1]) + platform::folderSeparator;
  const Sources sources = sourcesIn(folder, std::atoi(argv[2]), {newer, newer ? 17 : 0});
  std::vector<double> times;
  std::size_t upToDate = 0;
  for (int round = 0; round < std::atoi(argv[3]); ++round) {
    const auto start = std::chrono::steady_clock::now();
    upToDate = check(sources, folder);
    times.push_back(milliseconds(std::chrono::steady_clock::now() - start));
  }
  std::sort(times.begin(), times.end());
  std::printf("%zu of %zu up to date, median of %zu rounds %.1f ms\n", upToDate, sources.size(), times.size(),
              times.empty() ? 0.0 : times[times.size() / 2]);
  return 0;
}
