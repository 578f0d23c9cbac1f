#pragma once

#include "app/PanelDlg.h"
#include "process/FileForSubprocess.h"
#include "resources/TemplateLayouts.h"

#include <string>

namespace tarnwick {

/// The panel that works on single files: one source, one class, one HTML file.
class FileView : public PanelDlg {
 public:
  FileView(Settings& settings, MainDialogEnd mainDialog);

  void initialise(DialogWindow& window) override;
  void detached() override;
  void onCommand(int control) override;
  void updateTitle() override;
  /// Takes what stands in the fields. True if the next start would show something else, as nothing has saved it yet.
  /// With an open project they are never shown again, and it is false.
  bool fieldsHaveChanged();

 protected:
  std::vector<int> ownControls() const override;
  void arrangeFlat(PanelPlaces& places) const override { arrangeFlatFileView(places); }
  void onTabChanged() override;
  using PanelDlg::onPageButton;
  void onPageButton(int page, int control) override;

 private:
  void bindFields(DialogWindow& window);
  void readFields();
  /// Makes sure that `file` names an existing file, or gets one from the user. False if the user gave none.
  bool prepareFile(const char* filter, FileForSubprocess& file);
  void browse(const char* filter, FileForSubprocess& file);
  /// Gives a name that the current folder completes its whole path, here and in the field.
  void complete(FileForSubprocess& file);
  bool askForFile(const char* filter, const std::string& startFolder, FileForSubprocess& file);
  /// Asks for a file that is to be made, or taken. False after Cancel.
  bool askForNewSource(NewSourceMode mode);
  void newSource();
  void editSource();
  void compileSource();
  void debugClass();
  void runClass();
  void runApplet(bool debugging);
  /// The class file of the field, or one that the user gives; false after the message that there is none.
  bool prepareClass();
  /// Dialogs for source and class open where the source lies from now on.
  void rememberSourceFolder();

  FileForSubprocess& sourceFile_;
  FileForSubprocess& classFile_;
  FileForSubprocess& htmlFile_;
};

}  // namespace tarnwick
