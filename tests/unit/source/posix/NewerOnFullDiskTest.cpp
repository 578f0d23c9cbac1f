// The newer way on a disk that takes no more bytes, played by the limit on the size of files.
#include "platform/OwnFiles.h"
#include "source/Compiler.h"
#include "support/AskingCompiler.h"
#include "support/SettingsFixture.h"
#include "support/Shown.h"
#include "support/posix/FullDisk.h"

#include <cerrno>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace tarnwick::test {
namespace {

class NewerOnFullDiskTest : public SettingsFixture {
 protected:
  NewerOnFullDiskTest()
      : record_("STANDIN_RECORD", scratch_.file("record")), script_("STANDIN_SCRIPT", scratch_.file("script")) {
    useStandIns();
    settings().newerJava = settings().javacOneRun = true;
    writeFile(scratch_.file("script"), "");
    settings().saveDefaultConfiguration();
  }

  /// Two public types, the second of which has a body of this many bytes.
  static std::string splitSource(std::size_t size) {
    return "public class X {}\npublic class B {\n" + std::string(size, ' ') + "}\n";
  }
  std::string makeSource(const std::string& name, const std::string& text) const {
    writeFile(userFolder() + name, text);
    return userFolder() + name;
  }
  void agreeToSplit() {
    desktop_.expectDialog("Java Portability Warning", [](ScriptedWindow& window) { window.press(IDOK_CONTROL); });
  }
  /// The message of the failure of `work` on a disk on which no file grows beyond `room`.
  static std::string failureOf(rlim_t room, const std::function<void()>& work) {
    try {
      const FullDisk disk(room);
      work();
    } catch (const Compiler::RefusedE&) {
      return "(no way of reading would help)";
    } catch (const Compiler::CannotCompileE& failure) {
      return failure.message;
    }
    return "(nothing thrown)";
  }
  /// More than the configuration has, which is saved first.
  rlim_t roomForSettings() const { return *platform::fileSize(configFile()) + 100; }
  /// Nothing ran, and beside the configuration nothing stands in its folder.
  void expectNothingLeft() const {
    EXPECT_FALSE(platform::isFile(scratch_.file("record")));
    EXPECT_EQ(platform::filesIn(configFolder()), std::vector<std::string>{defaultConfigurationName});
    EXPECT_FALSE(platform::isTaken(configFolder() + "Tarnwick_split1.tmp"));
  }

  const std::string reason_ = std::strerror(EFBIG);
  ScopedEnvironment record_;
  ScopedEnvironment script_;
};

TEST_F(NewerOnFullDiskTest, PiecesThatCantBeWrittenAreToldAndNothingIsLeft) {
  FileForSubprocess source(makeSource("X.java", splitSource(60000)));
  agreeToSplit();
  EXPECT_EQ(failureOf(30000, [&] { shown(desktop_, askingCompiler(settings()).compile(source, FileMode::Write)); }),
            reason_ + "\nCan't process file X.java");
  expectNothingLeft();
  EXPECT_EQ(contentOf(userFolder() + "X.java"), splitSource(60000));
  agreeToSplit();
  EXPECT_FALSE(shown(desktop_, askingCompiler(settings()).compile(source, FileMode::Write)))
      << "the next one finds room";
  EXPECT_TRUE(platform::isFile(scratch_.file("record")));
}

TEST_F(NewerOnFullDiskTest, APieceThatWaitsInABufferCountsToo) {
  // Longer than the configuration, and shorter than what a stream holds back.
  const std::size_t size = roomForSettings() + 100;
  ASSERT_LT(size, 4000U);
  FileForSubprocess source(makeSource("X.java", splitSource(size)));
  agreeToSplit();
  EXPECT_EQ(failureOf(roomForSettings(),
                      [&] { shown(desktop_, askingCompiler(settings()).compile(source, FileMode::Write)); }),
            reason_ + "\nCan't process file X.java");
  expectNothingLeft();
}

TEST_F(NewerOnFullDiskTest, AListThatCantBeWrittenIsToldAndNothingIsLeft) {
  std::vector<std::string> sources = {makeSource("X.java", splitSource(10))};
  for (int i = 0; i < 200; ++i) sources.push_back(makeSource(std::string(150, 'a') + std::to_string(i) + ".java", ""));
  const auto compileAll = [&] {
    shown(desktop_, askingCompiler(settings()).compileTogether(sources, FileMode::Write));
  };
  // What its end leaves in a buffer may find room though its middle did not.
  for (int more = 0; more < 20; ++more) {
    agreeToSplit();
    EXPECT_EQ(failureOf(20000, compileAll),
              reason_ + "\nCan't write the list of sources " + configFolder() + "Tarnwick_javac_list1.tmp");
    expectNothingLeft();
    sources.push_back(makeSource(std::string(160, 'b') + std::to_string(more) + ".java", ""));
  }
}

TEST_F(NewerOnFullDiskTest, AListThatWaitsInABufferCountsToo) {
  std::vector<std::string> sources;
  std::size_t size = 0;
  while (size < roomForSettings() + 100) {
    sources.push_back(makeSource("A" + std::to_string(sources.size()) + ".java", ""));
    size += sources.back().size() + 3;
  }
  ASSERT_LT(size, 4000U);
  const auto compileAll = [&] {
    shown(desktop_, askingCompiler(settings()).compileTogether(sources, FileMode::Write));
  };
  EXPECT_EQ(failureOf(roomForSettings(), compileAll),
            reason_ + "\nCan't write the list of sources " + configFolder() + "Tarnwick_javac_list1.tmp");
  expectNothingLeft();
}

}  // namespace
}  // namespace tarnwick::test
