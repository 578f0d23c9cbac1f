#include "support/TestProgram.h"
#include "tools/ManifestClassPath.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

namespace fs = std::filesystem;

TEST(ManifestClassPathLinksTest, WhatIsSeenBelowTheArchivesFolderByEitherNameIsNamedFromThere) {
  const ScratchFolder scratch;
  for (const char* name : {"real/lib", "elsewhere"}) fs::create_directories(scratch.file(name));
  fs::create_directory_symlink(scratch.file("real"), scratch.file("link"));
  fs::create_directory_symlink(scratch.file("elsewhere"), scratch.file("real/far"));
  const auto urls = [&scratch](const char* element, const char* folder) {
    return manifestClassPath('"' + scratch.file(element) + '"', scratch.file(folder));
  };
  for (const char* folder : {"real", "link"}) {
    for (const char* element : {"real/lib/c.jar", "link/lib/c.jar"})
      EXPECT_EQ(urls(element, folder), "lib/c.jar") << element << ' ' << folder;
    EXPECT_EQ(urls(folder, folder), "./");
  }
  EXPECT_EQ(urls("real/far/c.jar", "real"), "far/c.jar") << "as it is seen there";
}

}  // namespace
}  // namespace tarnwick::test
