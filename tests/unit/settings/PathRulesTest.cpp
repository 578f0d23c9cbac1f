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

TEST(PathRules, ASeparatorAndDotThatAreNotFoundMatchNothingHoweverShortTheText) {
  EXPECT_EQ(normalisedClasspath("x"), ".;x");
  EXPECT_EQ(normalisedClasspath(";"), ".;;");
  EXPECT_EQ(normalisedClasspath("ab"), ".;ab");
  EXPECT_EQ(normalisedClasspath(".."), ".;..");
}

TEST(PathRules, ADotBetweenSeparatorsCountsOnlyBehindTheFirstPlace) {
  EXPECT_EQ(normalisedClasspath(";.;x"), ".;;.;x");
  EXPECT_EQ(normalisedClasspath("a;.;x"), "a;.;x");
  EXPECT_EQ(normalisedClasspath(";."), ";.") << "it ends so";
  EXPECT_EQ(normalisedClasspath(".;"), ".;") << "it begins so";
  EXPECT_EQ(normalisedClasspath(";.;a;.;x"), ".;;.;a;.;x") << "only the first occurrence counts";
}

TEST(PathRules, ThePrefixIsAddedOnce) {
  EXPECT_EQ(normalisedClasspath(normalisedClasspath("a;.b;.")), ".;a;.b;.");
}

TEST(PathRules, SeparatorsOfANameListCollapse) {
  EXPECT_EQ(assertionOptions(" \ta ,;, b\n", "-ea:"), "-ea:a -ea:b ");
  EXPECT_EQ(assertionOptions("a,b c;d", "-ea:"), "-ea:a -ea:b -ea:c -ea:d ");
  EXPECT_EQ(assertionOptions("a;", "-ea:"), "-ea:a ");
  EXPECT_EQ(assertionOptions("a; , ;", "-ea:"), "-ea:a ");
  EXPECT_EQ(assertionOptions("", "-ea:"), "");
}

TEST(PathRules, ASeparatorInTheFirstPlaceMakesAnEmptyName) {
  // A comma is not trimmed as a blank is.
  EXPECT_EQ(assertionOptions(",a", "-ea:"), "-ea: -ea:a ");
  EXPECT_EQ(assertionOptions(";", "-ea:"), "-ea: ");
}

TEST(PathRules, ANameIsCutAtItsClassEndingWhereverThatStands) {
  EXPECT_EQ(assertionOptions("a.Class.b", "-da:"), "-da:a ");
  EXPECT_EQ(assertionOptions("a.class.b.class", "-da:"), "-da:a ") << "where it stands first";
  EXPECT_EQ(assertionOptions(".class", "-da:"), "-da: ");
  EXPECT_EQ(assertionOptions("p.MyClass", "-da:"), "-da:p.MyClass ");
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
  const struct {
    int always;
    int never;
    const char* classpath;
    const char* effective;
  } cases[] = {{0, 1, "", "."}, {0, 1, "lib", "lib"}, {0, 0, "", ""}, {0, 0, "lib", "lib"},
               {1, 1, "", ""},  {1, 1, "lib", ""},    {1, 0, "", ""}, {1, 0, "lib", ""}};
  for (const auto& one : cases) {
    settings().classpathFromEnvironmentAlways = one.always;
    settings().classpathFromEnvironmentNever = one.never;
    settings().classpath = one.classpath;
    EXPECT_EQ(settings().effectiveClasspath(), one.effective) << one.always << one.never << one.classpath;
    EXPECT_EQ(settings().classpath, one.classpath);
  }
}

TEST_F(EffectiveClasspath, IsThatOfAFreshConfigurationTheCurrentFolder) {
  EXPECT_EQ(settings().effectiveClasspath(), ".");
}

TEST_F(EffectiveClasspath, NormalisingChangesTheUsersOwn) {
  settings().classpath = "lib";
  settings().normaliseClasspath();
  EXPECT_EQ(settings().classpath, ".;lib");
  settings().normaliseClasspath();
  EXPECT_EQ(settings().classpath, ".;lib");
}

}  // namespace
}  // namespace tarnwick::test
