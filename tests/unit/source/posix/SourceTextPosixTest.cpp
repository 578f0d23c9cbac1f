#include "base/Tarnwickfile.h"
#include "source/SourceText.h"
#include "support/TestProgram.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {
namespace {

std::string refusalOf(const std::string& path) {
  try {
    sourceText(path);
  } catch (const Tarnwickfile::FileNotOpenE& caught) {
    return caught.message;
  }
  return {};
}

TEST(SourceText, RefusesLargeFiles) {
  const ScratchFolder scratch;
  writeFile(scratch.file("Large.java"), "");
  std::filesystem::resize_file(scratch.file("Large.java"), largestContent + 1);
  EXPECT_EQ(refusalOf(scratch.file("Large.java")), "Larger than 64 MiB");
}

TEST(SourceText, RefusesDevices) {
  EXPECT_EQ(refusalOf("/dev/zero"), "Not a regular file");
}

}  // namespace
}  // namespace tarnwick::test
