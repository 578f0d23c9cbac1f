#include "source/OutlineReader.h"
#include "source/TypePlaces.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick::test {
namespace {

using Paths = std::vector<std::string>;

TEST(TypePlaces, TellsWhichSourceDeclaresAClass) {
  TypePlaces places;
  places.add("/x/A.java", outlineOf("package p.q; class A { class B { } } class C { }", "A"));
  places.add("/x/D.java", outlineOf("class D { }", "D"));
  EXPECT_EQ(places.declaring("p.q.A"), Paths({"/x/A.java"}));
  EXPECT_EQ(places.declaring("p.q.C"), Paths({"/x/A.java"}));
  EXPECT_EQ(places.declaring("D"), Paths({"/x/D.java"}));
  for (const char* name : {"", "A", "p.q.D", "p.q", "p.q.", "q.A", "$", "$D", "E$D"})
    EXPECT_EQ(places.declaring(name), Paths()) << name;
}

TEST(TypePlaces, WhatIsWithinAClassIsWhereThatIs) {
  TypePlaces places;
  places.add("A.java", outlineOf("package p; class A { class B { } }", "A"));
  for (const char* name : {"p.A$B", "p.A$1", "p.A$B$2", "p.A$1Local", "p.A$$", "p.A$"})
    EXPECT_EQ(places.declaring(name), Paths({"A.java"})) << name;
  EXPECT_EQ(places.declaring("p.AB"), Paths());
}

TEST(TypePlaces, ANameMayHoldADollar) {
  TypePlaces places;
  places.add("A.java", outlineOf("class A { } class $ { }", "A"));
  places.add("B.java", outlineOf("class A$B { }", "B"));
  EXPECT_EQ(places.declaring("A$B"), Paths({"B.java"}));
  EXPECT_EQ(places.declaring("A$B$1"), Paths({"B.java"}));
  EXPECT_EQ(places.declaring("A$C"), Paths({"A.java"}));
  EXPECT_EQ(places.declaring("$"), Paths({"A.java"}));
  EXPECT_EQ(places.declaring("$$1"), Paths({"A.java"}));
}

TEST(TypePlaces, TellsAllThatDeclareAClass) {
  TypePlaces places;
  places.add("A.java", outlineOf("class Helper { } class Helper { }", "A"));
  places.add("B.java", outlineOf("class Helper { }", "B"));
  places.add("C.java", outlineOf("void main() { } class Helper { }", "C"));
  EXPECT_EQ(places.declaring("Helper"), Paths({"A.java", "B.java"}));
  EXPECT_EQ(places.declaring("C$Helper"), Paths({"C.java"}));
}

}  // namespace
}  // namespace tarnwick::test
