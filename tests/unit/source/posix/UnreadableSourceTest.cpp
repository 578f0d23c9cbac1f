// Sources that are there and can't be read.
#include "platform/FileSystem.h"
#include "source/Compiler.h"
#include "source/JavaSourcefile.h"
#include "support/TestProgram.h"
#include "support/posix/OrdinaryUser.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace tarnwick::test {
namespace {

std::string failureOf(JavaSourcefile& source) {
  try {
    source.analyse();
  } catch (const Compiler::CannotCompileE& failure) {
    return failure.message;
  }
  return {};
}

TEST(UnreadableSourceTest, ASourceThatMayNotBeRead) {
  if (!OrdinaryUser::isBound()) GTEST_SKIP() << permissionsBindNobody;
  const ScratchFolder scratch;
  const std::string path = scratch.file("A.java");
  writeFile(path, "class A { }");
  ASSERT_EQ(::chmod(scratch.path().c_str(), 0755), 0);
  ASSERT_EQ(::chmod(path.c_str(), 0), 0);
  JavaSourcefile source(Tarnwickfile::unopened(path, FileMode::Read));
  const OrdinaryUser user;
  EXPECT_EQ(failureOf(source), "Permission denied\nCan't process file " + path);
}

TEST(UnreadableSourceTest, AFolderAsSource) {
  const ScratchFolder scratch;
  JavaSourcefile source(Tarnwickfile::unopened(scratch.path(), FileMode::Read));
  EXPECT_EQ(failureOf(source), "Is a directory\nCan't process file " + scratch.path());
}

TEST(UnreadableSourceTest, WhereReadingFailsTheTextEnds) {
  // Opens, but has nothing at its beginning.
  const std::string path = "/proc/self/mem";
  if (!platform::isFile(path)) GTEST_SKIP() << "no " << path;
  JavaSourcefile source(Tarnwickfile::unopened(path, FileMode::Read));
  EXPECT_EQ(failureOf(source), "");
  EXPECT_TRUE(source.types().empty());
}

}  // namespace
}  // namespace tarnwick::test
