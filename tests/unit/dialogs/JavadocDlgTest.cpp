#include "JavadocFixture.h"
#include "base/TagRow.h"
#include "settings/SettingsResources.h"

#include <map>

namespace tarnwick::test {
namespace {

using Words = std::vector<std::string>;

void collect(const DialogItem& item, std::vector<const DialogItem*>& all) {
  all.push_back(&item);
  for (const auto& child : item.children) collect(child, all);
}

std::vector<const DialogItem*> itemsOf(const DialogLayout& layout) {
  std::vector<const DialogItem*> all;
  collect(layout.content, all);
  return all;
}

const DialogItem& itemOf(const DialogLayout& layout, int control) {
  for (const auto* item : itemsOf(layout))
    if (item->control == control) return *item;
  throw std::out_of_range(std::to_string(control));
}

/// What tells a person what a control is: its own words, or the label before it.
std::string captionOf(const DialogLayout& layout, int control) {
  std::string label;
  for (const auto* item : itemsOf(layout)) {
    if (item->kind == ItemKind::Label) label = item->text;
    if (item->control == control) return item->kind == ItemKind::Edit ? label : item->text;
  }
  return "";
}

const DialogLayout& layoutOf(int resource) {
  for (const auto* layout : {&javadocSourcesLayout(), &javadocPathsLayout(), &javadocOptionsLayout(),
                             &docletPathsLayout(), &docletOptionsLayout()})
    if (layout->resource == resource) return *layout;
  throw std::out_of_range(std::to_string(resource));
}

class JavadocDlgTest : public JavadocDlgFixture {
 protected:
  /// The rows of the settings that this dialog shows.
  std::vector<const TagRow*> rows() {
    std::vector<const TagRow*> shown;
    for (const auto& row : settings().tagRows)
      if (row.owner == JAVADOC_DIALOG) shown.push_back(&row);
    return shown;
  }
  void expectOnlyLevel(ScriptedWindow& options, int level) {
    using C = JavadocOptions;
    for (const int other : {C::PUBLIC, C::PROTECTED, C::PRIVATE, C::PACKAGE})
      EXPECT_EQ(options.checked(other), other == level) << other;
  }
};

// Words

TEST_F(JavadocDlgTest, TitleTabsAndButtons) {
  run([](ScriptedWindow& window) {
    EXPECT_EQ(window.title(), "javadoc");
    EXPECT_EQ(window.tabLabels(Javadoc::TABS), (Words{"source files", "javadoc files and paths", "javadoc options",
                                                      "doclet files and paths", "doclet options"}));
    EXPECT_EQ(window.selection(Javadoc::TABS), 0);
    EXPECT_EQ(window.text(Javadoc::RUN), "Run javadoc");
    EXPECT_EQ(window.text(Javadoc::HELP), "Help");
    EXPECT_EQ(window.text(Javadoc::CANCEL), "Cancel");
    window.press(Javadoc::CANCEL);
  });
  EXPECT_EQ(javadocLayout().resource, JAVADOC_DIALOG);
  EXPECT_TRUE(itemOf(javadocLayout(), Javadoc::RUN).isDefault);
}

TEST_F(JavadocDlgTest, EverySettingHasItsControlAndItsWords) {
  const std::map<std::string, std::string> captions = {
      {"JDOC_OVERVIEW", "Overview"},
      {"JDOC_LOCALE", "Locale"},
      {"JDOC_ENCODING", "Encoding"},
      {"JDOC_JOPTION", "-J flags"},
      {"JDOC_PUBLIC", "-public"},
      {"JDOC_PROTECTED", "-protected"},
      {"JDOC_PRIVATE", "-private"},
      {"JDOC_PACKAGE", "-package"},
      {"JDOC_VERBOSE", "-verbose"},
      {"JDOC_QUIET", "-quiet"},
      {"JDOC_PACKAGELIST", "Input to javadoc:  Packages"},
      {"JDOC_DOCLETPATH", "docletpath"},
      {"JDOC_DOCLETFILE", "doclet classfile"},
      {"JDOC_DOCLETOPTIONS", "doclet options"},
      {"JDOC_DESTINATION", "destination"},
      {"JDOC_HELPFILE", "helpfile"},
      {"JDOC_STYLESHEET", "stylesheetfile"},
      {"JDOC_SUBPACKAGES", "subpackages"},
      {"JDOC_EXCLUDE", "exclude"},
      {"JDOC_EXCLUDESUBDIR", "excludedocfilessubdir"},
      {"JDOC_TAG", "tag"},
      {"JDOC_TAGLET", "taglet"},
      {"JDOC_TAGLETPATH", "tagletpath"},
      {"JDOC_WINDOWTITLE", "windowtitle"},
      {"JDOC_DOCTITLE", "doctitle"},
      {"JDOC_HEADER", "header"},
      {"JDOC_FOOTER", "footer"},
      {"JDOC_BOTTOM", "bottom"},
      {"JDOC_LINK", "link"},
      {"JDOC_LINKOFFLINE", "linkoffline"},
      {"JDOC_GROUP", "group"},
      {"JDOC_DOCENCODING", "docencoding"},
      {"JDOC_CHARSET", "charset"},
      {"JDOC_NOQUALIFIER", "noqualifier"},
      {"JDOC_USE", "use"},
      {"JDOC_VERSION", "version"},
      {"JDOC_AUTHOR", "author"},
      {"JDOC_SPLITINDEX", "splitindex"},
      {"JDOC_BREAKITERATOR", "breakiterator"},
      {"JDOC_DOCFILESSUBDIRS", "docfilessubdirs"},
      {"JDOC_LINKSOURCE", "linksource"},
      {"JDOC_NOCOMMENT", "nocomment"},
      {"JDOC_NODEPRECATED", "nodeprecated"},
      {"JDOC_NODEPRECATEDLIST", "nodeprecatedlist"},
      {"JDOC_NOTREE", "notree"},
      {"JDOC_NOSINCE", "nosince"},
      {"JDOC_NOINDEX", "noindex"},
      {"JDOC_NOHELP", "nohelp"},
      {"JDOC_NONAVBAR", "nonavbar"},
      {"JDOC_SERIALWARN", "serialwarn"},
  };
  EXPECT_EQ(rows().size(), captions.size());
  for (const auto* row : rows())
    EXPECT_EQ(captionOf(layoutOf(row->page), row->control), captions.at(row->tag)) << row->tag;
}

TEST_F(JavadocDlgTest, TheWordsOfTheFieldsThatAreNoSettings) {
  using P = JavadocPaths;
  EXPECT_EQ(captionOf(javadocSourcesLayout(), JavadocSources::FILES), "Input to javadoc:  Java files");
  const std::pair<int, const char*> table[] = {{P::SOURCEPATH, "sourcepath"},
                                               {P::CLASSPATH, "classpath"},
                                               {P::BOOTCLASSPATH, "bootclasspath"},
                                               {P::EXTDIRS, "extdirs"}};
  for (const auto& [control, caption] : table) EXPECT_EQ(captionOf(javadocPathsLayout(), control), caption);
}

TEST_F(JavadocDlgTest, TheButtonsBesideTheFields) {
  using P = JavadocPaths;
  using D = DocletPaths;
  const auto expectTexts = [](const DialogLayout& layout, const std::vector<int>& controls, const char* text) {
    for (const int control : controls) EXPECT_EQ(itemOf(layout, control).text, text) << control;
  };
  expectTexts(javadocSourcesLayout(), {JavadocSources::ADD_FILES}, "Add...");
  expectTexts(javadocSourcesLayout(), {JavadocSources::CLEAR_FILES}, "Clear");
  expectTexts(javadocPathsLayout(),
              {P::ADD_TO_SOURCEPATH, P::ADD_TO_CLASSPATH, P::ADD_TO_BOOTCLASSPATH, P::ADD_TO_EXTDIRS}, "Add...");
  expectTexts(javadocPathsLayout(), {P::CLEAR_SOURCEPATH, P::CLEAR_CLASSPATH, P::CLEAR_BOOTCLASSPATH, P::CLEAR_EXTDIRS},
              "Clear");
  expectTexts(javadocPathsLayout(), {P::BROWSE_OVERVIEW, P::BROWSE_DOCLET_PATH, P::BROWSE_DOCLET_FILE}, "Browse");
  expectTexts(docletPathsLayout(), {D::BROWSE_DESTINATION, D::BROWSE_HELP_FILE, D::BROWSE_STYLE_SHEET}, "Browse");
  expectTexts(docletPathsLayout(), {D::ADD_TAGLET, D::ADD_TO_TAGLET_PATH}, "Add...");
  expectTexts(docletPathsLayout(), {D::CLEAR_TAGLET, D::CLEAR_TAGLET_PATH}, "Clear");
}

TEST_F(JavadocDlgTest, ToolTips) {
  using S = JavadocSources;
  using P = JavadocPaths;
  using O = JavadocOptions;
  using D = DocletPaths;
  using E = DocletOptions;
  const std::map<int, std::map<int, std::string>> tips = {
      {JAVADOC_SOURCES_PAGE,
       {{S::ADD_FILES, "Select a single file and append it to the list of input files"},
        {S::CLEAR_FILES, "Clear the list of input files"}}},
      {JAVADOC_PATHS_PAGE,
       {{P::OVERVIEW, "HTML file to be used for the overview page"},
        {P::BROWSE_OVERVIEW, "Locate the HTML file to be used for the overview page"},
        {P::CLASSPATH,
         "Alternative classpath definition for javadoc, overriding the value in the current Tarnwick configuration"},
        {P::SOURCEPATH,
         "Alternative sourcepath definition for javadoc, overriding the value in the current Tarnwick configuration"},
        {P::BOOTCLASSPATH,
         "Alternative bootclasspath definition for javadoc, overriding the value in the current Tarnwick "
         "configuration"},
        {P::EXTDIRS,
         "Alternative extdirs definition for javadoc, overriding the value in the current Tarnwick configuration"},
        {P::ADD_TO_CLASSPATH, "Locate a single folder or archive and append it to the alternative classpath"},
        {P::ADD_TO_SOURCEPATH, "Locate a single folder or archive and append it to the alternative sourcepath"},
        {P::ADD_TO_BOOTCLASSPATH, "Locate a single folder or archive and append it to the alternative bootclasspath"},
        {P::ADD_TO_EXTDIRS, "Locate a single folder or archive and append it to the alternative extdirs list"},
        {P::CLEAR_CLASSPATH, "Clear the alternative classpath field"},
        {P::CLEAR_SOURCEPATH, "Clear the alternative sourcepath field"},
        {P::CLEAR_BOOTCLASSPATH, "Clear the alternative bootclasspath field"},
        {P::CLEAR_EXTDIRS, "Clear the alternative extdirs field"},
        {P::DOCLET_PATH, "Specifies the path to the doclet class file"},
        {P::BROWSE_DOCLET_PATH, "Select the path to the doclet class file"},
        {P::DOCLET_FILE, "Specifies the class file that starts the doclet used in generating the documentation."},
        {P::BROWSE_DOCLET_FILE, "Locate the class file that starts the doclet used in generating the documentation."}}},
      {JAVADOC_OPTIONS_PAGE,
       {{O::PROTECTED, "Show only public and protected classes and members"},
        {O::PRIVATE, "Show public, protected and private classes and members"},
        {O::PUBLIC, "Show only public classes and members"},
        {O::PACKAGE, "Show only package, protected, and public classes and members"},
        {O::VERBOSE, "Display detail information about the javadoc execution"},
        {O::QUIET, "Suppress all messages except warnings and errors"},
        {O::LOCALE,
         "Locale that javadoc uses when generating documentation. Causes javadoc to choose resource files of that "
         "locale."},
        {O::ENCODING,
         "Source file encoding name, such as EUCJIS/SJIS. If not specified, the platform default converter is used."},
        {O::J_FLAGS, "String passed to the runtime system java that runs javadoc"},
        {O::DOCLET_OPTIONS, "Additional options. Use this field for input to a user-written doclet."}}},
      {DOCLET_PATHS_PAGE,
       {{D::DESTINATION, "Folder where javadoc will store the output files"},
        {D::BROWSE_DESTINATION, "Locate folder where you want javadoc to store the output files"},
        {D::HELP_FILE,
         "Alternate help file specification that the HELP link in the top and bottom navigation bars link to."},
        {D::BROWSE_HELP_FILE,
         "Locate an alternate help file that the HELP link in the top and bottom navigation bars link to."},
        {D::STYLE_SHEET, "Specification of an alternate HTML stylesheet file"},
        {D::BROWSE_STYLE_SHEET, "Locate an alternate HTML stylesheet file"},
        {D::SUBPACKAGES,
         "Usage \"package1:package2:...\" to generate documentation from source files in the specified packages and "
         "recursively in their subpackages"},
        {D::EXCLUDE,
         "Usage \"package1:package2:...\" to unconditionally exclude the specified packages and their subpackages from "
         "the list formed by the Subpackages option"},
        {D::EXCLUDE_SUBDIR,
         "Excludes any \"doc-files\" subfolders with the given names. This prevents the copying of SCCS and other "
         "source-code-control subfolders"},
        {D::TAG,
         "List of tags separated by ';' Specify a tag as tagname:Xaoptcmf:\"taghead\" to enable javadoc to interpret a "
         "simple, one-argument custom standalone tag @tagname in doc comments"},
        {D::TAGLET,
         "List of class files that start a taglet used in generating the documentation for a tag. Use the "
         "fully-qualified name for class."},
        {D::TAGLET_PATH,
         "Search path for finding taglet class files (.class). Separate multiple paths with a semicolon (;)"},
        {D::ADD_TAGLET, "Add a class file to the taglet list"},
        {D::ADD_TO_TAGLET_PATH, "Add a folder to the taglet path"},
        {D::CLEAR_TAGLET, "Clear the list of taglet class files"},
        {D::CLEAR_TAGLET_PATH, "Clear the taglet path"}}},
      {DOCLET_OPTIONS_PAGE,
       {{E::WINDOW_TITLE, "Title to be placed in the HTML <title> tag"},
        {E::DOC_TITLE, "Title to be placed near the top of the overview summary file"},
        {E::HEADER, "Header text to be placed at the top of each output file"},
        {E::FOOTER, "Footer text to be placed at the bottom of each output file"},
        {E::BOTTOM, "Text to be placed at the bottom of each output file"},
        {E::LINK, "Create links to already existing javadoc-generated documentation of external referenced classes"},
        {E::LINK_OFFLINE,
         "Use this option instead of -link if, at the time you run javadoc, the external document's extdocURL can't be "
         "used"},
        {E::GROUP,
         "Separate packages on overview page into whatever groups you specify (groupheading  "
         "packagepattern:packagepattern:...)"},
        {E::DOC_ENCODING, "Encoding of the generated HTML files"},
        {E::CHARSET, "HTML character set for the document"},
        {E::NO_QUALIFIER,
         "Usage: \"all  |  packagename1:packagename2:... \" to omit qualifying package names for class names in "
         "output"},
        {E::USE, "Include one \"Use\" page for each documented class and package"},
        {E::VERSION, "Include the @version text in the generated documents"},
        {E::AUTHOR, "Include the @author text in the generated documents"},
        {E::SPLIT_INDEX, "Split the index file into multiple files (alphabetically)"},
        {E::NO_DEPRECATED, "Prevent the generation of any deprecated API in the documentation"},
        {E::NO_TREE, "Omit the class/interface hierarchy from the generated documents"},
        {E::NO_SINCE, "Omit from the generated docs the \"Since\" sections associated with the @since tags"},
        {E::NO_INDEX, "Omit the index from the generated documents"},
        {E::NO_HELP, "Omit the HELP link in navigation bars at top and bottom of each page of output"},
        {E::NO_NAVBAR, "Don't generate navigation bar, header and footer, otherwise found at top and bottom of pages"},
        {E::NO_DEPRECATED_LIST,
         "Don't generate the file deprecated-list.html and the link in the navigation bar to that page"},
        {E::SERIAL_WARN, "Generate compile-time warnings for missing @serial tags"},
        {E::BREAK_ITERATOR,
         "Uses the sentence break iterator to determine the end of the first sentence. Recommended for JDK1.4"},
        {E::DOC_FILES_SUBDIRS,
         "Enables deep copying of \"doc-files\" folders, i.e. subfolders and all contents are recursively copied to "
         "the destination"},
        {E::LINK_SOURCE,
         "Create an HTML version of each source file and add links to them from the standard HTML documentation"},
        {E::NO_COMMENT,
         "Suppress entire comment body, including the description and all tags, generating only declarations. This "
         "option enables re-using source files originally intended for a different purpose"}}},
  };
  run([&tips](ScriptedWindow& window) {
    for (const auto& [resource, texts] : tips) {
      ScriptedWindow& shown = page(window, resource);
      for (const auto* item : itemsOf(layoutOf(resource))) {
        if (item->control == 0) continue;
        const auto text = texts.find(item->control);
        EXPECT_EQ(shown.toolTip(item->control), text == texts.end() ? "" : text->second) << item->control;
      }
    }
    window.press(Javadoc::CANCEL);
  });
}

// Values

TEST_F(JavadocDlgTest, EverySettingIsShownAndTaken) {
  // Of the levels only one can be set.
  const auto isLevel = [](const TagRow& row) {
    using C = JavadocOptions;
    const int levels[] = {C::PROTECTED, C::PRIVATE, C::PACKAGE};
    return row.page == JAVADOC_OPTIONS_PAGE && std::count(std::begin(levels), std::end(levels), row.control) != 0;
  };
  for (const auto* row : rows()) {
    if (row->kind() == TAG_BOOL) *std::get<bool*>(row->variable) = !isLevel(*row);
    if (row->kind() == TAG_STRING) *std::get<std::string*>(row->variable) = std::string("-J") + row->tag;
    if (row->kind() == TAG_STRINGABLE) std::get<StringableM*>(row->variable)->fromString(row->tag);
  }
  change([&](ScriptedWindow& window) {
    for (const auto* row : rows()) {
      ScriptedWindow& shown = page(window, row->page);
      if (row->kind() == TAG_BOOL) {
        EXPECT_EQ(shown.checked(row->control), !isLevel(*row)) << row->tag;
        if (!isLevel(*row)) shown.press(row->control);
      } else {
        const std::string text = row->kind() == TAG_STRING ? std::string("-J") + row->tag : row->tag;
        EXPECT_EQ(shown.text(row->control), text);
        EXPECT_TRUE(shown.showsEnd(row->control)) << row->tag;
        shown.type(row->control, text + "2");
      }
    }
  });
  for (const auto* row : rows()) {
    if (row->kind() == TAG_BOOL) {
      EXPECT_FALSE(*std::get<bool*>(row->variable)) << row->tag;
    }
    if (row->kind() == TAG_STRING) {
      EXPECT_EQ(*std::get<std::string*>(row->variable), std::string("-J") + row->tag + "2");
    }
    if (row->kind() == TAG_STRINGABLE) {
      EXPECT_EQ(std::get<StringableM*>(row->variable)->toString(), std::string(row->tag) + "2");
    }
  }
}

TEST_F(JavadocDlgTest, CancelLeavesTheSettings) {
  settings().javadoc.header = "old";
  const std::string saved = contentOf(configFile());
  run([](ScriptedWindow& window) {
    page(window, DOCLET_OPTIONS_PAGE).type(DocletOptions::HEADER, "new");
    typeFiles(window, "B.java");
    window.press(Javadoc::CANCEL);
  });
  EXPECT_EQ(settings().javadoc.header, "old");
  EXPECT_EQ(contentOf(configFile()), saved);
}

TEST_F(JavadocDlgTest, ThePathsStartFromTheSettingsAndChangeThisRunAlone) {
  using P = JavadocPaths;
  settings().sourcepath = "s";
  settings().classpath = ".;c";
  settings().bootpath = "b";
  settings().extdirs = "e";
  change([](ScriptedWindow& window) {
    ScriptedWindow& paths = page(window, JAVADOC_PATHS_PAGE);
    EXPECT_EQ(paths.text(P::SOURCEPATH), "s");
    EXPECT_EQ(paths.text(P::CLASSPATH), ".;c");
    EXPECT_EQ(paths.text(P::BOOTCLASSPATH), "b");
    EXPECT_EQ(paths.text(P::EXTDIRS), "e");
    for (const int field : {P::SOURCEPATH, P::CLASSPATH, P::BOOTCLASSPATH, P::EXTDIRS})
      paths.type(field, paths.text(field) + ";x");
  });
  const JavadocRun gathered = dialog_->run();
  EXPECT_EQ(gathered.sourcePath, "s;x");
  EXPECT_EQ(gathered.classPath, ".;c;x");
  EXPECT_EQ(gathered.bootClassPath, "b;x");
  EXPECT_EQ(gathered.extDirs, "e;x");
  EXPECT_EQ(settings().sourcepath + settings().classpath + settings().bootpath + settings().extdirs, "s.;cbe");
  run([](ScriptedWindow& window) {
    EXPECT_EQ(page(window, JAVADOC_PATHS_PAGE).text(P::SOURCEPATH), "s");
    window.press(Javadoc::CANCEL);
  });
}

TEST_F(JavadocDlgTest, TheClassPathIsTheEffectiveOne) {
  settings().classpath.clear();
  settings().classpathFromEnvironmentNever = true;
  on(JAVADOC_PATHS_PAGE, [this](ScriptedWindow& paths) {
    EXPECT_EQ(paths.text(JavadocPaths::CLASSPATH), settings().effectiveClasspath());
    EXPECT_EQ(paths.text(JavadocPaths::CLASSPATH), ".");
  });
}

TEST_F(JavadocDlgTest, PastedLinesAreElementsOfAListOfPaths) {
  change([](ScriptedWindow& window) {
    ScriptedWindow& paths = page(window, JAVADOC_PATHS_PAGE);
    for (const int field : {JavadocPaths::SOURCEPATH, JavadocPaths::CLASSPATH, JavadocPaths::BOOTCLASSPATH,
                            JavadocPaths::EXTDIRS, JavadocPaths::DOCLET_PATH})
      paths.type(field, "a b\nc\n");
    page(window, DOCLET_PATHS_PAGE).type(DocletPaths::TAGLET_PATH, "a b\nc\n");
    page(window, DOCLET_OPTIONS_PAGE).type(DocletOptions::HEADER, "a b\nc");
  });
  const JavadocRun gathered = dialog_->run();
  for (const auto& list : {gathered.sourcePath, gathered.classPath, gathered.bootClassPath, gathered.extDirs,
                           settings().javadoc.docletPath, settings().javadoc.tagletPath})
    EXPECT_EQ(list, "a b;c");
  EXPECT_EQ(settings().javadoc.header, "a b c");
}

TEST_F(JavadocDlgTest, ListsOfPathsMayBeTypedAsTheSystemWritesThem) {
  change([](ScriptedWindow& window) {
    page(window, JAVADOC_PATHS_PAGE).type(JavadocPaths::SOURCEPATH, platform::commandLineList("a;b"));
    page(window, DOCLET_PATHS_PAGE).type(DocletPaths::TAGLET_PATH, platform::commandLineList("a;b"));
    page(window, DOCLET_PATHS_PAGE).type(DocletPaths::SUBPACKAGES, "a:b");
  });
  EXPECT_EQ(dialog_->run().sourcePath, "a;b");
  EXPECT_EQ(settings().javadoc.tagletPath, "a;b");
  EXPECT_EQ(settings().javadoc.subpackages, "a:b") << "no list of paths";
}

TEST_F(JavadocDlgTest, AMalformedListOfTagsIsDropped) {
  settings().javadoc.tag.fromString("one;two");
  change([](ScriptedWindow& window) { page(window, DOCLET_PATHS_PAGE).type(DocletPaths::TAG, "three]"); });
  EXPECT_EQ(settings().javadoc.tag.toString(), "one;two");
}

// What is shown

TEST_F(JavadocDlgTest, CheckingOneLevelUnchecksTheOthers) {
  using C = JavadocOptions;
  on(JAVADOC_OPTIONS_PAGE, [this](ScriptedWindow& options) {
    for (const int level : {C::PUBLIC, C::PRIVATE, C::PROTECTED, C::PACKAGE, C::PUBLIC}) {
      options.press(level);
      expectOnlyLevel(options, level);
    }
    options.press(C::PUBLIC);
    expectOnlyLevel(options, 0);
  });
}

TEST_F(JavadocDlgTest, TheOtherMarksExcludeNothing) {
  using C = JavadocOptions;
  on(JAVADOC_OPTIONS_PAGE, [this](ScriptedWindow& options) {
    options.press(C::PRIVATE);
    options.press(C::VERBOSE);
    options.press(C::QUIET);
    expectOnlyLevel(options, C::PRIVATE);
    EXPECT_TRUE(options.checked(C::VERBOSE) && options.checked(C::QUIET));
  });
}

TEST_F(JavadocDlgTest, PrivateAfterPublicLeavesOnlyPrivateSet) {
  change([](ScriptedWindow& window) {
    page(window, JAVADOC_OPTIONS_PAGE).press(JavadocOptions::PUBLIC);
    page(window, JAVADOC_OPTIONS_PAGE).press(JavadocOptions::PRIVATE);
  });
  EXPECT_FALSE(settings().javadoc.isPublic);
  EXPECT_TRUE(settings().javadoc.isPrivate);
}

TEST_F(JavadocDlgTest, OfSeveralStoredLevelsTheFirstWins) {
  using C = JavadocOptions;
  const int order[] = {C::PUBLIC, C::PROTECTED, C::PRIVATE, C::PACKAGE};
  auto& values = settings().javadoc;
  bool* const stored[] = {&values.isPublic, &values.isProtected, &values.isPrivate, &values.package};
  for (bool* one : stored) *one = true;
  for (int first = 0; first < 4; ++first) {
    on(JAVADOC_OPTIONS_PAGE, [&](ScriptedWindow& options) { expectOnlyLevel(options, order[first]); });
    *stored[first] = false;
  }
}

// -J flags

TEST_F(JavadocDlgTest, AFlagForTheMachineGetsItsPrefix) {
  const std::pair<const char*, const char*> table[] = {{"-Xmx64m", "-J-Xmx64m"},
                                                       {"  -Xmx64m", "-J-Xmx64m"},
                                                       {"-J-Xmx64m", "-J-Xmx64m"},
                                                       {"   ", ""},
                                                       {"-Xmx1m -J-Xms1m", "-J-Xmx1m -J-Xms1m"},
                                                       {"", ""}};
  for (const auto& [typed, kept] : table) {
    change([&](ScriptedWindow& window) { page(window, JAVADOC_OPTIONS_PAGE).type(JavadocOptions::J_FLAGS, typed); });
    EXPECT_EQ(settings().javadoc.jOption, kept) << typed;
    on(JAVADOC_OPTIONS_PAGE, [&](ScriptedWindow& options) { EXPECT_EQ(options.text(JavadocOptions::J_FLAGS), kept); });
  }
}

TEST_F(JavadocDlgTest, HelpOpensItsChapter) {
  std::string anchor;
  context_.showHelp = [&anchor](const std::string& text) { anchor = text; };
  run([](ScriptedWindow& window) {
    window.press(Javadoc::HELP);
    window.press(Javadoc::CANCEL);
  });
  EXPECT_EQ(anchor, "#javadocmenu");
}

}  // namespace
}  // namespace tarnwick::test
