#include "support/posix/FullDisk.h"
#include "unit/dialogs/JarFixture.h"

namespace tarnwick::test {
namespace {

using JarOnFullDiskTest = JarDlgFixture;

TEST_F(JarOnFullDiskTest, TheLinesOfTheManifestAreLeftOutAndNothingOfThemStays) {
  settings().lastJarBaseFolder = base();
  EXPECT_EQ(run([this](ScriptedWindow& window) {
              chooseArchive(window, archive());
              window.type(Jar::SUBFOLDERS, "one");
              window.type(Jar::MAIN_CLASS, "a.package.with.a.LongName");
              desktop_.expectMessage("Unable to create temporary file for saving manifest input.\nRequest aborted");
              const FullDisk disk(10);
              window.press(Jar::RUN);
            }),
            DIALOG_OK);
  EXPECT_EQ(dialog_->run().manifest, "");
  for (const auto& name : platform::filesIn(configFolder()))
    EXPECT_EQ(name.find("Manifest"), std::string::npos) << name;
}

}  // namespace
}  // namespace tarnwick::test
