#include "base/ProgramInfo.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using test::ScopedEnvironment;

TEST(ProgramInfo, CarriesTheFixedNames) {
  const ProgramInfo info;
  EXPECT_EQ(info.version, "Tarnwick V4.7a");
  EXPECT_EQ(info.configDirVariable, "TARNWICK_CFGDIR");
  EXPECT_EQ(info.programDirectory, "");
  EXPECT_EQ(info.programPath, "");
  EXPECT_STREQ(defaultConfigurationName, "Tarnwickdefault.CFG");
}

TEST(ProgramInfo, TheConfigurationDirectoryIsTheVariablesValueAsItStands) {
  const ScopedEnvironment variable("TARNWICK_CFGDIR", " some where ");
  EXPECT_EQ(ProgramInfo().configDirectory(), " some where ");
}

TEST(ProgramInfo, AnEntryMadeLaterIsSeen) {
  const ScopedEnvironment variable("TARNWICK_CFGDIR", "first");
  const ProgramInfo info;
  EXPECT_EQ(info.configDirectory(), "first");
  ASSERT_TRUE(platform::setEnvironment("TARNWICK_CFGDIR=second"));
  EXPECT_EQ(info.configDirectory(), "second");
}

TEST(ProgramInfo, WithoutTheVariableThePlatformTells) {
  const ScopedEnvironment variable("TARNWICK_CFGDIR", "");
  ProgramInfo info;
  info.programDirectory = "somewhere";
  EXPECT_EQ(info.configDirectory(), platform::defaultConfigDirectory("somewhere"));
}

}  // namespace
}  // namespace tarnwick
