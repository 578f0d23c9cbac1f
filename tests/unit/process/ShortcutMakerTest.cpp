#include "base/ProgramInfo.h"
#include "process/ShortcutMaker.h"
#include "support/FakeShortcutShell.h"
#include "support/SystemWords.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

class ShortcutMakerTest : public testing::Test {
 protected:
  ShortcutMakerTest() {
    told_.desktop = made("Desk top");
    told_.startMenu = made("Start Menu");
    shortcut_.name = "My App";
    shortcut_.target = "the target";
  }

  std::string made(const std::string& name) const {
    platform::makeFolders(scratch_.file(name));
    return scratch_.file(name);
  }
  static std::string in(const std::string& folder, const std::string& name) {
    return folder + platform::folderSeparator + name;
  }
  /// Answers, and notes the question.
  OverwriteQuestion answering(bool answer) {
    return [this, answer](const std::string& question) {
      asked_.push_back(question);
      return answer;
    };
  }
  ShortcutResult makeIn(const std::string& folder, bool answer = false) {
    return ShortcutMaker(told_.shells(), shortcut_).makeIn(folder, answering(answer));
  }
  ShortcutResult makeInStartMenu(const std::string& folder) {
    return ShortcutMaker(told_.shells(), shortcut_).makeInStartMenu(folder, answering(false));
  }
  template <typename Work>
  std::string messageOf(const Work& work) {
    try {
      work();
    } catch (const Tarnwickexception& failure) {
      return failure.message;
    }
    return "(nothing thrown)";
  }

  ScratchFolder scratch_;
  FakeShortcuts told_;
  platform::Shortcut shortcut_;
  Names asked_;
};

TEST_F(ShortcutMakerTest, TheFileIsTheFolderJoinedToTheName) {
  const std::string folder = made("fol der");
  const struct {
    std::string folder;
    const char* name;
    const char* file;
  } table[] = {
      {folder, "My App", "My App.shortcut"},
      {folder + platform::folderSeparator, "a.b", "a.b.shortcut"},
      {" \"" + folder + "\" ", " My App2 ", "My App2.shortcut"},
      {folder, "\"your app\"", "your app.shortcut"},
  };
  for (const auto& row : table) {
    shortcut_.name = row.name;
    EXPECT_EQ(makeIn(row.folder), ShortcutResult::Made);
    EXPECT_EQ(told_.written.back().file, in(folder, row.file));
  }
  EXPECT_EQ(told_.written.back().shortcut.name, "your app");
  EXPECT_EQ(asked_, Names{});
}

TEST_F(ShortcutMakerTest, TheSystemsPlacesAreUsed) {
  ShortcutMaker maker(told_.shells(), shortcut_);
  EXPECT_EQ(maker.makeOnDesktop(answering(false)), ShortcutResult::Made);
  EXPECT_EQ(maker.makeInStartMenu("", answering(false)), ShortcutResult::Made);
  EXPECT_EQ(told_.files(), (Names{in(told_.desktop, "My App.shortcut"), in(told_.startMenu, "My App.shortcut")}));
  EXPECT_EQ(told_.opened, 1) << "one shell for all places";
  EXPECT_EQ(told_.alive, 1);
}

TEST_F(ShortcutMakerTest, ATypedFolderOfTheStartMenuStaysBelowIt) {
  const std::string elsewhere = made("else where");
  EXPECT_EQ(makeInStartMenu("Java tools"), ShortcutResult::Made);
  EXPECT_EQ(makeInStartMenu("\"" + elsewhere + "\""), ShortcutResult::Made);
  EXPECT_EQ(makeInStartMenu(" "), ShortcutResult::Made);
  EXPECT_EQ(told_.files(), (Names{in(in(told_.startMenu, "Java tools"), "My App.shortcut"),
                                  in(elsewhere, "My App.shortcut"), in(told_.startMenu, "My App.shortcut")}));
}

TEST_F(ShortcutMakerTest, AShortcutThatIsThereIsReplacedOnlyIfTheUserSaysSo) {
  const std::string file = in(told_.desktop, "My App.shortcut");
  writeFile(file, "old");
  EXPECT_EQ(makeIn(told_.desktop, false), ShortcutResult::Kept);
  EXPECT_EQ(contentOf(file), "old");
  EXPECT_EQ(makeIn(told_.desktop, true), ShortcutResult::Made);
  EXPECT_EQ(contentOf(file), "My App");
  EXPECT_EQ(asked_, Names(2, "Shortcut My App already exists. Overwrite?"));
}

TEST_F(ShortcutMakerTest, BlanksAroundTheArgumentsGo) {
  shortcut_.arguments = "  one  two ";
  makeIn(told_.desktop);
  EXPECT_EQ(told_.written.back().shortcut.arguments, "one  two");
}

TEST_F(ShortcutMakerTest, ArgumentsThatTheSystemHasCutAreKnown) {
  shortcut_.arguments = " one   two";
  const struct {
    const char* kept;
    ShortcutResult result;
  } table[] = {{"one   two", ShortcutResult::Made},     {"  one two   ", ShortcutResult::Made},
               {"one tw", ShortcutResult::Truncated},   {"onetwo", ShortcutResult::Truncated},
               {"one  Two", ShortcutResult::Truncated}, {"", ShortcutResult::Truncated}};
  for (const auto& row : table) {
    told_.kept = row.kept;
    EXPECT_EQ(makeIn(told_.desktop, true), row.result) << row.kept;
  }
  EXPECT_EQ(truncatedArguments(), said("Warning: Windows may have truncated shortcut arguments!",
                                       "Warning: Your desktop may have truncated shortcut arguments!"));
  EXPECT_EQ(contentOf(in(told_.desktop, "My App.shortcut")), "My App") << "it stays in its place";
}

TEST_F(ShortcutMakerTest, WhatTheSystemRefusesIsToldWithBothPaths) {
  const std::string file = in(told_.desktop, "My App.shortcut");
  const std::string words = "Can't create shortcut to the target in \"" + file + '"';
  told_.refusal = "No space left on device";
  EXPECT_EQ(messageOf([this] { makeIn(told_.desktop); }), words + "\nNo space left on device");
  told_.refusal = "";
  EXPECT_EQ(messageOf([this] { makeIn(told_.desktop); }), words) << "the system has no words for it";
}

TEST_F(ShortcutMakerTest, ASystemWithoutAShellTellsSo) {
  told_.noShell = "Not so.";
  EXPECT_EQ(messageOf([this] { makeIn(told_.desktop); }), "Can't create shortcut to the target in \nNot so.");
}

TEST_F(ShortcutMakerTest, FoldersThatTheSystemDoesNotKnowAreToldByTheirNumbers) {
  told_.knowsFolders = false;
  EXPECT_EQ(messageOf([this] { ShortcutMaker(told_.shells(), shortcut_).makeOnDesktop(answering(false)); }),
            "SHGetSpecialFolderLocation(0) error ");
  EXPECT_EQ(messageOf([this] { makeInStartMenu(""); }), "SHGetSpecialFolderLocation(11) error ");
  EXPECT_EQ(startMenuFolder(told_.shells()), "");
  EXPECT_EQ(told_.alive, 0);
}

TEST_F(ShortcutMakerTest, TheStartMenuIsKnownForBrowsing) {
  EXPECT_EQ(startMenuFolder(told_.shells()), told_.startMenu);
  EXPECT_EQ(told_.alive, 0);
}

TEST_F(ShortcutMakerTest, TheProgramHasAShortcutOfItsOwn) {
  ProgramInfo program;
  program.programPath = "some where/tarnwick";
  const platform::Shortcut shortcut = shortcutToProgram(program);
  EXPECT_EQ(shortcut.name, "Tarnwick");
  EXPECT_EQ(shortcut.target, "some where/tarnwick");
  EXPECT_EQ(shortcut.description, "Tarnwick");
  EXPECT_EQ(shortcut.arguments, "");
  EXPECT_EQ(shortcut.workingFolder, "");
  EXPECT_EQ(shortcut.picture, "some where/tarnwick");
}

}  // namespace
}  // namespace tarnwick::test
