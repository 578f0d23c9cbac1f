// The dialog "javadoc" as a real window, page by page.
#include "dialogs/JavadocDlg.h"
#include "dialogs/JavadocLayout.h"
#include "platform/FileSystem.h"
#include "ui/DialogChecks.h"
#include "ui/ProgramWorld.h"
#include "ui/Toolkit.h"

#include <wx/dialog.h>

namespace tarnwick::test {

namespace {

struct JavadocPageCase {
  std::string name;
  int tab;
  /// What Tab comes to first and last on the page.
  int first;
  int last;
};

std::ostream& operator<<(std::ostream& out, const JavadocPageCase& page) {
  return out << page.name;
}

std::vector<JavadocPageCase> allPages() {
  return {{"sourceFiles", 0, JavadocSources::FILES, JavadocSources::PACKAGES},
          {"javadocPaths", 1, JavadocPaths::SOURCEPATH, JavadocPaths::BROWSE_DOCLET_FILE},
          {"javadocOptions", 2, JavadocOptions::DOCLET_OPTIONS, JavadocOptions::QUIET},
          {"docletPaths", 3, DocletPaths::DESTINATION, DocletPaths::CLEAR_TAGLET_PATH},
          {"docletOptions", 4, DocletOptions::WINDOW_TITLE, DocletOptions::NO_TREE}};
}

class JavadocWindowTest : public WindowTest, public testing::WithParamInterface<JavadocPageCase> {
 protected:
  JavadocWindowTest() {
    const std::string path = "/home/somebody/a folder with a long name/";
    world_.settings.sourcepath = path + "src";
    world_.settings.javadoc.destination = path + "documentation";
    world_.settings.javadoc.windowTitle = "\"The shop and its till\"";
    world_.settings.javadoc.isProtected = true;
    for (const char* name : {"A.java", "B.java", "C.java"}) files_ += '"' + path + name + "\" ";
  }

  ui::WxDialogWindow& page() const { return *top().children().at(static_cast<std::size_t>(GetParam().tab)); }

  void waitForPage() {
    steps.until("the dialog shows", [this] { return openDialogs() == 1 && top().dialog().IsActive(); });
    steps.then("the page", [this] { top().select(Javadoc::TABS, GetParam().tab); });
    steps.until("the page shows", [this] { return page().surface().IsShownOnScreen(); });
    steps.settle(5);
  }

  void thenClose() {
    steps.then("close", [this] { top().close(Javadoc::CANCEL); });
  }

  int run() { return JavadocDlg(world_.settings, files_).runModal(); }

  ProgramWorld world_;
  std::string files_;
};

}  // namespace

TEST_P(JavadocWindowTest, ThePageShowsWholeOnASmallScreen) {
  waitForPage();
  steps.then("look", [this] {
    shoot("javadoc-" + GetParam().name);
    expectGoodLooks(top());
    expectFitsSmallScreen(top());
  });
  thenClose();
  run();
}

TEST_P(JavadocWindowTest, EveryControlHasANameOfItsOwnForReadersOfTheScreen) {
  waitForPage();
  steps.then("look", [this] { expectNames(top()); });
  thenClose();
  run();
}

TEST_P(JavadocWindowTest, TabReachesEveryControlInTheOrderOfReading) {
  const auto reached = std::make_shared<Stops>();
  waitForPage();
  steps.then("focus", [this] { page().focus(GetParam().first); });
  steps.until("focus", [this] { return wxWindow::FindFocus() == page().windowOf(GetParam().first); });
  walkByTab(steps, reached);
  steps.then("look", [this, reached] {
    expectAllReached(top(), *reached);
    expectReadingOrder(*reached);
    const auto last = std::find(reached->begin(), reached->end(), page().windowOf(GetParam().last));
    ASSERT_NE(last, reached->end());
    const bool helpFirst = ui::customOfButtons() == ButtonCustom::AffirmativeLast;
    EXPECT_EQ(*std::next(last), top().windowOf(helpFirst ? Javadoc::HELP : Javadoc::RUN))
        << "the dialog's own buttons follow";
  });
  thenClose();
  run();
}

TEST_P(JavadocWindowTest, EscapeCancelsAndReturnRuns) {
  waitForPage();
  steps.then("Escape", [] { key(WXK_ESCAPE); });
  EXPECT_EQ(run(), DIALOG_CANCEL);
  EXPECT_FALSE(platform::isFile(world_.scratch.file(defaultConfigurationName)));
  waitForPage();
  steps.then("focus", [this] { page().focus(GetParam().first); });
  steps.until("focus", [this] { return wxWindow::FindFocus() == page().windowOf(GetParam().first); });
  steps.then("Return", [] { key(WXK_RETURN); });
  EXPECT_EQ(run(), DIALOG_OK);
  EXPECT_TRUE(platform::isFile(world_.scratch.file(defaultConfigurationName)));
}

INSTANTIATE_TEST_SUITE_P(Pages, JavadocWindowTest, testing::ValuesIn(allPages()),
                         [](const auto& info) { return info.param.name; });

}  // namespace tarnwick::test
