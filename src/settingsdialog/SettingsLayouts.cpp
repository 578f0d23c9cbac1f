#include "settingsdialog/SettingsLayouts.h"

#include "resources/DialogLayout.h"
#include "resources/SystemWords.h"

namespace tarnwick {

using namespace layout;

const DialogLayout& settingsLayout() {
  static const DialogLayout dialog = {
      148, "Tarnwick settings", false,
      column({
          label("", 2003).collapsing(),
          tabs(1092),
          row({
              group(0, " individual configurations ", {row({button(1036, "Save ..."), button(1037, "Load ...")})}),
              space(),
              row({button(IDOK_CONTROL, "OK").asDefault(), button(IDCANCEL_CONTROL, "Cancel"), button(1168, "Help"),
                   button(1038, "About ...")})
                  .closing(),
          }),
      }),
      0};
  return dialog;
}

const DialogLayout& toolsPageLayout() {
  static const DialogLayout page = {
      144, "", false,
      column({
          group(0, inSystemWords(" Tools .exe directory "),
                {
                    label(inSystemWords("Folder of javac.exe, java.exe and the other tools of the JDK")),
                    row({edit(1041, 48).named(inSystemWords("Tools .exe directory")).stretched(),
                         button(1006, "Browse")}),
                    label("Several JDKs were found. Choose one, or browse for another:", 2001).collapsing(),
                    listBox(2002, 48).linesHigh(4).collapsing(),
                }),
          group(0, " Display diagnostics with ",
                {row({radioButton(1017, inSystemWords("Notepad")), radioButton(1018, "Sourcecode editor"),
                      radioButton(2111, "Messages window"), space()})}),
          checkBox(2120, "Show a tool that runs long, with a way to stop it"),
          checkBox(2150, "Status line (what runs, how it ended, project and configuration)"),
          checkBox(2170, "Tools run without a console window of their own").collapsing(),
          group(0, " Create a shortcut to Tarnwick ",
                {row({button(1204, "On Desktop"), button(1205, inSystemWords("In Startmenu ...")), space()})}),
      }),
      1041};
  return page;
}

const DialogLayout& alternateLocationLayout() {
  static const DialogLayout dialog = {
      183, "", false,
      column({
          label("Tarnwick could not write configuration data to the default location:", 1167),
          label("You can define an alternate location for saving the configuration: Press the Browse button!"),
          label("", 1165),
          label(inSystemWords(
              "For a permanent definition please update your system's environment settings or AUTOEXEC.BAT, "
              "depending on your Windows version. Consult Tarnwick's usersguide.htm for more information.")),
          row({space(), button(1164, "Browse").asDefault(), button(IDCANCEL_CONTROL, "Cancel")}).closing(),
      }),
      1164};
  return dialog;
}

}  // namespace tarnwick
