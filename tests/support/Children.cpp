#include "support/Children.h"

#include "platform/FileSystem.h"
#include "platform/Path.h"

#include <chrono>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>

namespace tarnwick::test {

std::string readAll(platform::ChildProcess& child, platform::ChildProcess::Stream stream) {
  std::string all;
  char block[512];
  while (const std::size_t size = child.read(stream, block, sizeof block)) all.append(block, size);
  return all;
}

std::string outputOf(const std::string& executable, const std::string& arguments) {
  const auto child = platform::ChildProcess::start({executable, arguments, false});
  const std::string output = readAll(*child, platform::ChildProcess::Stream::Output);
  child->wait();
  return output;
}

bool waitUntil(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

bool waitInNaps(std::chrono::milliseconds time, const std::function<bool()>& condition) {
  constexpr std::chrono::milliseconds nap(20);
  for (auto left = time; left.count() > 0; left -= nap) {
    if (condition()) return true;
    std::this_thread::sleep_for(nap);
  }
  return condition();
}

StandInScript::StandInScript(const std::string& script)
    : script_("STANDIN_SCRIPT", folder_.file("script")), record_("STANDIN_RECORD", folder_.file("record")) {
  setScript(script);
}

StandInScript::~StandInScript() {
  // They work in the scratch folder, which Windows keeps as long as they live.
  for (const int grandchild : notedGrandchildren()) endProcess(grandchild);
}

std::string StandInScript::tool(const std::string& name) {
  return platform::resolvedPath(standInFolder() + platform::toolFileName(name));
}

bool StandInScript::hasRecord() const {
  return platform::isFile(folder_.file("record"));
}

bool StandInScript::lastWorkDone() const {
  const std::string file = folder_.file("record.last");
  return platform::isFile(file) && contentOf(file).rfind("done", 0) == 0;
}

std::vector<int> StandInScript::notedGrandchildren() const {
  std::vector<int> numbers;
  std::ifstream file(folder_.file("record.pids"));
  for (std::string line; std::getline(file, line) && !file.eof();) numbers.push_back(std::stoi(line));
  return numbers;
}

std::vector<int> StandInScript::grandchildren(std::size_t count) const {
  std::vector<int> numbers;
  const bool all = waitUntil([&] {
    numbers = notedGrandchildren();
    return numbers.size() >= count;
  });
  if (!all) ADD_FAILURE() << "The stand-in has not started " << count << " grandchildren";
  return numbers;
}

}  // namespace tarnwick::test
