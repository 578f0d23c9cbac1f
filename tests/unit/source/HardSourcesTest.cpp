#include "source/OutlineReader.h"
#include "support/CheckoutFolder.h"
#include "support/TestProgram.h"
#include "support/source/OutlineText.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <string_view>

namespace tarnwick::test {
namespace {

const std::string folder = checkoutFolder() + "/tests/truth/hard/";

std::string found(const std::string& file) {
  return outlineText(outlineOf(contentOf(folder + file), file.substr(0, file.rfind('.'))));
}

// What is expected was written by the compiler of JDK 25: see tests/truth/run.py.
TEST(HardSources, AreReadAsTheCompilerReadsThem) {
  constexpr std::string_view mark = "file ";
  std::istringstream expected(contentOf(folder + "expected.txt"));
  std::string file;
  std::string outline;
  int files = 0;
  const auto compare = [&] {
    if (file.empty()) return;
    EXPECT_EQ(found(file), outline) << file;
    ++files;
    outline.clear();
  };
  for (std::string line; std::getline(expected, line);) {
    if (line.starts_with(mark)) {
      compare();
      file = line.substr(mark.size());
    } else {
      outline += line + '\n';
    }
  }
  compare();
  EXPECT_EQ(files, 31);
}

}  // namespace
}  // namespace tarnwick::test
