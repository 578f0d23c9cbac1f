#include "base/LastAct.h"
#include "base/TempFile.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace tarnwick {
namespace {

TEST(LastActTest, TheYoungestIsFirstEachIsDoneOnceAndThoseThatHaveGoneAreNotDone) {
  std::string done;
  const LastAct one([&] { done += '1'; });
  {
    const LastAct gone([&] { done += '-'; });
  }
  const LastAct failing([&] {
    done += '2';
    throw std::runtime_error("anything");
  });
  const LastAct three([&] { done += '3'; });
  LastAct::doAll();
  EXPECT_EQ(done, "321");
  LastAct::doAll();
  EXPECT_EQ(done, "321");
}

TEST(LastActTest, ATemporaryFileIsDeleted) {
  const test::ScratchFolder folder;
  TempFile file("Tarnwick_LOG", folder.path());
  file.openTemp(FileMode::Write);
  LastAct::doAll();
  EXPECT_FALSE(platform::isFile(folder.file("Tarnwick_LOG1.tmp")));
}

}  // namespace
}  // namespace tarnwick
