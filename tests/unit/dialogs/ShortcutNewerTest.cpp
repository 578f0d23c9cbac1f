// The shortcut to a project's class where class files tell their names.
#include "dialogs/ShortcutDlg.h"
#include "dialogs/ShortcutLayout.h"
#include "support/ClassBytes.h"
#include "support/FakeShortcutShell.h"
#include "support/SystemWords.h"
#include "tools/ShortcutTexts.h"
#include "unit/project/ProjectFixture.h"

#include <algorithm>

namespace tarnwick::test {
namespace {

using Control = ShortcutControls;

class ShortcutNewerTest : public ProjectFixture {
 protected:
  ShortcutNewerTest() {
    context_.shortcutShells = told_.shells();
    platform::makeFolders(made());
    writeFile(classFile(), ClassBytes::of("shop/till/Main", 17));
  }

  std::string made() const { return folder() + "shop" + platform::folderSeparator + "till"; }
  std::string classFile() const { return made() + platform::folderSeparator + "Main.class"; }
  /// A file below the project's folder; "/" stands between its folders.
  std::string at(std::string name) const {
    std::replace(name.begin(), name.end(), '/', platform::folderSeparator);
    return folder() + name;
  }
  void makeClass(const std::string& name, const std::string& fullName) const {
    platform::makeFolders(Filename(at(name)).directory());
    writeFile(at(name), ClassBytes::of(fullName, 17));
  }
  void add(const std::string& name, const std::string& text) const {
    platform::makeFolders(Filename(at(name)).directory());
    writeFile(at(name), text);
  }
  std::string offered(const std::string& lines) {
    open("CLASS_WITH_MAIN  shop.till.Main\n" + lines);
    return offeredNow();
  }
  std::string offeredNow() {
    std::string text;
    desktop_.expectDialog(said("Create Windows shortcut to Java application", "Create shortcut to Java application"),
                          [&](ScriptedWindow& window) {
                            text = window.text(Control::APPLICATION) + '|' + window.text(Control::NAME);
                            window.press(Control::CLOSE);
                          });
    ShortcutDlg(settings()).runModal();
    return text;
  }

  FakeShortcuts told_;
};

TEST_F(ShortcutNewerTest, TheClassFileOfThePackageIsOffered) {
  EXPECT_EQ(offered("NEWER_JAVA  ON\n"), quoted(classFile()) + "|Main");
  EXPECT_EQ(offered(""), quoted(folder() + "shop.till.Main") + "|shop.till") << "the classic way";
  platform::deleteFile(classFile());
  EXPECT_EQ(offered("NEWER_JAVA  ON\n"), quoted(folder() + "shop.till.Main") + "|shop.till") << "it is not there";
}

TEST_F(ShortcutNewerTest, ItLiesWhereTheCompilerPutsIt) {
  const std::string out = folder() + "out" + platform::folderSeparator + "shop" + platform::folderSeparator + "till";
  platform::makeFolders(out);
  writeFile(out + platform::folderSeparator + "Main.class", ClassBytes::of("shop/till/Main", 17));
  EXPECT_EQ(offered("NEWER_JAVA  ON\nJAVAC_DESTINATION  out\n"),
            quoted(out + platform::folderSeparator + "Main.class") + "|Main");
}

TEST_F(ShortcutNewerTest, ItLiesWhereThePackagesOfItsSourceBegin) {
  platform::deleteFile(classFile());
  add("src/shop/till/Main.java", "package shop.till; class Main { static class In {} }");
  add("test/shop/till/Test.java", "package shop.till; class Test {}");
  const std::string sources = "NEWER_JAVA  ON\nPROJECT_SOURCES  test/shop/till/Test.java;src/shop/till/Main.java\n";
  for (const char* name : {"src/shop/till/Main.class", "test/shop/till/Main.class"}) makeClass(name, "shop/till/Main");
  open(sources + "PROJECT_MULTIMAIN  ON\nCLASS_WITH_MAIN  shop.till.Main\n").update();
  EXPECT_EQ(offeredNow(), quoted(at("src/shop/till/Main.class")) + "|Main") << "not where the other source begins";
  const auto line = shortcutWithoutControl(settings(), FileForSubprocess(at("src/shop/till/Main.class"))).arguments;
  EXPECT_TRUE(line.ends_with(" shop.till.Main")) << line;
  EXPECT_NE(line.find(quoted(at("src"))), std::string::npos) << line;
  open(sources + "PROJECT_MULTIMAIN  ON\nCLASS_WITH_MAIN  Main\n").update();
  EXPECT_EQ(offeredNow(), quoted(at("src/shop/till/Main.class")) + "|Main") << "as the classic way has stored it";
  makeClass("src/shop/till/Main$In.class", "shop/till/Main$In");
  open(sources + "PROJECT_MULTIMAIN  ON\nCLASS_WITH_MAIN  shop.till.Main$In\n").update();
  EXPECT_EQ(offeredNow(), quoted(at("src/shop/till/Main$In.class")) + "|Main$In");
}

}  // namespace
}  // namespace tarnwick::test
