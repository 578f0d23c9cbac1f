#include "support/SplitterFixture.h"
#include "support/posix/OrdinaryUser.h"

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::test {
namespace {

class SourceSplitterPosixTest : public SplitterFixture {
 protected:
  /// Runs both passes over a source that must be split, after the question as an ordinary user.
  std::optional<std::string> faultAsOrdinaryUser(const std::function<void()>& prepare) {
    ::chmod(scratch_.path().c_str(), 0755);
    writeFile(path("X.java"), "public class A {} public class B {}");
    std::optional<OrdinaryUser> user;
    answer_ = [&] {
      prepare();
      user.emplace();
      return true;
    };
    const Outcome outcome = split("X.java");
    return outcome.fault;
  }
};

TEST_F(SourceSplitterPosixTest, AFolderThatCantBeWritten) {
  if (!OrdinaryUser::isBound()) GTEST_SKIP() << permissionsBindNobody;
  const auto fault = faultAsOrdinaryUser([this] { ::chmod(scratch_.path().c_str(), 0555); });
  ::chmod(scratch_.path().c_str(), 0755);
  EXPECT_EQ(fault, "Permission denied\nCan't process file " + path("A.java"));
  EXPECT_FALSE(isThere("A.java"));
  EXPECT_TRUE(isThere("X.java"));
}

TEST_F(SourceSplitterPosixTest, ASourceThatCantBeReadBetweenThePasses) {
  if (!OrdinaryUser::isBound()) GTEST_SKIP() << permissionsBindNobody;
  const auto fault = faultAsOrdinaryUser([this] { ::chmod(path("X.java").c_str(), 0000); });
  EXPECT_EQ(fault, "Permission denied\nCan't process file " + path("X.java"));
  EXPECT_FALSE(isThere("A.java"));
}

TEST_F(SourceSplitterPosixTest, ALinkToTheSourceItselfIsNoPlaceForAPiece) {
  const std::string text = "public class A {} public class B {}";
  ASSERT_EQ(::symlink("X.java", path("B.java").c_str()), 0);
  EXPECT_EQ(faultOf("X.java", text), "File exists\nCan't process file " + path("B.java"));
  EXPECT_EQ(contentOf(path("X.java")), text);
  EXPECT_TRUE(isThere("B.java"));
  EXPECT_FALSE(isThere("A.java"));
}

TEST_F(SourceSplitterPosixTest, ASourceThatIsAFolder) {
  platform::makeFolders(path("X.java"));
  EXPECT_EQ(split("X.java").fault, "Is a directory\nCan't process file " + path("X.java"));
}

}  // namespace
}  // namespace tarnwick::test
