#include "dialogs/JavadocToolTips.h"

#include "dialogs/JavadocLayout.h"

namespace tarnwick {

namespace {

std::vector<ToolTip> sourcesTips() {
  return {
      {JavadocSources::ADD_FILES, "Select a single file and append it to the list of input files"},
      {JavadocSources::CLEAR_FILES, "Clear the list of input files"},
  };
}

std::vector<ToolTip> pathsTips() {
  using C = JavadocPaths;
  return {
      {C::OVERVIEW, "HTML file to be used for the overview page"},
      {C::BROWSE_OVERVIEW, "Locate the HTML file to be used for the overview page"},
      {C::CLASSPATH,
       "Alternative classpath definition for javadoc, overriding the value in the current Tarnwick configuration"},
      {C::SOURCEPATH,
       "Alternative sourcepath definition for javadoc, overriding the value in the current Tarnwick configuration"},
      {C::BOOTCLASSPATH,
       "Alternative bootclasspath definition for javadoc, overriding the value in the current Tarnwick configuration"},
      {C::EXTDIRS,
       "Alternative extdirs definition for javadoc, overriding the value in the current Tarnwick configuration"},
      {C::ADD_TO_CLASSPATH, "Locate a single folder or archive and append it to the alternative classpath"},
      {C::ADD_TO_SOURCEPATH, "Locate a single folder or archive and append it to the alternative sourcepath"},
      {C::ADD_TO_BOOTCLASSPATH, "Locate a single folder or archive and append it to the alternative bootclasspath"},
      {C::ADD_TO_EXTDIRS, "Locate a single folder or archive and append it to the alternative extdirs list"},
      {C::CLEAR_CLASSPATH, "Clear the alternative classpath field"},
      {C::CLEAR_SOURCEPATH, "Clear the alternative sourcepath field"},
      {C::CLEAR_BOOTCLASSPATH, "Clear the alternative bootclasspath field"},
      {C::CLEAR_EXTDIRS, "Clear the alternative extdirs field"},
      {C::DOCLET_PATH, "Specifies the path to the doclet class file"},
      {C::BROWSE_DOCLET_PATH, "Select the path to the doclet class file"},
      {C::DOCLET_FILE, "Specifies the class file that starts the doclet used in generating the documentation."},
      {C::BROWSE_DOCLET_FILE, "Locate the class file that starts the doclet used in generating the documentation."},
  };
}

std::vector<ToolTip> optionsTips() {
  using C = JavadocOptions;
  return {
      {C::PROTECTED, "Show only public and protected classes and members"},
      {C::PRIVATE, "Show public, protected and private classes and members"},
      {C::PUBLIC, "Show only public classes and members"},
      {C::PACKAGE, "Show only package, protected, and public classes and members"},
      {C::VERBOSE, "Display detail information about the javadoc execution"},
      {C::QUIET, "Suppress all messages except warnings and errors"},
      {C::LOCALE,
       "Locale that javadoc uses when generating documentation. Causes javadoc to choose resource files of that "
       "locale."},
      {C::ENCODING,
       "Source file encoding name, such as EUCJIS/SJIS. If not specified, the platform default converter is used."},
      {C::J_FLAGS, "String passed to the runtime system java that runs javadoc"},
      {C::DOCLET_OPTIONS, "Additional options. Use this field for input to a user-written doclet."},
  };
}

std::vector<ToolTip> docletPathsTips() {
  using C = DocletPaths;
  return {
      {C::DESTINATION, "Folder where javadoc will store the output files"},
      {C::BROWSE_DESTINATION, "Locate folder where you want javadoc to store the output files"},
      {C::HELP_FILE,
       "Alternate help file specification that the HELP link in the top and bottom navigation bars link to."},
      {C::BROWSE_HELP_FILE,
       "Locate an alternate help file that the HELP link in the top and bottom navigation bars link to."},
      {C::STYLE_SHEET, "Specification of an alternate HTML stylesheet file"},
      {C::BROWSE_STYLE_SHEET, "Locate an alternate HTML stylesheet file"},
      {C::SUBPACKAGES,
       "Usage \"package1:package2:...\" to generate documentation from source files in the specified packages and "
       "recursively in their subpackages"},
      {C::EXCLUDE,
       "Usage \"package1:package2:...\" to unconditionally exclude the specified packages and their subpackages from "
       "the list formed by the Subpackages option"},
      {C::EXCLUDE_SUBDIR,
       "Excludes any \"doc-files\" subfolders with the given names. This prevents the copying of SCCS and other "
       "source-code-control subfolders"},
      {C::TAG,
       "List of tags separated by ';' Specify a tag as tagname:Xaoptcmf:\"taghead\" to enable javadoc to interpret a "
       "simple, one-argument custom standalone tag @tagname in doc comments"},
      {C::TAGLET,
       "List of class files that start a taglet used in generating the documentation for a tag. Use the "
       "fully-qualified name for class."},
      {C::TAGLET_PATH,
       "Search path for finding taglet class files (.class). Separate multiple paths with a semicolon (;)"},
      {C::ADD_TAGLET, "Add a class file to the taglet list"},
      {C::ADD_TO_TAGLET_PATH, "Add a folder to the taglet path"},
      {C::CLEAR_TAGLET, "Clear the list of taglet class files"},
      {C::CLEAR_TAGLET_PATH, "Clear the taglet path"},
  };
}

std::vector<ToolTip> docletOptionsTips() {
  using C = DocletOptions;
  return {
      {C::WINDOW_TITLE, "Title to be placed in the HTML <title> tag"},
      {C::DOC_TITLE, "Title to be placed near the top of the overview summary file"},
      {C::HEADER, "Header text to be placed at the top of each output file"},
      {C::FOOTER, "Footer text to be placed at the bottom of each output file"},
      {C::BOTTOM, "Text to be placed at the bottom of each output file"},
      {C::LINK, "Create links to already existing javadoc-generated documentation of external referenced classes"},
      {C::LINK_OFFLINE,
       "Use this option instead of -link if, at the time you run javadoc, the external document's extdocURL can't be "
       "used"},
      {C::GROUP,
       "Separate packages on overview page into whatever groups you specify (groupheading  "
       "packagepattern:packagepattern:...)"},
      {C::DOC_ENCODING, "Encoding of the generated HTML files"},
      {C::CHARSET, "HTML character set for the document"},
      {C::NO_QUALIFIER,
       "Usage: \"all  |  packagename1:packagename2:... \" to omit qualifying package names for class names in output"},
      {C::USE, "Include one \"Use\" page for each documented class and package"},
      {C::VERSION, "Include the @version text in the generated documents"},
      {C::AUTHOR, "Include the @author text in the generated documents"},
      {C::SPLIT_INDEX, "Split the index file into multiple files (alphabetically)"},
      {C::NO_DEPRECATED, "Prevent the generation of any deprecated API in the documentation"},
      {C::NO_TREE, "Omit the class/interface hierarchy from the generated documents"},
      {C::NO_SINCE, "Omit from the generated docs the \"Since\" sections associated with the @since tags"},
      {C::NO_INDEX, "Omit the index from the generated documents"},
      {C::NO_HELP, "Omit the HELP link in navigation bars at top and bottom of each page of output"},
      {C::NO_NAVBAR, "Don't generate navigation bar, header and footer, otherwise found at top and bottom of pages"},
      {C::NO_DEPRECATED_LIST,
       "Don't generate the file deprecated-list.html and the link in the navigation bar to that page"},
      {C::SERIAL_WARN, "Generate compile-time warnings for missing @serial tags"},
      {C::BREAK_ITERATOR,
       "Uses the sentence break iterator to determine the end of the first sentence. Recommended for JDK1.4"},
      {C::DOC_FILES_SUBDIRS,
       "Enables deep copying of \"doc-files\" folders, i.e. subfolders and all contents are recursively copied to the "
       "destination"},
      {C::LINK_SOURCE,
       "Create an HTML version of each source file and add links to them from the standard HTML documentation"},
      {C::NO_COMMENT,
       "Suppress entire comment body, including the description and all tags, generating only declarations. This "
       "option enables re-using source files originally intended for a different purpose"},
  };
}

}  // namespace

std::vector<ToolTip> javadocToolTips(int page) {
  switch (page) {
    case JAVADOC_SOURCES_PAGE:
      return sourcesTips();
    case JAVADOC_PATHS_PAGE:
      return pathsTips();
    case JAVADOC_OPTIONS_PAGE:
      return optionsTips();
    case DOCLET_PATHS_PAGE:
      return docletPathsTips();
    default:
      return docletOptionsTips();
  }
}

}  // namespace tarnwick
