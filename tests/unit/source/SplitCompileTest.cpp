#include "platform/Process.h"
#include "source/Compiler.h"
#include "support/AskingCompiler.h"
#include "support/SettingsFixture.h"
#include "support/Shown.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

const char title[] = "Java Portability Warning";
const char twoPublic[] = "public class A {\n  int a;\n}\npublic class B {}\n";

/// The compiler's driver with a stand-in that records its arguments and keeps what A.java and B.java hold.
class SplitCompileTest : public SettingsFixture {
 protected:
  enum Control { STAY_AWAY = 1274 };

  SplitCompileTest()
      : record_("STANDIN_RECORD", scratch_.file("record")), script_("STANDIN_SCRIPT", scratch_.file("script")) {
    useStandIns();
    writeFile(scratch_.file("script"), "keep A.java\nkeep B.java\n");
  }

  /// Writes the source and compiles it; what the compiler is given comes back in the source's arguments.
  bool compile(FileForSubprocess& source, const std::string& text) {
    writeFile(source.name().fullName(), text);
    return shown(desktop_, askingCompiler(settings()).compile(source, FileMode::Write));
  }

  void expectCompile(bool stayAway = false) {
    desktop_.expectDialog(title, [stayAway](ScriptedWindow& window) {
      EXPECT_FALSE(window.checked(STAY_AWAY)) << "unchecked whenever it opens";
      if (stayAway) window.press(STAY_AWAY);
      window.press(IDOK_CONTROL);
    });
  }

  void expectCancel() {
    desktop_.expectDialog(title, [](ScriptedWindow& window) {
      window.press(STAY_AWAY);
      window.press(IDCANCEL_CONTROL);
    });
  }

  void expectNoPieces() {
    EXPECT_FALSE(platform::isFile(userFolder() + "A.java"));
    EXPECT_FALSE(platform::isFile(userFolder() + "B.java"));
  }

  std::string recorded() { return platform::isFile(scratch_.file("record")) ? contentOf(scratch_.file("record")) : ""; }
  std::string kept() {
    std::string text = contentOf(scratch_.file("record.kept"));
    std::erase(text, '\r');
    return text;
  }

  ScopedEnvironment record_;
  ScopedEnvironment script_;
  FileForSubprocess source_{userFolder() + "X.java"};
};

TEST_F(SplitCompileTest, TheWarningSaysWhatIsAtStake) {
  desktop_.expectDialog(title, [](ScriptedWindow& window) {
    EXPECT_EQ(window.text(IDOK_CONTROL), "Compile");
    EXPECT_EQ(window.text(IDCANCEL_CONTROL), "Cancel");
    EXPECT_EQ(window.text(STAY_AWAY), "Don't display this warning for some time");
    EXPECT_FALSE(window.checked(STAY_AWAY));
    window.press(IDCANCEL_CONTROL);
  });
  EXPECT_THROW(compile(source_, twoPublic), Compiler::DontWantToSplitE);
}

TEST_F(SplitCompileTest, ThePiecesAreCompiledByTheirBareNamesAndDeleted) {
  expectCompile();
  EXPECT_FALSE(compile(source_, twoPublic));
  EXPECT_EQ(source_.args(), (std::vector<std::string>{"A.java", "B.java"}));
  EXPECT_TRUE(recorded().ends_with("\nA.java\nB.java\n")) << recorded();
  EXPECT_EQ(kept(), "A.java:public class A {\n  int a;\n}\nB.java:\npublic class B {}\n")
      << "there, closed and readable";
  expectNoPieces();
  EXPECT_EQ(contentOf(userFolder() + "X.java"), twoPublic);
  EXPECT_TRUE(platform::isFile(configFile())) << "the settings are saved before";
}

TEST_F(SplitCompileTest, ACompilerWithSomethingToSayLeavesNoPiecesEither) {
  writeFile(scratch_.file("script"), "err A.java:2: error\nexit 1\n");
  expectCompile();
  EXPECT_TRUE(compile(source_, twoPublic));
  EXPECT_NE(contentOf(log_.path()).find("javac -d . -g -classpath . A.java B.java"), std::string::npos);
  expectNoPieces();
}

TEST_F(SplitCompileTest, ThePublicTypesNameIsGivenWithoutItsFolder) {
  FileForSubprocess source(userFolder() + "A.java");
  EXPECT_FALSE(compile(source, "public class A {} class B {}\n"));
  EXPECT_EQ(source.args(), std::vector<std::string>{"A.java"});
  EXPECT_TRUE(recorded().ends_with("\nA.java\n")) << recorded();
}

TEST_F(SplitCompileTest, ASourceWithoutPublicTypesIsGivenWithItsFolder) {
  EXPECT_FALSE(compile(source_, "class A {} class X {}\n"));
  EXPECT_EQ(source_.args(), std::vector<std::string>{platform::commandWord(userFolder() + "X.java")});
  EXPECT_TRUE(recorded().ends_with("\n" + userFolder() + "X.java\n")) << recorded();
}

TEST_F(SplitCompileTest, WhatTheUserTypedBehindTheSourceIsNoneOfTheCompilersBusiness) {
  FileForSubprocess source(userFolder() + "A.java");
  source.args() = {"one two"};
  EXPECT_FALSE(compile(source, "public class A {}\n"));
  EXPECT_EQ(source.args(), std::vector<std::string>{"A.java"});
}

TEST_F(SplitCompileTest, ATypesNameChoosesNoOption) {
  const std::string argument = std::string(".") + platform::folderSeparator + "@args.java";
  writeFile(userFolder() + "args.java", "-version");
  FileForSubprocess source(userFolder() + "@args.java");
  EXPECT_FALSE(compile(source, "public class @args {}\n"));
  EXPECT_EQ(source.args(), std::vector<std::string>{argument});
  EXPECT_TRUE(recorded().ends_with("\n" + argument + "\n")) << recorded();
}

TEST_F(SplitCompileTest, PiecesChooseNoOptionEither) {
  const std::string here = std::string(".") + platform::folderSeparator;
  writeFile(scratch_.file("script"), "keep @a.java\nkeep @b.java\n");
  expectCompile();
  EXPECT_FALSE(compile(source_, "public class @a {}\npublic class @b {}\n"));
  EXPECT_EQ(source_.args(), (std::vector<std::string>{here + "@a.java", here + "@b.java"}));
  EXPECT_EQ(kept(), "@a.java:public class @a {}\n@b.java:\npublic class @b {}\n");
}

TEST_F(SplitCompileTest, ASourceThatIsTypedWithoutAFolderChoosesNone) {
  ASSERT_TRUE(platform::changeDirectory(userFolder()));
  const std::string here = std::string(".") + platform::folderSeparator;
  for (const char* name : {"@x.java", "-x.java"}) {
    FileForSubprocess source(name);
    EXPECT_FALSE(compile(source, "class A {}\n"));
    EXPECT_EQ(source.args(), std::vector<std::string>{here + name});
  }
}

TEST_F(SplitCompileTest, AFileOfAPiecesNameIsThereAgainHoweverTheCompileEnds) {
  writeFile(userFolder() + "A.java", "mine");
  writeFile(userFolder() + "A.class", "compiled");
  for (const char* script : {"keep A.java\n", "err A.java:2: error\nexit 1\n"}) {
    writeFile(scratch_.file("script"), script);
    expectCompile();
    compile(source_, twoPublic);
    EXPECT_EQ(contentOf(userFolder() + "A.java"), "mine");
    EXPECT_EQ(contentOf(userFolder() + "A.class"), "compiled");
  }
  EXPECT_EQ(kept(), "A.java:public class A {\n  int a;\n}\n") << "the compiler has seen the piece";
  EXPECT_FALSE(platform::isFile(userFolder() + "B.java"));
}

TEST_F(SplitCompileTest, CancelRunsNothing) {
  writeFile(userFolder() + "A.java", "mine");
  expectCancel();
  EXPECT_THROW(compile(source_, twoPublic), Compiler::DontWantToSplitE);
  EXPECT_EQ(recorded(), "");
  EXPECT_EQ(contentOf(userFolder() + "A.java"), "mine");
}

TEST_F(SplitCompileTest, TheCloseBoxIsCancel) {
  desktop_.expectDialog(title, [](ScriptedWindow& window) { window.closeBox(); });
  EXPECT_THROW(compile(source_, twoPublic), Compiler::DontWantToSplitE);
  EXPECT_EQ(recorded(), "");
}

TEST_F(SplitCompileTest, TheWarningComesEachTimeUntilTheBoxIsChecked) {
  expectCompile();
  compile(source_, twoPublic);
  expectCompile(true);
  compile(source_, twoPublic);
  compile(source_, twoPublic);
  EXPECT_FALSE(context_.warnAboutSplitting) << "for all that run in this process";
  EXPECT_EQ(source_.args(), (std::vector<std::string>{"A.java", "B.java"})) << "compiled without a question";
}

TEST_F(SplitCompileTest, CancelKeepsTheWarningWhateverTheBoxSays) {
  expectCancel();
  EXPECT_THROW(compile(source_, twoPublic), Compiler::DontWantToSplitE);
  EXPECT_TRUE(context_.warnAboutSplitting);
  expectCompile();
  compile(source_, twoPublic);
}

TEST_F(SplitCompileTest, ANewRunOfTheProgramWarnsAgain) {
  expectCompile(true);
  compile(source_, twoPublic);
  EXPECT_TRUE((SettingsContext{desktop_, program_, log_}).warnAboutSplitting);
}

TEST_F(SplitCompileTest, TheWarningComesEvenIfThereAreComplaints) {
  FileForSubprocess source(userFolder() + "A.java");
  expectCompile();
  EXPECT_THROW(compile(source, twoPublic), Compiler::CannotCompileE);
  EXPECT_EQ(recorded(), "");
  EXPECT_EQ(contentOf(userFolder() + "A.java"), twoPublic);
}

TEST_F(SplitCompileTest, AComplaintRunsNothing) {
  try {
    compile(source_, "int x;");
    FAIL() << "no exception";
  } catch (const Compiler::CannotCompileE& failure) {
    EXPECT_EQ(failure.message,
              "X.java :\nLine 1 doesn't seem to make sense.\nThe input file may not be in text format."
              "There is neither a class nor an interface definition in the source file.\nIs it really a source file?");
  }
  EXPECT_EQ(recorded(), "");
  EXPECT_TRUE(source_.args().empty());
}

TEST_F(SplitCompileTest, ACompilerThatCantBeStartedLeavesNoPieces) {
  expectCompile();
  writeFile(source_.name().fullName(), twoPublic);
  const std::string folder = scratch_.file("broken") + platform::folderSeparator;
  platform::makeFolders(folder);
  writeFile(folder + platform::toolFileName("javac"), "no program");
  settings().javaPath = folder;
  Compiler compiler = askingCompiler(settings());
  try {
    platform::ChildProcess::start({folder + platform::toolFileName("javac"), "", false});
    FAIL() << "no exception";
  } catch (const platform::SystemError& error) {
    desktop_.expectMessage("Can't start " + folder + platform::toolFileName("javac") + '\n' + error.text());
  }
  EXPECT_FALSE(shown(desktop_, compiler.compile(source_, FileMode::Write)));
  expectNoPieces();
}

TEST_F(SplitCompileTest, ALogThatCannotBeMadeLeavesNoPieces) {
  ToolLog nowhere(scratch_.file("gone") + platform::folderSeparator);
  SettingsContext context = settingsOnDesktop(desktop_, program_, nowhere);
  Settings settings(context);
  settings.javaPath = standInFolder();
  writeFile(source_.name().fullName(), twoPublic);
  expectCompile();
  Compiler compiler = askingCompiler(settings);
  EXPECT_THROW(shown(desktop_, compiler.compile(source_, FileMode::Write)), Tarnwickfile::FileNotOpenE);
  expectNoPieces();
}

TEST_F(SplitCompileTest, TheSecondRunOfACommandAppendsToTheLog) {
  writeFile(scratch_.file("script"), "out said\n");
  Compiler compiler = askingCompiler(settings());
  FileForSubprocess first(userFolder() + "A.java");
  FileForSubprocess second(userFolder() + "B.java");
  writeFile(first.name().fullName(), "public class A {}");
  writeFile(second.name().fullName(), "public class B {}");
  EXPECT_TRUE(shown(desktop_, compiler.compile(first, FileMode::Write)));
  EXPECT_TRUE(shown(desktop_, compiler.compile(second, FileMode::Append)));
  const std::string log = contentOf(log_.path());
  EXPECT_NE(log.find("-classpath . A.java"), std::string::npos) << log;
  EXPECT_NE(log.find("-classpath . B.java"), std::string::npos) << log;
}

}  // namespace
}  // namespace tarnwick::test
