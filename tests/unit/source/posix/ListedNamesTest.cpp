#include "source/Compiler.h"
#include "support/AskingCompiler.h"
#include "support/SettingsFixture.h"
#include "support/Shown.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class ListedNamesTest : public SettingsFixture {};

TEST_F(ListedNamesTest, QuotesAndBackslashesInNamesAreMasked) {
  const ScopedEnvironment record("STANDIN_RECORD", scratch_.file("record"));
  const ScopedEnvironment script("STANDIN_SCRIPT", scratch_.file("script"));
  writeFile(scratch_.file("script"), "keep " + configFolder() + "Tarnwick_javac_list1.tmp\n");
  useStandIns();
  settings().newerJava = true;
  const std::string source = userFolder() + "a\"b\\c.java";
  writeFile(source, "");
  shown(desktop_, askingCompiler(settings()).compileTogether({source, source}, FileMode::Write));
  const std::string line = '"' + userFolder() + "a\\\"b\\\\c.java\"\n";
  const std::string kept = contentOf(scratch_.file("record.kept"));
  EXPECT_NE(kept.find(line + line), std::string::npos) << kept;
}

}  // namespace
}  // namespace tarnwick::test
