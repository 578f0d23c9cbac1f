#include "JarFixture.h"
#include "base/Text.h"
#include "platform/Process.h"
#include "process/WinApp.h"

namespace tarnwick::test {
namespace {

using Names = std::vector<std::string>;

using JarManifestTest = JarDlgFixture;

TEST_F(JarManifestTest, TheThreeWaysToAManifestExcludeOneAnother) {
  inBase([](ScriptedWindow& window) {
    window.type(Jar::MAIN_CLASS, "p.Main");
    window.type(Jar::CLASS_PATH, "x.jar");
    expectEnabled(window, ofManifestFile, true);
    window.type(Jar::MANIFEST_FILE, "   ");
    expectEnabled(window, ofGeneratedManifest, true);
    window.type(Jar::MANIFEST_FILE, "m.mf");
    expectEnabled(window, ofGeneratedManifest, false);
    window.press(Jar::NO_MANIFEST);
    expectEnabled(window, ofManifestFile, false);
    expectEnabled(window, ofGeneratedManifest, false);
    window.press(Jar::NO_MANIFEST);
    expectEnabled(window, ofManifestFile, true);
    expectEnabled(window, ofGeneratedManifest, false);
    window.type(Jar::MANIFEST_FILE, "");
    expectEnabled(window, ofGeneratedManifest, true);
    window.press(Jar::NO_MANIFEST);
    expectEnabled(window, ofGeneratedManifest, false);
    EXPECT_EQ(window.text(Jar::MAIN_CLASS), "p.Main") << "they keep their text";
    EXPECT_EQ(window.text(Jar::CLASS_PATH), "x.jar");
  });
}

TEST_F(JarManifestTest, TheManifestIsBrowsedFor) {
  const std::string chosen = userFolder() + "my.mf";
  inBase([&](ScriptedWindow& window) {
    desktop_.expectOpenFile(std::nullopt);
    window.press(Jar::BROWSE_MANIFEST);
    const FileRequest& request = desktop_.lastRequest();
    EXPECT_EQ(request.filter, "Manifest files (*.mf)|*.mf|Text files (*.txt)|*.txt|All files (*.*)|*.*||");
    EXPECT_EQ(request.extension, ".mf");
    EXPECT_EQ(request.name, "*.mf");
    EXPECT_EQ(request.startFolder, base());
    EXPECT_TRUE(request.mustExist);
    EXPECT_EQ(window.text(Jar::MANIFEST_FILE), "");
    desktop_.expectOpenFile(chosen);
    window.press(Jar::BROWSE_MANIFEST);
    EXPECT_EQ(window.text(Jar::MANIFEST_FILE), quoted(chosen));
    expectEnabled(window, ofGeneratedManifest, false);
    desktop_.expectOpenFile(std::nullopt);
    window.press(Jar::BROWSE_MANIFEST);
    EXPECT_EQ(desktop_.lastRequest().startFolder, userFolder()) << "where the present one lies";
  });
  run([this](ScriptedWindow& window) {
    window.type(Jar::BASE_FOLDER, "gone");
    desktop_.expectOpenFile(std::nullopt);
    window.press(Jar::BROWSE_MANIFEST);
    EXPECT_EQ(desktop_.lastRequest().startFolder, platform::startFolder("C:\\"));
    window.press(Jar::CANCEL);
  });
}

TEST_F(JarManifestTest, TheClassPathGrowsAndIsErased) {
  inBase([this](ScriptedWindow& window) {
    window.type(Jar::CLASS_PATH, "x.jar");
    desktop_.expectDialog("Add components to a path", [this](ScriptedWindow& path) {
      EXPECT_EQ(path.text(1170), "jar Classpath");
      EXPECT_EQ(path.text(1169), "x.jar");
      desktop_.expectOpenFile(archive());
      path.press(1172);
    });
    window.press(Jar::ADD_TO_CLASS_PATH);
    EXPECT_EQ(window.text(Jar::CLASS_PATH), "x.jar;" + quoted(archive()));
    window.press(Jar::CLEAR_CLASS_PATH);
    EXPECT_EQ(window.text(Jar::CLASS_PATH), "");
  });
}

// The run

/// The dialog as it is just before "Create archive".
class JarDlgRunTest : public JarDlgFixture {
 protected:
  JarDlgRunTest() { settings().lastJarBaseFolder = base(); }

  /// Fills in what a run needs, lets `change` do the rest, and runs.
  JarRun gather(const ScriptedDesktop::DialogScript& change) {
    EXPECT_EQ(run([&](ScriptedWindow& window) {
                chooseArchive(window, archive());
                window.type(Jar::SUBFOLDERS, "one");
                change(window);
                window.press(Jar::RUN);
              }),
              DIALOG_OK);
    return dialog_->run();
  }
  static std::string linesOfWord(const std::string& word) { return linesOf(cleanedPath(word)); }
  Names temporaryFiles() const {
    Names found;
    for (const auto& name : platform::filesIn(configFolder()))
      if (name.find("Manifest") != std::string::npos) found.push_back(name);
    return found;
  }
};

TEST_F(JarDlgRunTest, AllFieldsAreTaken) {
  session_.copyToTrash = [](const std::string&) { return false; };
  const WinApp packer = WinApp::withCommand("packer %1");
  session_.zipApplication = &packer;
  settings().jarOpenAsZip = false;
  const JarRun plain = gather([](ScriptedWindow& window) { window.type(Jar::INDIVIDUAL_FILES, " a.class "); });
  EXPECT_EQ(plain.operation, JarOperation::Create);
  EXPECT_EQ(plain.archive, archive());
  EXPECT_EQ(plain.subfolders, "one");
  EXPECT_EQ(plain.individualFiles, " a.class ") << "as it stands";
  EXPECT_EQ(plain.lastFilesFolder, "");
  EXPECT_EQ(plain.manifest, "");
  EXPECT_FALSE(plain.allFiles || plain.verbose || plain.noCompression || plain.noManifest || dialog_->openAsZip());
  EXPECT_EQ(dialog_->baseFolder(), base());
  const JarRun full = gather([](ScriptedWindow& window) {
    window.press(Jar::CLEAR_SUBFOLDERS);
    for (const int box : {Jar::ALL_FILES, Jar::VERBOSE, Jar::NO_COMPRESSION, Jar::NO_MANIFEST, Jar::OPEN_AS_ZIP})
      window.press(box);
  });
  EXPECT_TRUE(full.allFiles && full.verbose && full.noCompression && full.noManifest && dialog_->openAsZip());
  EXPECT_EQ(full.subfolders, "");
  const JarSwitches kept = dialog_->switches();
  EXPECT_TRUE(kept.verbose && kept.noCompression && kept.noManifest);
}

TEST_F(JarDlgRunTest, EachBoxMakesItsOwnSwitch) {
  const std::vector<std::pair<int, bool JarRun::*>> table = {{Jar::VERBOSE, &JarRun::verbose},
                                                             {Jar::NO_COMPRESSION, &JarRun::noCompression},
                                                             {Jar::NO_MANIFEST, &JarRun::noManifest}};
  for (const auto& [box, ours] : table) {
    const JarRun gathered = gather([box = box](ScriptedWindow& window) { window.press(box); });
    for (const auto& [other, theirs] : table) EXPECT_EQ(gathered.*theirs, other == box) << box << ' ' << other;
    const JarSwitches kept = dialog_->switches();
    EXPECT_EQ(kept.verbose, box == Jar::VERBOSE);
    EXPECT_EQ(kept.noCompression, box == Jar::NO_COMPRESSION);
    EXPECT_EQ(kept.noManifest, box == Jar::NO_MANIFEST);
  }
}

TEST_F(JarDlgRunTest, MainClassAloneGivesAManifestOfOneLine) {
  const JarRun gathered = gather([](ScriptedWindow& window) {
    window.type(Jar::MAIN_CLASS, "  p.Main ");
    window.type(Jar::CLASS_PATH, "   ");
  });
  EXPECT_EQ(temporaryFiles(), Names{"Tarnwick_tempManifest1.tmp"});
  EXPECT_EQ(gathered.manifest, quoted(configFolder() + "Tarnwick_tempManifest1.tmp"));
  EXPECT_EQ(linesOfWord(gathered.manifest), "Main-Class: p.Main\n");
  dialog_.reset();
  EXPECT_EQ(temporaryFiles(), Names{}) << "it goes with the dialog";
}

TEST_F(JarDlgRunTest, MainClassComesBeforeClassPathWhichIsWrittenAsItStands) {
  JarRun gathered = gather([](ScriptedWindow& window) {
    window.type(Jar::MAIN_CLASS, "Main");
    window.type(Jar::CLASS_PATH, "a.jar;\"b c.jar\"");
  });
  EXPECT_EQ(linesOfWord(gathered.manifest), "Main-Class: Main\nClass-Path: a.jar;\"b c.jar\"\n");
  gathered = gather([](ScriptedWindow& window) { window.type(Jar::CLASS_PATH, "a.jar"); });
  EXPECT_EQ(linesOfWord(gathered.manifest), "Class-Path: a.jar\n");
}

TEST_F(JarDlgRunTest, WithNewerJavaTheClassPathIsWrittenAsJavaReadsIt) {
  const std::string list = "lib" + std::string(1, platform::folderSeparator) + "a.jar;\"b c.jar\";" +
                           quoted(userFolder() + "d.jar") + ";" + quoted(userFolder());
  const auto fill = [&list](ScriptedWindow& window) {
    window.type(Jar::MAIN_CLASS, "Main");
    window.type(Jar::CLASS_PATH, list);
  };
  for (const bool newer : {true, false}) {
    settings().newerJava = newer ? 1 : 0;
    const std::string expected = newer ? "lib/a.jar b%20c.jar d.jar ./" : list;
    EXPECT_EQ(linesOfWord(gather(fill).manifest), "Main-Class: Main\nClass-Path: " + expected + "\n");
  }
}

TEST_F(JarDlgRunTest, WithNewerJavaALongClassPathGoesOnInTheNextLine) {
  const std::string name = std::string(50, 'x') + ".jar";
  const auto fill = [&name](ScriptedWindow& window) { window.type(Jar::CLASS_PATH, name + ";" + name); };
  settings().newerJava = true;
  const std::string whole = "Class-Path: " + name + " " + name;
  EXPECT_EQ(linesOfWord(gather(fill).manifest), whole.substr(0, 71) + "\n " + whole.substr(71) + "\n");
  settings().newerJava = false;
  EXPECT_EQ(linesOfWord(gather(fill).manifest), "Class-Path: " + name + ";" + name + "\n");
}

TEST_F(JarDlgRunTest, WithAManifestFileMainClassAndClassPathAreNotUsed) {
  const JarRun gathered = gather([](ScriptedWindow& window) {
    window.type(Jar::MAIN_CLASS, "Main");
    window.type(Jar::CLASS_PATH, "a.jar");
    window.type(Jar::MANIFEST_FILE, " my.mf");
  });
  EXPECT_EQ(gathered.manifest, " my.mf") << "as it stands";
  EXPECT_EQ(temporaryFiles(), Names{});
}

TEST_F(JarDlgRunTest, WithoutAManifestNothingIsWrittenAndNoneIsNamed) {
  JarRun gathered = gather([](ScriptedWindow& window) {
    window.type(Jar::MAIN_CLASS, "Main");
    window.press(Jar::NO_MANIFEST);
  });
  EXPECT_EQ(gathered.manifest, "");
  gathered = gather([](ScriptedWindow& window) {
    window.type(Jar::MANIFEST_FILE, "my.mf");
    window.press(Jar::NO_MANIFEST);
  });
  EXPECT_EQ(gathered.manifest, "") << "so that \"m\" and \"M\" never come together";
  EXPECT_EQ(jarArguments(gathered)[1], "cfM");
  gathered = gather([](ScriptedWindow& window) { window.type(Jar::MANIFEST_FILE, "  "); });
  EXPECT_EQ(gathered.manifest, "");
  EXPECT_EQ(temporaryFiles(), Names{});
}

TEST_F(JarDlgRunTest, AManifestThatCanNotBeWrittenIsToldAndLeftOut) {
  const ScopedEnvironment elsewhere("TARNWICK_CFGDIR", scratch_.file("gone"));
  const JarRun gathered = gather([this](ScriptedWindow& window) {
    window.type(Jar::MAIN_CLASS, "Main");
    desktop_.expectMessage("Unable to create temporary file for saving manifest input.\nRequest aborted");
  });
  EXPECT_EQ(gathered.manifest, "");
}

TEST_F(JarDlgRunTest, AnArchiveBelowTheBaseFolderIsNamedFromThere) {
  settings().lastJarBaseFolder = quoted(base());
  run([this](ScriptedWindow& window) {
    chooseArchive(window, base() + "my x.jar");
    window.press(Jar::ALL_FILES);
    window.press(Jar::RUN);
  });
  EXPECT_EQ(dialog_->run().archive, "my x.jar");
  EXPECT_EQ(dialog_->archive(), base() + "my x.jar");
}

TEST_F(JarDlgRunTest, ABaseFolderThatHasGoneIsToldAndTheDialogStays) {
  run([this](ScriptedWindow& window) {
    chooseArchive(window, archive());
    window.type(Jar::BASE_FOLDER, scratch_.file("gone"));
    window.type(Jar::SUBFOLDERS, "one");
    window.type(Jar::MAIN_CLASS, "Main");
    desktop_.expectMessage("Invalid basefolder specification.");
    window.press(Jar::RUN);
    EXPECT_FALSE(window.closed());
    EXPECT_EQ(window.text(Jar::SUBFOLDERS), "one");
    EXPECT_EQ(temporaryFiles(), Names{});
    window.press(Jar::CANCEL);
  });
}

TEST_F(JarDlgRunTest, MoreThanOneCommandLineHoldsIsToldAndTheDialogStays) {
  const std::size_t most = platform::longestCommandLine();
  std::string names;
  while (names.size() < most) names += "AFileWithALongName.class ";
  names.pop_back();
  const std::string own = platform::commandWord(archive());
  run([&](ScriptedWindow& window) {
    chooseArchive(window, archive());
    window.type(Jar::INDIVIDUAL_FILES, names);
    const std::size_t length = std::string("jar cf ").size() + own.size() + 1 + names.size() + 1;
    desktop_.expectMessage("The command line for jar is too long: it has " + std::to_string(length) +
                           " characters, and this system takes " + std::to_string(most) +
                           ".\nSelect fewer files at a time, or whole subfolders.");
    window.press(Jar::RUN);
    EXPECT_FALSE(window.closed());
    EXPECT_EQ(window.text(Jar::INDIVIDUAL_FILES), names);
    // Two manifests' worth of tries leave none behind.
    window.type(Jar::MAIN_CLASS, "Main");
    const std::size_t longer = length + 2 + quoted(configFolder() + "Tarnwick_tempManifest1.tmp").size();
    desktop_.expectMessage("The command line for jar is too long: it has " + std::to_string(longer) +
                           " characters, and this system takes " + std::to_string(most) +
                           ".\nSelect fewer files at a time, or whole subfolders.");
    window.press(Jar::RUN);
    EXPECT_EQ(temporaryFiles(), Names{});
    window.press(Jar::CANCEL);
  });
}

TEST_F(JarDlgRunTest, AnIndexTakesNothingButTheZipBox) {
  writeFile(archive(), "x");
  const WinApp packer = WinApp::withCommand("packer %1");
  session_.zipApplication = &packer;
  settings().jarOpenAsZip = false;
  EXPECT_EQ(run([this](ScriptedWindow& window) {
              chooseArchive(window, archive(), Jar::UPDATE_ARCHIVE);
              window.press(Jar::OPEN_AS_ZIP);
              window.press(Jar::VERBOSE);
              window.type(Jar::BASE_FOLDER, scratch_.file("gone"));
              window.type(Jar::MAIN_CLASS, "Main");
              window.press(Jar::CREATE_INDEX);
            }),
            DIALOG_OK);
  EXPECT_EQ(dialog_->run().operation, JarOperation::CreateIndex);
  EXPECT_EQ(dialog_->archive(), archive());
  EXPECT_TRUE(dialog_->openAsZip());
  EXPECT_EQ(dialog_->baseFolder(), base());
  EXPECT_FALSE(dialog_->switches().verbose);
  EXPECT_EQ(temporaryFiles(), Names{});
}

}  // namespace
}  // namespace tarnwick::test
