#pragma once

#include "dialogs/JavadocLayout.h"
#include "dialogs/RunJavadoc.h"
#include "support/TestFolders.h"
#include "unit/project/ProjectFixture.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick::test {

/// The dialog "javadoc" on a scripted desktop, with sources in a folder without blanks and in one with a blank.
class JavadocFixture : public ProjectFixture {
 protected:
  JavadocFixture() : before_(platform::currentDirectory()) {
    platform::makeFolders(sources() + "p");
    writeFile(sources() + "p" + platform::folderSeparator + "A.java", "");
    for (const char* name : {"B.java", "C.java"}) writeFile(sources() + name, "");
    writeFile(userFolder() + "D.java", "");
    // Names as the user types them are seen from the current folder, so that no blank of the scratch folder counts.
    platform::changeDirectory(sources());
  }
  ~JavadocFixture() override { platform::changeDirectory(before_); }

  /// A folder with a few sources, with its last separator.
  std::string sources() const { return scratch_.file("sources") + platform::folderSeparator; }
  /// The list file that the first run has.
  std::string listFile() const { return configFolder() + "Tarnwick_javadoc_list1.tmp"; }
  /// The page of a resource number.
  static ScriptedWindow& page(ScriptedWindow& window, int resource) {
    const int pages[] = {JAVADOC_SOURCES_PAGE, JAVADOC_PATHS_PAGE, JAVADOC_OPTIONS_PAGE, DOCLET_PATHS_PAGE,
                         DOCLET_OPTIONS_PAGE};
    const auto index = std::find(std::begin(pages), std::end(pages), resource) - std::begin(pages);
    window.choose(Javadoc::TABS, static_cast<int>(index));
    return window.page(Javadoc::TABS, static_cast<int>(index));
  }
  static void typeFiles(ScriptedWindow& window, const std::string& files) {
    page(window, JAVADOC_SOURCES_PAGE).type(JavadocSources::FILES, files);
  }
  std::vector<std::string> filesOfConfiguration() const {
    auto names = platform::filesIn(configFolder());
    std::sort(names.begin(), names.end());
    return names;
  }

  /// What the system makes of a file that is not there.
  static constexpr const char* noSuchFile = "No such file or directory";

 private:
  std::string before_;
};

/// The dialog without the run behind it.
class JavadocDlgFixture : public JavadocFixture {
 protected:
  /// Runs the dialog. What it gathered can be asked until the next one.
  int run(const ScriptedDesktop::DialogScript& script, const std::string& files = "") {
    dialog_.reset();
    desktop_.expectDialog("javadoc", script);
    dialog_ = std::make_unique<JavadocDlg>(settings(), files);
    return dialog_->runModal();
  }
  /// Lets the user change something, and presses "Run javadoc" for one source.
  int change(const ScriptedDesktop::DialogScript& script) {
    return run(
        [&script](ScriptedWindow& window) {
          script(window);
          window.press(Javadoc::RUN);
        },
        "B.java");
  }
  /// The same on one page, and closes the dialog with Cancel.
  void on(int resource, const ScriptedDesktop::DialogScript& script) {
    run([&](ScriptedWindow& window) {
      script(page(window, resource));
      window.press(Javadoc::CANCEL);
    });
  }
  /// Runs the dialog for these files. What it hands on is the list, one name a line, or the text in its place.
  std::string handedOn(const std::string& files, const std::string& sourcePath = "") {
    const int result = run([&](ScriptedWindow& window) {
      page(window, JAVADOC_PATHS_PAGE).type(JavadocPaths::SOURCEPATH, sourcePath);
      typeFiles(window, files);
      window.press(Javadoc::RUN);
    });
    EXPECT_EQ(result, DIALOG_OK);
    const JavadocRun gathered = dialog_->run();
    return gathered.packageText.empty() ? linesOf(gathered.listFile) : "text: " + gathered.packageText;
  }

  std::unique_ptr<JavadocDlg> dialog_;
};

}  // namespace tarnwick::test
