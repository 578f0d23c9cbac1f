#include "app/PrintedAnswer.h"
#include "base/ProgramInfo.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(PrintedAnswer, TheVersionIsOneLine) {
  for (const char* line : {"--version", " --version "}) EXPECT_EQ(printedAnswer(line, {}), "Tarnwick V4.7a\n") << line;
}

TEST(PrintedAnswer, HelpTellsWhatMayBeGiven) {
  const std::string help = printedAnswer("--help", {}).value_or("");
  EXPECT_TRUE(help.starts_with("Usage: tarnwick [FILE]\n"));
  for (const char* word : {".twp", ".java", ".class", ".jar", "--help ", "--version ", "TARNWICK_CFGDIR", "JAVA_HOME"})
    EXPECT_NE(help.find(word), std::string::npos) << word;
  std::size_t widest = 0;
  for (std::size_t begin = 0, end = 0; (end = help.find('\n', begin)) != std::string::npos; begin = end + 1)
    widest = std::max(widest, end - begin);
  EXPECT_LE(widest, 80U);
}

TEST(PrintedAnswer, AnyOtherLineIsNoneOfItsBusiness) {
  for (const char* line : {"", "--versions", "-h", "--help x", "\\/RUN=java --help", "\\/TITLE=--help\\/", "a.twp"})
    EXPECT_EQ(printedAnswer(line, {}), std::nullopt) << line;
}

}  // namespace
}  // namespace tarnwick
