#include "dialogs/JavadocPages.h"

#include "base/Text.h"
#include "dialogbase/Desktop.h"
#include "dialogs/DialogRules.h"
#include "dialogs/JavadocInput.h"
#include "dialogs/JavadocLayout.h"
#include "dialogs/JavadocToolTips.h"
#include "platform/Folders.h"
#include "platform/Path.h"
#include "platform/Process.h"
#include "resources/DialogLayout.h"
#include "settings/JdkDiscovery.h"
#include "settings/Settings.h"
#include "settings/SettingsResources.h"

#include <algorithm>
#include <iterator>

namespace tarnwick {

namespace {

/// The path list that belongs to a field and its two buttons.
struct PathList {
  int field;
  int add;
  int clear;
  const char* name;
  std::string JavadocRun::*value;
};

using P = JavadocPaths;

const PathList pathLists[] = {
    {P::SOURCEPATH, P::ADD_TO_SOURCEPATH, P::CLEAR_SOURCEPATH, "sourcepath", &JavadocRun::sourcePath},
    {P::CLASSPATH, P::ADD_TO_CLASSPATH, P::CLEAR_CLASSPATH, "classpath", &JavadocRun::classPath},
    {P::BOOTCLASSPATH, P::ADD_TO_BOOTCLASSPATH, P::CLEAR_BOOTCLASSPATH, "bootclasspath", &JavadocRun::bootClassPath},
    {P::EXTDIRS, P::ADD_TO_EXTDIRS, P::CLEAR_EXTDIRS, "extdirs", &JavadocRun::extDirs},
};

/// In the order in which they win over one another.
constexpr int levels[] = {JavadocOptions::PUBLIC, JavadocOptions::PROTECTED, JavadocOptions::PRIVATE,
                          JavadocOptions::PACKAGE};

/// The elements of a list of paths, without quotes.
std::vector<std::string> elementsOf(const std::string& list) {
  std::vector<std::string> elements;
  for (std::size_t begin = 0; begin < list.size();) {
    const auto end = std::min(list.find(';', begin), list.size());
    elements.push_back(cleanedPath(list.substr(begin, end - begin)));
    begin = end + 1;
  }
  return elements;
}

/// A file's folder without its last separator, which would take the meaning of the quote behind it.
std::string folderWord(const std::string& path) {
  return platform::commandWord(Filename(path).directoryNoSlash());
}

}  // namespace

JavadocPage::JavadocPage(Desktop& desktop, SettingsValues& settings, const DialogLayout& layout,
                         std::vector<int> pathLists)
    : MarkedPage(desktop, layout.resource, JAVADOC_DIALOG, layout,
                 [&settings] { return jdkVersion(settings.javaPath); }),
      settings_(settings),
      pathLists_(std::move(pathLists)) {
  tags_ = settings.tagRows.data();
  toolTips_ = javadocToolTips(layout.resource);
}

bool JavadocPage::listsPaths(int control) const {
  return std::find(pathLists_.begin(), pathLists_.end(), control) != pathLists_.end();
}

std::string JavadocPage::getText(int control) const {
  const std::string text = MarkedPage::getText(control);
  return listsPaths(control) ? platform::storedList(text) : text;
}

std::string JavadocPage::fieldText(int control) const {
  return window() && listsPaths(control) ? pathsOnOneLine(window()->text(control)) : MarkedPage::fieldText(control);
}

std::optional<std::string> JavadocPage::askForFile(const std::string& filter, const std::string& preset,
                                                   const std::string& text) {
  const Filename present(text);
  FileRequest request;
  request.filter = filter;
  request.name = preset;
  request.mustExist = true;
  request.startFolder = firstFolder({present.fullName(), present.directory()}, "C:\\");
  return desktop_.openFile(request);
}

JavadocSourcesPage::JavadocSourcesPage(Desktop& desktop, SettingsValues& settings, std::string& files,
                                       std::string projectFolder)
    : JavadocPage(desktop, settings, javadocSourcesLayout(), {}),
      files_(files),
      projectFolder_(std::move(projectFolder)) {}

void JavadocSourcesPage::loadFromTags() {
  JavadocPage::loadFromTags();
  setText(JavadocSources::FILES, files_);
}

void JavadocSourcesPage::storeToTags() {
  JavadocPage::storeToTags();
  files_ = getText(JavadocSources::FILES);
}

void JavadocSourcesPage::onCommand(int control) {
  if (control == JavadocSources::ADD_FILES) addFiles();
  if (control == JavadocSources::CLEAR_FILES) setText(JavadocSources::FILES, "");
}

void JavadocSourcesPage::addFiles() {
  FileRequest request;
  request.filter = "Java source files|*.java||";
  request.startFolder = firstFolder({lastFolder_, projectFolder_}, "C:");
  request.name = "*.java";
  request.mustExist = true;
  const auto chosen = desktop_.openFiles(request);
  if (chosen.empty()) return;
  std::string list = getText(JavadocSources::FILES);
  if (!list.empty() && !isWhite(list.back())) list += ' ';
  for (const auto& path : chosen) {
    const auto element = inputElement(path);
    if (!element) desktop_.message("Can't add " + path + "\nIts name holds both a blank and a double quote.");
    list += element.value_or("");
  }
  putWhole(desktop_, *this, JavadocSources::FILES, list, "add these files");
  lastFolder_ = Filename(chosen.back()).directory();
}

JavadocPathsPage::JavadocPathsPage(Desktop& desktop, SettingsValues& settings, JavadocRun& run)
    : JavadocPage(desktop, settings, javadocPathsLayout(),
                  {P::SOURCEPATH, P::CLASSPATH, P::BOOTCLASSPATH, P::EXTDIRS, P::DOCLET_PATH}),
      run_(run) {
  marks_ = {{P::BOOTCLASSPATH, P::BOOTCLASSPATH_MARK, "javadoc", "-bootclasspath"},
            {P::EXTDIRS, P::EXTDIRS_MARK, "javadoc", "-extdirs"}};
}

void JavadocPathsPage::loadFromTags() {
  JavadocPage::loadFromTags();
  for (const auto& list : pathLists) setText(list.field, run_.*list.value);
}

void JavadocPathsPage::storeToTags() {
  JavadocPage::storeToTags();
  for (const auto& list : pathLists) run_.*list.value = getText(list.field);
}

void JavadocPathsPage::onCommand(int control) {
  for (const auto& list : pathLists) {
    if (control == list.add) askPathEntry(list.field, list.name);
    if (control == list.clear) setText(list.field, "");
  }
  if (control == P::BROWSE_OVERVIEW) browseOverview();
  if (control == P::BROWSE_DOCLET_PATH) browseFolder(desktop_, *this, P::DOCLET_PATH);
  if (control == P::BROWSE_DOCLET_FILE) browseDoclet();
}

void JavadocPathsPage::browseOverview() {
  const auto chosen = askForFile("html files|*.htm*||", "*.htm*", getText(P::OVERVIEW));
  // Deliberate: unlike the other files it comes without quotes; the user adds them around a path with blanks.
  if (chosen) setText(P::OVERVIEW, *chosen);
}

void JavadocPathsPage::browseDoclet() {
  const std::string path = getText(P::DOCLET_PATH);
  const auto chosen = askForFile("doclet class file|*.class||", "*.class", path.empty() ? values().docletPath : path);
  if (!chosen) return;
  setText(P::DOCLET_PATH, folderWord(*chosen));
  setText(P::DOCLET_FILE, platform::commandWord(Filename(*chosen).nameWithExtension()));
}

JavadocOptionsPage::JavadocOptionsPage(Desktop& desktop, SettingsValues& settings)
    : JavadocPage(desktop, settings, javadocOptionsLayout(), {}) {}

void JavadocOptionsPage::loadFromTags() {
  JavadocPage::loadFromTags();
  // Only a file made by hand has several.
  const auto* const first =
      std::find_if(std::begin(levels), std::end(levels), [this](int level) { return getCheck(level); });
  for (const auto* level = first; level != std::end(levels); ++level) setCheck(*level, level == first);
}

void JavadocOptionsPage::onCommand(int control) {
  const bool isLevel = std::find(std::begin(levels), std::end(levels), control) != std::end(levels);
  if (!isLevel || !getCheck(control)) return;
  for (const int level : levels) setCheck(level, level == control);
}

void JavadocOptionsPage::storeToTags() {
  JavadocPage::storeToTags();
  std::string& option = values().jOption;
  option = trimLeft(option);
  if (!option.empty() && !option.starts_with("-J")) option = "-J" + option;
}

DocletPathsPage::DocletPathsPage(Desktop& desktop, SettingsValues& settings)
    : JavadocPage(desktop, settings, docletPathsLayout(), {DocletPaths::TAGLET_PATH}) {}

void DocletPathsPage::onCommand(int control) {
  using C = DocletPaths;
  if (control == C::BROWSE_DESTINATION) browseFolder(desktop_, *this, C::DESTINATION);
  if (control == C::BROWSE_HELP_FILE) browseFile(C::HELP_FILE, "html files|*.htm*||", "*.htm*");
  if (control == C::BROWSE_STYLE_SHEET) browseFile(C::STYLE_SHEET, "css style sheet file|*.css||", "*.css");
  if (control == C::ADD_TAGLET) addTaglet();
  if (control == C::CLEAR_TAGLET) setText(C::TAGLET, "");
  if (control == C::ADD_TO_TAGLET_PATH) addFolderToField(C::TAGLET_PATH);
  if (control == C::CLEAR_TAGLET_PATH) setText(C::TAGLET_PATH, "");
}

void DocletPathsPage::browseFile(int field, const std::string& filter, const std::string& preset) {
  const std::string text = getText(field);
  // Deliberate: with either field empty, the saved style sheet tells where to begin.
  const auto chosen = askForFile(filter, preset, text.empty() ? values().styleSheet : text);
  if (chosen) setText(field, platform::commandWord(*chosen));
}

void DocletPathsPage::addTaglet() {
  const std::string path = getText(DocletPaths::TAGLET_PATH);
  const auto known = elementsOf(path);
  const auto begin = known.empty() ? elementsOf(values().tagletPath) : known;
  const auto chosen = askForFile("taglet class file|*.class||", "*.class", begin.empty() ? "" : begin.back());
  if (!chosen) return;
  const Filename file(*chosen);
  TokenString taglets;
  try {
    taglets.fromString(getText(DocletPaths::TAGLET));
    taglets += file.baseName();
    setText(DocletPaths::TAGLET, taglets.toString());
  } catch (const StringableM::InvalidDataE&) {
    // What the user has typed stays as it is.
    appendPathEntry(DocletPaths::TAGLET, file.baseName());
  }
  const bool isNew = std::none_of(known.begin(), known.end(), [&file](const std::string& element) {
    return platform::sameFileName(Filename(element, "x").directoryNoSlash(), file.directoryNoSlash());
  });
  if (isNew) appendPathEntry(DocletPaths::TAGLET_PATH, folderWord(*chosen));
}

DocletOptionsPage::DocletOptionsPage(Desktop& desktop, SettingsValues& settings)
    : JavadocPage(desktop, settings, docletOptionsLayout(), {}) {
  marks_ = {{DocletOptions::FOOTER, DocletOptions::FOOTER_MARK, "javadoc", "-footer"}};
}

}  // namespace tarnwick
