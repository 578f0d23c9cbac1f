#include "source/TypeNames.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

TEST(TypeNames, ASimpleNameIsOfThePackage) {
  EXPECT_EQ(possibleNames("A", {"", {}}), Names{"A"});
  EXPECT_EQ(possibleNames("A", {"p.q", {}}), Names{"p.q.A"});
  EXPECT_EQ(possibleNames("A$B", {"p.q", {}}), Names{"p.q.A$B"});
}

TEST(TypeNames, AnImportOfThatNameComesFirst) {
  EXPECT_EQ(possibleNames("A", {"p", {"x.B", "x.A", "x.BA"}}), (Names{"x.A", "x$A", "p.A"}));
  EXPECT_EQ(possibleNames("A$B", {"p", {"x.A"}}), (Names{"x.A$B", "x$A$B", "p.A$B"}));
  EXPECT_EQ(possibleNames("In", {"", {"x.Out.In"}}), (Names{"x.Out.In", "x.Out$In", "x$Out$In", "In"}));
}

TEST(TypeNames, ImportsOnDemandComeLast) {
  EXPECT_EQ(possibleNames("A", {"p", {"x.*", "y.z.*"}}), (Names{"p.A", "x.A", "x$A", "y.z.A", "y.z$A", "y$z$A"}));
  EXPECT_EQ(possibleNames("A$B", {"p", {"x.*"}}), (Names{"p.A$B", "x.A$B", "x$A$B"}));
}

TEST(TypeNames, ANameWithItsPackageStandsForItself) {
  EXPECT_EQ(possibleNames("x.y.A", {"p", {}}), (Names{"p.x$y$A", "x.y.A", "x.y$A", "x$y$A"}));
}

}  // namespace
}  // namespace tarnwick::test
