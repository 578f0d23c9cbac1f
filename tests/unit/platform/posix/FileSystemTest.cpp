#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <cerrno>
#include <chrono>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <langinfo.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tarnwick::platform {
namespace {

using test::contentOf;
using test::ScopedEnvironment;
using test::ScratchFolder;
using test::writeFile;

/// The descriptor that this process holds on a file; -1 for none.
int descriptorOf(const std::string& path) {
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code gone;
    if (std::filesystem::read_symlink(entry.path(), gone) == path) return std::stoi(entry.path().filename());
  }
  return -1;
}

TEST(PosixFileSystem, APipeIsWrittenToOnlyIfSomebodyReadsIt) {
  const ScratchFolder folder;
  const std::string path = folder.file("pipe");
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  for (const char* mode : {"w", "wb", "a"}) {
    errno = 0;
    EXPECT_FALSE(openFile(path, mode)) << mode;
    EXPECT_EQ(errno, ENXIO) << mode;
  }
  const int reader = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  ASSERT_GE(reader, 0);
  std::FILE* stream = openFile(path, "w");
  ASSERT_TRUE(stream);
  EXPECT_FALSE(::fcntl(::fileno(stream), F_GETFL) & O_NONBLOCK) << "a slow reader is waited for";
  std::fputs("x", stream);
  std::fclose(stream);
  char c = 0;
  EXPECT_EQ(::read(reader, &c, 1), 1);
  EXPECT_EQ(c, 'x');
  ::close(reader);
}

TEST(PosixFileSystem, APipeThatNobodyWritesToIsEmptyAndNotWaitedFor) {
  const ScratchFolder folder;
  const std::string path = folder.file("pipe");
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  for (const char* mode : {"r", "rb"}) {
    std::FILE* stream = openFile(path, mode);
    ASSERT_TRUE(stream) << mode;
    EXPECT_EQ(std::fgetc(stream), EOF) << mode;
    EXPECT_FALSE(std::ferror(stream)) << mode;
    std::fclose(stream);
  }
}

TEST(PosixFileSystem, AWriterThatHasOpenedAPipeIsWaitedFor) {
  const ScratchFolder folder;
  const std::string path = folder.file("pipe");
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  const int both = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_GE(both, 0);
  std::FILE* stream = openFile(path, "r");
  ASSERT_TRUE(stream);
  std::thread writer([both] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(::write(both, "x\n", 2), 2);
  });
  char line[10] = "";
  EXPECT_TRUE(std::fgets(line, sizeof line, stream));
  EXPECT_STREQ(line, "x\n");
  writer.join();
  std::fclose(stream);
  ::close(both);
}

TEST(PosixFileSystem, NoChildInheritsAStream) {
  const ScratchFolder folder;
  const std::string path = folder.file("x");
  writeFile(path, "x");
  for (const char* mode : {"r", "rb", "w", "a+"}) {
    std::FILE* stream = openFile(path, mode);
    ASSERT_TRUE(stream);
    const int descriptor = descriptorOf(resolvedPath(path));
    ASSERT_GE(descriptor, 0) << mode;
    EXPECT_TRUE(::fcntl(descriptor, F_GETFD) & FD_CLOEXEC) << mode;
    std::fclose(stream);
    EXPECT_EQ(descriptorOf(resolvedPath(path)), -1) << mode << ": closed with the stream";
  }
}

TEST(PosixFileSystem, WritingChangesNothing) {
  const ScratchFolder folder;
  std::FILE* stream = openFile(folder.file("x"), "w");
  ASSERT_TRUE(stream);
  std::fputs("one\ntwo\r\n", stream);
  std::fclose(stream);
  EXPECT_EQ(contentOf(folder.file("x")), "one\ntwo\r\n");
}

TEST(PosixFileSystem, ATextCanBeSoughtFromItsEnd) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "one\r\ntwo\r\n");
  std::FILE* stream = openFile(folder.file("x"), "r");
  ASSERT_TRUE(stream);
  ASSERT_EQ(std::fseek(stream, -4, SEEK_END), 0);
  EXPECT_EQ(std::ftell(stream), 4);
  char line[10];
  ASSERT_TRUE(std::fgets(line, sizeof line, stream));
  EXPECT_STREQ(line, "two\n");
  EXPECT_NE(std::fseek(stream, -1, SEEK_SET), 0);
  EXPECT_EQ(std::fseek(stream, 1, SEEK_SET), 0);
  EXPECT_EQ(std::fgetc(stream), 'n');
  ASSERT_EQ(std::fseek(stream, 2, SEEK_CUR), 0);
  EXPECT_EQ(std::fgetc(stream), 't');
  std::fclose(stream);
}

TEST(PosixFileSystem, ResolvedPathFollowsLinks) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "x");
  std::filesystem::create_symlink("x", folder.file("link"));
  std::filesystem::create_symlink("link", folder.file("second link"));
  EXPECT_EQ(resolvedPath(folder.file("second link")), resolvedPath(folder.file("x")));
}

TEST(PosixFileSystem, ALinkToWhatDoesNotExistGivesThePathThatItNames) {
  const ScratchFolder folder;
  std::filesystem::create_symlink("missing", folder.file("link"));
  std::filesystem::create_symlink("circle", folder.file("circle"));
  EXPECT_EQ(resolvedPath(folder.file("link")), folder.file("missing"));
  EXPECT_EQ(resolvedPath(folder.file("circle")), folder.file("circle"));
}

TEST(PosixFileSystem, AFullDiskIsReported) {
  std::FILE* stream = openFile("/dev/full", "w");
  ASSERT_TRUE(stream);
  std::fputs("x", stream);
  errno = 0;
  EXPECT_FALSE(flushToDisk(stream));
  EXPECT_EQ(errno, ENOSPC);
  std::fclose(stream);
}

TEST(PosixFileSystem, AFailureOfAnEarlierWriteIsReported) {
  std::FILE* stream = openFile("/dev/full", "w");
  ASSERT_TRUE(stream);
  const std::string much(100000, 'x');
  EXPECT_LT(std::fwrite(much.data(), 1, much.size(), stream), much.size());
  EXPECT_FALSE(flushToDisk(stream));
  std::fclose(stream);
}

TEST(PosixFileSystem, ADeviceKnowsNoDiskAndIsNoFailure) {
  std::FILE* stream = openFile("/dev/null", "w");
  ASSERT_TRUE(stream);
  std::fputs("x", stream);
  EXPECT_TRUE(flushToDisk(stream));
  std::fclose(stream);
}

TEST(PosixFileSystem, TheConfigurationLiesInTheUsersConfigurationFolder) {
  const ScopedEnvironment home("HOME", "/home/somebody");
  const ScopedEnvironment xdg("XDG_CONFIG_HOME", "/elsewhere");
  EXPECT_EQ(defaultConfigDirectory("/opt/tarnwick/"), "/elsewhere/tarnwick/");
  ASSERT_TRUE(setEnvironment("XDG_CONFIG_HOME=/elsewhere/"));
  EXPECT_EQ(defaultConfigDirectory("/opt/tarnwick/"), "/elsewhere/tarnwick/");
  ASSERT_TRUE(setEnvironment("XDG_CONFIG_HOME="));
  EXPECT_EQ(defaultConfigDirectory("/opt/tarnwick/"), "/home/somebody/.config/tarnwick/");
}

TEST(PosixFileSystem, ARelativeConfigurationFolderOfTheUserIsIgnored) {
  const ScopedEnvironment home("HOME", "/home/somebody");
  const ScopedEnvironment xdg("XDG_CONFIG_HOME", "relative");
  EXPECT_EQ(defaultConfigDirectory(""), "/home/somebody/.config/tarnwick/");
}

TEST(PosixFileSystem, WithoutTheVariableTheHomeFolderIsThatOfTheUser) {
  const ScopedEnvironment home("HOME", "");
  EXPECT_TRUE(homeFolder().starts_with('/'));
}

/// Runs `prepareProcess` in a process of its own, whose locale is what the environment says, and lets it judge.
template <typename Judge>
void expectAfterPreparing(Judge judge) {
  const auto prepared = [&] {
    std::setlocale(LC_ALL, "C");
    prepareProcess();
    std::exit(judge() ? 0 : 1);
  };
  EXPECT_EXIT(prepared(), testing::ExitedWithCode(0), "");
}

bool speaksUtf8() {
  return std::string(::nl_langinfo(CODESET)) == "UTF-8";
}

TEST(PosixFileSystem, PreparingBringsUtf8WhereTheLocaleHasNone) {
  const ScopedEnvironment all("LC_ALL", "");
  const ScopedEnvironment type("LC_CTYPE", "");
  const ScopedEnvironment language("LANG", "C");
  expectAfterPreparing(
      [] { return speaksUtf8() && environment("LC_CTYPE") == "C.UTF-8" && environment("LANG") == "C"; });
}

TEST(PosixFileSystem, PreparingTakesBackWhatOverridesEveryCategory) {
  const ScopedEnvironment all("LC_ALL", "POSIX");
  const ScopedEnvironment messages("LC_MESSAGES", "en_GB");
  expectAfterPreparing([] {
    return speaksUtf8() && !environment("LC_ALL") && environment("LC_CTYPE") == "C.UTF-8" &&
           environment("LC_MESSAGES") == "POSIX" && environment("LC_NUMERIC") == "POSIX";
  });
}

TEST(PosixFileSystem, PreparingLeavesALocaleOfUtf8Alone) {
  const ScopedEnvironment all("LC_ALL", "C.UTF-8");
  const ScopedEnvironment type("LC_CTYPE", "");
  expectAfterPreparing([] { return speaksUtf8() && environment("LC_ALL") == "C.UTF-8" && !environment("LC_CTYPE"); });
}

TEST(PosixFileSystem, PreparingReplacesALocaleThatTheSystemDoesNotKnow) {
  const ScopedEnvironment all("LC_ALL", "");
  const ScopedEnvironment type("LC_CTYPE", "xx_XX.UTF-8");
  expectAfterPreparing([] { return speaksUtf8() && environment("LC_CTYPE") == "C.UTF-8"; });
}

/// Whether a program that takes all of its locale from the environment gets what it asks for, as Java's tools do.
bool programsGetTheirLocale() {
  return std::setlocale(LC_ALL, "") != nullptr && speaksUtf8();
}

TEST(PosixFileSystem, PreparingReplacesTheCategoriesWhoseLocaleIsNotInstalled) {
  const ScopedEnvironment all("LC_ALL", "");
  const ScopedEnvironment type("LC_CTYPE", "");
  const ScopedEnvironment language("LANG", "C.UTF-8");
  const ScopedEnvironment time("LC_TIME", "xx_XX.UTF-8");
  expectAfterPreparing([] {
    return programsGetTheirLocale() && environment("LC_TIME") == "C" && !environment("LC_NUMERIC") &&
           environment("LANG") == "C.UTF-8";
  });
}

TEST(PosixFileSystem, PreparingReplacesALanguageThatIsNotInstalled) {
  const ScopedEnvironment all("LC_ALL", "");
  const ScopedEnvironment type("LC_CTYPE", "");
  const ScopedEnvironment language("LANG", "xx_XX.UTF-8");
  expectAfterPreparing(programsGetTheirLocale);
}

TEST(PosixFileSystem, PreparingReplacesWhatOverridesEveryCategoryAndIsNotInstalled) {
  const ScopedEnvironment all("LC_ALL", "xx_XX.UTF-8");
  const ScopedEnvironment type("LC_CTYPE", "");
  expectAfterPreparing([] { return programsGetTheirLocale() && !environment("LC_ALL"); });
}

TEST(PosixFileSystem, AWriteToAReaderThatHasGoneFailsAfterPreparing) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  ::close(ends[0]);
  expectAfterPreparing([&] { return ::write(ends[1], "x", 1) == -1 && errno == EPIPE; });
  ::close(ends[1]);
}

}  // namespace
}  // namespace tarnwick::platform
