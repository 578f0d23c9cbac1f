// Saves that are killed, and saves that meet.
#include "base/ProgramInfo.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "support/Children.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace tarnwick::test {
namespace {

using platform::ChildProcess;

class SavingTest : public testing::Test {
 protected:
  SavingTest() {
    EXPECT_EQ(outputOf(saver_, arguments("a")), "");
    a_ = contentOf(file_);
    EXPECT_EQ(outputOf(saver_, arguments("b")), "");
    b_ = contentOf(file_);
    EXPECT_NE(a_, b_);
    EXPECT_GT(a_.size(), 8192U) << "more than one block";
  }

  std::string arguments(const std::string& what) const {
    // Without the last separator, which would escape the closing quote on Windows.
    return '"' + folder_.path().substr(0, folder_.path().size() - 1) + "\" " + what;
  }

  std::unique_ptr<ChildProcess> start(const std::string& what) const {
    return ChildProcess::start({saver_, arguments(what), false});
  }

  /// What the child writes first: its process number.
  static int numberOf(ChildProcess& child) {
    std::string text;
    for (char c = 0; text.find('\n') == std::string::npos && child.read(ChildProcess::Stream::Output, &c, 1) == 1;)
      text += c;
    return std::atoi(text.c_str());
  }

  bool isWhole(const std::string& content) const { return content == a_ || content == b_; }

  std::vector<std::string> names() const {
    EXPECT_TRUE(platform::changeDirectory(folder_.path()));
    std::vector<std::string> all;
    for (const auto& entry : std::filesystem::directory_iterator(".")) all.push_back(entry.path().filename().string());
    std::sort(all.begin(), all.end());
    return all;
  }

  const ScratchFolder folder_;
  const std::string saver_ = platform::resolvedPath(standInFolder() + platform::toolFileName("saver"));
  const std::string file_ = folder_.file(defaultConfigurationName);
  const std::string leftOver_ = std::string(defaultConfigurationName) + ".tarnwick-1.tmp";
  std::string a_;
  std::string b_;
};

TEST_F(SavingTest, ASaveThatIsKilledAtAnyMomentLeavesTheOldFileOrTheNewOneWhole) {
  constexpr int kills = 250;
  int duringASave = 0;
  std::mt19937 random(20240229);
  std::uniform_int_distribution<int> microseconds(0, 12000);
  for (int i = 0; i < kills; ++i) {
    const auto child = start("0");
    const int number = numberOf(*child);
    ASSERT_GT(number, 0);
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
    endProcess(number);
    child->wait();
    ASSERT_TRUE(isWhole(contentOf(file_))) << "after kill " << i << ", of " << a_.size() << " or " << b_.size();
    // What a kill leaves is the next save's own file again: never a second one.
    const auto all = names();
    if (all.size() > 1) ++duringASave;
    ASSERT_LE(all.size(), 2U) << "after kill " << i;
    ASSERT_EQ(all.front(), defaultConfigurationName);
    ASSERT_EQ(all.back(), all.size() > 1 ? leftOver_ : defaultConfigurationName);
  }
  std::printf("%d kills, %d of them in the middle of a save\n", kills, duringASave);
  RecordProperty("kills", kills);
  RecordProperty("during_a_save", duringASave);
  EXPECT_GT(duringASave, 0) << "the kills came at the wrong moments";
  EXPECT_EQ(outputOf(saver_, arguments("a")), "");
  EXPECT_EQ(contentOf(file_), a_);
  EXPECT_EQ(names(), std::vector<std::string>{defaultConfigurationName}) << "the next save clears up";
}

TEST_F(SavingTest, TheFirstSaveThatIsKilledLeavesNoFileOrAWholeOne) {
  for (int i = 0; i < 20; ++i) {
    platform::deleteFile(file_);
    const auto child = start("0");
    endProcess(numberOf(*child));
    child->wait();
    if (platform::isFile(file_)) {
      EXPECT_TRUE(isWhole(contentOf(file_)));
    }
  }
}

/// A look into the file while others save; nothing where it cannot be opened at that moment.
std::string glance(const std::string& path) {
  std::FILE* stream = platform::openFile(path, "r");
  if (!stream) return "";
  std::string content;
  char block[8192];
  while (const std::size_t count = std::fread(block, 1, sizeof block, stream)) content.append(block, count);
  std::fclose(stream);
  return content;
}

TEST_F(SavingTest, TwoInstancesThatSaveAtTheSameTimeLeaveOneWholeFile) {
  const auto first = start("150");
  const auto second = start("150");
  std::string a = a_;
  std::string b = b_;
  std::erase(a, '\r');
  std::erase(b, '\r');
  const int numbers[] = {numberOf(*first), numberOf(*second)};
  int glances = 0;
  while (processLives(numbers[0]) || processLives(numbers[1])) {
    const std::string content = glance(file_);
    if (content.empty()) continue;
    ++glances;
    ASSERT_TRUE(content == a || content == b) << "of " << content.size();
  }
  EXPECT_EQ(readAll(*first, ChildProcess::Stream::Output), "") << "no failure was told";
  EXPECT_EQ(readAll(*second, ChildProcess::Stream::Output), "");
  first->wait();
  second->wait();
  EXPECT_GT(glances, 0);
  EXPECT_EQ(contentOf(file_), b_) << "both saved this one last";
  EXPECT_EQ(names(), std::vector<std::string>{defaultConfigurationName});
}

}  // namespace
}  // namespace tarnwick::test
