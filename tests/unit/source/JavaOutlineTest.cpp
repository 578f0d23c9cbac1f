#include "source/OutlineReader.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(JavaOutline, GivesFullNames) {
  const JavaOutline outline = outlineOf("package a.b; class C { class D { } } class E { }", "File");
  EXPECT_EQ(outline.binaryName(outline.types.at(1)), "C$D");
  EXPECT_EQ(outline.fullName(outline.types.at(1)), "a.b.C$D");
  EXPECT_EQ(outline.fullName(outline.types.at(2)), "a.b.E");
  EXPECT_EQ(outline.types.at(1).parent, 0U);
  EXPECT_FALSE(outline.types.at(2).parent);
}

TEST(JavaOutline, FindsTypesByTheirFullNames) {
  const JavaOutline outline = outlineOf("package a.b; class C { class D { class C { } } } class E { }", "File");
  EXPECT_EQ(outline.find("a.b.C"), &outline.types[0]);
  EXPECT_EQ(outline.find("a.b.C$D$C"), &outline.types[2]);
  EXPECT_EQ(outline.find("a.b.E"), &outline.types[3]);
  for (const char* name : {"", "E", "a.b.D", "a.bxE", "a.E", "a.b.", "a.b", "a.b.C$E", "a.b.c", "x.a.b.E"})
    EXPECT_EQ(outline.find(name), nullptr) << name;
  EXPECT_NE(outlineOf("class C { }", "File").find("C"), nullptr);
}

}  // namespace
}  // namespace tarnwick::test
