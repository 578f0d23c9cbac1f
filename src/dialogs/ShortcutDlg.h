#pragma once

#include "base/FileForSubprocess.h"
#include "dialogbase/ToolTipDlg.h"
#include "process/ShortcutMaker.h"

#include <string>

namespace tarnwick {

class Settings;

/// Makes shortcuts to a Java class or archive: on the desktop, in the start menu, in a folder.
class ShortcutDlg : public ToolTipDlg {
 public:
  explicit ShortcutDlg(Settings& settings);

  int runModal();

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void onTextChanged(int control) override;

 protected:
  /// "Create shortcuts". The dialog stays open.
  void onOk() override;

 private:
  void refresh();
  /// The two ways of execution exclude one another.
  void executionClicked(int box, int other);
  void applicationChanged();
  void nameChanged();
  void browseApplication();
  void browse(int field, const std::string& root);
  /// What stands in the field for the application: its path, and its arguments.
  const FileForSubprocess& application();
  /// Where the dialog for the application begins.
  std::string startFolder() const;
  bool holdsSomething(int field) const;
  platform::Shortcut gathered();
  void makeLinks(ShortcutMaker& maker);

  Settings& settings_;
  FileForSubprocess application_;
  /// The user has given a name of his own, which no longer follows the application.
  bool nameEdited_ = false;
};

}  // namespace tarnwick
