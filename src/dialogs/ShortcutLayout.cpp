#include "dialogs/ShortcutLayout.h"

#include "dialogs/FormLine.h"
#include "resources/DialogLayout.h"
#include "resources/SystemWords.h"

namespace tarnwick {

using namespace layout;

namespace {

using Control = ShortcutControls;

constexpr int labelWidth = 16;
constexpr int fieldWidth = 44;
constexpr int folderWidth = 30;
/// With room for the longer of the texts that the rules give the button.
constexpr int createButtonWidth = 18;

DialogItem labelled(const std::string& text, int field) {
  return formLine(label(text).atLeast(labelWidth), edit(field, fieldWidth));
}

/// A place for a shortcut: its mark, and on a line of its own the folder.
DialogItem place(int box, const std::string& text, DialogItem folder, DialogItem browse) {
  return column({checkBox(box, text), row({std::move(folder).stretched(), std::move(browse)})});
}

DialogItem applicationRows() {
  return column({
      formLine(label("Java application\n(with arguments)").atLeast(labelWidth), edit(Control::APPLICATION, fieldWidth),
               {button(Control::BROWSE_APPLICATION, "Browse").named("Browse for the Java application")}),
      labelled("Shortcut name", Control::NAME),
      labelled("Description\n(optional)", Control::DESCRIPTION),
  });
}

DialogItem placementGroup() {
  return group(0, " Shortcut placement ",
               {
                   checkBox(Control::ON_DESKTOP, "Create shortcut on desktop"),
                   place(Control::IN_STARTMENU, inSystemWords("Create shortcut in startmenu"),
                         edit(Control::STARTMENU_FOLDER, folderWidth).named(inSystemWords("Folder in the startmenu")),
                         button(Control::BROWSE_STARTMENU, "Browse").named(inSystemWords("Browse the startmenu"))),
                   place(Control::IN_FOLDER, "Create shortcut in arbitrary location",
                         edit(Control::FOLDER, folderWidth).named("Folder for the shortcut"),
                         button(Control::BROWSE_FOLDER, "Browse").named("Browse for a folder")),
               });
}

DialogItem executionGroup() {
  return group(0, " Java application execution ",
               {
                   checkBox(Control::UNDER_CONTROL, "Execute under Tarnwick's control"),
                   row({checkBox(Control::WITHOUT_CONTROL, "Execute without Tarnwick"), space(),
                        button(Control::SETTINGS, "Settings")}),
               });
}

}  // namespace

const DialogLayout& shortcutLayout() {
  static const DialogLayout dialog = {
      196, inSystemWords("Create Windows shortcut to Java application"), false,
      column({
          applicationRows(),
          placementGroup(),
          executionGroup(),
          row({space(), button(Control::CREATE, "Create shortcuts").atLeast(createButtonWidth).asDefault(),
               button(Control::CLOSE, "Close"), button(Control::HELP, "Help")})
              .closing(),
      }),
      Control::APPLICATION};
  return dialog;
}

}  // namespace tarnwick
