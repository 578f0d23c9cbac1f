#include "settings/PathRules.h"
#include "support/SettingsFixture.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(PathRules, AUsersClasspathKeepsTheCurrentFolder) {
  EXPECT_EQ(normalisedClasspath("lib\\a.jar"), ".;lib\\a.jar");
  EXPECT_EQ(normalisedClasspath("lib\\a.jar;."), "lib\\a.jar;.");
  EXPECT_EQ(normalisedClasspath(".;lib\\a.jar"), ".;lib\\a.jar");
  EXPECT_EQ(normalisedClasspath("x;.;y"), "x;.;y");
  EXPECT_EQ(normalisedClasspath("."), ".");
  EXPECT_EQ(normalisedClasspath(""), "");
}

TEST(PathRules, OnlyTheFirstOccurrenceCounts) {
  EXPECT_EQ(normalisedClasspath("a;.b;."), ".;a;.b;.");
  EXPECT_EQ(normalisedClasspath("x"), ".;x");
}

TEST(PathRules, NameListsBecomeOptions) {
  EXPECT_EQ(assertionOptions("a.B, c.D.class;e...", "-ea:"), "-ea:a.B -ea:c.D -ea:e... ");
  EXPECT_EQ(assertionOptions("Foo.class, bar", "-ea:"), "-ea:Foo -ea:bar ");
  EXPECT_EQ(assertionOptions("Foo.CLASS", "-da:"), "-da:Foo ");
  EXPECT_EQ(assertionOptions("   ", "-ea:"), "");
  EXPECT_EQ(assertionOptions("one", "-ea:"), "-ea:one ");
}

class EffectiveClasspath : public SettingsFixture {};

TEST_F(EffectiveClasspath, FollowsTheTwoSwitches) {
  EXPECT_EQ(settings().effectiveClasspath(), ".");
  settings().classpath = "lib";
  EXPECT_EQ(settings().effectiveClasspath(), "lib");
  settings().classpathFromEnvironmentNever = 0;
  EXPECT_EQ(settings().effectiveClasspath(), "lib");
  settings().classpath = "";
  EXPECT_EQ(settings().effectiveClasspath(), "");
  settings().classpath = "lib";
  settings().classpathFromEnvironmentAlways = 1;
  EXPECT_EQ(settings().effectiveClasspath(), "");
  settings().classpathFromEnvironmentNever = 1;
  EXPECT_EQ(settings().effectiveClasspath(), "");
}

}  // namespace
}  // namespace tarnwick::test
