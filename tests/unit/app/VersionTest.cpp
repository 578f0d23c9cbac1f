// The version stands in one file; whatever tells it tells the same.
#include "base/ProgramInfo.h"
#include "support/CheckoutFolder.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {
namespace {

std::string versionNow() {
  std::string version = contentOf(checkoutFolder() + "/VERSION");
  version.erase(version.find_last_not_of("\r\n") + 1);
  return version;
}

/// What stands in a file between the first `before` and the next `after`.
std::string told(const std::string& file, const std::string& before, const std::string& after) {
  const std::string content = contentOf(checkoutFolder() + '/' + file);
  const auto found = content.find(before);
  if (found == std::string::npos) return "(not found)";
  const auto from = found + before.size();
  return content.substr(from, content.find(after, from) - from);
}

TEST(VersionTest, TheProgramBearsIt) {
  EXPECT_EQ(versionNow(), "4.7a");
  EXPECT_EQ(ProgramInfo{}.version, "Tarnwick V" + versionNow());
}

TEST(VersionTest, ThePackagesAndPagesBearIt) {
  const std::string packaging = "packaging/";
  EXPECT_EQ(told(packaging + "debian/changelog", "tarnwick (", ")"), versionNow());
  EXPECT_EQ(told(packaging + "example.tarnwick.tarnwick.metainfo.xml", "<release version=\"", "\""), versionNow());
  EXPECT_EQ(told(packaging + "tarnwick.1", "\"Tarnwick ", "\""), versionNow());
  EXPECT_EQ(told(packaging + "tarnwick-notepad.1", "\"Tarnwick ", "\""), versionNow());
  EXPECT_EQ(told("guide/usersguide.htm", "This is the guide to Tarnwick V", ".</p>"), versionNow());
  EXPECT_NE(contentOf(checkoutFolder() + "/CHANGELOG.md").find("\n## [" + versionNow() + "]\n"), std::string::npos);
}

}  // namespace
}  // namespace tarnwick::test
