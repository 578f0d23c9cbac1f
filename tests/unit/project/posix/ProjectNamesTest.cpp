// Names that would break the files that remember them, and files that are none.
#include "../ProjectFixture.h"
#include "project/ProjectFilesDlg.h"
#include "resources/ProjectLayouts.h"

#include <filesystem>
#include <sys/stat.h>

namespace tarnwick::test {
namespace {

class ProjectNamesTest : public ProjectFixture {
 protected:
  ProjectNamesTest() { platform::makeFolders(bad_); }

  static std::string refusalOf(const std::function<void()>& work) {
    return messageOf<Tarnwickfile::FileNotOpenE>(work);
  }

  const std::string bad_ = scratch_.file("x\nJAVA_PATH  ") + "/planted/";
};

TEST_F(ProjectNamesTest, AProjectInAFolderWithALineEndPlantsNothing) {
  const std::string path = bad_ + "p.twp";
  writeFile(path, "PROJECT_SOURCES\n");
  const std::string before = contentOf(configFile());
  EXPECT_EQ(refusalOf([&] { take(path, false); }), "The name holds a line end");
  EXPECT_EQ(refusalOf([&] { take(bad_ + "new.twp", true); }), "The name holds a line end");
  EXPECT_FALSE(platform::isFile(bad_ + "new.twp"));
  const std::string here = platform::currentDirectory();
  ASSERT_TRUE(platform::changeDirectory(bad_));
  EXPECT_EQ(refusalOf([&] { take("p.twp", false); }), "The name holds a line end") << "a name without its folder";
  platform::changeDirectory(here);
  EXPECT_EQ(contentOf(configFile()), before);
  EXPECT_EQ(settings().currentProject, nullptr);
  EXPECT_EQ(settings().lastProjectFile, "");
}

TEST_F(ProjectNamesTest, ADeviceOrAPipeIsNoProject) {
  std::filesystem::create_symlink("/dev/zero", folder() + "device.twp");
  ASSERT_EQ(::mkfifo((folder() + "pipe.twp").c_str(), 0600), 0);
  for (const char* name : {"device.twp", "pipe.twp"}) {
    EXPECT_EQ(refusalOf([&] { take(folder() + name, false); }), "Not a regular file") << name;
  }
  EXPECT_EQ(settings().currentProject, nullptr);
}

TEST_F(ProjectNamesTest, ALinkToADeviceIsNoSource) {
  makeSource("A.java");
  std::filesystem::create_symlink("/dev/zero", folder() + "Device.java");
  ASSERT_EQ(::mkfifo((folder() + "Pipe.java").c_str(), 0600), 0);
  desktop_.expectMessage("2 source files belonging to the project could not be opened.");
  const ProjectContext& project = openWith("Device.java;A.java;Pipe.java");
  EXPECT_EQ(namesOf(project), std::vector<std::string>{"A.java"});
}

TEST_F(ProjectNamesTest, ASourceOrAnHtmlFileWithALineEndDoesNotJoinAProject) {
  for (const char* name : {"A\nB.java", "a\nb.html"}) {
    makeSource(name);
    ProjectContext& project = openWith("");
    desktop_.expectDialog("Define which files belong to the project", [&](ScriptedWindow& dialog) {
      dialog.press(SELECT_ALL_FILES);
      dialog.press(ADD_FILES);
      desktop_.expectMessage("The name holds a line end\nCan't open " + folder() + name);
      dialog.press(IDOK_CONTROL);
      EXPECT_FALSE(dialog.closed());
      dialog.press(IDCANCEL_CONTROL);
    });
    ProjectFilesDlg(settings(), project).runModal();
    EXPECT_EQ(project.sources.toString(), "");
    EXPECT_EQ(project.htmlFile, "");
    platform::deleteFile(folder() + name);
  }
}

TEST_F(ProjectNamesTest, AValueThatSlippedInLeavesTheProjectsFileWhole) {
  ProjectContext& project = openWith("");
  project.save();
  const std::string before = contentOf(projectFile());
  project.mainClass = "x\nJAVA_PATH  /planted/";
  desktop_.expectMessage("The value of CLASS_WITH_MAIN holds a line end\nCan't save settings for project.");
  project.save();
  project.mainClass.clear();
  settings().javaXms = "x\nJAVA_PATH  /planted/";
  desktop_.expectMessage("The value of JAVA_XMS holds a line end\nCan't save settings for project.");
  project.save();
  EXPECT_EQ(contentOf(projectFile()), before);
}

}  // namespace
}  // namespace tarnwick::test
