#include "support/SettingsFixture.h"
#include "tools/ShortcutTexts.h"

#include <functional>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class ShortcutTextsTest : public SettingsFixture {
 protected:
  struct Project : OpenProject {
    void save() override {}
    std::string name() const override { return "p"; }
    std::string quotedPath() const override { return "\"a b/p.twp\""; }
  };

  ShortcutTextsTest() {
    settings().javaPath = "jdk" + std::string(1, platform::folderSeparator);
    settings().javaXfuture = false;
    settings().classpath.clear();
  }

  /// An application as it stands in the dialog's field: a path and, behind it, arguments.
  static std::unique_ptr<FileForSubprocess> application(const std::string& path, const std::string& tail = "") {
    auto file = std::make_unique<FileForSubprocess>(path);
    if (!tail.empty()) file->args().push_back(tail);
    return file;
  }
  ShortcutTexts controlled(const std::string& path, const std::string& tail = "") {
    return shortcutUnderControl(settings(), *application(path, tail));
  }
  ShortcutTexts direct(const std::string& path, const std::string& tail = "") {
    return shortcutWithoutControl(settings(), *application(path, tail));
  }
  std::string javaFile() { return settings().javaPath + platform::toolFileName("java"); }
  /// What stands behind the options that every test of an option has.
  std::string optionsNow() {
    const std::string all = direct(userFolder() + "App.class").arguments;
    EXPECT_TRUE(all.ends_with("App")) << all;
    return all.substr(0, all.size() - 3);
  }
};

TEST_F(ShortcutTextsTest, UnderControlTheProgramItselfIsStarted) {
  const ShortcutTexts texts = controlled(userFolder() + "My App.class");
  EXPECT_EQ(texts.target, '"' + program_.programPath + '"');
  EXPECT_EQ(texts.workingFolder, programFolder());
  EXPECT_EQ(texts.arguments, "\\/EXEFILE=" + javaFile() + "\\/ \\/TITLE=My App\\/ \\/CFG=" + configFile() +
                                 "\\/ \\/DEFAULTDIR=" + userFolder() + "\\/\\/RUN=-classpath . My App");
}

TEST_F(ShortcutTextsTest, AProgramWithoutABlankInItsPathHasNoQuotes) {
  program_.programPath = "tarnwick";
  EXPECT_EQ(controlled("App.class").target, "tarnwick");
}

TEST_F(ShortcutTextsTest, WithoutControlTheApplicationIsStartedByItself) {
  const ShortcutTexts texts = direct(userFolder() + "My App.class");
  EXPECT_EQ(texts.target, settings().javaPath + platform::toolFileName("javaw"));
  EXPECT_EQ(texts.workingFolder, userFolder());
  EXPECT_EQ(texts.arguments, "-classpath . My App");
}

TEST_F(ShortcutTextsTest, AnOpenProjectIsTheConfigurationWithoutQuotes) {
  settings().currentProject = std::make_unique<Project>();
  EXPECT_NE(controlled("App.class").arguments.find(" \\/CFG=a b/p.twp\\/ "), std::string::npos);
}

TEST_F(ShortcutTextsTest, ANameWithoutAFolderLeavesThePlaceEmpty) {
  EXPECT_NE(controlled("App.class").arguments.find(" \\/DEFAULTDIR=\\/\\/RUN="), std::string::npos);
  EXPECT_EQ(direct("App.class").workingFolder, "");
}

TEST_F(ShortcutTextsTest, WhatIsRunAndItsArgumentsCloseTheLine) {
  const struct {
    const char* file;
    const char* tail;
    const char* end;
  } table[] = {
      {"App.class", "", "App"},
      {"App.class", "one \"two 2\"", "App one \"two 2\""},
      {"App", "", "App"},
      {"App.CLASS", "x", "App x"},
      {"tool.jar", "one two", "-jar tool.jar one two"},
      {"My Tool.JAR", "", "-jar \"My Tool.JAR\""},
      {"tool.Jar", "", "-jar tool.Jar"},
      {"jar", "", "jar"},
      {"pkg.Main", "", "pkg"},
      // Names that the tool would take for an option or for a file of options.
      {"@args.class", "", "@@args"},
      {"-x.class", "", "./-x"},
  };
  for (const auto& row : table) {
    EXPECT_EQ(direct(userFolder() + row.file, row.tail).arguments, std::string("-classpath . ") + row.end);
    EXPECT_TRUE(controlled(userFolder() + row.file, row.tail)
                    .arguments.ends_with(std::string("\\/RUN=-classpath . ") + row.end));
  }
  const std::string here = std::string("-classpath . -jar .") + platform::folderSeparator;
  EXPECT_EQ(direct(userFolder() + "-x.jar").arguments, here + "-x.jar");
  EXPECT_EQ(direct(userFolder() + "@x.jar").arguments, here + "@x.jar");
}

TEST_F(ShortcutTextsTest, EachOptionIsGivenWhereItsSettingSaysSo) {
  const std::string classpath = "-classpath . ";
  const struct {
    std::function<void(Settings&)> set;
    std::string options;
  } table[] = {
      {[](Settings&) {}, classpath},
      {[](Settings& s) { s.javaXfuture = true; }, "-Xfuture " + classpath},
      {[](Settings& s) { s.javaXprof = true; }, "-Xprof " + classpath},
      {[](Settings& s) { s.javaJniValidate = true; }, "-Xcheck:jni " + classpath},
      {[](Settings& s) { s.javaXrunhprof = "cpu=samples"; }, "-Xrunhprof:cpu=samples " + classpath},
      {[](Settings& s) { s.javaXrunhprof = ":heap=all"; }, "-Xrunhprof:heap=all " + classpath},
      {[](Settings& s) { s.classpath = "a;b"; }, "-classpath " + platform::commandLineList("a;b") + " "},
      {[](Settings& s) { s.bootpath = "c;d"; }, classpath + "-Xbootclasspath:"},
      {[](Settings& s) { s.javaXms = "8m"; }, classpath + "-Xms"},
      {[](Settings& s) { s.javaXmx = "9m"; }, classpath + "-Xmx"},
      {[](Settings& s) { s.javaXss = "1m"; }, classpath + "-Xss"},
      {[](Settings& s) { s.javaProperty = "-Da=b -Dc=d"; }, classpath + "-Da=b -Dc=d "},
      {[](Settings& s) { s.javaGarbageCollector = "Incremental"; }, classpath + "-Xincgc "},
      {[](Settings& s) { s.javaAssertEnable = "p.A;B"; }, classpath + "-ea:p.A -ea:B  "},
      {[](Settings& s) { s.javaAssertDisable = "C"; }, classpath + "-da:C  "},
      {[](Settings& s) { s.javaSystemAssertEnable = true; }, classpath + "-enablesystemassertions "},
      {[](Settings& s) { s.javaSystemAssertDisable = true; }, classpath + "-disablesystemassertions "},
      {[](Settings& s) { s.javaVerbose = true; }, classpath + "-verbose "},
  };
  for (const auto& row : table) {
    const auto fresh = freshSettings();
    fresh->javaXfuture = false;
    row.set(*fresh);
    EXPECT_EQ(shortcutWithoutControl(*fresh, *application("App.class")).arguments, row.options + "App");
  }
}

TEST_F(ShortcutTextsTest, AllOptionsStandInTheirOrder) {
  Settings& s = settings();
  s.javaXfuture = s.javaXprof = s.javaJniValidate = s.javaSystemAssertEnable = s.javaSystemAssertDisable =
      s.javaVerbose = true;
  s.javaXrunhprof = "x";
  s.classpath = "a";
  s.bootpath = "b";
  s.javaXms = s.javaXmx = s.javaXss = "1";
  s.javaProperty = "-Dp=q";
  s.javaGarbageCollector = "Incremental";
  s.javaAssertEnable = "A";
  s.javaAssertDisable = "B";
  const std::string all =
      "-Xfuture -Xprof -Xcheck:jni -Xrunhprof:x -classpath a -Xbootclasspath:-Xms-Xmx-Xss-Dp=q -Xincgc -ea:A  -da:B  "
      "-enablesystemassertions -disablesystemassertions -verbose ";
  EXPECT_EQ(optionsNow(), all);
  EXPECT_TRUE(controlled(userFolder() + "App.class").arguments.ends_with("\\/RUN=" + all + "App"));
}

TEST_F(ShortcutTextsTest, TheNameOfTheLeastMemoryStandsDirectlyBeforeTheNextOption) {
  settings().javaXms = "8m";
  settings().javaXmx = "9m";
  settings().javaProperty = "-Da=b";
  EXPECT_EQ(optionsNow(), "-classpath . -Xms-Xmx-Da=b ");
}

TEST_F(ShortcutTextsTest, AFolderThatWouldEndItsSwitchIsRefused) {
  const std::string folder = "a\\/b" + std::string(1, platform::folderSeparator);
  const auto refused = [this](const std::string& path) {
    try {
      controlled(path);
    } catch (const Tarnwickexception& failure) {
      return failure.message;
    }
    return std::string("passed on");
  };
  const std::string words = "\nThe name of a folder in it ends in a backslash.";
  EXPECT_EQ(refused(folder + "App.class"), "Can't pass on the path " + folder + words);
  EXPECT_EQ(direct(folder + "App.class").workingFolder, folder) << "here it does no harm";
  settings().javaPath = folder;
  EXPECT_EQ(refused("App.class"), "Can't pass on the path " + javaFile() + words);
}

}  // namespace
}  // namespace tarnwick::test
