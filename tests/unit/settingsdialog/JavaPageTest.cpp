#include "platform/Process.h"
#include "settings/JdkDiscovery.h"
#include "settingsdialog/SettingsDialog.h"
#include "support/SettingsPageFixture.h"

#include <chrono>
#include <thread>

namespace tarnwick::test {
namespace {

enum Control { COLLECTOR = 1184, SHOW_VERSION = 1157, TOOLS_FOLDER = 1041 };

class JavaPageTest : public SettingsPageFixture {
 protected:
  JavaPageTest()
      : SettingsPageFixture(2),
        record_("STANDIN_RECORD", scratch_.file("record")),
        script_("STANDIN_SCRIPT", scratch_.file("script")) {
    writeFile(scratch_.file("script"), "");
  }

  /// Runs the dialog with both pages at hand, and cancels.
  void playWithTools(const std::function<void(ScriptedWindow& tools, ScriptedWindow& java)>& script) {
    desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
      script(window.page(1092, 0), window.page(1092, 2));
      window.press(IDCANCEL_CONTROL);
    });
    SettingsDialog(settings()).runModal(2);
  }

  ScopedEnvironment record_;
  ScopedEnvironment script_;
};

TEST_F(JavaPageTest, ToolTips) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.toolTip(1031), "Enter system property values here");
    EXPECT_EQ(page.toolTip(1032), "Display detail information about class loading and execution");
    EXPECT_EQ(page.toolTip(1123), "Perform strict class-file format checks");
    EXPECT_EQ(page.toolTip(1124), "Profile the running program, and send profiling data to standard output");
    EXPECT_EQ(page.toolTip(1125),
              "(Requires JDK 1.5) Let JVM validate parameters and runtime environment before processing a JNI request");
    EXPECT_EQ(page.toolTip(1126),
              "Enable cpu, heap, or monitor profiling (Type help here for a list of suboptions and defaults)");
    EXPECT_EQ(page.toolTip(1129), "Initial size of the memory allocation pool");
    EXPECT_EQ(page.toolTip(1130), "Maximum size of the memory allocation pool");
    EXPECT_EQ(page.toolTip(1131), "Thread stack size");
    EXPECT_EQ(page.toolTip(1184), "Define how the java virtual machine should clean-up unused memory resources");
    EXPECT_EQ(page.toolTip(1182), "Enable asserts in all system classes");
    EXPECT_EQ(page.toolTip(1183), "Disable asserts in all system classes");
    EXPECT_EQ(page.toolTip(1180),
              "List of package names and/or class names (use ... for all classes) with asserts enabled");
    EXPECT_EQ(page.toolTip(1181),
              "List of package names and/or class names (use ... for all classes) with asserts disabled");
    EXPECT_EQ(
        page.toolTip(2131),
        "Programs run in a console that shows their colours, sends each line whole, ends a program's input or the "
        "program itself by a key, and runs it again");
  });
}

TEST_F(JavaPageTest, Labels) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.text(1032), "-verbose");
    EXPECT_EQ(page.text(2131), "A console of today (colours, keys, lines sent as seen)");
    EXPECT_EQ(page.text(1123), "-Xfuture");
    EXPECT_EQ(page.text(1124), "-Xprof");
    EXPECT_EQ(page.text(1125), "JNI validation");
    EXPECT_EQ(page.text(1182), "System");
    EXPECT_EQ(page.text(1183), "System");
    EXPECT_EQ(page.text(SHOW_VERSION), "Show java version");
  });
}

TEST_F(JavaPageTest, StrictChecksCanBeSwitchedOffAndOn) {
  playAndOk([](ScriptedWindow& page) {
    EXPECT_TRUE(page.checked(1123));
    page.press(1123);
  });
  EXPECT_FALSE(settings().javaXfuture);
  EXPECT_NE(contentOf(configFile()).find("JAVA_XFUTURE  OFF"), std::string::npos);
  playAndOk([](ScriptedWindow& page) {
    EXPECT_FALSE(page.checked(1123));
    page.press(1123);
  });
  EXPECT_TRUE(settings().javaXfuture);
}

TEST_F(JavaPageTest, FurtherOptionsAreTakenAsTheyAreTyped) {
  playAndOk([](ScriptedWindow& page) {
    EXPECT_EQ(page.toolTip(2104),
              "Further options for java, as they are typed here, such as --enable-preview --add-modules java.sql");
    page.type(2104, "--enable-preview  -Dx=\"a b\"");
  });
  EXPECT_EQ(settings().javaOptions, "--enable-preview  -Dx=\"a b\"");
  playAndCancel([](ScriptedWindow& page) { EXPECT_EQ(page.text(2104), "--enable-preview  -Dx=\"a b\""); });
}

TEST_F(JavaPageTest, TheGarbageCollectorIsStoredByItsLabel) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.entries(COLLECTOR), (std::vector<std::string>{"Default", "Disabled", "Incremental", "Concurrent"}));
    EXPECT_EQ(page.selection(COLLECTOR), 0);
  });
  for (const auto& [index, label] : {std::pair{1, "Disabled"}, {2, "Incremental"}, {3, "Concurrent"}, {0, ""}}) {
    playAndOk([chosen = index](ScriptedWindow& page) { page.choose(COLLECTOR, chosen); });
    EXPECT_EQ(settings().javaGarbageCollector, label);
    playAndCancel([chosen = index](ScriptedWindow& page) { EXPECT_EQ(page.selection(COLLECTOR), chosen); });
  }
}

TEST_F(JavaPageTest, ValuesTravelBothWays) {
  Settings& live = settings();
  live.javaXms = "1m";
  playAndOk([](ScriptedWindow& page) {
    EXPECT_EQ(page.text(1129), "1m");
    for (const int box : {1032, 1124, 1125, 1182, 1183}) page.press(box);
    page.type(1129, "16m");
    page.type(1130, "64m");
    page.type(1131, "1m");
    page.type(1126, "help");
    page.type(1031, "user.language=de");
    page.type(1180, "a.B");
    page.type(1181, "c...");
  });
  EXPECT_TRUE(live.javaVerbose);
  EXPECT_TRUE(live.javaXprof);
  EXPECT_TRUE(live.javaJniValidate);
  EXPECT_TRUE(live.javaSystemAssertEnable);
  EXPECT_TRUE(live.javaSystemAssertDisable);
  EXPECT_EQ(live.javaXms, "16m");
  EXPECT_EQ(live.javaXmx, "64m");
  EXPECT_EQ(live.javaXss, "1m");
  EXPECT_EQ(live.javaXrunhprof, "help");
  EXPECT_EQ(live.javaProperty, "-Duser.language=de");
  EXPECT_EQ(live.javaAssertEnable, "a.B");
  EXPECT_EQ(live.javaAssertDisable, "c...");
  playAndOk([](ScriptedWindow& page) { EXPECT_EQ(page.text(1031), "-Duser.language=de"); });
  EXPECT_EQ(live.javaProperty, "-Duser.language=de") << "the prefix is given once";
}

TEST_F(JavaPageTest, ShowJavaVersionRunsTheJavaOfTheFieldAndShowsWhatItSaid) {
  settings().javaPath = "elsewhere";
  settings().displayWithNotepad = false;
  settings().editorTarget = standInFolder() + platform::toolFileName("javadoc");
  writeFile(scratch_.file("script"), "err java version \"17\"\n");
  playWithTools([](ScriptedWindow& tools, ScriptedWindow& java) {
    tools.type(TOOLS_FOLDER, standInFolder());
    java.press(SHOW_VERSION);
    java.press(SHOW_VERSION);
  });
  std::string log = contentOf(log_.path());
  std::erase(log, '\r');
  EXPECT_NE(log.find(" -version\n\n"), std::string::npos) << log;
  EXPECT_EQ(log.find("java version"), log.rfind("java version")) << "each answer begins the log anew: " << log;
  EXPECT_NE(log.find("java version \"17\""), std::string::npos) << log;
  // The editor goes its own way.
  std::string recorded;
  for (int i = 0; i < 500 && recorded.find(log_.path()) == std::string::npos; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    recorded = contentOf(scratch_.file("record"));
  }
  EXPECT_NE(recorded.find("-version"), std::string::npos) << recorded;
  EXPECT_NE(recorded.find(log_.path()), std::string::npos) << recorded;
  EXPECT_EQ(settings().javaPath, "elsewhere");
}

TEST_F(JavaPageTest, AJavaThatSaysNothingShowsNoLog) {
  playWithTools([](ScriptedWindow& tools, ScriptedWindow& java) {
    tools.type(TOOLS_FOLDER, standInFolder());
    java.press(SHOW_VERSION);
  });
  EXPECT_NE(contentOf(scratch_.file("record")).find("-version"), std::string::npos);
}

TEST_F(JavaPageTest, ShowJavaVersionWithAnEmptyFieldTriesTheRootFolder) {
  const std::string inRoot = platform::folderSeparator + platform::toolFileName("java");
  ASSERT_FALSE(platform::isFile(inRoot));
  std::string reason;
  try {
    platform::ChildProcess::start({inRoot, "", false});
  } catch (const platform::SystemError& error) {
    reason = error.text();
  }
  playWithTools([&](ScriptedWindow& tools, ScriptedWindow& java) {
    tools.type(TOOLS_FOLDER, "");
    desktop_.expectMessage("Can't start " + inRoot + '\n' + reason);
    java.press(SHOW_VERSION);
  });
}

TEST_F(JavaPageTest, AnAnswerThatCannotBeShownIsTold) {
  settings().displayWithNotepad = settings().editWithNotepad = false;
  settings().editorTarget = scratch_.file("no editor");
  writeFile(scratch_.file("script"), "err java version \"17\"\n");
  const std::string reason = "No such file or directory";
  playWithTools([&](ScriptedWindow& tools, ScriptedWindow& java) {
    tools.type(TOOLS_FOLDER, standInFolder());
    desktop_.expectMessage("Unable to start " + settings().editorTarget + " for log file display.\n\n" + reason + '\n' +
                           reason);
    java.press(SHOW_VERSION);
  });
}

TEST_F(JavaPageTest, WhereNoLogCanBeWrittenTheUserIsTold) {
  const ScopedEnvironment nowhere("STANDIN_SCRIPT", scratch_.file("script"));
  writeFile(scratch_.file("plain file"), "");
  ToolLog lost(scratch_.file("plain file") + platform::folderSeparator);
  SettingsContext context = settingsOnDesktop(desktop_, program_, lost);
  context.installedJdks = [] { return std::vector<Jdk>(); };
  Settings live(context);
  live.javaPath = standInFolder();
  std::string expected;
  try {
    lost.open(FileMode::Write);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    expected = failure.message + "\nCan't open log file " + failure.file;
  }
  ASSERT_FALSE(expected.empty());
  desktop_.expectDialog("Tarnwick settings", [&](ScriptedWindow& window) {
    desktop_.expectMessage(expected);
    window.page(1092, 2).press(SHOW_VERSION);
    window.press(IDCANCEL_CONTROL);
  });
  SettingsDialog(live).runModal(2);
}

}  // namespace
}  // namespace tarnwick::test
