#include "platform/Characters.h"

#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

TEST(WindowsCharacters, EveryByteIsACharacterOfOneColumn) {
  EXPECT_EQ(unfinishedTail("a\xC3"), 0u);
  EXPECT_EQ(validText("a\xC3\xFF"), "a\xC3\xFF");
  EXPECT_EQ(columnsOf("a\xC3\xA4"), 3u);
  EXPECT_EQ(characterLength("\xC3\xA4", 0), 1u);
}

TEST(WindowsCharacters, TheConsoleClassesAByteByItsLowSevenBits) {
  EXPECT_EQ(consoleClass('a'), 'a');
  EXPECT_EQ(consoleClass('\x8A'), '\n');
  for (int byte = 0; byte < 256; ++byte)
    EXPECT_EQ(isConsoleText(static_cast<char>(byte)), (byte & 0x7F) >= 32 && (byte & 0x7F) <= 126) << byte;
}

}  // namespace
}  // namespace tarnwick::platform
