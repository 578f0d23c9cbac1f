#include "support/SettingsFixture.h"
#include "templates/FileNameMark.h"
#include "templates/TemplateList.h"

namespace tarnwick::test {
namespace {

class TemplateListTest : public SettingsFixture {
 protected:
  TemplateListTest() {
    // As an earlier start leaves it.
    freshSettings()->saveDefaultConfiguration();
  }

  std::string templateFile(const std::string& name, const std::string& text = "") {
    writeFile(userFolder() + name, text);
    return userFolder() + name;
  }
  static std::string pair(const std::string& description, const std::string& path) {
    TokenString text;
    text.add(description);
    text.add(path);
    return text.toString();
  }
  void store(const std::vector<std::string>& entries) {
    const auto earlier = freshSettings();
    for (const auto& entry : entries) earlier->personalTemplates.add(entry);
    earlier->saveDefaultConfiguration();
  }
  std::string stored() {
    const auto fresh = freshSettings();
    int status = 0;
    fresh->readDefaultConfiguration(status);
    return fresh->personalTemplates.toString();
  }
};

TEST_F(TemplateListTest, FiveTemplatesAreBuiltInInThisOrder) {
  TemplateList list(settings());
  list.build();
  EXPECT_EQ(list.labels(),
            (std::vector<std::string>{"Blank file", "Java mainprogram", "Applet", "Http servlet", ".html file"}));
  for (int i = 0; i < 5; ++i) EXPECT_EQ(list.rows()[static_cast<std::size_t>(i)].kind, i);
  EXPECT_EQ(list.rowOf("Blank file")->option, "");
}

TEST_F(TemplateListTest, TheBuiltInTextsAreTheseToTheLetter) {
  TemplateList list(settings());
  list.build();
  EXPECT_EQ(
      list.rowOf("Java mainprogram")->option,
      "\nclass %FILENAME% {\n    public static void main(String[] args) {\n        // TODO: Add your program logic "
      "here.\n    }\n}\n");
  EXPECT_EQ(
      list.rowOf("Applet")->option,
      "\nimport java.applet.*;\n\npublic class %FILENAME% extends Applet\n{\n    public void init() {\n      // "
      "TODO: Add initialization code here\n    }\n\n    public void start() {\n      // TODO: Add your applet start "
      "logic here\n    }\n\n    public void stop() {\n      // TODO: Add your applet stop logic here\n    }\n\n    "
      "public void destroy() {\n      // TODO: Add your cleanup code here\n    }\n}\n");
  EXPECT_EQ(
      list.rowOf("Http servlet")->option,
      "\nimport java.io.*;\nimport java.util.*;\nimport javax.servlet.*;\nimport javax.servlet.http.*;\n\npublic "
      "class %FILENAME% extends HttpServlet\n{\n    public void doGet (HttpServletRequest  request,\n                "
      "       HttpServletResponse response)\n      throws ServletException, IOException\n    {\n      PrintWriter  "
      "out;\n      String       title = \"%FILENAME%\";\n\n      response.setContentType(\"text/html\");\n      out = "
      "response.getWriter();\n\n      out.println(\"<HTML>\\n<HEAD><TITLE>\" + title + "
      "\"</TITLE></HEAD>\\n<BODY>\");\n\n      // TODO: Add program logic to create HTML output\n\n      "
      "out.println(\"</BODY>\\n</HTML>\");\n      out.close();\n    }\n}\n");
  EXPECT_EQ(
      list.rowOf(".html file")->option,
      "<html>\n<head>\n<title>%FILENAME%</title>\n</head>\n<body>\n<h1>%FILENAME%</h1>\n<hr>\n<applet "
      "code=%FILENAME%.class width=120 height=120>\n\talt=\"Your browser understands the &lt;APPLET&gt; tag but isn't "
      "running the applet, for some reason.\"\n\tYour browser is completely ignoring the &lt;APPLET&gt; "
      "tag!\n</applet>\n<hr>\n</body>\n</html>");
}

TEST_F(TemplateListTest, TheUsersTemplatesFollowInTheirOrder) {
  const std::string frame = templateFile("fra;me].txt"), bean = templateFile("bean.txt");
  store({pair("  My frame ", frame), pair("My bean", bean)});
  TemplateList list(settings());
  list.build();
  ASSERT_EQ(list.rows().size(), 7U);
  EXPECT_EQ(list.rows()[5].label, "My frame") << "without white space at both ends";
  EXPECT_EQ(list.rows()[5].kind, 5);
  EXPECT_EQ(list.rows()[5].option, frame);
  EXPECT_EQ(list.rows()[6].option, bean);
  EXPECT_EQ(settings().personalTemplates.count(), 2) << "the live settings get the same text";
  EXPECT_EQ(settings().personalTemplates.toString(), stored());
}

TEST_F(TemplateListTest, TheSettingsTextHoldsBothLevels) {
  const std::string file = templateFile("frame.txt");
  TemplateList list(settings());
  list.build();
  list.addPersonal("My frame", file);
  EXPECT_EQ(stored(), "My frame];" + file);
  const std::string bean = templateFile("bean.txt");
  list.addPersonal("My bean", bean);
  EXPECT_EQ(stored(), "My frame];" + file + ";My bean];" + bean);
}

TEST_F(TemplateListTest, ADescriptionReplacesABuiltInRowInItsPlaceWithTheNewSpelling) {
  const std::string file = templateFile("mine.txt");
  store({pair("applet", file)});
  TemplateList list(settings());
  list.build();
  ASSERT_EQ(list.rows().size(), 5U);
  EXPECT_EQ(list.rows()[2].label, "applet");
  EXPECT_EQ(list.rows()[2].kind, 5);
  EXPECT_EQ(list.rows()[2].option, file);
}

TEST_F(TemplateListTest, AMissingFileIsAskedAboutAndYesRemovesItForGood) {
  const std::string gone = userFolder() + "gone.txt", there = templateFile("there.txt");
  store({pair("Gone", gone), pair("There", there)});
  TemplateList list(settings());
  desktop_.expectQuestion("Can't access file " + gone + " for template Gone. Remove template from list?", true);
  list.build();
  EXPECT_EQ(list.labels().back(), "There");
  EXPECT_EQ(list.rows().size(), 6U);
  TokenString left;
  left.add(pair("There", there));
  EXPECT_EQ(stored(), left.toString());
}

TEST_F(TemplateListTest, EachTemplateWhoseFileIsMissingIsAskedAboutOnce) {
  const std::string one = userFolder() + "one.txt", two = userFolder() + "two.txt";
  store({pair(" One ", one), pair("Two", two)});
  TemplateList list(settings());
  desktop_.expectQuestion("Can't access file " + one + " for template One. Remove template from list?", true);
  desktop_.expectQuestion("Can't access file " + two + " for template Two. Remove template from list?", true);
  list.build();
  EXPECT_EQ(stored(), "");
  EXPECT_EQ(settings().personalTemplates.count(), 0);
  TemplateList(settings()).build();
}

TEST_F(TemplateListTest, NoKeepsATemplateWhoseFileIsMissing) {
  const std::string gone = userFolder() + "gone.txt";
  store({pair("Gone", gone)});
  TemplateList list(settings());
  desktop_.expectQuestion("Can't access file " + gone + " for template Gone. Remove template from list?", false);
  list.build();
  EXPECT_EQ(list.rows().back().label, "Gone");
  EXPECT_NE(stored(), "");
}

TEST_F(TemplateListTest, APathInQuotesFromAnEarlierRunIsFound) {
  const std::string file = templateFile("my there.txt");
  store({pair("Quoted", '"' + file + '"'), pair("Blank", file + ' ')});
  TemplateList list(settings());
  list.build();
  EXPECT_EQ(list.labels().size(), 7U);
}

TEST_F(TemplateListTest, ADamagedEntryEndsTheWalkQuietly) {
  const std::string file = templateFile("there.txt");
  store({pair("First", file), "only one element", pair("Third", file)});
  TemplateList list(settings());
  list.build();
  EXPECT_EQ(list.labels().back(), "First");
}

TEST_F(TemplateListTest, ThirtyTwoRowsAreTheMost) {
  const std::string file = templateFile("t.txt");
  std::vector<std::string> entries;
  for (int i = 0; i < 27; ++i) entries.push_back(pair("Mine " + std::to_string(i), file));
  store(entries);
  TemplateList list(settings());
  list.build();
  EXPECT_EQ(list.rows().size(), 32U);
  desktop_.expectMessage("Too many template entries. Entry rejected.");
  list.addPersonal("One more", file);
  EXPECT_EQ(list.rows().size(), 32U);
  list.addPersonal("MINE 3", file);
  EXPECT_EQ(list.rows()[8].label, "MINE 3") << "a description that exists still goes through";
}

TEST_F(TemplateListTest, TheRestOfTheLiveSettingsIsLeftAlone) {
  settings().javaXms = "99m";
  TemplateList list(settings());
  list.build();
  const auto fresh = freshSettings();
  int status = 0;
  fresh->readDefaultConfiguration(status);
  EXPECT_NE(fresh->javaXms, "99m") << "what is live is not saved";
  EXPECT_EQ(settings().javaXms, "99m");
}

TEST(FileNameMarkTest, EachMarkIsReplaced) {
  EXPECT_EQ(withFileName("%FILENAME% a %FILENAME%b%FILENAME%", "Foo"), "Foo a FoobFoo");
  EXPECT_EQ(withFileName("%filename%", "Foo"), "%filename%") << "case counts";
  EXPECT_EQ(withFileName("none", "Foo"), "none");
}

TEST(FileNameMarkTest, TheReplacingGoesOnUntilNoMarkIsLeft) {
  EXPECT_EQ(withFileName("%%FILENAME%%", "FILENAME"), "FILENAME");
}

TEST(FileNameMarkTest, ANameWithTheMarkInItEndsAllTheSame) {
  EXPECT_EQ(withFileName("a%FILENAME%b%FILENAME%", "%FILENAME%"), "a%FILENAME%b%FILENAME%");
  EXPECT_EQ(withFileName("%%FILENAME%%", "FILENAME%%FILENAME"), "%FILENAME%%FILENAME%");
}

}  // namespace
}  // namespace tarnwick::test
