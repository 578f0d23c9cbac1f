#include "dialogs/JarLayout.h"

#include "dialogs/FormLine.h"
#include "resources/DialogLayout.h"

namespace tarnwick {

using namespace layout;

namespace {

constexpr int labelWidth = 12;
constexpr int fieldWidth = 36;
/// With room for the longest of the texts that the rules give the button.
constexpr int runButtonWidth = 20;

DialogItem line(const std::string& text, int field, std::vector<DialogItem> buttons) {
  return formLine(label(text).atLeast(labelWidth), edit(field, fieldWidth), std::move(buttons));
}

DialogItem archiveGroup() {
  return group(0, " Select archive ",
               {
                   row({button(Jar::CREATE_ARCHIVE, "Create new archive"),
                        button(Jar::UPDATE_ARCHIVE, "Update existing archive"), space()}),
                   edit(Jar::ARCHIVE, fieldWidth).showingOnly().named("Archive"),
               });
}

DialogItem contentsGroup() {
  return group(0, " Select contents ",
               {
                   line("Base folder", Jar::BASE_FOLDER,
                        {button(Jar::BROWSE_BASE_FOLDER, "Browse").named("Browse for the base folder")}),
                   checkBox(Jar::ALL_FILES, "Add all files,\nincluding all subfolders"),
                   line("Individual\nfiles", Jar::INDIVIDUAL_FILES,
                        {button(Jar::SELECT_FILES, "Select...").named("Select individual files"),
                         button(Jar::CLEAR_FILES, "Clear").named("Clear individual files")}),
                   line("Complete\nsubfolders", Jar::SUBFOLDERS,
                        {button(Jar::ADD_ALL_SUBFOLDERS, "Add all").named("Add all subfolders"),
                         button(Jar::SELECT_SUBFOLDERS, "Select...").named("Select subfolders"),
                         button(Jar::CLEAR_SUBFOLDERS, "Clear").named("Clear subfolders")}),
               });
}

DialogItem manifestGroup() {
  return group(0, " Manifest ",
               {
                   checkBox(Jar::NO_MANIFEST, "Don't create manifest"),
                   line("Manifest\ninput file", Jar::MANIFEST_FILE,
                        {button(Jar::BROWSE_MANIFEST, "Browse").named("Browse for a manifest file")}),
                   line("Main\nClass", Jar::MAIN_CLASS, {}),
                   line("Class\nPath", Jar::CLASS_PATH,
                        {button(Jar::ADD_TO_CLASS_PATH, "Add...").named("Add to Class Path"),
                         button(Jar::CLEAR_CLASS_PATH, "Clear").named("Clear Class Path")}),
               });
}

DialogItem optionsGroup() {
  return group(0, " Archive options ",
               {
                   checkBox(Jar::VERBOSE, "verbose"),
                   checkBox(Jar::NO_COMPRESSION, "no ZIP compression"),
                   checkBox(Jar::OPEN_AS_ZIP, "Open jar archive as zip after jar operation"),
               });
}

DialogItem runGroup() {
  return group(
      0, " Run jar ",
      {
          row({button(Jar::RUN, "Run jar").atLeast(runButtonWidth).asDefault(),
               button(Jar::CREATE_INDEX, "Create index")})
              .withEqualWidths(),
          row({button(Jar::HELP, "Help").atLeast(runButtonWidth), button(Jar::CANCEL, "Cancel")}).withEqualWidths(),
      });
}

}  // namespace

const DialogLayout& jarLayout() {
  static const DialogLayout dialog = {
      191, "jar", false,
      column({archiveGroup(), contentsGroup(), manifestGroup(), row({optionsGroup().stretched(), runGroup()})}),
      Jar::ARCHIVE};
  return dialog;
}

const DialogLayout& selectSubdirectoryLayout() {
  static const DialogLayout dialog = {
      192, "Select folder", false,
      column({
          listBox(SelectSubdirectory::FOLDERS, 36).linesHigh(12).selectingSeveral().named("Subfolders").stretched(),
          row({space(), button(SelectSubdirectory::OK, "OK").asDefault(), button(SelectSubdirectory::CANCEL, "Cancel")})
              .closing(),
      }),
      SelectSubdirectory::FOLDERS};
  return dialog;
}

}  // namespace tarnwick
