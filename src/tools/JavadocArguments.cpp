#include "tools/JavadocArguments.h"

#include "platform/Path.h"
#include "platform/Process.h"
#include "settings/OptionList.h"

namespace tarnwick {

namespace {

using Words = std::vector<std::string>;

struct SwitchRow {
  int on;
  const char* option;
};

struct ValueRow {
  const std::string& value;
  const char* option;  ///< empty for a text that stands for itself
};

void addSwitches(Words& arguments, const std::vector<SwitchRow>& rows) {
  for (const auto& row : rows)
    if (row.on != 0) arguments.emplace_back(row.option);
}

void addValues(Words& arguments, const std::vector<ValueRow>& rows) {
  for (const auto& row : rows)
    if (!row.value.empty()) arguments.push_back(row.option + row.value);
}

void addLists(Words& arguments, const std::vector<ValueRow>& rows) {
  for (const auto& row : rows)
    if (!row.value.empty()) arguments.push_back(row.option + platform::commandLineList(row.value));
}

/// One element for each item of the list.
void addItems(Words& arguments, const char* option, const TokenString& items) {
  for (int i = 0; i < items.count(); ++i) arguments.push_back(option + items.element(i));
}

void addDocletSwitches(Words& arguments, const JavadocValues& settings) {
  addSwitches(arguments, {{settings.use, "-use"},
                          {settings.version, "-version"},
                          {settings.author, "-author"},
                          {settings.breakIterator, "-breakiterator"},
                          {settings.docFilesSubdirs, "-docfilessubdirs"},
                          {settings.linkSource, "-linksource"},
                          {settings.splitIndex, "-splitindex"},
                          {settings.noDeprecated, "-nodeprecated"},
                          {settings.noDeprecatedList, "-nodeprecatedlist"},
                          {settings.noTree, "-notree"},
                          {settings.noComment, "-nocomment"},
                          {settings.noSince, "-nosince"},
                          {settings.noIndex, "-noindex"},
                          {settings.noHelp, "-nohelp"},
                          {settings.noNavbar, "-nonavbar"},
                          {settings.serialWarn, "-serialwarn"}});
}

void addDocletValues(Words& arguments, const JavadocValues& settings) {
  addValues(arguments, {{settings.destination, "-d "},
                        {settings.helpFile, "-helpfile "},
                        {settings.styleSheet, "-stylesheetfile "},
                        {settings.subpackages, "-subpackages "},
                        {settings.exclude, "-exclude "},
                        {settings.excludeSubdir, "-excludedocfilessubdir "},
                        {settings.windowTitle, "-windowtitle "},
                        {settings.docTitle, "-doctitle "},
                        {settings.header, "-header "},
                        {settings.footer, "-footer "},
                        {settings.bottom, "-bottom "},
                        {settings.link, "-link "},
                        {settings.linkOffline, "-linkoffline "},
                        {settings.group, "-group "},
                        {settings.docEncoding, "-docencoding "},
                        {settings.charset, "-charset "},
                        {settings.noQualifier, "-noqualifier "}});
}

}  // namespace

Words javadocArguments(const SettingsValues& settings, const JavadocRun& run) {
  const JavadocValues& own = settings.javadoc;
  Words arguments = {"javadoc"};
  addSwitches(arguments, {{own.verbose, "-verbose"},
                          {own.quiet, "-quiet"},
                          {own.isPublic, "-public"},
                          {own.isProtected, "-protected"},
                          {own.isPrivate, "-private"},
                          {own.package, "-package"}});
  addValues(arguments,
            {{own.overview, "-overview "}, {own.locale, "-locale "}, {own.encoding, "-encoding "}, {own.jOption, ""}});
  addLists(arguments, {{run.sourcePath, "-sourcepath "},
                       {run.classPath, "-classpath "},
                       {run.bootClassPath, "-bootclasspath "},
                       {run.extDirs, "-extdirs "},
                       {own.docletPath, "-docletpath "}});
  addValues(arguments, {{own.docletFile, "-doclet "}, {own.docletOptions, ""}});
  addDocletSwitches(arguments, own);
  addDocletValues(arguments, own);
  // Deliberate: the source option, and the packages below, take a place even where they are empty.
  arguments.push_back(OptionList(javacSourceOptions, settings.javacSourceOption).option());
  addItems(arguments, "-taglet ", own.taglet);
  addItems(arguments, "-tag ", own.tag);
  addLists(arguments, {{own.tagletPath, "-tagletpath "}});
  arguments.push_back(own.packageList);
  arguments.push_back(run.packageText.empty() ? '@' + platform::commandWord(run.listFile) : run.packageText);
  return arguments;
}

}  // namespace tarnwick
