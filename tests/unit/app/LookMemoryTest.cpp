#include "app/LookMemory.h"
#include "support/SettingsFixture.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick {
namespace {

class LookMemoryTest : public test::SettingsFixture {
 protected:
  std::string file() const { return configFolder() + lookFileName; }
  TextLook read() const { return rememberedLook(program_); }
  TextLook readFrom(const std::string& content) const {
    test::writeFile(file(), content);
    return read();
  }
};

TEST_F(LookMemoryTest, WithoutAFileAllIsUsual) {
  EXPECT_EQ(read(), TextLook{});
  EXPECT_FALSE(platform::isFile(file())) << "looking makes none";
}

TEST_F(LookMemoryTest, WhatWasRememberedIsKnownAgain) {
  rememberLook(program_, {18, false});
  EXPECT_EQ(read(), (TextLook{18, false}));
  EXPECT_NE(test::contentOf(file()).find("\nCONSOLE_LETTERS  18"), std::string::npos);
  rememberLook(program_, {});
  EXPECT_EQ(read(), TextLook{});
  EXPECT_EQ(test::contentOf(file()).find("CONSOLE_LETTERS"), std::string::npos) << "what is usual takes no line";
}

TEST_F(LookMemoryTest, TheFileLiesBesideTheDefaultConfigurationWhichStaysAsItIs) {
  EXPECT_EQ(file(), configFolder() + "Tarnwickconsole.CFG");
  settings().saveDefaultConfiguration();
  const std::string before = test::contentOf(configFile());
  rememberLook(program_, {18, false});
  EXPECT_EQ(test::contentOf(configFile()), before);
  settings().saveDefaultConfiguration();
  EXPECT_EQ(read(), (TextLook{18, false})) << "and a save of the settings leaves it alone";
}

TEST_F(LookMemoryTest, WhatMakesNoSenseCountsAsUsual) {
  EXPECT_EQ(readFrom("CONSOLE_LETTERS 6\n"), (TextLook{6, false}));
  EXPECT_EQ(readFrom("CONSOLE_LETTERS 36\n"), (TextLook{36, false}));
  for (const char* const content :
       {"", "\n\n", "CONSOLE_LETTERS\n", "CONSOLE_LETTERS large\n", "CONSOLE_LETTERS 18pt\n", "CONSOLE_LETTERS 5\n",
        "CONSOLE_LETTERS 37\n", "CONSOLE_LETTERS -12\n", "CONSOLE_LETTERS 4294967296000\n", "\x01\x02\xFF\xFE",
        "LETTERS 18\n"})
    EXPECT_EQ(readFrom(content), TextLook{}) << content;
}

TEST_F(LookMemoryTest, WrappingIsRememberedBesideTheLetters) {
  rememberLook(program_, {18, true});
  EXPECT_EQ(read(), (TextLook{18, true}));
  EXPECT_EQ(readFrom("CONSOLE_WRAP ON\n"), (TextLook{0, true}));
  EXPECT_EQ(readFrom("CONSOLE_WRAP perhaps\n"), TextLook{});
}

TEST_F(LookMemoryTest, AChangeLeavesWhatAnotherWindowHasChangedMeanwhile) {
  rememberLook(program_, {18, true});
  rememberChange(program_, {0, false}, {11, false});
  EXPECT_EQ(read(), (TextLook{11, true}));
  rememberChange(program_, {20, true}, {20, false});
  EXPECT_EQ(read(), (TextLook{11, false}));
}

TEST_F(LookMemoryTest, WhatALaterVersionHasAddedIsNoReasonToForget) {
  EXPECT_EQ(readFrom("CONSOLE_GROUND green\nCONSOLE_LETTERS 18\n"), (TextLook{18, false}));
}

TEST_F(LookMemoryTest, WhatCannotBeWrittenIsNotRemembered) {
  platform::makeFolders(file());
  rememberLook(program_, {18, false});
  EXPECT_EQ(read(), TextLook{});
}

}  // namespace
}  // namespace tarnwick
