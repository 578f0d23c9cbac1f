#include "base/ProgramInfo.h"
#include "platform/FileSystem.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <stdlib.h>

namespace tarnwick {
namespace {

TEST(PosixProgramInfo, AnEmptyVariableCountsAsNone) {
  const test::ScopedEnvironment restored("TARNWICK_CFGDIR", "");
  const test::ScopedEnvironment xdg("XDG_CONFIG_HOME", "/elsewhere");
  ::setenv("TARNWICK_CFGDIR", "", 1);
  EXPECT_EQ(ProgramInfo().configDirectory(), "/elsewhere/tarnwick/");
}

}  // namespace
}  // namespace tarnwick
