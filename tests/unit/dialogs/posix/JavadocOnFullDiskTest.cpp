#include "support/posix/FullDisk.h"
#include "unit/dialogs/JavadocFixture.h"

namespace tarnwick::test {
namespace {

using JavadocOnFullDiskTest = JavadocDlgFixture;

TEST_F(JavadocOnFullDiskTest, TheDialogStaysOpenAndNoPartOfTheListStays) {
  constexpr rlim_t room = 30000;
  const std::string name(199, 'x');
  writeFile(sources() + name, "");
  std::string files;
  while (files.size() <= room) files += name + ' ';
  EXPECT_EQ(run([&](ScriptedWindow& window) {
              typeFiles(window, files);
              {
                desktop_.expectMessage("File too large\nCan't write list file " + listFile());
                const FullDisk disk(room);
                window.press(Javadoc::RUN);
              }
              EXPECT_FALSE(window.closed());
              EXPECT_EQ(page(window, JAVADOC_SOURCES_PAGE).text(JavadocSources::FILES), files);
              EXPECT_FALSE(platform::isFile(listFile()));
              window.press(Javadoc::RUN);
            }),
            DIALOG_OK);
  EXPECT_EQ(dialog_->run().packageText, "");
  EXPECT_GT(platform::fileSize(listFile()), room);
}

TEST_F(JavadocOnFullDiskTest, TheLastLinesCountToo) {
  // Short enough to wait in the stream's buffer until the end.
  EXPECT_EQ(run([&](ScriptedWindow& window) {
              std::string files = "B.java ";
              while (files.size() < 3000) files += "B.java ";
              typeFiles(window, files);
              // The configuration is longer than that; it is told first.
              desktop_.expectDialog("File too large",
                                    [](ScriptedWindow& elsewhere) { elsewhere.press(IDCANCEL_CONTROL); });
              desktop_.expectMessage("File too large\nCan't save configuration data in " + configFile());
              desktop_.expectMessage("File too large\nCan't write list file " + listFile());
              {
                const FullDisk disk(1000);
                window.press(Javadoc::RUN);
              }
              EXPECT_FALSE(window.closed());
              EXPECT_FALSE(platform::isFile(listFile()));
              window.press(Javadoc::CANCEL);
            }),
            DIALOG_CANCEL);
}

}  // namespace
}  // namespace tarnwick::test
