#pragma once

#include "app/CompileForUser.h"
#include "app/FileField.h"
#include "app/PanelDlg.h"
#include "base/Filename.h"
#include "resources/TemplateLayouts.h"

#include <optional>
#include <string>

namespace tarnwick {

/// The panel that works on single files: one source, one class, one HTML file.
class FileView : public PanelDlg {
 public:
  FileView(Settings& settings, MainDialog mainDialog);

  void initialise(DialogWindow& window) override;
  void detached() override;
  void onCommand(int control) override;
  void onSelectionChanged(int control) override;
  void onPageFileChosen() override;
  void updateTitle() override;
  /// Takes what stands in the fields. True if the next start would show something else, as nothing has saved it yet.
  /// With an open project they are never shown again, and it is false.
  bool fieldsHaveChanged();
  /// The fields show their files anew.
  void showFiles();
  void emptyFields();
  /// Shows a source, a class file, an archive or a page with an applet in its field.
  void takeFile(const std::string& path);

 protected:
  std::vector<int> ownControls() const override;
  void arrangeFlat(PanelPlaces& places) const override { arrangeFlatFileView(places); }
  void onTabChanged() override;
  using PanelDlg::onPageButton;
  void onPageButton(int page, int control) override;
  void compileAndRun() override;
  void makeShortcut() override;

 private:
  void bindFields(DialogWindow& window);
  void readFields();
  /// The fields let the user choose among the last files of the present settings.
  void offerLastFiles();
  /// Makes sure that the field names an existing file, or gets one from the user. False if the user gave none.
  bool prepareFile(const char* filter, FileField& field);
  void browse(const char* filter, FileField& field);
  /// Gives a name that the current folder completes its whole path, here and in the field.
  void complete(FileField& field);
  bool askForFile(const char* filter, const std::string& startFolder, FileField& field);
  /// Asks for a file that is to be made, or taken. False after Cancel.
  bool askForNewSource(NewSourceMode mode);
  void newSource();
  void editSource();
  /// True if the compiler had nothing to say.
  bool compileSource();
  /// The class's field takes the class in which the compiled source begins, if it was empty or held that of the source
  /// before.
  void showCompiledClass();
  CompileEnd compileFile();
  /// Compiles the source, where one is named, unless its classes are current. False if there was something to say.
  bool bringUpToDate();
  void debugClass();
  void runClass();
  void runApplet(bool debugging);
  /// What "java" takes: the newer way archives, too.
  const char* runFilter() const;
  /// The class file of the field, or one that the user gives; false after the message that there is none.
  bool prepareClass();
  /// Dialogs for source and class open where the source lies from now on.
  void rememberSourceFolder();

  FileForSubprocess& sourceFile_;
  FileForSubprocess& classFile_;
  FileForSubprocess& htmlFile_;
  FileField sourceField_;
  FileField classField_;
  FileField htmlField_;
  Filename storedSource_;
  /// What the class's field was given last; until something is compiled, the class of the stored source counts as that.
  std::optional<std::string> givenClass_;
};

}  // namespace tarnwick
