#include "resources/ProjectLayouts.h"

#include "resources/DialogLayout.h"
#include "resources/SystemWords.h"

namespace tarnwick {

using namespace layout;

const DialogLayout& selectProjectLayout() {
  static const DialogLayout dialog = {
      171, "Select existing project", false,
      column({
          row({comboBox(RECENT_LIST, {}).atLeast(44).named("Recent projects").stretched(),
               button(BROWSE_PROJECT, "Browse")}),
          button(
              REGISTER_TYPE,
              inSystemWords(
                  "Click here to make Tarnwick the default program for\nopening .twp files (Explorer double-click)")),
          row({space(), button(IDOK_CONTROL, "OK").asDefault(), button(IDCANCEL_CONTROL, "Cancel")}).closing(),
      }),
      RECENT_LIST};
  return dialog;
}

const DialogLayout& projectFilesLayout() {
  static const DialogLayout dialog = {
      172, "Define which files belong to the project", false,
      column({
          row({label("Show names with"), edit(FILES_FILTER, 24).stretched()}),
          row({
              column({label("Project files"), listBox(PROJECT_FILES, 46).linesHigh(14).selectingSeveral().stretched(),
                      label("", PROJECT_FILES_COUNT).atLeast(30)})
                  .stretched(),
              column({space(), button(ADD_FILES, "<--").named("Add selected files to project"),
                      button(REMOVE_FILES, "-->").named("Remove selected files from project"),
                      button(ADD_ALL_FILES, "Add all"), space(), button(SELECT_ALL_FILES, "Select all"),
                      button(SELECT_NO_FILES, "Select none"), space()})
                  .withEqualWidths(),
              column({label("Other java/html files in directory"),
                      listBox(OTHER_FILES, 46).linesHigh(14).selectingSeveral().stretched(),
                      label("", OTHER_FILES_COUNT).atLeast(30)})
                  .stretched(),
          }),
          row({button(CREATE_FILE, "Create new file ....")}),
          checkBox(ALLOW_MULTIPLE_MAIN, "Allow 'public static void main' in multiple classes"),
          row({space(), button(IDOK_CONTROL, "OK").asDefault(), button(IDCANCEL_CONTROL, "Cancel"),
               button(PROJECT_FILES_HELP, "Help")})
              .closing(),
      }),
      PROJECT_FILES};
  return dialog;
}

const DialogLayout& mainClassLayout() {
  static const DialogLayout dialog = {
      173, "Select class with main()", false,
      column({
          listBox(CLASS_LIST, 36).linesHigh(12).named("Classes").stretched(),
          row({space(), button(IDOK_CONTROL, "OK").asDefault(), button(IDCANCEL_CONTROL, "Cancel")}).closing(),
      }),
      CLASS_LIST};
  return dialog;
}

}  // namespace tarnwick
