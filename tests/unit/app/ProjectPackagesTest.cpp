#include "../project/ProjectFixture.h"
#include "app/ProjectBuild.h"

#include <algorithm>

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

/// A project whose sources lie in the folders of their packages, read the newer way.
class ProjectPackagesTest : public ProjectFixture {
 protected:
  ProjectPackagesTest() : classpath_("CLASSPATH", "") {
    // The stand-in plays the user's editor.
    settings().displayWithNotepad = false;
    settings().editorTarget = standInFolder() + platform::toolFileName("javadoc");
    settings().javacDebug = false;
    settings().saveDefaultConfiguration();
  }

  static std::string local(std::string name) {
    std::replace(name.begin(), name.end(), '/', platform::folderSeparator);
    return name;
  }
  std::string at(const std::string& name) const { return folder() + local(name); }
  void add(const std::string& name, const std::string& text) {
    platform::makeFolders(Filename(at(name)).directoryNoSlash());
    makeSource(local(name), text);
    names_ += (names_.empty() ? "" : ";") + name;
  }
  void addClass(const std::string& name) {
    platform::makeFolders(Filename(at(name)).directoryNoSlash());
    makeClassFile(local(name));
  }
  ProjectContext& openAll(const std::string& lines = "") {
    ProjectContext& project = open("NEWER_JAVA  ON\nPROJECT_SOURCES  " + names_ + "\n" + lines);
    settings().javacSoundOnError = false;
    settings().javacSoundOnSuccess = false;
    return project;
  }
  /// The line of each run of the compiler from "-d" on, its arguments with blanks between.
  Names runs() const {
    Names lines;
    const std::string text = "\n" + recorded();
    for (auto begin = text.find("\n-d\n"); begin != std::string::npos; begin = text.find("\n-d\n", begin + 1)) {
      std::string line = text.substr(begin + 1, text.find(".java\n", begin) + 5 - (begin + 1));
      std::replace(line.begin(), line.end(), '\n', ' ');
      lines.push_back(line);
    }
    return lines;
  }
  std::string target(const ProjectContext& project, const std::string& text) {
    FileForSubprocess file;
    file.takeTyped(text);
    completeRunTarget(settings(), project, file);
    return file.name().fullName();
  }

  ScopedEnvironment classpath_;
  std::string names_;
};

TEST_F(ProjectPackagesTest, EachSourceIsCompiledFromTheProjectsFolderIntoItsRoot) {
  add("src/org/A.java", "package org; class A {}");
  add("B.java", "class B {}");
  writeFile(scratch_.file("script"), "folder\n");
  compileProject(settings(), openAll(), true);
  const std::string roots = platform::commandLineList(".;" + at("src"));
  const std::string turned = platform::commandLineList(at("src") + ";.");
  EXPECT_EQ(runs(), (Names{"-d . -classpath " + roots + " " + at("B.java"),
                           "-d " + at("src") + " -classpath " + turned + " " + at("src/org/A.java")}));
  const std::string log = linesOf(log_.path());
  EXPECT_NE(log.find("\n" + folderNoSlash() + "\n"), std::string::npos) << log;
  EXPECT_EQ(log.find(at("src/org") + "\n"), std::string::npos) << log;
}

TEST_F(ProjectPackagesTest, WhatTheUserHasSetComesFirst) {
  add("src/org/A.java", "package org; class A {}");
  ProjectContext& project = openAll("CLASSPATH  lib\nSOURCEPATH  more\n");
  compileProject(settings(), project, true);
  EXPECT_EQ(runs(),
            Names{"-d " + at("src") + " -sourcepath " + platform::commandLineList("more;" + at("src")) +
                  " -classpath " + platform::commandLineList("lib;" + at("src") + ";.") + " " + at("src/org/A.java")});
}

TEST_F(ProjectPackagesTest, ARunHasTheRootOfItsClassBeforeTheOthers) {
  add("one/A.java", "class A {}");
  add("two/p/B.java", "package p; class B {}");
  ProjectContext& project = openAll("SOURCEPATH  more\n");
  project.update();
  EXPECT_EQ(project.sourceRoots(), (Names{at("one"), at("two")}));
  EXPECT_EQ(project.runClasspath(), at("one") + ";" + at("two") + ";" + folderNoSlash());
  EXPECT_EQ(project.runClasspath("p.B"), at("two") + ";" + at("one") + ";" + folderNoSlash());
  EXPECT_EQ(project.derivedSourcepath(), "more;" + at("one") + ";" + at("two")) << "without a warning";
  settings().classpath = "lib";
  settings().javacDestination = "out";
  EXPECT_EQ(project.runClasspath(), "lib;" + at("out") + ";" + at("one") + ";" + at("two") + ";" + folderNoSlash());
}

TEST_F(ProjectPackagesTest, TheRootsOfOtherClassesKeepTheirOrder) {
  for (const char* name : {"one/p/A", "two/p/B", "zoo/p/C"})
    add(std::string(name) + ".java", "package p; class " + std::string(1, name[6]) + " {}");
  ProjectContext& project = openAll();
  project.update();
  EXPECT_EQ(project.sourceRoots("p.B"), (Names{at("two"), at("one"), at("zoo")}));
  EXPECT_EQ(project.sourceRoots("p.None"), (Names{at("one"), at("two"), at("zoo")}));
  settings().newerJava = false;
  EXPECT_EQ(project.sourceRoots("p.B"), Names{}) << "the classic way knows none";
}

TEST_F(ProjectPackagesTest, ALookAtTheProjectFollowsTheWayOfReading) {
  add("org/A.java", "package org; class A {}");
  desktop_.expectMessage(
      "A project's sources lie in its folder. These names lead elsewhere and are not used,\n"
      "but stay in the project file:\n\norg/A.java");
  ProjectContext& project = openWith(names_);
  EXPECT_TRUE(project.sources.empty());
  settings().newerJava = true;
  project.update();
  EXPECT_EQ(namesOf(project), Names{"A.java"});
}

TEST_F(ProjectPackagesTest, ClassesAreLookedForInTheirRoots) {
  add("src/org/A.java", "package org; class A {}");
  add("src/org/B.java", "package org; class B extends A {}");
  ProjectContext& project = openAll();
  project.update();
  EXPECT_FALSE(project.upToDate());
  addClass("src/org/A");
  addClass("src/org/B");
  project.update();
  EXPECT_TRUE(project.upToDate());
}

TEST_F(ProjectPackagesTest, TheMainClassHasItsFullName) {
  add("src/org/A.java", "package org; class A " + mainMethod());
  ProjectContext& project = openAll();
  project.update();
  EXPECT_EQ(project.mainClass, "org.A");
  EXPECT_EQ(target(project, "org.A x"), folder() + "org.A.class") << "it runs in the project's folder";
}

TEST_F(ProjectPackagesTest, AMainClassThatTheClassicWayStoredIsFoundWithItsPackage) {
  add("src/org/A.java", "package org; class A { static class In {} }");
  add("src/org/B.java", "package org; class B {}");
  add("src/com/B.java", "package com; class B {}");
  add("C.java", "class C {}");
  add("src/com/C.java", "package com; class C {}");
  ProjectContext& project = openAll("PROJECT_MULTIMAIN  ON\nCLASS_WITH_MAIN  A\n");
  project.update();
  EXPECT_EQ(project.mainClass, "A") << "it stays as it is stored";
  EXPECT_EQ(project.fullNameOf("A"), "org.A");
  EXPECT_EQ(project.fullNameOf("A$In"), "org.A$In");
  EXPECT_EQ(project.fullNameOf("B"), "B") << "which of them is not known";
  EXPECT_EQ(project.fullNameOf("com.B"), "com.B");
  EXPECT_EQ(project.fullNameOf("C"), "C") << "one is called so";
  EXPECT_EQ(project.fullNameOf("Other"), "Other");
  EXPECT_EQ(target(project, "A x"), folder() + "org.A.class");
  settings().newerJava = false;
  EXPECT_EQ(project.fullNameOf("A"), "A");
}

TEST_F(ProjectPackagesTest, AClassFileIsLookedForWhereThePackagesOfItsSourceBegin) {
  add("one/p/A.java", "package p; class A {}");
  add("two/p/B.java", "package p; class B {}");
  ProjectContext& project = openAll();
  project.update();
  EXPECT_EQ(project.classFileOf("p.B"), "") << "it is not compiled";
  addClass("p/B");
  EXPECT_EQ(project.classFileOf("p.B"), at("p/B.class")) << "the project's folder is the last place";
  addClass("one/p/B");
  EXPECT_EQ(project.classFileOf("p.B"), at("one/p/B.class"));
  addClass("two/p/B");
  EXPECT_EQ(project.classFileOf("p.B"), at("two/p/B.class"));
  EXPECT_EQ(project.classFileOf("B"), at("two/p/B.class"));
  settings().javacDestination = "out";
  EXPECT_EQ(project.classFileOf("p.B"), "");
  addClass("out/p/B");
  EXPECT_EQ(project.classFileOf("p.B"), at("out/p/B.class"));
}

/// Two classes of one full name in different roots.
class TwinClassesTest : public ProjectPackagesTest {
 protected:
  TwinClassesTest() {
    for (const char* root : {"one", "t wo", "zoo"})
      add(std::string(root) + "/p/Main.java", "package p; class Main " + mainMethod());
  }
  ProjectContext& openPicked(const std::string& source) {
    ProjectContext& project = openAll("PROJECT_MULTIMAIN  ON\nCLASS_WITH_MAIN  p.Main\n" +
                                      (source.empty() ? "" : "CLASS_WITH_MAIN_SOURCE  " + source + "\n"));
    project.update();
    return project;
  }
};

TEST_F(TwinClassesTest, ThePickedOneComesFirst) {
  for (const char* name : {"one", "t wo", "zoo"}) addClass(std::string(name) + "/p/Main");
  const std::string roots[] = {at("one"), at("t wo"), at("zoo")};
  ProjectContext& project = openPicked("t wo/p/Main.java");
  EXPECT_EQ(project.sourceRoots(), (Names{roots[0], roots[1], roots[2]}));
  EXPECT_EQ(project.sourceRoots("p.Main"), (Names{roots[1], roots[2], roots[0]}));
  EXPECT_TRUE(project.runClasspath("p.Main").starts_with(roots[1] + ";")) << project.runClasspath("p.Main");
  EXPECT_TRUE(project.derivedSourcepath("p.Main").starts_with(roots[1] + ";"));
  EXPECT_TRUE(project.derivedSourcepath().starts_with(roots[0] + ";"));
  EXPECT_EQ(project.classFileOf("p.Main"), at("t wo/p/Main.class"));
  EXPECT_EQ(openPicked("zoo/p/Main.java").sourceRoots("p.Main").front(), roots[2]);
  EXPECT_EQ(openPicked("one/p/Main.java").sourceRoots("p.Main").front(), roots[0]);
  EXPECT_EQ(openPicked("gone/p/Main.java").sourceRoots("p.Main").front(), roots[2]) << "the last of them, as ever";
  EXPECT_EQ(openPicked("").sourceRoots("p.Main").front(), roots[2]);
}

TEST_F(TwinClassesTest, ThePickIsOfTheMainClassAlone) {
  for (const char* root : {"one", "zoo"})
    add(std::string(root) + "/p/Other.java", "package p; class Other { } class Main {}");
  EXPECT_EQ(openPicked("one/p/Other.java").sourceRoots("p.Other").front(), at("zoo"));
}

TEST_F(TwinClassesTest, ThePickIsKeptInTheProjectsFileAsLongAsItCounts) {
  ProjectContext& project = openPicked("t wo/p/Main.java");
  project.save();
  EXPECT_EQ(valueIn(projectFile(), "CLASS_WITH_MAIN_SOURCE"), "t wo/p/Main.java");
  openAgain();
  auto* again = openProject(settings());
  EXPECT_EQ(again->mainSource, "t wo/p/Main.java");
  again->multiMain = false;
  EXPECT_THROW(again->update(), JavaSourcefile::MultiplePublicStaticVoidMainE);
  again->save();
  EXPECT_EQ(valueIn(projectFile(), "CLASS_WITH_MAIN_SOURCE"), "(none)") << "it is found automatically now";
}

TEST_F(ProjectPackagesTest, AConflictOfMainsNamesTheFolders) {
  add("a/Main.java", "package a; class Main " + mainMethod());
  add("b b/Main.java", "class Main " + mainMethod());
  ProjectContext& project = openAll();
  const std::string text = messageOf<JavaSourcefile::MultiplePublicStaticVoidMainE>([&] { project.update(); });
  EXPECT_TRUE(text.starts_with("Files \"b b/Main.java\"\nand a/Main.java\nboth have ")) << text;
}

/// All in one run. The stand-in keeps what the lists say.
class PackagesOneRunTest : public ProjectPackagesTest {
 protected:
  ProjectContext& openInOneRun() {
    writeFile(scratch_.file("script"), "keep " + configFolder() + "Tarnwick_javac_list1.tmp\n");
    ProjectContext& project = openAll("JAVAC_ONE_RUN  ON\n");
    return project;
  }
  /// The names of the sources without their folders, one run a line.
  std::string listed() const {
    std::string names;
    const std::string text = linesOf(scratch_.file("record.kept"));
    for (std::size_t at = 0; at < text.size();) {
      const auto end = std::min(text.find('\n', at), text.size());
      const std::string line = text.substr(at, end - at);
      if (line.find("Tarnwick_javac_list") != std::string::npos && !names.empty()) names += "| ";
      const auto name = line.find_last_of("/\\");
      if (line.ends_with(".java\"")) names += line.substr(name + 1, line.size() - name - 2) + " ";
      at = end + 1;
    }
    return names;
  }
};

TEST_F(PackagesOneRunTest, SourcesOfOneRootShareARun) {
  add("main/p/A.java", "package p; class A {}");
  add("main/q/B.java", "package q; class B {}");
  add("test/p/C.java", "package p; class C {}");
  compileProject(settings(), openInOneRun(), true);
  EXPECT_EQ(listed(), "C.java | B.java A.java ") << contentOf(scratch_.file("record.kept"));
  EXPECT_NE(recorded().find("-d\n" + at("test") + "\n"), std::string::npos) << recorded();
  EXPECT_NE(recorded().find("-d\n" + at("main") + "\n"), std::string::npos) << recorded();
}

TEST_F(PackagesOneRunTest, WithADestinationTheRootsShareIt) {
  add("main/p/A.java", "package p; class A {}");
  add("test/p/C.java", "package p; class C {}");
  ProjectContext& project = openInOneRun();
  settings().javacDestination = "out";
  compileProject(settings(), project, true);
  EXPECT_EQ(listed(), "C.java A.java ");
  EXPECT_NE(recorded().find("-d\nout\n"), std::string::npos) << recorded();
}

TEST_F(PackagesOneRunTest, TheClassicWayAsksForNoRoots) {
  add("A.java", "package p; class A {}");
  add("B.java", "class B {}");
  ProjectContext& project = openInOneRun();
  settings().newerJava = false;
  compileProject(settings(), project, true);
  EXPECT_EQ(listed(), "B.java A.java ");
  EXPECT_NE(recorded().find("-d\n.\n"), std::string::npos) << recorded();
}

}  // namespace
}  // namespace tarnwick::test
