#include "resources/SystemWords.h"

#include "platform/SystemVersion.h"

#include <algorithm>

namespace tarnwick {

namespace {

/// The editor for plain text, and where it may be chosen.
std::vector<WordPair> editorWords() {
  return {
      {"Notepad", "Text editor"},
      {"Use Windows Notepad as the java source file editor",
       "Use your desktop's text editor as the java source file editor"},
      {"Display compiler (and other) diagnostics with the Windows Notepad",
       "Display compiler (and other) diagnostics with your desktop's text editor"},
      {"Unable to start Notepad", "Unable to start a text editor"},
  };
}

/// The sounds, as the themes of other desktops call them.
std::vector<WordPair> soundWords() {
  return {
      {"After successful compilation\n(Asterisk)", "After successful compilation\n(information sound)"},
      {"After compilation with\ndiagnostics\n(Exclamation)", "After compilation with\ndiagnostics\n(warning sound)"},
      {"Start the Windows Asterisk sound at the end of a compilation without diagnostics",
       "Start the information sound at the end of a compilation without diagnostics"},
      {"Start the Windows Exclamation sound at the end of a compilation that produced diagnostics",
       "Start the warning sound at the end of a compilation that produced diagnostics"},
  };
}

/// The desktop, the menu of applications, and what is put there.
std::vector<WordPair> shortcutWords() {
  return {
      {"WinShortcut", "Shortcut"},
      {"Create Windows shortcut to Java application", "Create shortcut to Java application"},
      {".class or .jar file to be represented by a Windows shortcut",
       ".class or .jar file to be represented by a shortcut"},
      {"Locate class or jar file to be represented by a Windows shortcut",
       "Locate class or jar file to be represented by a shortcut"},
      {"Create shortcut in startmenu", "Create shortcut in applications menu"},
      {"Folder in the startmenu", "Folder in the applications menu"},
      {"Browse the startmenu", "Browse the applications menu"},
      {"Create an entry for your java application in the Windows startbutton menu",
       "Create an entry for your java application in the applications menu"},
      {"Folder location corresponding to a lower level popup menu for the Windows startbutton",
       "Folder below the one of the applications menu, where the entry will be placed"},
      {"Find the folder location corresponding to a lower level popup menu for the Windows startbutton",
       "Find the folder below the one of the applications menu, where the entry will be placed"},
      {"Create a Windows shortcut to your java application in a folder of your choice",
       "Create a shortcut to your java application in a folder of your choice"},
      {"Warning: Windows may have truncated shortcut arguments!",
       "Warning: Your desktop may have truncated shortcut arguments!"},
      {"In Startmenu ...", "In applications menu ..."},
      {"Create an icon on the Windows desktop. A double click on it will start Tarnwick.",
       "Create an icon on the desktop. A double click on it will start Tarnwick."},
      {"Create an entry in the Windows startmenu tree that will start Tarnwick.",
       "Create an entry in the applications menu that will start Tarnwick."},
      {"Click here to make Tarnwick the default program for\nopening .twp files (Explorer double-click)",
       "Click here to make Tarnwick the default program for\nopening .twp files (double-click in the file manager)"},
  };
}

/// Where the environment is set for good.
std::vector<WordPair> environmentWords() {
  return {
      {"For a permanent definition please update your system's environment settings or AUTOEXEC.BAT, depending on your "
       "Windows version. Consult Tarnwick's usersguide.htm for more information.",
       "For a permanent definition please add it to the file .profile in your home folder, and log in again. Consult "
       "Tarnwick's usersguide.htm for more information."},
      {"\nUpdate your system's environment settings or AUTOEXEC.BAT\nfor a permanent definition!",
       "\nAdd it to the file .profile in your home folder\nfor a permanent definition!"},
  };
}

/// The tools of a JDK, whose files are called otherwise.
std::vector<WordPair> toolWords() {
  return {
      {" Tools .exe directory ", " Tools directory "},
      {"Tools .exe directory", "Tools directory"},
      {"Folder of javac.exe, java.exe and the other tools of the JDK",
       "Folder of javac, java and the other tools of the JDK"},
      {"Folder containing the file javac.exe (created by the installation of the JDK)",
       "Folder containing the file javac (created by the installation of the JDK)"},
      {"Locate the file javac.exe in the JDK installation folder",
       "Locate the file javac in the JDK installation folder"},
      {"javac.exe|javac.exe|all files|*.*||", "javac|javac|all files|*.*||"},
      {"No path to javac.exe and other tools available from settings",
       "No path to javac and other tools available from settings"},
      {"Don't know where to look for java.exe. Please set tools .exe directory in common parameters panel.",
       "Don't know where to look for java. Please set tools directory in common parameters panel."},
      {"executable files and java archives|*.exe;*.com;*.jar||", "executable files and java archives|*;*.com;*.jar||"},
      {"*.exe;*.com;*.jar", "*;*.com;*.jar"},
      {"Please make sure that you have an installation of a JDK (J2SE) on your system.\n\n"
       "On the next display you will have to tell Tarnwick where the JDK programs are located.\n"
       "Look for a file \"javac.exe\" in a \"bin\" subfolder of the JDK installation tree and\n"
       "enter it in the field \"Tools .exe directory\".\n",
       "Please make sure that you have an installation of a JDK (J2SE) on your system.\n\n"
       "On the next display you will have to tell Tarnwick where the JDK programs are located.\n"
       "Look for a file \"javac\" in a \"bin\" subfolder of the JDK installation tree and\n"
       "enter it in the field \"Tools directory\".\n"},
  };
}

}  // namespace

const std::vector<WordPair>& wordPairs() {
  static const std::vector<WordPair> all = [] {
    std::vector<WordPair> pairs;
    for (auto words : {editorWords(), soundWords(), shortcutWords(), environmentWords(), toolWords()})
      pairs.insert(pairs.end(), words.begin(), words.end());
    return pairs;
  }();
  return all;
}

std::string inWordsOf(bool windowsDesktop, const std::string& windowsWords) {
  if (windowsDesktop) return windowsWords;
  const auto& pairs = wordPairs();
  const auto found =
      std::find_if(pairs.begin(), pairs.end(), [&](const WordPair& pair) { return pair.onWindows == windowsWords; });
  return found == pairs.end() ? windowsWords : found->elsewhere;
}

std::string inSystemWords(const std::string& windowsWords) {
  return inWordsOf(platform::isWindowsDesktop(), windowsWords);
}

}  // namespace tarnwick
