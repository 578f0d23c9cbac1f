#include "platform/SystemVersion.h"
#include "resources/SystemWords.h"
#include "support/SystemWords.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(SystemWordsTest, OfTheTwoTheSystemsOwnStand) {
  EXPECT_EQ(inSystemWords("Notepad"), said("Notepad", "Text editor"));
  EXPECT_EQ(inSystemWords("Folder in the startmenu"),
            said("Folder in the startmenu", "Folder in the applications menu"));
  EXPECT_EQ(inSystemWords("Browse the startmenu"), said("Browse the startmenu", "Browse the applications menu"));
  EXPECT_EQ(inSystemWords("Tools .exe directory"), said("Tools .exe directory", "Tools directory"));
  EXPECT_EQ(platform::isWindowsDesktop(), platform::folderSeparator == '\\');
}

TEST(SystemWordsTest, WhatHasNoPairIsTheSameEverywhere) {
  for (const bool windows : {true, false}) {
    EXPECT_EQ(inWordsOf(windows, "Sourcecode editor"), "Sourcecode editor");
    EXPECT_EQ(inWordsOf(windows, "notepad"), "notepad");
    EXPECT_EQ(inWordsOf(windows, ""), "");
  }
}

TEST(SystemWordsTest, APairIsForTheWholeText) {
  EXPECT_EQ(inWordsOf(false, "Notepad "), "Notepad ");
  EXPECT_EQ(inWordsOf(false, " Tools .exe directory "), " Tools directory ");
}

TEST(SystemWordsTest, EachPairGivesBothSides) {
  for (const auto& pair : wordPairs()) {
    EXPECT_EQ(inWordsOf(true, pair.onWindows), pair.onWindows);
    EXPECT_EQ(inWordsOf(false, pair.onWindows), pair.elsewhere);
    EXPECT_NE(pair.onWindows, pair.elsewhere);
  }
}

/// What Windows' users read.
const std::vector<std::string>& wordsOfWindows() {
  static const std::vector<std::string> words = {
      "Notepad",
      "Use Windows Notepad as the java source file editor",
      "Display compiler (and other) diagnostics with the Windows Notepad",
      "Unable to start Notepad",
      "After successful compilation\n(Asterisk)",
      "After compilation with\ndiagnostics\n(Exclamation)",
      "Start the Windows Asterisk sound at the end of a compilation without diagnostics",
      "Start the Windows Exclamation sound at the end of a compilation that produced diagnostics",
      "WinShortcut",
      "Create Windows shortcut to Java application",
      ".class or .jar file to be represented by a Windows shortcut",
      "Locate class or jar file to be represented by a Windows shortcut",
      "Create shortcut in startmenu",
      "Folder in the startmenu",
      "Browse the startmenu",
      "Create an entry for your java application in the Windows startbutton menu",
      "Folder location corresponding to a lower level popup menu for the Windows startbutton",
      "Find the folder location corresponding to a lower level popup menu for the Windows startbutton",
      "Create a Windows shortcut to your java application in a folder of your choice",
      "Warning: Windows may have truncated shortcut arguments!",
      "In Startmenu ...",
      "Create an icon on the Windows desktop. A double click on it will start Tarnwick.",
      "Create an entry in the Windows startmenu tree that will start Tarnwick.",
      "Click here to make Tarnwick the default program for\nopening .twp files (Explorer double-click)",
      "For a permanent definition please update your system's environment settings or AUTOEXEC.BAT, depending on your "
      "Windows version. Consult Tarnwick's usersguide.htm for more information.",
      "\nUpdate your system's environment settings or AUTOEXEC.BAT\nfor a permanent definition!",
      " Tools .exe directory ",
      "Tools .exe directory",
      "Folder of javac.exe, java.exe and the other tools of the JDK",
      "Folder containing the file javac.exe (created by the installation of the JDK)",
      "Locate the file javac.exe in the JDK installation folder",
      "javac.exe|javac.exe|all files|*.*||",
      "No path to javac.exe and other tools available from settings",
      "Don't know where to look for java.exe. Please set tools .exe directory in common parameters panel.",
      "executable files and java archives|*.exe;*.com;*.jar||",
      "*.exe;*.com;*.jar",
      "Please make sure that you have an installation of a JDK (J2SE) on your system.\n\nOn the next display you will "
      "have to tell Tarnwick where the JDK programs are located.\nLook for a file \"javac.exe\" in a \"bin\" subfolder "
      "of the JDK installation tree and\nenter it in the field \"Tools .exe directory\".\n",
  };
  return words;
}

TEST(SystemWordsTest, TheWordsOfWindowsAreThese) {
  std::vector<std::string> windows;
  for (const auto& pair : wordPairs()) windows.push_back(pair.onWindows);
  EXPECT_EQ(windows, wordsOfWindows());
}

}  // namespace
}  // namespace tarnwick::test
