#include "app/UsersGuide.h"
#include "platform/Path.h"
#include "support/CheckoutFolder.h"
#include "support/SettingsFixture.h"

namespace tarnwick::test {
namespace {

class UsersGuideTest : public SettingsFixture {
 protected:
  enum Control { FIND = 1173, EXPECTED = 1174 };

  std::string guideBesideProgram() const { return programFolder() + "usersguide.htm"; }

  void show(const std::string& anchor) {
    showUsersGuide(context_, anchor, [this](const std::string& address, const std::string& place) {
      opened_.push_back(address);
      place_ = place;
    });
  }
  void expectLost(const std::string& expectedPath, const std::function<void(ScriptedWindow&)>& script) {
    desktop_.expectDialog("Unable to open usersguide.htm", [expectedPath, script](ScriptedWindow& dialog) {
      EXPECT_EQ(dialog.text(EXPECTED), "Could not open usersguide.htm at expected location:\n" + expectedPath);
      script(dialog);
    });
  }
  std::string storedPlace() {
    const auto fresh = freshSettings();
    int status = 0;
    fresh->readDefaultConfiguration(status);
    return fresh->helpFile;
  }

  std::vector<std::string> opened_;
  std::string place_;
};

TEST_F(UsersGuideTest, WithNoConfigurationTheGuideBesideTheProgramOpensAtTheAnchor) {
  writeFile(guideBesideProgram(), "guide");
  show("#paths");
  EXPECT_EQ(opened_, std::vector{platform::documentAddress(guideBesideProgram(), "#paths")});
  EXPECT_FALSE(platform::isFile(configFile())) << "nothing is written";
}

TEST_F(UsersGuideTest, TheStoredPlaceIsTakenFromTheFileWhateverTheLiveSettingsHold) {
  writeFile(userFolder() + "elsewhere.htm", "guide");
  settings().helpFile = userFolder() + "elsewhere.htm";
  settings().saveDefaultConfiguration();
  settings().helpFile = "nowhere";
  show("");
  EXPECT_EQ(opened_, std::vector{platform::documentAddress(userFolder() + "elsewhere.htm", "")});
  EXPECT_EQ(settings().helpFile, "nowhere") << "the live object is left alone";
}

TEST_F(UsersGuideTest, AGuideThatMovedIsAskedForAndRememberedWithTheAnchorKept) {
  settings().saveDefaultConfiguration();
  const std::string moved = userFolder() + "moved guide.htm";
  writeFile(moved, "guide");
  expectLost(guideBesideProgram(), [&](ScriptedWindow& dialog) {
    desktop_.expectOpenFile(moved);
    dialog.press(FIND);
    EXPECT_TRUE(dialog.closed());
  });
  show("#jdb");
  EXPECT_EQ(opened_, std::vector{platform::documentAddress(moved, "#jdb")});
  EXPECT_EQ(desktop_.lastRequest().name, "usersguide.htm");
  EXPECT_EQ(desktop_.lastRequest().filter, "html files|*.htm*||");
  EXPECT_EQ(desktop_.lastRequest().startFolder, programFolder());
  EXPECT_TRUE(desktop_.lastRequest().mustExist);
  EXPECT_EQ(storedPlace(), moved);
  EXPECT_EQ(settings().helpFile, guideBesideProgram()) << "the live object is left alone";
  settings().saveDefaultConfiguration();
  EXPECT_EQ(settings().helpFile, moved) << "and learns it at the next save";
}

TEST_F(UsersGuideTest, AGuideThatWasChosenAndCannotBeReadIsAskedForAgain) {
  settings().saveDefaultConfiguration();
  const std::string gone = userFolder() + "gone.htm";
  const std::string there = userFolder() + "there.htm";
  writeFile(there, "guide");
  expectLost(guideBesideProgram(), [&](ScriptedWindow& dialog) {
    desktop_.expectOpenFile(gone);
    dialog.press(FIND);
    expectLost(gone, [&](ScriptedWindow& second) {
      EXPECT_EQ(storedPlace(), gone) << "what was chosen is remembered all the same";
      desktop_.expectOpenFile(there);
      second.press(FIND);
      EXPECT_EQ(desktop_.lastRequest().startFolder, userFolder());
    });
  });
  show("#paths");
  EXPECT_EQ(opened_, std::vector{platform::documentAddress(there, "#paths")});
  EXPECT_EQ(storedPlace(), there);
}

TEST_F(UsersGuideTest, APlaceInQuotesOrWithABlankBehindItIsFound) {
  const std::string guide = userFolder() + "my guide.htm";
  writeFile(guide, "guide");
  for (const auto& stored : {'"' + guide + '"', guide + "  "}) {
    opened_.clear();
    writeFile(configFile(), "HELPFILE  " + stored + "\n");
    show("#paths");
    EXPECT_EQ(opened_, std::vector{platform::documentAddress(guide, "#paths")}) << stored;
    EXPECT_EQ(place_, guide);
  }
}

TEST_F(UsersGuideTest, ARepairChangesNothingElseInTheFile) {
  settings().javaPath = "saved";
  settings().saveDefaultConfiguration();
  settings().javaPath = "live";
  const std::string moved = userFolder() + "moved.htm";
  writeFile(moved, "guide");
  std::string expected = contentOf(configFile());
  const std::string place = "HELPFILE  " + guideBesideProgram();
  expected.replace(expected.find(place), place.size(), "HELPFILE  " + moved);
  expectLost(guideBesideProgram(), [&](ScriptedWindow& dialog) {
    desktop_.expectOpenFile(moved);
    dialog.press(FIND);
  });
  show("");
  EXPECT_EQ(contentOf(configFile()), expected);
}

TEST_F(UsersGuideTest, APlaceInAConfigurationWithUnknownTagsCountsToo) {
  writeFile(userFolder() + "elsewhere.htm", "guide");
  writeFile(configFile(), "SOMETHING  new\nHELPFILE  " + userFolder() + "elsewhere.htm\nFILEVIEW_TAB  12x\n");
  show("");
  EXPECT_EQ(opened_, std::vector{platform::documentAddress(userFolder() + "elsewhere.htm", "")});
}

TEST_F(UsersGuideTest, NotOpeningItChangesNothing) {
  settings().saveDefaultConfiguration();
  const std::string before = contentOf(configFile());
  expectLost(guideBesideProgram(), [](ScriptedWindow& dialog) { dialog.press(IDCANCEL_CONTROL); });
  show("#jdb");
  EXPECT_TRUE(opened_.empty());
  EXPECT_EQ(contentOf(configFile()), before);
}

TEST_F(UsersGuideTest, CancellingTheFileDialogLeavesTheQuestionOpen) {
  expectLost(guideBesideProgram(), [&](ScriptedWindow& dialog) {
    desktop_.expectOpenFile(std::nullopt);
    dialog.press(FIND);
    EXPECT_FALSE(dialog.closed());
    dialog.press(IDCANCEL_CONTROL);
  });
  show("");
  EXPECT_TRUE(opened_.empty());
}

TEST_F(UsersGuideTest, WhereTheConfigurationCantBeSavedTheGuideThatWasFoundStillOpens) {
  platform::makeFolders(configFile() + platform::folderSeparator + "in the way");
  const std::string found = userFolder() + "usersguide.htm";
  writeFile(found, "guide");
  expectLost(guideBesideProgram(), [&](ScriptedWindow& dialog) {
    desktop_.expectOpenFile(found);
    dialog.press(FIND);
    std::string reason;
    try {
      Tarnwickfile(configFile(), FileMode::Write);
    } catch (const Tarnwickfile::FileNotOpenE& failure) {
      reason = failure.message;
    }
    desktop_.expectMessage(reason + "\nCan't save configuration data in " + configFile());
  });
  show("");
  EXPECT_EQ(opened_, std::vector{platform::documentAddress(found, "")});
}

TEST(UsersGuidePageTest, HoldsEveryMarkThatTheProgramOpensItAt) {
  const std::string page = contentOf(checkoutFolder() + "/guide/usersguide.htm");
  for (const char* anchor :
       {"configTab1", "javacparameters", "javaparameters", "jdbparams", "appletviewerparameters", "editorparameters",
        "paths", "jdb", "newfile", "usertemplate", "projectfiles", "jarmenu", "javadocmenu", "shortcut"}) {
    EXPECT_NE(page.find(std::string(" id=\"") + anchor + '"'), std::string::npos) << anchor;
  }
}

TEST(UsersGuidePageTest, EveryMarkAndPictureThatItRefersToIsThere) {
  const std::string folder = checkoutFolder() + "/guide/";
  const std::string page = contentOf(folder + "usersguide.htm");
  const auto each = [&page](const std::string& opening, const std::function<void(const std::string&)>& check) {
    for (auto at = page.find(opening); at != std::string::npos; at = page.find(opening, at + 1)) {
      const auto start = at + opening.size();
      check(page.substr(start, page.find('"', start) - start));
    }
  };
  each("href=\"#",
       [&](const std::string& mark) { EXPECT_NE(page.find(" id=\"" + mark + '"'), std::string::npos) << mark; });
  each("src=\"", [&](const std::string& picture) { EXPECT_TRUE(platform::isFile(folder + picture)) << picture; });
}

}  // namespace
}  // namespace tarnwick::test
