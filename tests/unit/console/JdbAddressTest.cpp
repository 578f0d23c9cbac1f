#include "console/JdbAddress.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick {
namespace {

std::string addressIn(const std::string& output) {
  JdbAddress address;
  address.take(output);
  return address.address();
}

TEST(JdbAddressTest, TheLastWordOfTheLineIsTheAddressInAnyLanguage) {
  EXPECT_EQ(addressIn("Listening at address: localhost:60129\n"), "127.0.0.1:60129");
  EXPECT_EQ(addressIn("\xE6\xAC\xA1\xE3\x81\xAE: localhost:60129\n"), "127.0.0.1:60129");
  EXPECT_EQ(addressIn("Listening-Adresse: my-pc.home:1\r\n"), "127.0.0.1:1");
  EXPECT_EQ(addressIn("localhost:65535\n"), "127.0.0.1:65535");
}

TEST(JdbAddressTest, OtherLinesBeforeItAreSkipped) {
  EXPECT_EQ(addressIn("Picked up JAVA_TOOL_OPTIONS: -Dx=a:5005\n\nNOTE: Picked\nListening at address: localhost:7\n"),
            "127.0.0.1:7");
  EXPECT_EQ(addressIn(std::string(100000, 'x') + "\nat localhost:7\n"), "127.0.0.1:7");
}

TEST(JdbAddressTest, WhatIsNoHostWithAPortIsNoAddress) {
  for (const char* line :
       {"", "a", "a:", ":5", "a :5", "at: b", "a:5x", "a:0", "a:65536", "a:123456", "a:-5", "12:30 o'clock"})
    EXPECT_EQ(addressIn(std::string(line) + '\n'), "") << line;
}

TEST(JdbAddressTest, ItComesInPieces) {
  JdbAddress address;
  for (const char c : std::string("Listening at address: localhost:4711"))
    EXPECT_FALSE(address.take(std::string_view(&c, 1)));
  EXPECT_EQ(address.address(), "") << "more digits may come";
  EXPECT_TRUE(address.take("\n"));
  EXPECT_EQ(address.address(), "127.0.0.1:4711");
  EXPECT_FALSE(address.saidMore());
  address.take("S");
  EXPECT_TRUE(address.saidMore());
}

TEST(JdbAddressTest, WhatStandsBehindItInTheSameBlockCountsToo) {
  JdbAddress address;
  address.take("Listening at address: localhost:4711\nInitializing at other:5\n");
  EXPECT_EQ(address.address(), "127.0.0.1:4711");
  EXPECT_TRUE(address.saidMore());
}

}  // namespace
}  // namespace tarnwick
