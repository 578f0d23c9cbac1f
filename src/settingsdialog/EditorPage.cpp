#include "settingsdialog/EditorPage.h"

#include "dialogbase/Desktop.h"
#include "platform/Path.h"
#include "resources/SystemWords.h"
#include "settings/SettingsResources.h"
#include "settingsdialog/SettingsPageLayouts.h"

namespace tarnwick {

namespace {

enum Control {
  WITH_NOTEPAD = 1013,
  WITH_EDITOR = 1014,
  EDITOR = 1042,
  BROWSE = 1015,
  OPEN_ALL = 1153,
  CHOOSE_FILES = 1152,
  PLACE = 2110,
};

const char nameTip[] =
    "Tip:\nWhen you enter a file name such as xy.java\nsome editors change it to xy.java.txt.\n"
    "You can avoid this by enclosing the file name in quotes:\n\n\"xy.java\" instead of xy.java";

}  // namespace

EditorPage::EditorPage(Desktop& desktop, const TagRow* rows)
    : TabPage(desktop, EDITOR_PAGE, SETTINGS_DIALOG, editorPageLayout()) {
  tags_ = rows;
  bindings_ = {{WITH_NOTEPAD, &withNotepad_}, {OPEN_ALL, &openAll_}, {EDITOR, &editor_}, {PLACE, &place_}};
  toolTips_ = {
      {EDITOR, "File specification for editor exe/jar file"},
      {BROWSE, "Locate editor exe/jar file"},
      {WITH_NOTEPAD, inSystemWords("Use Windows Notepad as the java source file editor")},
      {WITH_EDITOR,
       "Use a user-defined editor for java source file editing. You must provide a file specification for your "
       "editor's exe/jar file."},
      {CHOOSE_FILES,
       "Clicking on the Edit button in the projectview will open a file dialog for selecting multiple java files to be "
       "opened by the editor."},
      {OPEN_ALL,
       "Clicking on the Edit button in the projectview will call the editor to open all java files known in the "
       "project's context."},
      {PLACE,
       "How your editor is told to open a file at a line: its arguments, with %f for the file, %l for the line and %c "
       "for the column. If this is empty, common editors are known by their names; any other gets the file alone."},
  };
}

void EditorPage::updateControls() {
  TabPage::updateControls();
  if (!initialised()) return;
  window()->setChecked(withNotepad_ ? WITH_NOTEPAD : WITH_EDITOR, true);
  window()->setChecked(openAll_ ? OPEN_ALL : CHOOSE_FILES, true);
  enableControl(EDITOR, !withNotepad_);
  enableControl(BROWSE, !withNotepad_);
  enableControl(PLACE, !withNotepad_);
}

void EditorPage::onCommand(int control) {
  if (control == WITH_NOTEPAD || control == WITH_EDITOR) {
    setCheck(WITH_NOTEPAD, control == WITH_NOTEPAD);
    desktop_.hint(nameTip);
  }
  if (control == OPEN_ALL || control == CHOOSE_FILES) setCheck(OPEN_ALL, control == OPEN_ALL);
  if (control == BROWSE) browse();
}

void EditorPage::browse() {
  FileRequest request;
  request.filter = inSystemWords("executable files and java archives|*.exe;*.com;*.jar||");
  request.startFolder = platform::startFolder("C:");
  request.name = inSystemWords("*.exe;*.com;*.jar");
  request.mustExist = true;
  if (const auto chosen = desktop_.openFile(request)) setText(EDITOR, *chosen);
}

}  // namespace tarnwick
