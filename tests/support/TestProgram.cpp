#include "support/TestProgram.h"

#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestFolders.h"

#include <chrono>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <thread>

namespace tarnwick::test {

int runTests(int argc, char** argv) {
  platform::prepareProcess();
  testing::InitGoogleTest(&argc, argv);
  const int result = RUN_ALL_TESTS();
  const auto& outcome = *testing::UnitTest::GetInstance();
  std::printf("%d passed, %d failed, %d skipped\n", outcome.successful_test_count(), outcome.failed_test_count(),
              outcome.skipped_test_count());
  return result;
}

std::string standInFolder() {
  // Beside the folder of the test program: <build>/tests/<program> and <build>/stand-ins/.
  const auto program = platform::splitPath(platform::executablePath());
  return program.drive + program.folder + ".." + platform::folderSeparator + "stand-ins" + platform::folderSeparator;
}

ScratchFolder::ScratchFolder() {
  static int number = 0;
  const std::string letters = platform::folderSeparator == '/' ? "\xC3\xA4\xC3\xB6 \xE6\x97\xA5" : "\xE4\xF6";
  path_ = temporaryFolder() + "tarnwick test " + letters + ' ' + std::to_string(platform::processId()) + '-' +
          std::to_string(++number) + platform::folderSeparator;
  if (!platform::makeFolders(path_)) ADD_FAILURE() << "Can't make the folder " << path_;
}

ScratchFolder::~ScratchFolder() {
  platform::changeDirectory(temporaryFolder());
  // Windows keeps the working folder of a process until that has gone entirely, shortly after its end is told.
  for (int tries = 0; tries < 200 && !removeTree(path_); ++tries)
    std::this_thread::sleep_for(std::chrono::milliseconds(25));
  if (platform::isFolder(path_)) ADD_FAILURE() << "Can't remove the folder " << path_;
}

std::string contentOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) ADD_FAILURE() << "Can't read " << path;
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

void writeFile(const std::string& path, const std::string& content) {
  std::ofstream out(path, std::ios::binary);
  out << content;
  if (!out) ADD_FAILURE() << "Can't write " << path;
}

ScopedEnvironment::ScopedEnvironment(const std::string& name, const std::string& value)
    : name_(name), before_(platform::environment(name).value_or("")) {
  platform::setEnvironment(name + "=" + value);
}

ScopedEnvironment::~ScopedEnvironment() {
  platform::setEnvironment(name_ + "=" + before_);
}

}  // namespace tarnwick::test
