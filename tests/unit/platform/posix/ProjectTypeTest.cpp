#include "platform/FileSystem.h"
#include "platform/ProjectType.h"
#include "platform/SystemVersion.h"
#include "support/CheckoutFolder.h"
#include "support/Children.h"
#include "support/posix/XdgFolders.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

using test::StandInScript;

/// Registration happens in a fresh process: the system's answers are kept for the life of one.
class PosixProjectTypeTest : public testing::Test {
 protected:
  std::string data() const { return script_.folder().file("data/"); }
  std::string probe(const std::string& arguments) const {
    return test::outputOf(resolvedPath(test::standInFolder() + "launch_probe"), arguments);
  }
  std::string makeProgram(const std::string& name) const {
    std::filesystem::copy_file(StandInScript::tool("java"), script_.folder().file(name));
    return script_.folder().file(name);
  }
  /// The packaged launcher, in the folder of shared data that is returned.
  std::string installLauncher() const {
    const std::string name = "/example.tarnwick.tarnwick.desktop";
    const std::string installed = script_.folder().file("installed/");
    std::filesystem::create_directories(installed + "applications");
    std::filesystem::copy_file(test::checkoutFolder() + "/packaging" + name, installed + "applications" + name);
    return installed;
  }
  std::string defaultOpener() const {
    const std::string list = test::contentOf(script_.folder().file("config/mimeapps.list"));
    const std::string key = "application/x-tarnwick-project=";
    const auto at = list.find(key);
    return at == std::string::npos ? "(none)" : list.substr(at + key.size(), list.find('\n', at) - at - key.size());
  }
  StandInScript script_{""};
  test::XdgFolders xdg_{script_.folder().path()};
};

TEST_F(PosixProjectTypeTest, TheTypeAndItsOpenerStandInTheUsersData) {
  const std::string program = makeProgram("tarnwick");
  EXPECT_EQ(probe("register " + commandWord(program)), "");
  const std::string type = test::contentOf(data() + "mime/packages/tarnwick-project.xml");
  EXPECT_NE(type.find("<mime-type type=\"application/x-tarnwick-project\">"), std::string::npos) << type;
  EXPECT_NE(type.find("<comment>Java Development Project</comment>"), std::string::npos);
  EXPECT_NE(type.find("<glob pattern=\"*.twp\""), std::string::npos);
  const std::string launcher = test::contentOf(data() + "applications/tarnwick-project.desktop");
  EXPECT_NE(launcher.find("\nExec=\"" + program + "\" %f\n"), std::string::npos) << launcher;
  EXPECT_NE(launcher.find("\nMimeType=application/x-tarnwick-project;\n"), std::string::npos) << launcher;
  EXPECT_NE(test::contentOf(script_.folder().file("config/mimeapps.list"))
                .find("application/x-tarnwick-project=tarnwick-project.desktop"),
            std::string::npos);
}

TEST_F(PosixProjectTypeTest, AFileThatTheUserHasLinkedThereIsNotWritten) {
  const std::string program = makeProgram("tarnwick");
  const std::string mine = script_.folder().file("mine");
  test::writeFile(mine, "mine");
  const std::string launcher = data() + "applications/tarnwick-project.desktop";
  std::filesystem::create_directories(data() + "applications");
  std::filesystem::create_symlink(mine, launcher);
  EXPECT_EQ(probe("register " + commandWord(program)), "");
  EXPECT_EQ(test::contentOf(mine), "mine");
  EXPECT_FALSE(std::filesystem::is_symlink(launcher));
  EXPECT_NE(test::contentOf(launcher).find("\nExec=\"" + program + "\" %f\n"), std::string::npos);
}

TEST_F(PosixProjectTypeTest, ProgramAndProjectsHaveTheirPictures) {
  const std::string program = makeProgram("tarnwick");
  EXPECT_EQ(probe("register " + commandWord(program)), "");
  const std::string launcher = data() + "applications/tarnwick-project.desktop";
  EXPECT_NE(test::contentOf(launcher).find("\nIcon=tarnwick\n"), std::string::npos) << "the desktop may know it";
  const std::string drawing = script_.folder().file("tarnwick.svg");
  test::writeFile(drawing, "<svg/>");
  test::writeFile(script_.folder().file("application-x-tarnwick-project.svg"), "<svg>a project</svg>");
  EXPECT_EQ(probe("register " + commandWord(program)), "");
  EXPECT_NE(test::contentOf(launcher).find("\nIcon=" + drawing + '\n'), std::string::npos) << test::contentOf(launcher);
  EXPECT_EQ(test::contentOf(data() + "icons/hicolor/scalable/mimetypes/application-x-tarnwick-project.svg"),
            "<svg>a project</svg>");
}

TEST_F(PosixProjectTypeTest, APackagesOwnLauncherBecomesTheDefaultAndNothingElseIsWritten) {
  const std::string program = makeProgram("tarnwick");
  const test::ScopedEnvironment system("XDG_DATA_DIRS", installLauncher());
  const test::ScopedEnvironment path("PATH", script_.folder().path());
  EXPECT_EQ(probe("register " + commandWord(program)), "");
  EXPECT_EQ(defaultOpener(), "example.tarnwick.tarnwick.desktop");
  EXPECT_FALSE(std::filesystem::exists(data() + "applications/tarnwick-project.desktop"));
  EXPECT_FALSE(std::filesystem::exists(data() + "mime/packages"));
  EXPECT_FALSE(std::filesystem::exists(data() + "icons"));
}

TEST_F(PosixProjectTypeTest, APackagesLauncherDoesNotSpeakForAnotherProgram) {
  makeProgram("tarnwick");
  const std::string other = makeProgram("another tarnwick");
  const test::ScopedEnvironment system("XDG_DATA_DIRS", installLauncher());
  const test::ScopedEnvironment path("PATH", script_.folder().path());
  EXPECT_EQ(probe("register " + commandWord(other)), "");
  EXPECT_EQ(defaultOpener(), "tarnwick-project.desktop");
}

TEST_F(PosixProjectTypeTest, ALauncherThatOpensNoProjectsIsNotThePackages) {
  const std::string program = makeProgram("tarnwick");
  const std::string installed = installLauncher();
  test::writeFile(installed + "applications/example.tarnwick.tarnwick.desktop",
                  "[Desktop Entry]\nType=Application\nName=Tarnwick\nExec=tarnwick %f\n");
  const test::ScopedEnvironment system("XDG_DATA_DIRS", installed);
  const test::ScopedEnvironment path("PATH", script_.folder().path());
  EXPECT_EQ(probe("register " + commandWord(program)), "");
  EXPECT_EQ(defaultOpener(), "tarnwick-project.desktop");
}

TEST_F(PosixProjectTypeTest, AProjectFileIsOpenedByTheProgram) {
  if (!isFile("/usr/bin/update-mime-database")) GTEST_SKIP() << "this system has no update-mime-database";
  // Somebody else's claim does not survive.
  makeProgram("other");
  xdg_.addApplication("other", script_.folder().file("other") + " %f", "application/x-tarnwick-project;");
  xdg_.setDefaults("application/x-tarnwick-project=other.desktop\n");
  const std::string program = makeProgram("my tarnwick");
  probe("register " + commandWord(program));
  probe("register " + commandWord(program));  // a second time changes nothing
  EXPECT_EQ(probe("open .twp"), '"' + program + "\" %f\n");
  EXPECT_EQ(probe("runapp .twp \"/some where/p.twp\" \"\""), "1\n");
  EXPECT_TRUE(test::waitUntil([&] { return script_.hasRecord() && script_.record() == "/some where/p.twp\n"; }));
}

TEST_F(PosixProjectTypeTest, AProgramsOddNameIsEscapedTwice) {
  const std::string program = makeProgram("a\"b`c$d\\e");
  probe("register " + commandWord(program));
  const std::string launcher = test::contentOf(data() + "applications/tarnwick-project.desktop");
  EXPECT_NE(launcher.find("a\\\\\"b\\\\`c\\\\$d\\\\\\\\e\" %f\n"), std::string::npos) << launcher;
  // The system understands it: an opener that it could not find would not have become the default.
  EXPECT_NE(test::contentOf(script_.folder().file("config/mimeapps.list")).find("tarnwick-project.desktop"),
            std::string::npos);
  if (!isFile("/usr/bin/update-mime-database")) GTEST_SKIP() << "this system has no update-mime-database";
  EXPECT_EQ(probe("runapp .twp p.twp \"\""), "1\n") << "and so do we";
  EXPECT_TRUE(test::waitUntil([&] { return script_.hasRecord() && script_.record() == "p.twp\n"; }));
}

TEST_F(PosixProjectTypeTest, AProgramWithAPercentSignIsRegisteredToo) {
  const std::string program = makeProgram("100% of it");
  probe("register " + commandWord(program));
  const std::string launcher = test::contentOf(data() + "applications/tarnwick-project.desktop");
  EXPECT_NE(launcher.find("100%% of it\" %f\n"), std::string::npos) << launcher;
  EXPECT_NE(test::contentOf(script_.folder().file("config/mimeapps.list")).find("tarnwick-project.desktop"),
            std::string::npos)
      << "the system has understood it";
}

TEST_F(PosixProjectTypeTest, ATalkativeIndexerIsRunToItsEnd) {
  script_.setScript("flood 1000000\nout done\nerr done\nkeep x");
  for (const char* name : {"update-mime-database", "update-desktop-database"}) makeProgram(name);
  const test::ScopedEnvironment path("PATH", script_.folder().path());
  EXPECT_EQ(probe("register /bin/true"), "");
  EXPECT_EQ(script_.record(), data() + "/mime\n" + data() + "/applications\n");
  EXPECT_EQ(test::contentOf(script_.folder().file("record.kept")), "x:x:") << "each has come to its end";
}

TEST_F(PosixProjectTypeTest, WhatCannotBeWrittenIsNotTold) {
  const test::ScopedEnvironment nowhere("XDG_DATA_HOME", "/proc/nothing");
  EXPECT_EQ(probe("register /bin/true"), "");
}

TEST(PosixSystemTest, IsNoWindows98) {
  EXPECT_FALSE(isWindows98());
}

}  // namespace
}  // namespace tarnwick::platform
