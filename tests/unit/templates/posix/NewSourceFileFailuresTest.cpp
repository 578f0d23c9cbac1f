// New source files where the system fails in the middle.
#include "support/SettingsFixture.h"
#include "support/posix/FullDisk.h"
#include "templates/NewSourceFileDlg.h"

#include <cerrno>
#include <cstring>

namespace tarnwick::test {
namespace {

class NewSourceFileFailuresTest : public SettingsFixture {
 protected:
  FileForSubprocess file_;
};

TEST_F(NewSourceFileFailuresTest, AnErrorInTheMiddleOfATemplateIsToldAndWhatWasReadIsUsed) {
  // This file opens, and its first byte cannot be read.
  TokenString pair;
  pair.add("Broken");
  pair.add("/proc/self/mem");
  settings().personalTemplates.add(pair.toString());
  settings().saveDefaultConfiguration(nullptr);
  const std::string path = userFolder() + "Foo.java";
  desktop_.expectDialog("Create new .java/.html file", [&](ScriptedWindow& dialog) {
    dialog.choose(TEMPLATE_COMBO, 5);
    desktop_.expectSaveFile(path);
    desktop_.expectMessage(std::string("Error copying user-defined file template\n") + std::strerror(EIO));
    dialog.press(IDOK_CONTROL);
  });
  NewSourceFileDlg dialog(settings(), NewSourceMode::NewFile, &file_);
  EXPECT_EQ(dialog.runModal(), DIALOG_OK);
  EXPECT_EQ(contentOf(path), "");
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
