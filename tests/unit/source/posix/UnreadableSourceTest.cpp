// Sources that are there and can't be read.
#include "platform/FileSystem.h"
#include "source/Compiler.h"
#include "source/JavaSourcefile.h"
#include "support/TestProgram.h"
#include "support/posix/OrdinaryUser.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

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

TEST(UnreadableSourceTest, ADeviceOrAPipeAsSource) {
  const ScratchFolder scratch;
  ASSERT_EQ(::symlink("/dev/zero", scratch.file("Device.java").c_str()), 0);
  ASSERT_EQ(::mkfifo(scratch.file("Pipe.java").c_str(), 0600), 0);
  for (const char* name : {"Device.java", "Pipe.java"}) {
    JavaSourcefile source(Tarnwickfile::unopened(scratch.file(name), FileMode::Read));
    EXPECT_EQ(failureOf(source), "Not a regular file\nCan't process file " + scratch.file(name));
  }
}

TEST(UnreadableSourceTest, ASourceOfMoreThan64Mebibytes) {
  const ScratchFolder scratch;
  writeFile(scratch.file("Large.java"), "class Large { }\n");
  ASSERT_EQ(::truncate(scratch.file("Large.java").c_str(), 64L * 1024 * 1024 + 1), 0);
  JavaSourcefile source(Tarnwickfile::unopened(scratch.file("Large.java"), FileMode::Read));
  EXPECT_EQ(failureOf(source), "Larger than 64 MiB\nCan't process file " + scratch.file("Large.java"));
}

TEST(UnreadableSourceTest, WhereReadingFailsTheTextEnds) {
  const std::string path = "/sys/class/net/lo/speed";
  if (!platform::isFile(path)) GTEST_SKIP() << "no " << path << ", which opens, and whose first byte can't be read";
  JavaSourcefile source(Tarnwickfile::unopened(path, FileMode::Read));
  EXPECT_EQ(failureOf(source), "");
  EXPECT_TRUE(source.types().empty());
}

}  // namespace
}  // namespace tarnwick::test
