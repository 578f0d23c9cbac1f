#include "support/SettingsFixture.h"
#include "tools/JavadocArguments.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

using Words = std::vector<std::string>;
using Change = std::function<void(JavadocValues&, JavadocRun&)>;

/// The switch on, or the text set to "x y".
Change on(bool JavadocValues::*flag) {
  return [flag](JavadocValues& values, JavadocRun&) { values.*flag = 1; };
}
Change given(std::string JavadocValues::*text) {
  return [text](JavadocValues& values, JavadocRun&) { values.*text = "x y"; };
}
Change given(std::string JavadocRun::*text) {
  return [text](JavadocValues&, JavadocRun& run) { run.*text = "x y"; };
}
Change listed(TokenString JavadocValues::*list) {
  return [list](JavadocValues& values, JavadocRun&) {
    values.*list += "one";
    values.*list += "two";
  };
}

struct Row {
  Change change;
  Words elements;
};

using V = JavadocValues;

/// Every option in its order.
const std::vector<Row>& rows() {
  static const std::vector<Row> table = {
      {on(&V::verbose), {"-verbose"}},
      {on(&V::quiet), {"-quiet"}},
      {on(&V::isPublic), {"-public"}},
      {on(&V::isProtected), {"-protected"}},
      {on(&V::isPrivate), {"-private"}},
      {on(&V::package), {"-package"}},
      {given(&V::overview), {"-overview x y"}},
      {given(&V::locale), {"-locale x y"}},
      {given(&V::encoding), {"-encoding x y"}},
      {given(&V::jOption), {"x y"}},
      {given(&JavadocRun::sourcePath), {"-sourcepath x y"}},
      {given(&JavadocRun::classPath), {"-classpath x y"}},
      {given(&JavadocRun::bootClassPath), {"-bootclasspath x y"}},
      {given(&JavadocRun::extDirs), {"-extdirs x y"}},
      {given(&V::docletPath), {"-docletpath x y"}},
      {given(&V::docletFile), {"-doclet x y"}},
      {given(&V::docletOptions), {"x y"}},
      {on(&V::use), {"-use"}},
      {on(&V::version), {"-version"}},
      {on(&V::author), {"-author"}},
      {on(&V::breakIterator), {"-breakiterator"}},
      {on(&V::docFilesSubdirs), {"-docfilessubdirs"}},
      {on(&V::linkSource), {"-linksource"}},
      {on(&V::splitIndex), {"-splitindex"}},
      {on(&V::noDeprecated), {"-nodeprecated"}},
      {on(&V::noDeprecatedList), {"-nodeprecatedlist"}},
      {on(&V::noTree), {"-notree"}},
      {on(&V::noComment), {"-nocomment"}},
      {on(&V::noSince), {"-nosince"}},
      {on(&V::noIndex), {"-noindex"}},
      {on(&V::noHelp), {"-nohelp"}},
      {on(&V::noNavbar), {"-nonavbar"}},
      {on(&V::serialWarn), {"-serialwarn"}},
      {given(&V::destination), {"-d x y"}},
      {given(&V::helpFile), {"-helpfile x y"}},
      {given(&V::styleSheet), {"-stylesheetfile x y"}},
      {given(&V::subpackages), {"-subpackages x y"}},
      {given(&V::exclude), {"-exclude x y"}},
      {given(&V::excludeSubdir), {"-excludedocfilessubdir x y"}},
      {given(&V::windowTitle), {"-windowtitle x y"}},
      {given(&V::docTitle), {"-doctitle x y"}},
      {given(&V::header), {"-header x y"}},
      {given(&V::footer), {"-footer x y"}},
      {given(&V::bottom), {"-bottom x y"}},
      {given(&V::link), {"-link x y"}},
      {given(&V::linkOffline), {"-linkoffline x y"}},
      {given(&V::group), {"-group x y"}},
      {given(&V::docEncoding), {"-docencoding x y"}},
      {given(&V::charset), {"-charset x y"}},
      {given(&V::noQualifier), {"-noqualifier x y"}},
      {[](V&, JavadocRun&) {}, {""}},  // the source option
      {listed(&V::taglet), {"-taglet one", "-taglet two"}},
      {listed(&V::tag), {"-tag one", "-tag two"}},
      {given(&V::tagletPath), {"-tagletpath x y"}},
  };
  return table;
}

class JavadocArgumentsTest : public SettingsFixture {
 protected:
  JavadocArgumentsTest() { run_.listFile = "list.tmp"; }
  Words arguments() { return javadocArguments(settings(), run_); }

  JavadocRun run_;
};

TEST_F(JavadocArgumentsTest, WithNothingSetTwoElementsAreEmpty) {
  EXPECT_EQ(arguments(), (Words{"javadoc", "", "", "@list.tmp"}));
}

TEST_F(JavadocArgumentsTest, EveryOptionComesAlone) {
  for (const auto& row : rows()) {
    settings().javadoc = JavadocValues();
    JavadocRun run;
    run.listFile = "list.tmp";
    row.change(settings().javadoc, run);
    Words expected = {"javadoc"};
    if (row.elements != Words{""}) expected.insert(expected.end(), row.elements.begin(), row.elements.end());
    // Those in front of the source option, and those behind it.
    const bool behind = row.elements[0].rfind("-tag", 0) == 0;
    expected.insert(behind ? expected.begin() + 1 : expected.end(), "");
    expected.insert(expected.end(), {"", "@list.tmp"});
    EXPECT_EQ(javadocArguments(settings(), run), expected) << row.elements[0];
  }
}

TEST_F(JavadocArgumentsTest, EveryOptionHasItsPlace) {
  Words expected = {"javadoc"};
  for (const auto& row : rows()) {
    row.change(settings().javadoc, run_);
    expected.insert(expected.end(), row.elements.begin(), row.elements.end());
  }
  settings().javadoc.packageList = "p.one  p.two";
  expected.insert(expected.end(), {"p.one  p.two", "@list.tmp"});
  EXPECT_EQ(arguments(), expected);
}

TEST_F(JavadocArgumentsTest, TheSourceOptionIsTheCompilers) {
  const std::pair<const char*, const char*> table[] = {
      {"", ""}, {"1.3", "-source 1.3"}, {"1.4", "-source 1.4"}, {"1.5", "-source 1.5"}, {"17", "-source 17"}};
  for (const auto& [setting, option] : table) {
    settings().javacSourceOption = setting;
    EXPECT_EQ(arguments()[1], option);
  }
}

TEST_F(JavadocArgumentsTest, ListsOfPathsGoOutAsTheSystemWritesThem) {
  run_.sourcePath = run_.classPath = run_.bootClassPath = run_.extDirs = "a;b";
  settings().javadoc.docletPath = settings().javadoc.tagletPath = "a;b";
  settings().javadoc.exclude = "a;b";
  const std::string list = platform::commandLineList("a;b");
  EXPECT_EQ(arguments(),
            (Words{"javadoc", "-sourcepath " + list, "-classpath " + list, "-bootclasspath " + list, "-extdirs " + list,
                   "-docletpath " + list, "-exclude a;b", "", "-tagletpath " + list, "", "@list.tmp"}));
}

TEST_F(JavadocArgumentsTest, TheTextOfThePackagesTakesThePlaceOfTheList) {
  run_.packageText = "\"a b.java\"\tc.java";
  EXPECT_EQ(arguments().back(), "\"a b.java\"\tc.java");
}

TEST_F(JavadocArgumentsTest, TheListsNameAloneIsQuoted) {
  run_.listFile = "my list.tmp";
  settings().javadoc.windowTitle = "my title";
  settings().javadoc.docTitle = "\"my title\"";
  EXPECT_EQ(arguments(),
            (Words{"javadoc", "-windowtitle my title", "-doctitle \"my title\"", "", "", "@\"my list.tmp\""}));
}

}  // namespace
}  // namespace tarnwick::test
