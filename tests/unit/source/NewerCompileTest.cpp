#include "platform/FileSystem.h"
#include "platform/OwnFiles.h"
#include "platform/Process.h"
#include "source/Compiler.h"
#include "source/PrivatePieces.h"
#include "support/AskingCompiler.h"
#include "support/SettingsFixture.h"
#include "support/Shown.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

const char title[] = "Java Portability Warning";
const char twoPublic[] = "public class X {\n  int a;\n}\npublic enum B { ONE }\n";

/// The compiler's driver in the newer way, with a stand-in that records its arguments.
class NewerCompileTest : public SettingsFixture {
 protected:
  NewerCompileTest()
      : record_("STANDIN_RECORD", scratch_.file("record")), script_("STANDIN_SCRIPT", scratch_.file("script")) {
    useStandIns();
    settings().newerJava = true;
    writeFile(scratch_.file("script"), "");
  }

  bool compile(const std::string& text) {
    writeFile(source_.name().fullName(), text);
    return shown(desktop_, askingCompiler(settings()).compile(source_, FileMode::Write));
  }
  void answerWarning(int control) {
    desktop_.expectDialog(title, [control](ScriptedWindow& window) { window.press(control); });
  }
  /// Where the pieces stand while the compiler runs.
  std::string piece(const std::string& name) const {
    const std::string separator(1, platform::folderSeparator);
    return configFolder() + "Tarnwick_split1.tmp" + separator + "writing" + separator + name;
  }
  std::string recorded() { return platform::isFile(scratch_.file("record")) ? contentOf(scratch_.file("record")) : ""; }
  bool piecesAreGone() { return !platform::isTaken(configFolder() + "Tarnwick_split1.tmp"); }

  ScopedEnvironment record_;
  ScopedEnvironment script_;
  FileForSubprocess source_{userFolder() + "X.java"};
};

TEST_F(NewerCompileTest, WhatTheClassicWayRefusesGoesToTheCompilerAsItIs) {
  for (const char* text : {"enum X { A }", "package p;", "", "void main() {}", "public class Other {}", "class X { } }",
                           "public sealed interface X {} public final class B implements X {}"}) {
    EXPECT_FALSE(compile(text)) << text;
    EXPECT_TRUE(recorded().ends_with("\n" + userFolder() + "X.java\n")) << recorded();
  }
}

TEST_F(NewerCompileTest, SeveralPublicTypesAreCompiledFromAFolderOfOurs) {
  answerWarning(IDOK_CONTROL);
  EXPECT_FALSE(compile(twoPublic));
  EXPECT_TRUE(recorded().ends_with("\n" + piece("X.java") + "\n" + piece("B.java") + "\n")) << recorded();
  EXPECT_TRUE(piecesAreGone());
  EXPECT_EQ(contentOf(userFolder() + "X.java"), twoPublic) << "its name is a type's, and it is not touched";
  EXPECT_FALSE(platform::isTaken(userFolder() + "B.java"));
}

TEST_F(NewerCompileTest, ThePiecesAreThereWhileTheCompilerRuns) {
  writeFile(scratch_.file("script"), "keep " + piece("B.java") + "\n");
  answerWarning(IDOK_CONTROL);
  compile(twoPublic);
  std::string kept = contentOf(scratch_.file("record.kept"));
  std::erase(kept, '\r');
  EXPECT_TRUE(kept.ends_with(":                \n        \n \npublic enum B { ONE }\n\n")) << kept;
}

TEST_F(NewerCompileTest, TheLogCallsThePiecesByTheSourcesName) {
  writeFile(scratch_.file("script"),
            "err " + piece("X.java") + ":2: error: bad\nout " + piece("B.java") + ":4: warning: worse\n");
  answerWarning(IDOK_CONTROL);
  EXPECT_TRUE(compile(twoPublic));
  const std::string log = contentOf(log_.path());
  const std::string name = userFolder() + "X.java";
  EXPECT_NE(log.find(name + ":2: error: bad"), std::string::npos) << log;
  EXPECT_NE(log.find(name + ":4: warning: worse"), std::string::npos) << log;
  EXPECT_EQ(log.find("Tarnwick_split"), std::string::npos) << log;
  EXPECT_TRUE(piecesAreGone());
}

TEST_F(NewerCompileTest, WhoeverWouldRatherNotSplitCompilesNothing) {
  answerWarning(IDCANCEL_CONTROL);
  EXPECT_THROW(compile(twoPublic), Compiler::DontWantToSplitE);
  EXPECT_EQ(recorded(), "");
  EXPECT_TRUE(piecesAreGone());
}

TEST_F(NewerCompileTest, ASourceThatIsNotThereIsTold) {
  try {
    shown(desktop_, askingCompiler(settings()).compile(source_, FileMode::Write));
    FAIL() << "no exception";
  } catch (const Compiler::RefusedE&) {
    FAIL() << "no way of reading would help";
  } catch (const Compiler::CannotCompileE& failure) {
    EXPECT_EQ(failure.message, "No such file or directory\nCan't process file " + userFolder() + "X.java");
  }
}

TEST_F(NewerCompileTest, TheClassicWayTellsWhichSourceItRefused) {
  settings().newerJava = false;
  try {
    compile("enum X { A }");
    FAIL() << "no exception";
  } catch (const Compiler::RefusedE& failure) {
    EXPECT_EQ(failure.source, userFolder() + "X.java");
  }
}

/// Sources in the folders of their packages, and in others.
class PackageCompileTest : public NewerCompileTest {
 protected:
  PackageCompileTest() : classpath_("CLASSPATH", "") {
    settings().javacDebug = false;
    settings().javaXms = "";
  }

  std::string root() const { return userFolder().substr(0, userFolder().size() - 1); }
  std::string below(const std::string& name) const {
    std::string path = userFolder() + name;
    std::replace(path.begin() + static_cast<std::ptrdiff_t>(userFolder().size()), path.end(), '/',
                 platform::folderSeparator);
    return path;
  }
  /// Writes the source and compiles it alone; tells whether the compiler, or we, had something to say.
  bool compileIn(const std::string& name, const std::string& text) {
    const Filename path(below(name));
    platform::makeFolders(path.directoryNoSlash());
    writeFile(path.fullName(), text);
    FileForSubprocess source(path.fullName());
    return shown(desktop_, askingCompiler(settings()).compile(source, FileMode::Write));
  }

  ScopedEnvironment classpath_;
};

TEST_F(PackageCompileTest, ClassesOfAPackageGoToItsRoot) {
  EXPECT_FALSE(compileIn("org/x/A.java", "package org.x; class A { }"));
  EXPECT_NE(recorded().find("-d\n" + root() + "\n-classpath\n" + root() + "\n" + below("org/x/A.java") + "\n"),
            std::string::npos)
      << recorded();
}

TEST_F(PackageCompileTest, ASourceWithoutAPackageIsCompiledAsEver) {
  EXPECT_FALSE(compileIn("org/A.java", "class A { }"));
  EXPECT_NE(recorded().find("-d\n.\n-classpath\n.\n" + below("org/A.java") + "\n"), std::string::npos) << recorded();
}

TEST_F(PackageCompileTest, DescriptionsOfPackagesAndModulesHaveRootsToo) {
  compileIn("org/x/package-info.java", "@Deprecated package org.x;");
  EXPECT_NE(recorded().find("-d\n" + root() + "\n"), std::string::npos) << recorded();
  compileIn("org/module-info.java", "module m { }");
  EXPECT_NE(recorded().find("-d\n.\n-classpath\n.\n" + below("org/module-info.java")), std::string::npos) << recorded();
}

TEST_F(PackageCompileTest, AnotherFolderThanThePackagesIsToldInTheLogAndServes) {
  EXPECT_TRUE(compileIn("other/A.java", "package org.x; class A { }"));
  EXPECT_NE(recorded().find("-d\n.\n-classpath\n.\n" + below("other/A.java") + "\n"), std::string::npos) << recorded();
  const std::string log = contentOf(log_.path());
  EXPECT_NE(
      log.find(below("other/A.java") + " is of the package org.x, but its folder is not named so. Its classes go to " +
               below("other/org/x") + platform::lineEnd),
      std::string::npos)
      << log;
}

TEST_F(PackageCompileTest, NothingIsToldOfASourceThatBecomesNoClass) {
  EXPECT_FALSE(compileIn("other/package-info.java", "package org.x;"));
  EXPECT_TRUE(compileIn("other/package-info.java", "@Deprecated package org.x;"));
}

TEST_F(PackageCompileTest, TheNoteStandsBehindWhatTheCompilerSaid) {
  writeFile(scratch_.file("script"), "err a warning\n");
  EXPECT_TRUE(compileIn("other/A.java", "package org.x; class A { }"));
  const std::string log = contentOf(log_.path());
  const auto warning = log.find("a warning");
  const auto note = log.find(" is of the package org.x");
  ASSERT_NE(note, std::string::npos) << log;
  EXPECT_LT(warning, note) << log;
}

TEST_F(PackageCompileTest, WithADestinationOfTheUsersNoFolderIsWrong) {
  const std::string destination = scratch_.file("us er");
  settings().javacDestination = '"' + destination + '"';
  EXPECT_FALSE(compileIn("other/A.java", "package org.x; class A { }"));
  EXPECT_NE(recorded().find("-d\n" + destination + "\n"), std::string::npos) << recorded();
}

TEST_F(PackageCompileTest, TheClassicWayKnowsNoRoots) {
  settings().newerJava = false;
  EXPECT_FALSE(compileIn("org/x/A.java", "package org.x; class A { }"));
  EXPECT_NE(recorded().find("-d\n.\n-classpath\n.\n"), std::string::npos) << recorded();
}

TEST_F(NewerCompileTest, WhatWasReplacedInOneRunsLogIsNotInTheNext) {
  writeFile(scratch_.file("script"), "out " + piece("B.java") + "\n");
  answerWarning(IDOK_CONTROL);
  writeFile(source_.name().fullName(), twoPublic);
  Compiler compiler = askingCompiler(settings());
  EXPECT_TRUE(shown(desktop_, compiler.compile(source_, FileMode::Write)));
  EXPECT_EQ(contentOf(log_.path()).find("Tarnwick_split"), std::string::npos);
  writeFile(source_.name().fullName(), "class X {}");
  EXPECT_TRUE(shown(desktop_, compiler.compile(source_, FileMode::Write)));
  EXPECT_NE(contentOf(log_.path()).find(piece("B.java")), std::string::npos) << "nothing of ours is there now";
}

TEST_F(NewerCompileTest, TheSettingsAreSavedOnceForABatch) {
  Compiler compiler = askingCompiler(settings());
  writeFile(source_.name().fullName(), "class X {}");
  shown(desktop_, compiler.compile(source_, FileMode::Write));
  ASSERT_TRUE(platform::deleteFile(configFile()));
  shown(desktop_, compiler.compile(source_, FileMode::Append));
  EXPECT_FALSE(platform::isFile(configFile()));
}

TEST_F(NewerCompileTest, TheLogShowsTheFirstTwentyOfTheSources) {
  writeFile(scratch_.file("script"), "out x\n");
  std::vector<std::string> sources;
  std::string names;
  for (int i = 0; i < 20; ++i) {
    sources.push_back(userFolder() + "A" + std::to_string(i) + ".java");
    writeFile(sources.back(), "");
    names += (i > 0 ? " " : "") + sources.back();
  }
  EXPECT_TRUE(shown(desktop_, askingCompiler(settings()).compileTogether(sources, FileMode::Write)));
  std::string log = contentOf(log_.path());
  EXPECT_NE(log.find(names), std::string::npos) << log;
  EXPECT_EQ(log.find("files)"), std::string::npos) << log;
  sources.push_back(userFolder() + "Last.java");
  writeFile(sources.back(), "");
  EXPECT_TRUE(shown(desktop_, askingCompiler(settings()).compileTogether(sources, FileMode::Write)));
  log = contentOf(log_.path());
  EXPECT_NE(log.find(names + " ... (21 files)"), std::string::npos) << log;
  EXPECT_EQ(log.find("Last.java"), std::string::npos) << log;
}

TEST_F(NewerCompileTest, WhatAKilledProcessHasLeftIsCleared) {
  platform::makeOwnFolder(configFolder() + "Tarnwick_split1.tmp");
  PrivatePieces::clearLeftOvers(configFolder());
  EXPECT_TRUE(piecesAreGone());
}

}  // namespace
}  // namespace tarnwick::test
