// Small hot paths. Run by ./bench.sh micro.
#include "base/TagTable.h"
#include "base/TempFile.h"
#include "platform/FileSystem.h"
#include "settings/SettingsResources.h"
#include "settings/SettingsValues.h"

#include <benchmark/benchmark.h>
#include <string>

namespace tarnwick {
namespace {

/// A list of stored paths, as the recent projects are.
TokenString paths(int count) {
  TokenString list;
  for (int i = 0; i < count; ++i) list.add("/home/somebody/projects/project " + std::to_string(i) + "/main.twp");
  return list;
}

void parseList(benchmark::State& state) {
  const std::string text = paths(static_cast<int>(state.range(0))).toString();
  for ([[maybe_unused]] auto _ : state) {
    const TokenString list(text, ';', ']');
    benchmark::DoNotOptimize(list.count());
  }
}
BENCHMARK(parseList)->Arg(10)->Arg(1000);

void walkList(benchmark::State& state) {
  const TokenString list = paths(static_cast<int>(state.range(0)));
  for ([[maybe_unused]] auto _ : state)
    for (int i = 0; i < list.count(); ++i) benchmark::DoNotOptimize(list.element(i));
}
BENCHMARK(walkList)->Arg(10)->Arg(1000);

/// All settings, written to a file and read again.
void writeAndReadConfiguration(benchmark::State& state) {
  PlacedWindow* const noWindow = nullptr;
  SettingsValues values(noWindow);
  TagTable table(values.tagRows.data(), "Tarnwick", nullptr);
  table.resetToDefaults(SETTINGS_DIALOG);
  const std::string path = "bench-" + std::to_string(platform::processId()) + ".CFG";
  for ([[maybe_unused]] auto _ : state) {
    Tarnwickfile file(path, FileMode::Write);
    table.write(file);
    file.open(FileMode::Read);
    benchmark::DoNotOptimize(table.read(file));
  }
  platform::deleteFile(path);
}
BENCHMARK(writeAndReadConfiguration);

}  // namespace
}  // namespace tarnwick

BENCHMARK_MAIN();
