#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "platform/Shortcuts.h"
#include "support/Children.h"
#include "support/posix/FullDisk.h"
#include "support/posix/XdgFolders.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace tarnwick::platform {
namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;
using test::StandInScript;

class PosixShortcutsTest : public testing::Test {
 protected:
  PosixShortcutsTest() {
    shortcut_.name = "My App";
    shortcut_.target = StandInScript::tool("java");
    shortcut_.picture = "/nowhere/tarnwick";
    fs::create_directories(folder());
  }

  std::string folder() const { return script_.folder().file("fol der/"); }
  std::string file() const { return folder() + "My App.desktop"; }
  std::string write() { return openShortcutShell()->write(shortcut_, file()); }
  /// Why it could not be written.
  std::string refusal() {
    try {
      write();
    } catch (const ShortcutFailure& failure) {
      return failure.reason;
    }
    return "(written)";
  }
  std::string text() const { return test::contentOf(file()); }
  std::string lineOf(const std::string& key) const {
    const std::string all = text();
    const auto begin = all.find('\n' + key + '=');
    return begin == std::string::npos ? "(none)" : all.substr(begin + 1, all.find('\n', begin + 1) - begin - 1);
  }
  /// Starts the written shortcut as a desktop does; what it writes.
  std::string start() const { return test::outputOf("/usr/bin/gio", "launch " + commandWord(file())); }
  /// The arguments that came through, once the program has ended.
  std::string arrived() const {
    start();
    EXPECT_TRUE(test::waitUntil([this] { return script_.hasRecord(); }));
    return script_.hasRecord() ? script_.record() : "";
  }
  Words names() const {
    Words found;
    for (const auto& entry : fs::directory_iterator(folder())) found.push_back(entry.path().filename().string());
    return found;
  }
  static mode_t modeOf(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 ? status.st_mode : 0;
  }

  StandInScript script_{""};
  Shortcut shortcut_;
};

TEST_F(PosixShortcutsTest, AShortcutIsALauncherWithAllThatItSays) {
  shortcut_.arguments = "-cp . App";
  shortcut_.description = "what it is";
  shortcut_.workingFolder = "/us er/";
  EXPECT_EQ(write(), "-cp . App");
  EXPECT_EQ(text(), "[Desktop Entry]\nType=Application\nName=My App\nComment=what it is\nExec=\"" + shortcut_.target +
                        "\" \"-cp\" \".\" \"App\"\nPath=/us er/\nIcon=tarnwick\nCategories=Development;\n");
  EXPECT_EQ(openShortcutShell()->extension(), ".desktop");
}

TEST_F(PosixShortcutsTest, WhatIsEmptyIsLeftOut) {
  write();
  EXPECT_EQ(lineOf("Comment"), "(none)");
  EXPECT_EQ(lineOf("Path"), "(none)");
  EXPECT_EQ(lineOf("Exec"), "Exec=\"" + shortcut_.target + '"');
}

TEST_F(PosixShortcutsTest, ItMayBeExecutedByAllWhoMayReadIt) {
  for (const auto& [mask, mode] : {std::pair<mode_t, mode_t>{022, 0755}, {077, 0700}, {027, 0750}}) {
    const mode_t before = ::umask(mask);
    write();
    ::umask(before);
    EXPECT_EQ(modeOf(file()) & 0777, mode);
  }
}

TEST_F(PosixShortcutsTest, ThePictureIsAFileOfTheProgramOrAName) {
  const std::string program = folder() + "bin/tarnwick";
  shortcut_.picture = program;
  const std::string installed = folder() + "share/icons/hicolor/scalable/apps/tarnwick.svg";
  const std::string beside = folder() + "bin/tarnwick.svg";
  fs::create_directories(folder() + "bin");
  fs::create_directories(folder() + "share/icons/hicolor/scalable/apps");
  for (const std::string& picture : {std::string("tarnwick"), installed, beside}) {
    if (picture != "tarnwick") test::writeFile(picture, "x");
    write();
    EXPECT_EQ(lineOf("Icon"), "Icon=" + picture);
  }
}

TEST_F(PosixShortcutsTest, EveryArgumentArrivesWhole) {
  shortcut_.arguments =
      "plain \"a b\" \"\" c\\\"d $HOME `x` back\\slash \"end\\\\\" 100% %f %% %i 'q' ; & | > < * ? # ~ ! ( ) = "
      "Gr\xC3\xBC\xC3\x9F"
      "e\xE6\x97\xA5 \ttab";
  EXPECT_EQ(write(), shortcut_.arguments);
  EXPECT_EQ(arrived(),
            "plain\na "
            "b\n\nc\"d\n$HOME\n`x`\nback\\slash\nend\\\n100%\n%f\n%%\n%i\n'q'\n;\n&\n|\n>\n<\n*\n?\n#\n~\n!\n(\n)\n=\n"
            "Gr\xC3\xBC\xC3\x9F"
            "e\xE6\x97\xA5\ntab\n");
}

TEST_F(PosixShortcutsTest, TheWholeTextMayBeOneArgument) {
  shortcut_.oneArgument = true;
  shortcut_.arguments = "\\/RUN=-cp \"a b\"  $HOME `x` \\\\ 100% %f  c\\\"d";
  write();
  EXPECT_EQ(arrived(), shortcut_.arguments + '\n');
}

TEST_F(PosixShortcutsTest, AProgramsOddNameIsFound) {
  for (const char* name : {"plain", "my program", "a\"b`c$d\\e", "100% of it"}) {
    const std::string program = script_.folder().file(name);
    fs::copy_file(StandInScript::tool("java"), program);
    for (const std::string& target : {program, '"' + program + '"'}) {
      fs::remove(script_.folder().file("record"));
      shortcut_.target = target;
      shortcut_.arguments = "came";
      write();
      EXPECT_EQ(arrived(), "came\n") << target;
    }
  }
}

TEST_F(PosixShortcutsTest, TheProgramRunsInTheWorkingFolder) {
  script_.setScript("folder");
  for (const char* name : {"work here", "back\\slash", " first", "100%f"}) {
    const std::string place = folder() + name;
    fs::create_directories(place);
    shortcut_.workingFolder = place + '/';
    write();
    EXPECT_EQ(start(), place + '\n');
  }
}

TEST_F(PosixShortcutsTest, TheNameIsShownWhateverLettersItHas) {
  shortcut_.name =
      " a\\b %f Gr\xC3\xBC\xC3\x9F"
      "e";
  write();
  EXPECT_EQ(lineOf("Name"),
            "Name=\\sa\\\\b %f Gr\xC3\xBC\xC3\x9F"
            "e");
}

TEST_F(PosixShortcutsTest, AnotherShortcutIsReplacedWhole) {
  test::writeFile(file(), std::string(5000, 'x'));
  write();
  EXPECT_TRUE(text().ends_with("Categories=Development;\n")) << text();
  EXPECT_EQ(modeOf(file()) & 0100, 0100U) << "although what stood there could not be executed";
  EXPECT_EQ(names(), Words{"My App.desktop"});
}

TEST_F(PosixShortcutsTest, ALinkGivesWayAndWhatItLeadsToIsNotTouched) {
  const std::string precious = script_.folder().file("precious");
  test::writeFile(precious, "precious");
  fs::create_symlink(precious, file());
  write();
  EXPECT_TRUE(S_ISREG(modeOf(file())));
  EXPECT_EQ(test::contentOf(precious), "precious");
  EXPECT_EQ(modeOf(precious) & 0111, 0U);
}

TEST_F(PosixShortcutsTest, ALinkToNothingGivesWayAndMakesNothing) {
  const std::string nothing = script_.folder().file("nothing");
  fs::create_symlink(nothing, file());
  write();
  EXPECT_TRUE(S_ISREG(modeOf(file())));
  EXPECT_FALSE(fs::exists(nothing));
}

TEST_F(PosixShortcutsTest, WhatCannotBeWrittenIsTold) {
  fs::remove(folder());
  EXPECT_EQ(refusal(), std::strerror(ENOENT));
  fs::create_directories(file());
  EXPECT_EQ(refusal(), std::strerror(EISDIR));
  EXPECT_EQ(names(), Words{"My App.desktop"}) << "nothing else is left";
}

TEST_F(PosixShortcutsTest, OnAFullDiskTheOldOneStays) {
  test::writeFile(file(), "old");
  {
    const test::FullDisk disk(10);
    EXPECT_EQ(refusal(), std::strerror(EFBIG));
  }
  EXPECT_EQ(text(), "old");
  EXPECT_EQ(names(), Words{"My App.desktop"});
}

TEST_F(PosixShortcutsTest, AProgramThatIsNotThereIsToldAndTheShortcutStays) {
  shortcut_.target = "/nowhere/java";
  EXPECT_EQ(refusal(), std::strerror(ENOENT));
  EXPECT_EQ(lineOf("Exec"), "Exec=\"/nowhere/java\"");
}

TEST_F(PosixShortcutsTest, TextsThatNoLauncherCanHoldAreTold) {
  const std::string bad =
      "/Gr\xFC\xDF"
      "e/";
  for (std::string Shortcut::*const member :
       {&Shortcut::name, &Shortcut::target, &Shortcut::arguments, &Shortcut::description, &Shortcut::workingFolder}) {
    const Shortcut before = shortcut_;
    shortcut_.*member = bad;
    EXPECT_EQ(refusal(), std::strerror(EILSEQ));
    EXPECT_EQ(names(), Words{});
    shortcut_ = before;
  }
}

TEST_F(PosixShortcutsTest, SignsThatMeanSomethingInALauncherAreEscapedThere) {
  shortcut_.target = "/bin/true";
  const struct {
    const char* argument;
    const char* word;
  } table[] = {{"a b", "a b"},       {"$x", "\\\\$x"},       {"`x`", "\\\\`x\\\\`"},
               {"\\\"x", "\\\\\"x"}, {"a\\b", "a\\\\\\\\b"}, {"%f", "%%f"}};
  for (const auto& row : table) {
    const std::string argument = row.argument;
    shortcut_.arguments = argument == "a b" ? "\"a b\"" : argument;
    write();
    EXPECT_EQ(lineOf("Exec"), std::string("Exec=\"/bin/true\" \"") + row.word + '"');
  }
}

/// The system's answers are kept for the life of a process.
TEST_F(PosixShortcutsTest, NoDesktopIsMadeForAShortcutElsewhere) {
  const test::XdgFolders xdg(script_.folder().path());
  const test::ScopedEnvironment home("HOME", folder());
  const std::string probe = resolvedPath(test::standInFolder() + "launch_probe");
  EXPECT_EQ(test::outputOf(probe, "shortcut /bin/true " + commandWord(file())), "\n");
  EXPECT_EQ(names(), Words{"My App.desktop"});
}

TEST_F(PosixShortcutsTest, DesktopAndStartMenuAreTheUsersOwnAndAreMade) {
  const test::XdgFolders xdg(script_.folder().path());
  const test::ScopedEnvironment home("HOME", script_.folder().file("fol der"));
  const std::string probe = resolvedPath(test::standInFolder() + "launch_probe");
  const std::string menu = script_.folder().file("data/") + "/applications";
  fs::remove(script_.folder().file("data/applications"));
  EXPECT_EQ(test::outputOf(probe, "shortcutfolders"), folder() + "Desktop\n" + menu + '\n');
  EXPECT_TRUE(isFolder(folder() + "Desktop"));
  EXPECT_TRUE(isFolder(menu));
  test::writeFile(script_.folder().file("config/user-dirs.dirs"), "XDG_DESKTOP_DIR=\"$HOME/Schreib tisch\"\n");
  EXPECT_EQ(test::outputOf(probe, "shortcutfolders"), folder() + "Schreib tisch\n" + menu + '\n');
}

}  // namespace
}  // namespace tarnwick::platform
