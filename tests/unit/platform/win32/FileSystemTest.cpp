#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <windows.h>

#include <cerrno>
#include <cstdio>
#include <gtest/gtest.h>
#include <io.h>
#include <string>

namespace tarnwick::platform {
namespace {

using test::contentOf;
using test::ScopedEnvironment;
using test::ScratchFolder;
using test::writeFile;

TEST(WindowsFileSystem, NoChildInheritsAStream) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "x");
  for (const char* mode : {"r", "w", "a+"}) {
    std::FILE* stream = openFile(folder.file("x"), mode);
    ASSERT_TRUE(stream);
    DWORD flags = 0;
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    ASSERT_TRUE(GetHandleInformation(handle, &flags));
    EXPECT_EQ(flags & HANDLE_FLAG_INHERIT, 0u) << mode;
    std::fclose(stream);
  }
}

TEST(WindowsFileSystem, WritingEndsLinesAsTheSystemDoes) {
  const ScratchFolder folder;
  std::FILE* stream = openFile(folder.file("x"), "w");
  ASSERT_TRUE(stream);
  std::fputs("one\ntwo\n", stream);
  std::fclose(stream);
  EXPECT_EQ(contentOf(folder.file("x")), "one\r\ntwo\r\n");
}

TEST(WindowsFileSystem, AReadOnlyFileIsNotDeleted) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "x");
  ASSERT_TRUE(SetFileAttributesA(folder.file("x").c_str(), FILE_ATTRIBUTE_READONLY));
  if (std::FILE* stream = std::fopen(folder.file("x").c_str(), "r+")) {
    std::fclose(stream);
    ASSERT_TRUE(SetFileAttributesA(folder.file("x").c_str(), FILE_ATTRIBUTE_NORMAL));
    GTEST_SKIP() << "this user may write read-only files (root, under Wine)";
  }
  EXPECT_FALSE(openFile(folder.file("x"), "w"));
  EXPECT_EQ(errno, EACCES);
  EXPECT_FALSE(deleteFile(folder.file("x")));
  EXPECT_EQ(contentOf(folder.file("x")), "x");
  ASSERT_TRUE(SetFileAttributesA(folder.file("x").c_str(), FILE_ATTRIBUTE_NORMAL));
}

TEST(WindowsFileSystem, TheConfigurationLiesBesideTheProgram) {
  EXPECT_EQ(defaultConfigDirectory("C:\\Tarnwick\\"), "C:\\Tarnwick\\");
}

TEST(WindowsFileSystem, TheEnvironmentIsThatOfChildren) {
  const ScopedEnvironment variable("TARNWICK_TEST_VARIABLE", "value");
  char value[20];
  EXPECT_EQ(GetEnvironmentVariableA("TARNWICK_TEST_VARIABLE", value, sizeof value), 5u);
  EXPECT_STREQ(value, "value");
}

TEST(WindowsFileSystem, TheHomeFolderIsTheUsersProfile) {
  const ScopedEnvironment profile("USERPROFILE", "C:\\users\\somebody");
  EXPECT_EQ(homeFolder(), "C:\\users\\somebody");
}

TEST(WindowsFileSystem, PreparingLeavesTheCharacterSetAlone) {
  const UINT before = GetACP();
  prepareProcess();
  EXPECT_EQ(GetACP(), before);
}

}  // namespace
}  // namespace tarnwick::platform
