#include "unit/dialogs/JavadocFixture.h"

namespace tarnwick::test {
namespace {

class JavadocMarksTest : public JavadocDlgFixture {
 protected:
  void useJdk(const std::string& version) {
    const std::string home = scratch_.file("jdk " + version) + platform::folderSeparator;
    settings().javaPath = home + "bin" + platform::folderSeparator;
    platform::makeFolders(settings().javaPath);
    writeFile(home + "release", "JAVA_VERSION=\"" + version + "\"\n");
  }
};

TEST_F(JavadocMarksTest, OptionsThatTheJdkNoLongerKnowsAreMarked) {
  useJdk("17.0.15");
  on(JAVADOC_PATHS_PAGE, [](ScriptedWindow& page) {
    for (const int mark : {JavadocPaths::BOOTCLASSPATH_MARK, JavadocPaths::EXTDIRS_MARK}) {
      EXPECT_TRUE(page.visible(mark));
      EXPECT_EQ(page.text(mark), "not in JDK 17");
    }
    EXPECT_TRUE(page.toolTip(JavadocPaths::EXTDIRS)
                    .ends_with(" (not in JDK 17; taken only where -source and -target are 8 or less)"));
  });
  on(DOCLET_OPTIONS_PAGE, [](ScriptedWindow& page) {
    EXPECT_TRUE(page.visible(DocletOptions::FOOTER_MARK));
    EXPECT_EQ(page.text(DocletOptions::FOOTER_MARK), "not in JDK 17");
    EXPECT_TRUE(page.toolTip(DocletOptions::FOOTER).ends_with(" (not in JDK 17; ignored)"));
  });
}

TEST_F(JavadocMarksTest, AnOlderJdkKnowsThem) {
  useJdk("15.0.2");
  on(DOCLET_OPTIONS_PAGE, [](ScriptedWindow& page) { EXPECT_FALSE(page.visible(DocletOptions::FOOTER_MARK)); });
  useJdk("1.8.0_302");
  on(JAVADOC_PATHS_PAGE, [](ScriptedWindow& page) {
    EXPECT_FALSE(page.visible(JavadocPaths::BOOTCLASSPATH_MARK));
    EXPECT_FALSE(page.visible(JavadocPaths::EXTDIRS_MARK));
  });
}

}  // namespace
}  // namespace tarnwick::test
