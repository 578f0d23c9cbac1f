#include "support/SettingsPageFixture.h"

namespace tarnwick::test {
namespace {

enum Control { NEVER = 1138, ALWAYS = 1139, CLASSPATH = 1029, COPY = 1137 };

struct PathField {
  int field;
  int add;
  int clear;
  const char* description;
};

constexpr PathField pathFields[] = {{1029, 1065, 1066, "classpath"},
                                    {1039, 1067, 1068, "sourcepath"},
                                    {1043, 1069, 1070, "bootclasspath"},
                                    {1045, 1071, 1072, "extdirs"}};

class PathsPageTest : public SettingsPageFixture {
 protected:
  PathsPageTest() : SettingsPageFixture(6) {}

  static void expectClasspathEnabled(const ScriptedWindow& page, bool on) {
    for (const int control : {1029, 1065, 1066, 1137}) EXPECT_EQ(page.enabled(control), on) << control;
    for (const int control : {1039, 1067, 1068, 1043, 1069, 1070, 1045, 1071, 1072}) {
      EXPECT_TRUE(page.enabled(control)) << control;
    }
  }
};

TEST_F(PathsPageTest, ToolTips) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.toolTip(1029),
              "Folder/archive list where java will look for application classes. Leave empty for simple projects. See "
              "JDK documentation for details.");
    EXPECT_EQ(page.toolTip(1039),
              "Folder/archive list where the compiler will look for class or interface definitions. Leave empty for "
              "simple projects. See JDK documentation for details.");
    EXPECT_EQ(page.toolTip(1043),
              "Folder/archive list where java will look for its internal classes. Leave empty for simple projects. See "
              "JDK documentation for details.");
    EXPECT_EQ(page.toolTip(1045),
              "Extension folder/archive list for cross compilations. Leave empty for simple projects. See JDK "
              "documentation for details.");
    EXPECT_EQ(page.toolTip(1065), "Select a single folder or archive and add it to the classpath list");
    EXPECT_EQ(page.toolTip(1067), "Select a single folder or archive and add it to the sourcepath list");
    EXPECT_EQ(page.toolTip(1069), "Select a single folder or archive and add it to the bootclasspath list");
    EXPECT_EQ(page.toolTip(1071), "Select a single folder or archive and add it to the extdirs list");
    EXPECT_EQ(page.toolTip(1066), "Clear the current classpath definition");
    EXPECT_EQ(page.toolTip(1068), "Clear the current sourcepath definition");
    EXPECT_EQ(page.toolTip(1070), "Clear the current bootclasspath definition");
    EXPECT_EQ(page.toolTip(1072), "Clear the current extdirs definition");
    EXPECT_EQ(page.toolTip(1137),
              "Insert the current value of the CLASSPATH environment variable into the above classpath field");
    EXPECT_EQ(page.toolTip(1138),
              "If checked: Use classpath definition from this dialog. If there is no definition, use '.' instead.");
    EXPECT_EQ(page.toolTip(1139), "Disable the user's classpath specification and enable the environment variable.");
  });
}

TEST_F(PathsPageTest, Labels) {
  playAndCancel([](ScriptedWindow& page) {
    EXPECT_EQ(page.text(NEVER), "Never use CLASSPATH");
    EXPECT_EQ(page.text(ALWAYS), "Always use CLASSPATH");
    EXPECT_EQ(page.text(COPY), "Copy CLASSPATH environment variable");
    for (const auto& path : pathFields) {
      EXPECT_EQ(page.text(path.add), "Add...");
      EXPECT_EQ(page.text(path.clear), "Clear");
    }
  });
}

TEST_F(PathsPageTest, CheckingOneBoxUnchecksTheOther) {
  playAndOk([](ScriptedWindow& page) {
    EXPECT_TRUE(page.checked(NEVER));
    EXPECT_FALSE(page.checked(ALWAYS));
    expectClasspathEnabled(page, true);
    page.press(ALWAYS);
    EXPECT_FALSE(page.checked(NEVER));
    expectClasspathEnabled(page, false);
    page.press(NEVER);
    EXPECT_FALSE(page.checked(ALWAYS));
    expectClasspathEnabled(page, true);
    page.press(NEVER);
    EXPECT_FALSE(page.checked(NEVER));
    EXPECT_FALSE(page.checked(ALWAYS)) << "both may be off";
    expectClasspathEnabled(page, true);
    page.press(ALWAYS);
    page.press(ALWAYS);
    EXPECT_FALSE(page.checked(NEVER)) << "unchecking leaves the other as it is";
    EXPECT_FALSE(page.checked(ALWAYS));
    expectClasspathEnabled(page, true);
  });
  EXPECT_FALSE(settings().classpathFromEnvironmentNever);
  EXPECT_FALSE(settings().classpathFromEnvironmentAlways);
}

TEST_F(PathsPageTest, BothBoxesOnByHandAreTurnedOff) {
  settings().classpathFromEnvironmentNever = true;
  settings().classpathFromEnvironmentAlways = true;
  playAndOk([](ScriptedWindow& page) {
    EXPECT_FALSE(page.checked(NEVER));
    EXPECT_FALSE(page.checked(ALWAYS));
    expectClasspathEnabled(page, true);
  });
  EXPECT_FALSE(settings().classpathFromEnvironmentNever);
  EXPECT_FALSE(settings().classpathFromEnvironmentAlways);
}

TEST_F(PathsPageTest, AStoredAlwaysDisablesTheClasspathAtOnce) {
  settings().classpathFromEnvironmentNever = false;
  settings().classpathFromEnvironmentAlways = true;
  settings().classpath = "kept";
  playAndOk([](ScriptedWindow& page) { expectClasspathEnabled(page, false); });
  EXPECT_EQ(settings().classpath, ".;kept");
}

TEST_F(PathsPageTest, AddAsksWithTheListsNameAndAppends) {
  for (const auto& path : pathFields) {
    playAndCancel([&](ScriptedWindow& page) {
      page.type(path.field, "one");
      desktop_.expectDialog("Add components to a path", [&](ScriptedWindow& add) {
        EXPECT_EQ(add.text(1170), path.description);
        EXPECT_EQ(add.text(1169), "one");
        desktop_.expectBrowseFolder("/a b");
        add.press(1171);
      });
      page.press(path.add);
      EXPECT_EQ(page.text(path.field), std::string("one;") + Filename("/a b", "x").quotedDirectoryNoSlash());
      desktop_.expectDialog("Add components to a path", [](ScriptedWindow& add) { add.press(IDCANCEL_CONTROL); });
      page.press(path.add);
      EXPECT_EQ(page.text(path.field), std::string("one;") + Filename("/a b", "x").quotedDirectoryNoSlash())
          << "a cancelled choice leaves the list";
    });
  }
}

TEST_F(PathsPageTest, ClearEmptiesItsOwnFieldAlone) {
  for (const auto& cleared : pathFields) {
    playAndCancel([&](ScriptedWindow& page) {
      for (const auto& path : pathFields) page.type(path.field, "x");
      page.press(cleared.clear);
      for (const auto& path : pathFields) {
        EXPECT_EQ(page.text(path.field), path.field == cleared.field ? "" : "x") << path.description;
      }
    });
  }
}

TEST_F(PathsPageTest, TheVariableReplacesTheField) {
  const ScopedEnvironment variable("CLASSPATH", platform::commandLineList("a.jar;b c.jar"));
  playAndOk([](ScriptedWindow& page) {
    page.type(CLASSPATH, "before");
    page.press(COPY);
    EXPECT_EQ(page.text(CLASSPATH), "a.jar;b c.jar");
  });
  EXPECT_EQ(settings().classpath, ".;a.jar;b c.jar");
}

TEST_F(PathsPageTest, WithoutTheVariableNothingHappens) {
  const ScopedEnvironment variable("CLASSPATH", "");
  ASSERT_FALSE(platform::environment("CLASSPATH").has_value());
  playAndCancel([](ScriptedWindow& page) {
    page.type(CLASSPATH, "before");
    page.press(COPY);
    EXPECT_EQ(page.text(CLASSPATH), "before");
  });
}

TEST_F(PathsPageTest, OkKeepsTheCurrentFolderOnTheClasspath) {
  const std::string jar = std::string("lib") + platform::folderSeparator + "a.jar";
  for (const auto& [typed, stored] : {std::pair{jar, ".;" + jar},
                                      {jar + ";.", jar + ";."},
                                      {".;" + jar, ".;" + jar},
                                      {std::string("x;.;y"), std::string("x;.;y")},
                                      {std::string("."), std::string(".")},
                                      {std::string(), std::string()}}) {
    playAndOk([text = typed](ScriptedWindow& page) { page.type(CLASSPATH, text); });
    EXPECT_EQ(settings().classpath, stored);
  }
}

TEST_F(PathsPageTest, ListsAreKeptWithSemicolonsHoweverTheyAreTyped) {
  const std::string typed = platform::commandLineList("a;b");
  playAndOk([&](ScriptedWindow& page) {
    for (const auto& path : pathFields) page.type(path.field, typed);
  });
  EXPECT_EQ(settings().classpath, ".;a;b");
  EXPECT_EQ(settings().sourcepath, "a;b");
  EXPECT_EQ(settings().bootpath, "a;b");
  EXPECT_EQ(settings().extdirs, "a;b");
}

TEST_F(PathsPageTest, PastedLinesAreElementsOfTheList) {
  playAndOk([&](ScriptedWindow& page) {
    for (const auto& path : pathFields) page.type(path.field, "a.jar\nmy b.jar\r\n");
  });
  EXPECT_EQ(settings().classpath, ".;a.jar;my b.jar");
  EXPECT_EQ(settings().sourcepath, "a.jar;my b.jar");
  EXPECT_EQ(settings().bootpath, "a.jar;my b.jar");
  EXPECT_EQ(settings().extdirs, "a.jar;my b.jar");
  const auto again = freshSettings();
  int status = -1;
  again->readDefaultConfiguration(status);
  EXPECT_EQ(status, 0) << "no line of the file is one of its own";
  EXPECT_EQ(again->classpath, ".;a.jar;my b.jar");
}

TEST_F(PathsPageTest, LinesOfTheEnvironmentsClasspathAreElementsToo) {
  const ScopedEnvironment variable("CLASSPATH", "a.jar\nb.jar");
  playAndOk([](ScriptedWindow& page) {
    page.press(COPY);
    EXPECT_EQ(page.text(CLASSPATH), "a.jar;b.jar");
  });
}

}  // namespace
}  // namespace tarnwick::test
