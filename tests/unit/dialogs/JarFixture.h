#pragma once

#include "dialogs/JarLayout.h"
#include "dialogs/RunJar.h"
#include "platform/Folders.h"
#include "unit/project/ProjectFixture.h"

#include <memory>
#include <string>
#include <vector>

namespace tarnwick::test {

/// The dialog "jar" on a scripted desktop, with a base folder that holds a few files and folders.
class JarFixture : public ProjectFixture {
 protected:
  JarFixture() {
    for (const char* name : {"one", "two words"}) platform::makeFolders(base() + name);
    for (const char* name : {"a.class", "b.class", "c d.class"}) writeFile(base() + name, "x");
    session_.copyToTrash = [this](const std::string& path) {
      trashed_.push_back(path + ": " + contentOf(path));
      return true;
    };
  }

  /// The base folder, with its last separator.
  std::string base() const { return scratch_.file("ba se") + platform::folderSeparator; }
  std::string baseNoSlash() const { return scratch_.file("ba se"); }
  std::string archive() const { return userFolder() + "my app.jar"; }

  /// Chooses this archive for a new one, or for an update.
  void chooseArchive(ScriptedWindow& window, const std::string& path, int button = Jar::CREATE_ARCHIVE) {
    expectArchiveAsked(path, button);
    window.press(button);
  }
  /// The same with one that can't be opened.
  void refuseArchive(ScriptedWindow& window, const std::string& path, int button, const std::string& reason) {
    expectArchiveAsked(path, button);
    desktop_.expectMessage(reason + "\nCan't open output file.");
    window.press(button);
  }
  void expectArchiveAsked(const std::string& path, int button) {
    if (button == Jar::CREATE_ARCHIVE)
      desktop_.expectSaveFile(path);
    else
      desktop_.expectOpenFile(path);
  }

  /// What the system makes of a folder that is not there.
  static constexpr const char* noSuchFile = "No such file or directory";

  JarSession session_;
  std::vector<std::string> trashed_;
};

inline const std::vector<int> ofLists = {Jar::INDIVIDUAL_FILES, Jar::SELECT_FILES,       Jar::CLEAR_FILES,
                                         Jar::SUBFOLDERS,       Jar::ADD_ALL_SUBFOLDERS, Jar::SELECT_SUBFOLDERS,
                                         Jar::CLEAR_SUBFOLDERS};
inline const std::vector<int> ofGeneratedManifest = {Jar::MAIN_CLASS, Jar::CLASS_PATH, Jar::ADD_TO_CLASS_PATH,
                                                     Jar::CLEAR_CLASS_PATH};
inline const std::vector<int> ofManifestFile = {Jar::MANIFEST_FILE, Jar::BROWSE_MANIFEST};

/// The dialog without the run behind it.
class JarDlgFixture : public JarFixture {
 protected:
  /// Runs the dialog. What it gathered can be asked until the next one.
  int run(const ScriptedDesktop::DialogScript& script) {
    desktop_.expectDialog("jar", script);
    dialog_ = std::make_unique<JarDlg>(settings(), session_);
    return dialog_->runModal();
  }
  /// Runs the dialog with the base folder, and closes it with Cancel.
  void inBase(const ScriptedDesktop::DialogScript& script) {
    settings().lastJarBaseFolder = base();
    run([&script](ScriptedWindow& window) {
      script(window);
      window.press(Jar::CANCEL);
    });
  }
  static void expectEnabled(const ScriptedWindow& window, const std::vector<int>& controls, bool on) {
    for (const int control : controls) EXPECT_EQ(window.enabled(control), on) << control;
  }
  std::unique_ptr<JarDlg> dialog_;
};

}  // namespace tarnwick::test
