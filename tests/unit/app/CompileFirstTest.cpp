// "java" with the Control key held: what is not up to date is compiled first.
#include "ProjectViewFixture.h"
#include "base/FileForSubprocess.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "platform/Process.h"

namespace tarnwick::test {
namespace {

class CompileFirstTest : public ProjectViewFixture {
 protected:
  CompileFirstTest() { program_.programPath = standInFolder() + platform::toolFileName("jdb"); }

  void makeProgram() {
    makeSource("One", mainMethod());
    makeCurrent("One");
    saveEarlierRun([this](Settings& settings) {
      settings.fileviewSource.setName(path("One.java"));
      settings.fileviewClass.setName(path("One.class"));
      settings.displayWithNotepad = settings.editWithNotepad = false;
      settings.editorTarget = scratch_.file("no editor");
    });
  }
  void run(ScriptedWindow& panel) {
    desktop_.holdControlKey(true);
    panel.page(TABS, 0).press(PanelPage::RIGHT);
    desktop_.holdControlKey(false);
  }
  std::string recorded() {
    const std::string record = scratch_.file("record");
    return platform::isFile(record) ? contentOf(record) : "";
  }
  bool compiled(const std::string& name) { return recorded().find(name + ".java\n") != std::string::npos; }
  bool ran() { return recordedUpTo("RUN=").find("RUN=") != std::string::npos; }
  /// The other process would write its record later. But a run leaves its folder to the dialog for pages, too.
  bool didNotRun() {
    return recorded().find("RUN=") == std::string::npos && settings().fileviewHtml.lastFolder().empty();
  }
};

TEST_F(CompileFirstTest, AStaleClassIsCompiledAndThenRuns) {
  makeProgram();
  makeStale("One");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    run(panel);
    EXPECT_TRUE(compiled("One"));
    EXPECT_TRUE(ran());
    exit(panel);
  });
  EXPECT_EQ(desktop_.alerts(), std::vector<AlertSound>{AlertSound::Asterisk});
}

TEST_F(CompileFirstTest, ACurrentOneRunsAtOnce) {
  makeProgram();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    run(panel);
    EXPECT_TRUE(ran());
    EXPECT_FALSE(compiled("One"));
    exit(panel);
  });
  EXPECT_TRUE(desktop_.alerts().empty());
}

TEST_F(CompileFirstTest, WithoutTheKeyNothingIsCompiled) {
  makeProgram();
  makeStale("One");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.page(TABS, 0).press(PanelPage::RIGHT);
    EXPECT_TRUE(ran());
    EXPECT_FALSE(compiled("One"));
    exit(panel);
  });
}

TEST_F(CompileFirstTest, WhatTheCompilerSaysKeepsItFromRunning) {
  makeProgram();
  makeStale("One");
  writeFile(scratch_.file("script"), "err One.java:1: error\n");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    const std::string editor = scratch_.file("no editor");
    const std::string reason = "No such file or directory";
    desktop_.expectMessage("Unable to start " + editor + " for log file display.\n\n" + reason + '\n' + reason);
    run(panel);
    EXPECT_TRUE(compiled("One"));
    EXPECT_TRUE(didNotRun());
    exit(panel);
  });
}

TEST_F(CompileFirstTest, ACompilerThatCantBeStartedKeepsItFromRunning) {
  makeProgram();
  makeStale("One");
  const std::string folder = scratch_.file("broken") + platform::folderSeparator;
  platform::makeFolders(folder);
  for (const std::string tool : {"javac", "java"}) writeFile(folder + platform::toolFileName(tool), "no program");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    settings().javaPath = folder;
    std::string fault;
    try {
      platform::ChildProcess::start({folder + platform::toolFileName("javac"), "", false});
    } catch (const platform::SystemError& error) {
      fault = error.text();
    }
    desktop_.expectMessage("Can't start " + folder + platform::toolFileName("javac") + '\n' + fault);
    run(panel);
    EXPECT_TRUE(didNotRun());
    exit(panel);
  });
}

TEST_F(CompileFirstTest, WithoutASourceTheClassRuns) {
  makeProgram();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, "");
    run(panel);
    EXPECT_TRUE(ran());
    exit(panel);
  });
}

TEST_F(CompileFirstTest, ControlAndReturnInTheFieldDoTheSameWhereverTheKeyIsByThen) {
  makeProgram();
  makeStale("One");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_TRUE(panel.page(TABS, 0).pressControlReturn(PanelPage::FIELD));
    EXPECT_TRUE(compiled("One"));
    EXPECT_TRUE(ran());
    EXPECT_FALSE(didNotRun());
    EXPECT_EQ(settings().fileviewHtml.lastFolder(), userFolder());
    exit(panel);
  });
}

TEST_F(CompileFirstTest, WhatTheCompilerSaysKeepsThemFromRunningToo) {
  makeProgram();
  makeStale("One");
  writeFile(scratch_.file("script"), "err One.java:1: error\n");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    const std::string editor = scratch_.file("no editor");
    const std::string reason = "No such file or directory";
    desktop_.expectMessage("Unable to start " + editor + " for log file display.\n\n" + reason + '\n' + reason);
    EXPECT_TRUE(panel.page(TABS, 0).pressControlReturn(PanelPage::FIELD));
    EXPECT_TRUE(compiled("One"));
    EXPECT_TRUE(didNotRun());
    exit(panel);
  });
}

TEST_F(CompileFirstTest, InOtherFieldsTheyMeanNothing) {
  makeProgram();
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    EXPECT_FALSE(panel.pressControlReturn(SOURCE));
    EXPECT_FALSE(panel.page(TABS, 0).pressControlReturn(PanelPage::RIGHT));
    panel.choose(TABS, 1);
    EXPECT_FALSE(panel.page(TABS, 1).pressControlReturn(PanelPage::FIELD));
    EXPECT_EQ(recorded(), "");
    exit(panel);
  });
}

TEST_F(CompileFirstTest, InAProjectsFieldTheyCompileWhatHasChangedSince) {
  saveEarlierRun();
  startWith(makeRunnable(), [&](ScriptedWindow& panel) {
    makeStale("Main");
    // The stand-in leaves the class as it is.
    desktop_.expectHint("Not all classes are up-to-date. Compile!");
    EXPECT_TRUE(panel.page(TABS, 0).pressControlReturn(PanelPage::FIELD));
    EXPECT_TRUE(compiled("Main"));
    exit(panel);
  });
}

TEST_F(CompileFirstTest, WithTodaysJavaAProjectCanBeCompiledSoWhileItIsNotUpToDate) {
  for (const bool newer : {false, true}) {
    saveEarlierRun();
    makeSource("Main", mainMethod());
    const std::string rows = newer ? "PROJECT_SOURCES  Main.java\nNEWER_JAVA  ON\n" : "PROJECT_SOURCES  Main.java\n";
    startWith(makeProject(rows), [&](ScriptedWindow& panel) {
      ScriptedWindow& page = panel.page(TABS, 0);
      EXPECT_EQ(page.enabled(PanelPage::RIGHT), newer);
      EXPECT_EQ(page.enabled(PanelPage::FIELD), newer);
      EXPECT_FALSE(page.enabled(PanelPage::MIDDLE)) << "there is nothing to debug yet";
      if (newer) {
        // The stand-in makes no class.
        desktop_.expectHint("Not all classes are up-to-date. Compile!");
        run(panel);
        EXPECT_TRUE(compiled("Main"));
      }
      exit(panel);
    });
  }
}

TEST_F(CompileFirstTest, AProjectCompilesWhatHasChangedSince) {
  saveEarlierRun();
  startWith(makeRunnable(), [&](ScriptedWindow& panel) {
    makeStale("Main");
    // The stand-in leaves the class as it is.
    desktop_.expectHint("Not all classes are up-to-date. Compile!");
    run(panel);
    EXPECT_TRUE(compiled("Main"));
    exit(panel);
  });
}

}  // namespace
}  // namespace tarnwick::test
