#include "settingsdialog/SettingsPageLayouts.h"

#include "resources/DialogLayout.h"
#include "resources/SystemWords.h"
#include "settingsdialog/MarkedPage.h"

namespace tarnwick {

using namespace layout;

namespace {

/// A box that takes one of a few words, and below it a field for the user's own.
DialogItem choiceGroup(const std::string& title, int comboBox, std::vector<std::string> entries, int field,
                       int markOfChoice) {
  const std::string name = title.substr(1, title.size() - 2) + " option";
  return group(0, title,
               {layout::comboBox(comboBox, std::move(entries)).named(name),
                edit(field, 16).named(name + ", user-defined"), optionMark(markOfChoice)});
}

DialogItem javacOptions() {
  return column({
      group(0, " Options ",
            {checkBox(1026, "Create debug\ntables (-g)"), checkBox(1024, "Fast code (-O)"),
             checkBox(1044, "-deprecation"), checkBox(1027, "-verbose")}),
      group(0, " Sounds ",
            {checkBox(1021, inSystemWords("After successful compilation\n(Asterisk)")),
             checkBox(1022, inSystemWords("After compilation with\ndiagnostics\n(Exclamation)"))})
          .stretched(),
  });
}

/// The boxes of the older compilers and the newer ones never show together.
DialogItem javacWarnings() {
  return group(0, " Warnings ",
               {
                   comboBox(1269, {"Pre-JDK 1.4", "JDK 1.4", "JDK 1.5"}).named("JDK version of the warnings"),
                   layers({checkBox(1264, "Conversions"), checkBox(1270, "no warnings")}),
                   layers({checkBox(1265, "Path"), checkBox(1271, "switchcheck")}),
                   layers({checkBox(1266, "Serialization"), optionMark(Mark::SWITCHCHECK)}),
                   checkBox(1267, "Finally"),
                   checkBox(1268, "Switch"),
               });
}

/// A key of the programmable ones.
DialogItem keyRow(const std::string& key, int field) {
  return row({label(key), edit(field, 24).stretched()});
}

/// One path list: its field, and what adds to it and empties it.
DialogItem pathRow(const std::string& option, int field, int add, int clear, int markOfOption = 0) {
  std::vector<DialogItem> items = {label(option).atLeast(14), edit(field, 48).listingPaths().stretched()};
  if (markOfOption != 0) items.push_back(optionMark(markOfOption));
  items.push_back(button(add, "Add...").named("Add to " + option));
  items.push_back(button(clear, "Clear").named("Clear " + option));
  return row(std::move(items)).withEqualWidths();
}

}  // namespace

const DialogLayout& javacPageLayout() {
  static const DialogLayout page = {
      145, "", false,
      column({
          row({
              javacOptions(),
              javacWarnings().stretched(),
              column({
                         choiceGroup(" Source ", 1179, {"Default", "1.3", "1.4", "1.5", "User-defined"}, 1186,
                                     Mark::SOURCE),
                         choiceGroup(" Target ", 1028, {"Default", "1.1", "1.2", "1.3", "1.4", "1.5", "User-defined"},
                                     1122, Mark::TARGET),
                     })
                  .stretched(),
          }),
          row({label("Destination directory"), edit(1040, 40).stretched(), button(1007, "Browse")}),
          row({label("J option"), edit(1117, 40).stretched()}),
          row({label("More options"), edit(2103, 40).stretched()}),
          row({checkBox(2101, "Newer Java (generics, enums, records ...)"),
               checkBox(2102, "Compile a project's sources in one run")}),
      }),
      0};
  return page;
}

const DialogLayout& javaPageLayout() {
  static const DialogLayout page = {
      146, "", false,
      column({
          group(0, " Options ",
                {
                    row({checkBox(1032, "-verbose"), checkBox(1123, "-Xfuture"), optionMark(Mark::XFUTURE),
                         checkBox(1124, "-Xprof"), optionMark(Mark::XPROF), checkBox(1125, "JNI validation"), space(),
                         button(1157, "Show java version")}),
                }),
          group(0, " Memory ",
                {
                    row({label("-Xms"), edit(1129, 8), label("-Xmx"), edit(1130, 8), label("-Xss"), edit(1131, 8),
                         space(), label("Garbage collector"),
                         comboBox(1184, {"Default", "Disabled", "Incremental", "Concurrent"}),
                         optionMark(Mark::COLLECTOR)}),
                }),
          row({label("-Xrunhprof"), edit(1126, 40).stretched(), optionMark(Mark::XRUNHPROF)}),
          row({label("-D (property=value)"), edit(1031, 40).stretched()}),
          row({label("More options"), edit(2104, 40).stretched()}),
          checkBox(2131, "A console of today (colours, keys, lines sent as seen)"),
          group(0, " Assertions ",
                {
                    row({label("Enabled:"), checkBox(1182, "System").named("Enabled: System"), label("Classes"),
                         edit(1180, 40).named("Enabled: Classes").stretched()}),
                    row({label("Disabled:"), checkBox(1183, "System").named("Disabled: System"), label("Classes"),
                         edit(1181, 40).named("Disabled: Classes").stretched()}),
                }),
      }),
      0};
  return page;
}

const DialogLayout& jdbPageLayout() {
  static const DialogLayout page = {
      173, "", false,
      column({
          checkBox(1125, "launch option"),
          checkBox(2160, "The program has its own input and output"),
          group(
              0, " Programmable function keys ",
              {
                  row({label("Together with"), checkBox(1261, "Shift"), checkBox(1262, "Ctrl"), checkBox(1263, "Alt"),
                       space()}),
                  row({
                      column({keyRow("F5", 1158), keyRow("F6", 1162), keyRow("F7", 1163), keyRow("F8", 1164)})
                          .stretched(),
                      column({keyRow("F9", 1166), keyRow("F10", 1167), keyRow("F11", 1168), keyRow("F12", 1169)})
                          .stretched(),
                  }),
                  label("A text that ends in \\n is sent at once; any other waits on the input line to be completed."),
              }),
      }),
      0};
  return page;
}

const DialogLayout& appletviewerPageLayout() {
  static const DialogLayout page = {147, "", false,
                                    column({
                                        label("appletviewer: not in JDK 25", Mark::APPLETVIEWER).hiddenAtFirst(),
                                        row({label("-J (java option)"), edit(1033, 40).stretched()}),
                                        row({label("html encoding"), edit(1034, 40).stretched()}),
                                    }),
                                    0};
  return page;
}

const DialogLayout& editorPageLayout() {
  static const DialogLayout page = {
      143, "", false,
      column({
          group(0, " Edit source files with ",
                {row({radioButton(1013, inSystemWords("Notepad")), radioButton(1014, "some other editor"),
                      edit(1042, 36).named("Editor file").stretched(), button(1015, "Browse")}),
                 row({label("Arguments that open a line"), edit(2110, 24).stretched()})}),
          group(0, " Edit button in the Projectview ",
                {radioButton(1153, "Single-click open all project files"),
                 radioButton(1152, "Multiple-select file dialog")}),
      }),
      0};
  return page;
}

const DialogLayout& pathsPageLayout() {
  static const DialogLayout page = {
      184, "", false,
      column({
          group(0, " Classpath ",
                {
                    pathRow("-classpath", 1029, 1065, 1066),
                    row({checkBox(1138, "Never use CLASSPATH"), checkBox(1139, "Always use CLASSPATH"), space(),
                         button(1137, "Copy CLASSPATH environment variable")}),
                }),
          group(0, " Other paths ",
                {
                    pathRow("-sourcepath", 1039, 1067, 1068),
                    pathRow("-bootclasspath", 1043, 1069, 1070, Mark::BOOTPATH),
                    pathRow("-extdirs", 1045, 1071, 1072, Mark::EXTDIRS),
                }),
      }),
      0};
  return page;
}

}  // namespace tarnwick
