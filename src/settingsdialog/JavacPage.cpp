#include "settingsdialog/JavacPage.h"

#include "dialogbase/DirDialog.h"
#include "resources/SystemWords.h"
#include "settings/SettingsResources.h"
#include "settingsdialog/SettingsPageLayouts.h"

#include <vector>

namespace tarnwick {

namespace {

enum Control {
  DEBUG = 1026,
  FAST_CODE = 1024,
  DEPRECATION = 1044,
  VERBOSE = 1027,
  SOUND_ON_SUCCESS = 1021,
  SOUND_ON_ERROR = 1022,
  DESTINATION = 1040,
  BROWSE = 1007,
  J_OPTION = 1117,
  SOURCE = 1179,
  OWN_SOURCE = 1186,
  TARGET = 1028,
  OWN_TARGET = 1122,
  VERSION = 1269,
  CONVERSIONS = 1264,
  PATH = 1265,
  SERIALIZATION = 1266,
  FINALLY = 1267,
  SWITCH = 1268,
  NO_WARNINGS = 1270,
  SWITCHCHECK = 1271,
  NEWER_JAVA = 2101,
  ONE_RUN = 2102,
  MORE_OPTIONS = 2103,
};

constexpr int PRE_1_4 = 0;
constexpr int NO_SUCH_VERSION = -1;

/// The warnings that a compiler of this version knows, by the index in the list of versions.
std::vector<int> warningsOf(int version) {
  switch (version) {
    case PRE_1_4:
      return {NO_WARNINGS};
    case 1:
      return {NO_WARNINGS, SWITCHCHECK};
    case 2:
      return {CONVERSIONS, PATH, SERIALIZATION, FINALLY, SWITCH};
    default:
      return {};
  }
}

std::vector<ToolTip> javacToolTips() {
  return {
      {DESTINATION, "Folder where class files will be stored by the compiler. Default: Folder of the source file"},
      {BROWSE, "Locate the folder where the compiler should store class files. Default: Folder of the source file"},
      {FAST_CODE, "Optimize code for faster execution"},
      {DEBUG, "Store source code information within the class file to make it available to the debugger"},
      {VERBOSE, "Display detail information about the compilation process"},
      {DEPRECATION, "Do not accept deprecated java features"},
      {SOUND_ON_SUCCESS,
       inSystemWords("Start the Windows Asterisk sound at the end of a compilation without diagnostics")},
      {SOUND_ON_ERROR,
       inSystemWords("Start the Windows Exclamation sound at the end of a compilation that produced diagnostics")},
      {J_OPTION, "Special option to be passed to the java launcher (see also JDK documentation)"},
      {SOURCE,
       "Tells the compiler how to interpret the source. Important e.g. when using assertions (see also JDK "
       "documentation)"},
      {OWN_SOURCE, "Enter your own source option definition here (select 'User-defined' from above dropdown list)"},
      {TARGET,
       "Select target JVM on which the code should run: Low version for compatibility, high version for performance"},
      {OWN_TARGET, "Enter your own target option definition here (select 'User-defined' from above dropdown list)"},
      {VERSION, "The options for compiler warnings depend on the JDK version od the javac compiler"},
      {NO_WARNINGS, "Suppress compiler warnings"},
      {SWITCHCHECK, "Display a warning if a switch block has a fall-through case (i.e. without break statement)"},
      {CONVERSIONS,
       "Give more detail for unchecked conversion warnings that are mandated by the Java Language Specification"},
      {PATH, "Warn about nonexistent path (classpath, sourcepath, etc) directories"},
      {SERIALIZATION, "Warn about missing serialVersionUID definitions on serializable classes"},
      {FINALLY, "Warn about finally clauses that cannot complete normally"},
      {SWITCH, "Check switch blocks for fall-through cases, display a warning for any that are found"},
      {NEWER_JAVA,
       "Read sources as Java is written today: generics, enums, records and all that came after version 1.4. Nothing "
       "is "
       "refused any more; what is wrong, the compiler tells"},
      {ONE_RUN,
       "Give all sources of a project that have to be compiled to one run of the compiler, which is much faster than "
       "one "
       "run for each"},
      {MORE_OPTIONS, "Further options for the compiler, as they are typed here, such as --enable-preview -parameters"},
      // Deliberate: the first entry for a control wins, so this one is never seen.
      {VERSION, "Options for compiler warnings depend on the JDK version of the javac compiler"},
  };
}

}  // namespace

JavacPage::JavacPage(Desktop& desktop, const TagRow* rows, JdkVersion jdk)
    : MarkedPage(desktop, JAVAC_PAGE, SETTINGS_DIALOG, javacPageLayout(), std::move(jdk)) {
  tags_ = rows;
  toolTips_ = javacToolTips();
  marks_ = {{SWITCHCHECK, Mark::SWITCHCHECK, "javac", "-Xswitchcheck"},
            {SOURCE, Mark::SOURCE, "javac", ""},
            {TARGET, Mark::TARGET, "javac", ""}};
}

void JavacPage::initialise(DialogWindow& window) {
  source_.emplace(javacSourceOptions).attach(&window, SOURCE, OWN_SOURCE);
  target_.emplace(javacTargetOptions).attach(&window, TARGET, OWN_TARGET);
  version_.emplace(javacVersionOptions).attach(&window, VERSION, -1);
  MarkedPage::initialise(window);
}

void JavacPage::detached() {
  MarkedPage::detached();
  source_.reset();
  target_.reset();
  version_.reset();
}

OptionBox* JavacPage::listOf(int control) const {
  std::optional<OptionBox>* const list = control == SOURCE    ? &source_
                                         : control == TARGET  ? &target_
                                         : control == VERSION ? &version_
                                                              : nullptr;
  return list && *list ? &**list : nullptr;
}

void JavacPage::loadFromTags() {
  MarkedPage::loadFromTags();
  if (window()) showWarnings();
}

void JavacPage::setText(int control, const std::string& text) {
  if (auto* list = listOf(control))
    list->fromString(text);
  else
    MarkedPage::setText(control, text);
}

std::string JavacPage::getText(int control) const {
  auto* list = listOf(control);
  return list ? list->toString() : MarkedPage::getText(control);
}

void JavacPage::onSelectionChanged(int control) {
  if (auto* list = listOf(control)) list->selectIndex(window()->selection(control));
  if (control == VERSION) showWarnings();
  showMarks();
}

std::string JavacPage::optionOf(const OptionMark& mark) const {
  if (mark.control == SWITCHCHECK) return isControlVisible(SWITCHCHECK) ? mark.option : "";
  const auto* list = listOf(mark.control);
  return list ? list->option() : "";
}

void JavacPage::showWarnings() {
  for (const int box : {CONVERSIONS, PATH, SERIALIZATION, FINALLY, SWITCH, NO_WARNINGS, SWITCHCHECK}) {
    showControl(box, false);
  }
  const int version = version_ ? version_->currentIndex() : NO_SUCH_VERSION;
  for (const int box : warningsOf(version)) showControl(box, true);
  // The oldest compilers have no option for the source.
  enableControl(SOURCE, version != PRE_1_4);
  if (version == PRE_1_4) source_->selectIndex(javacSourceOptions.defaultIndex);
  showMarks();
}

void JavacPage::onCommand(int control) {
  if (control != BROWSE) return;
  const std::string folder = DirDialog(desktop_).browse();
  if (!folder.empty()) setText(DESTINATION, folder);
}

}  // namespace tarnwick
