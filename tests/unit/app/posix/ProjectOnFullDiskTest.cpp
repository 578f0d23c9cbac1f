// One run for a project's sources on a disk that takes no more bytes, played by the limit on the size of files.
#include "app/ProjectBuild.h"
#include "support/posix/FullDisk.h"
#include "unit/project/ProjectFixture.h"

#include <cerrno>
#include <cstring>
#include <optional>

namespace tarnwick::test {
namespace {

class ProjectOnFullDiskTest : public ProjectFixture {};

TEST_F(ProjectOnFullDiskTest, AListOfSourcesThatCantBeWrittenIsToldAndNothingIsLeft) {
  std::string names;
  for (int i = 0; i < 300; ++i) {
    const std::string name = "A" + std::to_string(i);
    makeSource(name + ".java", "class " + name + " {}\n");
    names += (i > 0 ? ";" : "") + name + ".java";
  }
  ProjectContext& project = open("PROJECT_SOURCES  " + names + "\nNEWER_JAVA  ON\nJAVAC_ONE_RUN  ON\n");
  project.save();
  const auto left = platform::filesIn(configFolder());
  // The project is saved first; the list has the folder's path before each name.
  const rlim_t room = *platform::fileSize(projectFile()) + 1000;
  ASSERT_LT(room, 300 * folder().size());
  desktop_.expectMessage(std::string(std::strerror(EFBIG)) + "\nCan't write the list of sources " + configFolder() +
                         "Tarnwick_javac_list1.tmp");
  {
    const FullDisk disk(room);
    EXPECT_EQ(compileProject(settings(), project, true).refused, "") << "no way of reading would help";
  }
  EXPECT_EQ(recorded(), "");
  EXPECT_EQ(platform::filesIn(configFolder()), left);
  EXPECT_TRUE(desktop_.alerts().empty());
  compileProject(settings(), project, true);
  EXPECT_NE(recorded(), "") << "the next one finds room";
}

}  // namespace
}  // namespace tarnwick::test
