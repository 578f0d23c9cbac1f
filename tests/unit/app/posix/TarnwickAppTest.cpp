#include "../AppFixture.h"
#include "support/Children.h"
#include "support/posix/XdgFolders.h"

#include <filesystem>
#include <string>
#include <sys/stat.h>

namespace tarnwick::test {
namespace {

using PosixTarnwickAppTest = AppFixture;

TEST_F(PosixTarnwickAppTest, APipeOrADeviceIsNeitherProjectNorConfiguration) {
  const std::string pipe = userFolder() + "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  desktop_.expectMessage("Tarnwickfile::open(): Don't know how to open \"\"\nFile ");
  EXPECT_EQ(app().run(pipe), 1) << "no project";
  for (const auto& path : {pipe, std::string("/dev/zero")}) {
    desktop_.expectMessage("Not a regular file\nFile " + path);
    EXPECT_EQ(app().run(cfg(path)), 1);
  }
  EXPECT_EQ(host_.runs, 0);
}

TEST_F(PosixTarnwickAppTest, TheExecutablesNameKeepsItsCase) {
  EXPECT_TRUE(app().parseSwitches("\\/EXEFILE=/opt/Java/bin/java\\/"));
  EXPECT_EQ(app().exeFile(), "/opt/Java/bin/java");
}

TEST_F(PosixTarnwickAppTest, TheOpenerOfArchivesIsLookedUpAtConstruction) {
  const XdgFolders xdg(userFolder());
  const std::string programs = userFolder() + "programs/";
  std::filesystem::create_directory(programs);
  std::filesystem::copy_file(StandInScript::tool("jar"), programs + "unpacker");
  const ScopedEnvironment path("PATH", programs);
  // Asked in a fresh process: the system keeps its answers for the life of one.
  const auto known = [&] {
    return outputOf(platform::resolvedPath(standInFolder() + "launch_probe"), "zip " + programFolder() + "tarnwick");
  };
  EXPECT_EQ(known(), "\n") << "nothing opens archives here";
  xdg.addApplication("unpacker", "unpacker -x %f", "application/zip;");
  EXPECT_EQ(known(), "unpacker -x %f\n");
}

}  // namespace
}  // namespace tarnwick::test
