#include "dialogs/JavadocLayout.h"

#include "dialogs/FormLine.h"
#include "resources/DialogLayout.h"
#include "settingsdialog/MarkedPage.h"

namespace tarnwick {

using namespace layout;

namespace {

constexpr int fieldWidth = 44;
/// Fields that stand beside others.
constexpr int shortFieldWidth = 26;
/// Rooms for the longest label of a page, so that the fields of all its groups line up.
constexpr int pathLabelWidth = 16;
constexpr int docletPathLabelWidth = 21;
constexpr int textLabelWidth = 12;

DialogItem line(DialogItem caption, DialogItem field, std::vector<DialogItem> buttons) {
  return formLine(std::move(caption), std::move(field), std::move(buttons)).withEqualWidths();
}

/// The two buttons of a list, and the one of a field that takes a single file or folder.
std::vector<DialogItem> addAndClear(int add, int clear, const std::string& name) {
  return {button(add, "Add...").named("Add to " + name), button(clear, "Clear").named("Clear " + name)};
}
std::vector<DialogItem> browse(int control, const std::string& name) {
  return {button(control, "Browse").named("Browse for " + name)};
}

DialogItem pathLine(const std::string& name, int field, int add, int clear, int markOfOption = 0) {
  auto items = addAndClear(add, clear, name);
  if (markOfOption != 0) items.insert(items.begin(), optionMark(markOfOption));
  return line(label(name).atLeast(pathLabelWidth), edit(field, fieldWidth).listingPaths(), std::move(items));
}

DialogItem textLine(const std::string& name, int field, std::vector<DialogItem> behind = {}) {
  return line(label(name).atLeast(textLabelWidth), edit(field, shortFieldWidth), std::move(behind));
}

DialogItem docletPathLine(const std::string& name, DialogItem field, std::vector<DialogItem> buttons) {
  return line(label(name).atLeast(docletPathLabelWidth), std::move(field), std::move(buttons));
}

}  // namespace

const DialogLayout& javadocLayout() {
  static const DialogLayout dialog = {150, "javadoc", false,
                                      column({
                                          tabs(Javadoc::TABS),
                                          row({space(), button(Javadoc::RUN, "Run javadoc").asDefault(),
                                               button(Javadoc::HELP, "Help"), button(Javadoc::CANCEL, "Cancel")})
                                              .closing(),
                                      }),
                                      0};
  return dialog;
}

const DialogLayout& javadocSourcesLayout() {
  static const DialogLayout page = {
      JAVADOC_SOURCES_PAGE, "", false,
      column({
          label("Input to javadoc:  Java files"),
          row({edit(JavadocSources::FILES, fieldWidth).named("Input to javadoc: Java files").stretched(),
               button(JavadocSources::ADD_FILES, "Add...").named("Add to the Java files"),
               button(JavadocSources::CLEAR_FILES, "Clear").named("Clear the Java files")})
              .withEqualWidths(),
          label("Input to javadoc:  Packages"),
          edit(JavadocSources::PACKAGES, fieldWidth),
      }),
      0};
  return page;
}

const DialogLayout& javadocPathsLayout() {
  using C = JavadocPaths;
  static const DialogLayout page = {
      JAVADOC_PATHS_PAGE, "", false,
      column({
          group(0, " Paths for this run ",
                {
                    pathLine("sourcepath", C::SOURCEPATH, C::ADD_TO_SOURCEPATH, C::CLEAR_SOURCEPATH),
                    pathLine("classpath", C::CLASSPATH, C::ADD_TO_CLASSPATH, C::CLEAR_CLASSPATH),
                    pathLine("bootclasspath", C::BOOTCLASSPATH, C::ADD_TO_BOOTCLASSPATH, C::CLEAR_BOOTCLASSPATH,
                             C::BOOTCLASSPATH_MARK),
                    pathLine("extdirs", C::EXTDIRS, C::ADD_TO_EXTDIRS, C::CLEAR_EXTDIRS, C::EXTDIRS_MARK),
                }),
          group(0, " Overview and doclet ",
                {
                    line(label("Overview").atLeast(pathLabelWidth), edit(C::OVERVIEW, fieldWidth),
                         browse(C::BROWSE_OVERVIEW, "Overview")),
                    line(label("docletpath").atLeast(pathLabelWidth), edit(C::DOCLET_PATH, fieldWidth).listingPaths(),
                         browse(C::BROWSE_DOCLET_PATH, "docletpath")),
                    line(label("doclet classfile").atLeast(pathLabelWidth), edit(C::DOCLET_FILE, fieldWidth),
                         browse(C::BROWSE_DOCLET_FILE, "doclet classfile")),
                }),
      }),
      0};
  return page;
}

const DialogLayout& javadocOptionsLayout() {
  using C = JavadocOptions;
  static const DialogLayout page = {
      JAVADOC_OPTIONS_PAGE, "", false,
      column({
          row({label("doclet options"), edit(C::DOCLET_OPTIONS, fieldWidth).stretched()}),
          row({label("Locale"), edit(C::LOCALE, fieldWidth).stretched()}),
          row({label("Encoding"), edit(C::ENCODING, fieldWidth).stretched()}),
          row({label("-J flags"), edit(C::J_FLAGS, fieldWidth).stretched()}),
          row({
              group(0, " What is shown ",
                    {row({checkBox(C::PUBLIC, "-public"), checkBox(C::PROTECTED, "-protected"),
                          checkBox(C::PRIVATE, "-private"), checkBox(C::PACKAGE, "-package"), space()})})
                  .stretched(),
              group(0, " Messages ", {row({checkBox(C::VERBOSE, "-verbose"), checkBox(C::QUIET, "-quiet"), space()})})
                  .stretched(),
          }),
      }),
      0};
  return page;
}

const DialogLayout& docletPathsLayout() {
  using C = DocletPaths;
  static const DialogLayout page = {
      DOCLET_PATHS_PAGE, "", false,
      column({
          group(0, " Output ",
                {
                    docletPathLine("destination", edit(C::DESTINATION, fieldWidth),
                                   browse(C::BROWSE_DESTINATION, "destination")),
                    docletPathLine("helpfile", edit(C::HELP_FILE, fieldWidth), browse(C::BROWSE_HELP_FILE, "helpfile")),
                    docletPathLine("stylesheetfile", edit(C::STYLE_SHEET, fieldWidth),
                                   browse(C::BROWSE_STYLE_SHEET, "stylesheetfile")),
                }),
          group(0, " Packages ",
                {
                    docletPathLine("subpackages", edit(C::SUBPACKAGES, fieldWidth), {}),
                    docletPathLine("exclude", edit(C::EXCLUDE, fieldWidth), {}),
                    docletPathLine("excludedocfilessubdir", edit(C::EXCLUDE_SUBDIR, fieldWidth), {}),
                }),
          group(0, " Tags ",
                {
                    docletPathLine("tag", edit(C::TAG, fieldWidth), {}),
                    docletPathLine("taglet", edit(C::TAGLET, fieldWidth),
                                   addAndClear(C::ADD_TAGLET, C::CLEAR_TAGLET, "taglet")),
                    docletPathLine("tagletpath", edit(C::TAGLET_PATH, fieldWidth).listingPaths(),
                                   addAndClear(C::ADD_TO_TAGLET_PATH, C::CLEAR_TAGLET_PATH, "tagletpath")),
                }),
      }),
      0};
  return page;
}

const DialogLayout& docletOptionsLayout() {
  using C = DocletOptions;
  static const DialogLayout page = {
      DOCLET_OPTIONS_PAGE, "", false,
      column({
          row({
              group(0, " Titles and texts ",
                    {textLine("windowtitle", C::WINDOW_TITLE), textLine("doctitle", C::DOC_TITLE),
                     textLine("header", C::HEADER), textLine("footer", C::FOOTER, {optionMark(C::FOOTER_MARK)}),
                     textLine("bottom", C::BOTTOM)})
                  .stretched(),
              group(0, " Links, groups, encodings ",
                    {textLine("link", C::LINK), textLine("linkoffline", C::LINK_OFFLINE), textLine("group", C::GROUP),
                     textLine("docencoding", C::DOC_ENCODING), textLine("charset", C::CHARSET),
                     textLine("noqualifier", C::NO_QUALIFIER)})
                  .stretched(),
          }),
          group(0, " Pages and parts ",
                {row({
                    column({checkBox(C::AUTHOR, "author"), checkBox(C::BREAK_ITERATOR, "breakiterator"),
                            checkBox(C::DOC_FILES_SUBDIRS, "docfilessubdirs"), checkBox(C::LINK_SOURCE, "linksource")})
                        .stretched(),
                    column({checkBox(C::SERIAL_WARN, "serialwarn"), checkBox(C::SPLIT_INDEX, "splitindex"),
                            checkBox(C::USE, "use"), checkBox(C::VERSION, "version")})
                        .stretched(),
                    column({checkBox(C::NO_COMMENT, "nocomment"), checkBox(C::NO_DEPRECATED, "nodeprecated"),
                            checkBox(C::NO_DEPRECATED_LIST, "nodeprecatedlist"), checkBox(C::NO_HELP, "nohelp")})
                        .stretched(),
                    column({checkBox(C::NO_INDEX, "noindex"), checkBox(C::NO_NAVBAR, "nonavbar"),
                            checkBox(C::NO_SINCE, "nosince"), checkBox(C::NO_TREE, "notree")})
                        .stretched(),
                })}),
      }),
      0};
  return page;
}

}  // namespace tarnwick
