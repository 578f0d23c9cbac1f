#include "AppFixture.h"
#include "base/Text.h"

namespace tarnwick::test {
namespace {

class ParseSwitches : public AppFixture {
 protected:
  bool parse(const std::string& line) { return app().parseSwitches(line); }
  static std::string here() { return platform::resolvedPath(platform::currentDirectory()); }
  /// The user's folder as the system tells it.
  std::string userFolderItself() const {
    return platform::resolvedPath(Filename(userFolder(), "x").directoryNoSlash());
  }
};

TEST_F(ParseSwitches, BeforeThemEveryFieldIsEmpty) {
  EXPECT_EQ(app().runArguments(), "");
  EXPECT_EQ(app().exeFile(), "");
  EXPECT_EQ(app().title(), "");
  EXPECT_FALSE(app().debugging());
  EXPECT_EQ(app().configFile().name().fullName(), "");
  EXPECT_EQ(app().configFile().mode(), FileMode::Undefined);
  EXPECT_FALSE(app().configFile().isOpen());
}

TEST_F(ParseSwitches, SwitchesSetTheirFields) {
  EXPECT_TRUE(parse("\\/DEFAULTDIR=" + userFolder() + "\\/ \\/EXEFILE=java\\/ \\/TITLE=Main\\/ " + cfg(configFile()) +
                    "\\/jdebug\\/ \\/UNKNOWN=x\\/ \\/RUN= -classpath . Main"));
  EXPECT_EQ(here(), userFolderItself());
  EXPECT_EQ(app().exeFile(), platform::keptExecutable("java"));
  EXPECT_EQ(app().title(), "Main");
  EXPECT_TRUE(app().debugging()) << "names ignore case";
  EXPECT_EQ(app().runArguments(), " -classpath . Main");
  EXPECT_EQ(app().configFile().name().fullName(), configFile());
}

TEST_F(ParseSwitches, AProgramBesideItsDebuggerHasSwitchesOfItsOwn) {
  EXPECT_EQ(app().programFile(), "");
  EXPECT_EQ(app().debuggerOptions(), "");
  EXPECT_TRUE(
      parse("\\/EXEFILE=jdb\\/ \\/JDEBUG\\/ \\/PROGRAM= \"a java\" \\/ \\/JDBOPTIONS=-sourcepath \"s t\"\\/ "
            "\\/RUN= -ea Main \\/PROGRAM=other\\/"));
  EXPECT_EQ(app().programFile(), cleanedPath(platform::keptExecutable("\"a java\"")));
  EXPECT_EQ(app().debuggerOptions(), "-sourcepath \"s t\"");
  EXPECT_EQ(app().runArguments(), " -ea Main \\/PROGRAM=other\\/");
}

TEST_F(ParseSwitches, RunTakesTheRestWithFurtherMarks) {
  EXPECT_TRUE(parse("\\/RUN=a \\/b"));
  EXPECT_EQ(app().runArguments(), "a \\/b");
}

TEST_F(ParseSwitches, AnUnknownSwitchBetweenKnownOnesIsSkipped) {
  EXPECT_TRUE(parse("\\/TITLE=a\\/ \\/WHAT\\/ \\/EXEFILE=b\\/"));
  EXPECT_EQ(app().title(), "a");
  EXPECT_EQ(app().exeFile(), platform::keptExecutable("b"));
}

TEST_F(ParseSwitches, TheExecutableIsTrimmedAndLosesItsQuotes) {
  EXPECT_TRUE(parse("\\/EXEFILE=  \"a b\"  \\/"));
  // The quotes are places of the fold, too.
  EXPECT_EQ(app().exeFile(), cleanedPath(platform::keptExecutable("\"a b\"")));
  EXPECT_TRUE(equalsIgnoringCase(app().exeFile(), "a b"));
}

TEST_F(ParseSwitches, AnEmptyDefaultFolderFails) {
  desktop_.expectMessage("Can't access folder ");
  EXPECT_FALSE(parse("\\/DEFAULTDIR=\\/"));
}

TEST_F(ParseSwitches, ALineWithoutAMarkIsNoError) {
  for (const char* line : {"", "a", "some words", "/a/path.twp", "C:\\a\\path.twp", "\\"}) {
    EXPECT_TRUE(parse(line)) << line;
    EXPECT_EQ(app().title(), "") << line;
  }
}

TEST_F(ParseSwitches, EveryNameIgnoresCase) {
  EXPECT_TRUE(parse("\\/defaultDir=" + userFolder() + "\\/ \\/ExeFile=java\\/ \\/title=Main\\/ \\/Cfg=" + configFile() +
                    "\\/ \\/jDebug\\/ \\/run=Main"));
  EXPECT_EQ(here(), userFolderItself());
  EXPECT_EQ(app().exeFile(), platform::keptExecutable("java"));
  EXPECT_EQ(app().title(), "Main");
  EXPECT_TRUE(app().debugging());
  EXPECT_EQ(app().runArguments(), "Main");
  EXPECT_EQ(app().configFile().name().fullName(), configFile());
}

TEST_F(ParseSwitches, AnotherNameThatOnlyBeginsLikeOneIsIgnored) {
  EXPECT_TRUE(parse("\\/TITLES=x\\/ \\/TITL=y\\/ \\/ TITLE=z\\/ \\/=v\\/ \\/RUNS=w\\/"));
  EXPECT_EQ(app().title(), "");
  EXPECT_EQ(app().runArguments(), "");
}

TEST_F(ParseSwitches, ATitleLosesItsBlanksOnTheLeftOnly) {
  EXPECT_TRUE(parse("\\/TITLE=  x\\/"));
  EXPECT_EQ(app().title(), "x");
  EXPECT_TRUE(parse("\\/TITLE=x  \\/"));
  EXPECT_EQ(app().title(), "x  ");
  EXPECT_TRUE(parse("\\/TITLE=\"a b\"\\/"));
  EXPECT_EQ(app().title(), "\"a b\"") << "quotes stay";
  EXPECT_TRUE(parse("\\/TITLE\\/"));
  EXPECT_EQ(app().title(), "");
}

TEST_F(ParseSwitches, OfTheSameSwitchTwiceTheLastCounts) {
  EXPECT_TRUE(parse("\\/TITLE=a\\/ \\/TITLE=b\\/"));
  EXPECT_EQ(app().title(), "b");
}

TEST_F(ParseSwitches, AnUnclosedLastSwitchStillApplies) {
  EXPECT_TRUE(parse("\\/TITLE=a\\/ \\/EXEFILE=b"));
  EXPECT_EQ(app().title(), "a");
  EXPECT_EQ(app().exeFile(), platform::keptExecutable("b"));
}

TEST_F(ParseSwitches, AnUnclosedSwitchTakesTheNextOpeningMarkForItsOwn) {
  EXPECT_TRUE(parse("\\/TITLE=a \\/JDEBUG\\/"));
  EXPECT_EQ(app().title(), "a ");
  EXPECT_FALSE(app().debugging());
}

TEST_F(ParseSwitches, AValueOfTheDebuggingSwitchIsIgnored) {
  EXPECT_TRUE(parse("\\/JDEBUG=off\\/"));
  EXPECT_TRUE(app().debugging());
}

TEST_F(ParseSwitches, WhatTheProgramWritesItselfIsUnderstood) {
  EXPECT_TRUE(parse("\\/DEFAULTDIR=" + userFolder() + "\\/ \\/EXEFILE=" + standInFolder() +
                    "java\\/ \\/TITLE=Main\\/ " + "\\/CFG=\"" + configFile() +
                    "\"\\/ \\/JDEBUG\\/ \\/RUN= -classpath \"a b\" Main"));
  EXPECT_EQ(app().configFile().name().fullName(), configFile()) << "without quotes";
  EXPECT_EQ(app().exeFile(), platform::keptExecutable(standInFolder() + "java"));
  EXPECT_EQ(app().runArguments(), " -classpath \"a b\" Main");
  EXPECT_TRUE(app().debugging());
}

TEST_F(ParseSwitches, RunIsTheLastSwitch) {
  EXPECT_TRUE(parse("\\/TITLE=a\\/   \\/RUN=Main \\/TITLE=b\\/ \\/JDEBUG\\/"));
  EXPECT_EQ(app().runArguments(), "Main \\/TITLE=b\\/ \\/JDEBUG\\/");
  EXPECT_EQ(app().title(), "a");
  EXPECT_FALSE(app().debugging());
  // Whether its marks come in pairs or not.
  EXPECT_TRUE(parse("\\/RUN=Main \\/ \\/TITLE=b\\/"));
  EXPECT_EQ(app().runArguments(), "Main \\/ \\/TITLE=b\\/");
  EXPECT_EQ(app().title(), "a");
}

TEST_F(ParseSwitches, RunDropsOneCharacterBehindItsNameWhateverItIs) {
  EXPECT_TRUE(parse("\\/RUN Main "));
  EXPECT_EQ(app().runArguments(), "Main ");
  EXPECT_TRUE(parse("\\/RUN==Main"));
  EXPECT_EQ(app().runArguments(), "=Main");
}

TEST_F(ParseSwitches, RunMayBeEmpty) {
  for (const char* line : {"\\/RUN=", "\\/RUN", "\\/TITLE=x\\/ \\/RUN"}) {
    EXPECT_TRUE(parse(line)) << line;
    EXPECT_EQ(app().runArguments(), "") << line;
  }
}

TEST_F(ParseSwitches, RunCountsFromTheEndOfTheSwitchBefore) {
  EXPECT_TRUE(parse("\\/TITLE=a\\/ x \\/RUN=Main"));
  EXPECT_EQ(app().runArguments(), "N=Main") << "only blanks may stand between";
}

TEST_F(ParseSwitches, TheDefaultFolderMayStandInQuotesAndWithoutItsLastSeparator) {
  const std::string folder = Filename(userFolder(), "x").directoryNoSlash();
  for (const std::string& value :
       {folder, folder + platform::folderSeparator, "\"" + folder + "\"", "  " + folder + "  "}) {
    platform::changeDirectory(scratch_.path());
    EXPECT_TRUE(parse("\\/DEFAULTDIR=" + value + "\\/")) << value;
    EXPECT_EQ(here(), userFolderItself()) << value;
  }
}

TEST_F(ParseSwitches, AFileIsNoDefaultFolder) {
  desktop_.expectMessage("Can't access folder " + configFile());
  EXPECT_FALSE(parse("\\/DEFAULTDIR=" + configFile() + "\\/ \\/TITLE=x\\/"));
  EXPECT_EQ(app().title(), "") << "nothing behind it applies";
}

TEST_F(ParseSwitches, TheMessageShowsTheValueAsItWasGiven) {
  desktop_.expectMessage("Can't access folder \"no where\"  ");
  EXPECT_FALSE(parse("\\/DEFAULTDIR= \"no where\"  \\/"));
}

TEST_F(ParseSwitches, TheConfigurationIsOpened) {
  EXPECT_TRUE(parse(cfg(configFile())));
  EXPECT_TRUE(app().configFile().isOpen());
  EXPECT_EQ(app().configFile().mode(), FileMode::Read);
}

TEST_F(ParseSwitches, AConfigurationThatCannotBeReadThrows) {
  const std::string missing = scratch_.file("none.CFG");
  try {
    parse("\\/TITLE=a\\/ " + cfg(missing) + "\\/EXEFILE=b\\/");
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.message, "No such file or directory");
    EXPECT_EQ(failure.file, missing);
  }
  EXPECT_EQ(app().title(), "a");
  EXPECT_EQ(app().exeFile(), "") << "nothing behind it applies";
  EXPECT_EQ(app().configFile().mode(), FileMode::Undefined);
}

}  // namespace
}  // namespace tarnwick::test
