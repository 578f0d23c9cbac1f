// New source files where the system fails in the middle.
#include "support/SettingsFixture.h"
#include "support/posix/FullDisk.h"
#include "templates/NewSourceFileDlg.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace tarnwick::test {
namespace {

class NewSourceFileFailuresTest : public SettingsFixture {
 protected:
  FileForSubprocess file_;
};

TEST_F(NewSourceFileFailuresTest, AnErrorInTheMiddleOfATemplateIsToldAndWhatWasReadIsUsed) {
  const std::string broken = "/sys/class/net/lo/speed";
  if (!platform::isFile(broken)) GTEST_SKIP() << "no " << broken << ", which opens, and whose first byte can't be read";
  TokenString pair;
  pair.add("Broken");
  pair.add(broken);
  settings().personalTemplates.add(pair.toString());
  settings().saveDefaultConfiguration();
  const std::string path = userFolder() + "Foo.java";
  desktop_.expectDialog("Create new .java/.html file", [&](ScriptedWindow& dialog) {
    dialog.choose(TEMPLATE_COMBO, 5);
    desktop_.expectSaveFile(path);
    desktop_.expectMessage(std::string("Error copying user-defined file template\n") + std::strerror(EINVAL));
    dialog.press(IDOK_CONTROL);
  });
  NewSourceFileDlg dialog(settings(), NewSourceMode::NewFile, &file_);
  EXPECT_EQ(dialog.runModal(), DIALOG_OK);
  EXPECT_EQ(contentOf(path), "");
}

TEST_F(NewSourceFileFailuresTest, ADeviceOrAnEndlessFileIsNoTemplate) {
  const std::string large = userFolder() + "large.txt";
  writeFile(large, "");
  ASSERT_EQ(::truncate(large.c_str(), 64L * 1024 * 1024 + 1), 0);
  for (const auto& path : {std::string("/dev/zero"), large}) {
    TokenString pair;
    pair.add("Endless");
    pair.add(path);
    settings().personalTemplates.fromString("");
    settings().personalTemplates.add(pair.toString());
    settings().saveDefaultConfiguration();
    desktop_.expectDialog("Create new .java/.html file", [&](ScriptedWindow& dialog) {
      dialog.choose(TEMPLATE_COMBO, 5);
      desktop_.expectSaveFile(userFolder() + "Foo.java");
      desktop_.expectMessage("Can't copy user-defined file template " + path + "\n" +
                             (path == large ? "Larger than 64 MiB" : "Not a regular file"));
      dialog.press(IDOK_CONTROL);
      EXPECT_TRUE(dialog.closed());
    });
    NewSourceFileDlg dialog(settings(), NewSourceMode::NewFile, &file_);
    EXPECT_EQ(dialog.runModal(), DIALOG_CANCEL);
    EXPECT_FALSE(platform::isFile(userFolder() + "Foo.java"));
  }
}

TEST_F(NewSourceFileFailuresTest, AFullDiskIsToldAndTheFileThatWasThereStaysWhole) {
  const std::string path = userFolder() + "Old One.java";
  writeFile(path, "precious");
  desktop_.expectDialog("Create new .java/.html file", [&](ScriptedWindow& dialog) {
    dialog.choose(TEMPLATE_COMBO, 1);
    desktop_.expectSaveFile(path);
    desktop_.expectQuestion("The file " + Filename(path).quoted() + " already exists. Overwrite?", true);
    desktop_.expectMessage("Error writing to \"" + path + "\"\n" + std::strerror(EFBIG));
    const FullDisk full(0);
    dialog.press(IDOK_CONTROL);
    EXPECT_TRUE(dialog.closed());
  });
  NewSourceFileDlg dialog(settings(), NewSourceMode::NewFile, &file_);
  EXPECT_EQ(dialog.runModal(), DIALOG_OK) << "it goes on all the same";
  EXPECT_EQ(dialog.createdFile(), path);
  EXPECT_EQ(contentOf(path), "precious");
}

}  // namespace
}  // namespace tarnwick::test
