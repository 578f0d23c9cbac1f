#include "settingsdialog/JavaPage.h"

#include "dialogbase/Messages.h"
#include "platform/Path.h"
#include "process/Subprocess.h"
#include "resources/SystemWords.h"
#include "settings/EditorChoice.h"
#include "settings/SettingsContext.h"
#include "settings/SettingsResources.h"
#include "settingsdialog/SettingsPageLayouts.h"

namespace tarnwick {

namespace {

enum Control {
  PROPERTY = 1031,
  VERBOSE = 1032,
  XFUTURE = 1123,
  XPROF = 1124,
  JNI_VALIDATION = 1125,
  XRUNHPROF = 1126,
  XMS = 1129,
  XMX = 1130,
  XSS = 1131,
  SHOW_VERSION = 1157,
  COLLECTOR = 1184,
  SYSTEM_ENABLED = 1182,
  SYSTEM_DISABLED = 1183,
  CLASSES_ENABLED = 1180,
  CLASSES_DISABLED = 1181,
  MORE_OPTIONS = 2104,
  NEWER_CONSOLE = 2131,
};

}  // namespace

JavaPage::JavaPage(SettingsContext& context, const TagRow* rows, const ToolsPage& toolsPage,
                   std::function<EditorChoice()> editors, JdkVersion jdk)
    : MarkedPage(context.desktop, JAVA_PAGE, SETTINGS_DIALOG, javaPageLayout(), std::move(jdk)),
      context_(context),
      toolsPage_(toolsPage),
      editors_(std::move(editors)) {
  tags_ = rows;
  toolTips_ = {
      {PROPERTY, "Enter system property values here"},
      {VERBOSE, "Display detail information about class loading and execution"},
      {XFUTURE, "Perform strict class-file format checks"},
      {XPROF, "Profile the running program, and send profiling data to standard output"},
      {JNI_VALIDATION,
       "(Requires JDK 1.5) Let JVM validate parameters and runtime environment before processing a JNI request"},
      {XRUNHPROF, "Enable cpu, heap, or monitor profiling (Type help here for a list of suboptions and defaults)"},
      {XMS, "Initial size of the memory allocation pool"},
      {XMX, "Maximum size of the memory allocation pool"},
      {XSS, "Thread stack size"},
      {COLLECTOR, "Define how the java virtual machine should clean-up unused memory resources"},
      {SYSTEM_ENABLED, "Enable asserts in all system classes"},
      {SYSTEM_DISABLED, "Disable asserts in all system classes"},
      {CLASSES_ENABLED, "List of package names and/or class names (use ... for all classes) with asserts enabled"},
      {CLASSES_DISABLED, "List of package names and/or class names (use ... for all classes) with asserts disabled"},
      {MORE_OPTIONS,
       "Further options for java, as they are typed here, such as --enable-preview --add-modules java.sql"},
      {NEWER_CONSOLE,
       "Programs run in a console that shows their colours, sends each line whole, ends a program's input or the "
       "program "
       "itself by a key, and runs it again"},
  };
  marks_ = {{XFUTURE, Mark::XFUTURE, "java", "-Xfuture"},
            {XPROF, Mark::XPROF, "java", "-Xprof"},
            {XRUNHPROF, Mark::XRUNHPROF, "java", "-Xrunhprof"},
            {COLLECTOR, Mark::COLLECTOR, "java", ""}};
}

void JavaPage::initialise(DialogWindow& window) {
  collector_.emplace(garbageCollectorOptions).attach(&window, COLLECTOR, -1);
  MarkedPage::initialise(window);
}

void JavaPage::detached() {
  MarkedPage::detached();
  collector_.reset();
}

void JavaPage::setText(int control, const std::string& text) {
  if (control == COLLECTOR && collector_)
    collector_->fromString(text);
  else
    MarkedPage::setText(control, text);
}

std::string JavaPage::getText(int control) const {
  return control == COLLECTOR && collector_ ? collector_->toString() : MarkedPage::getText(control);
}

void JavaPage::onSelectionChanged(int control) {
  if (control == COLLECTOR) collector_->selectIndex(window()->selection(control));
  showMarks();
}

std::string JavaPage::optionOf(const OptionMark& mark) const {
  if (mark.control != COLLECTOR) return mark.option;
  return collector_ ? collector_->option() : "";
}

void JavaPage::onCommand(int control) {
  if (control != SHOW_VERSION) return;
  try {
    showVersion();
  } catch (const Tarnwickexception& failure) {
    desktop_.message(failure.message);
  }
}

void JavaPage::showVersion() {
  // What stands in the field counts, not what is stored.
  // Deliberate: an empty field gives the root folder, so the message below is never reached; the attempt to run
  // \java.exe then tells the user.
  const std::string folder = toolsPage_.toolsFolder();
  if (folder.empty()) {
    desktop_.message(
        inSystemWords("Don't know where to look for java.exe. Please set tools .exe directory in common "
                      "parameters panel."));
    return;
  }
  Subprocess java(desktop_, context_.log, folder + platform::toolFileName("java"));
  java.addArg("java");
  java.addArg("-version");
  const RunResult result = java.run(nullptr, FileMode::Write);
  showEach(desktop_, result.failures);
  if (result.said) showEach(desktop_, showLog(context_.log, editors_()));
}

}  // namespace tarnwick
