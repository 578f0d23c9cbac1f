#pragma once

#include "base/TagTable.h"
#include "dialogbase/TabbedDialog.h"
#include "process/EditorLaunch.h"
#include "settings/AppletviewerPage.h"
#include "settings/EditorPage.h"
#include "settings/JavaPage.h"
#include "settings/JavacPage.h"
#include "settings/JdbPage.h"
#include "settings/OpenProject.h"
#include "settings/PathsPage.h"
#include "settings/SettingsContext.h"
#include "settings/SettingsValues.h"
#include "settings/ToolsPage.h"

#include <memory>
#include <string>

namespace tarnwick {

/// The one store of all settings, and at the same time the settings dialog. One object lives as long as the
/// application; others are made for a moment, to look into the default configuration without disturbing it.
class Settings : public SettingsValues, public TabbedDialog, public TagTable {
 public:
  /// Holds the defaults; reads nothing. The context outlives the object.
  explicit Settings(SettingsContext& context);

  /// All values to their defaults, but for the files of the file view and the version, which keep what they hold.
  void resetAll();

  /// Reads the default configuration, from beside the program if there is none in its own place. `status` gets
  /// ReadStatus bits; READ_FILE_LOST if neither can be opened.
  void readDefaultConfiguration(int& status);
  /// Reads a configuration and warns about settings that don't go together. Throws Tarnwickfile::FileNotOpenE.
  void readConfiguration(int& status, Tarnwickfile& file);
  /// Saves to the default configuration, or to `file`, which the caller has opened. A failure leads the user to
  /// another folder; it is shown here, and nothing is thrown but LineEndE where there is a `file`: nothing has been
  /// written to it then.
  void saveDefaultConfiguration(Tarnwickfile* file);
  /// Saves to the open project, or to the default configuration.
  void saveCurrent();
  /// Saves as `saveCurrent` does if the main window is not where it was at the last save; otherwise does nothing.
  void saveIfWindowMoved();

  /// The value for `-classpath`; empty means that none is given.
  std::string effectiveClasspath() const;
  /// Puts the user's class path into the form that keeps the current folder on it.
  void normaliseClasspath();

  /// Runs the settings dialog, opened on this page. Gives the dialog's result. Where it opens unasked, `reason` stands
  /// above the pages.
  int runModal(int page, const std::string& reason = "");
  /// Takes all values from the open pages.
  void collectPages();

  /// The three settings that choose the editor.
  EditorChoice editorChoice() const;
  /// The default configuration's file. When one object leads the user to another folder, that holds for all of them.
  std::string configPath() const;
  SettingsContext& context() const { return context_; }

  /// The open project, or null.
  std::unique_ptr<OpenProject> currentProject;

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;

 protected:
  void onOk() override;

 private:
  void writeTo(Tarnwickfile* file);
  /// "Save ...": the values of the pages go to a file of their own, and the live ones stay as they are.
  void saveSeparately();
  void saveTo(const std::string& path);
  /// "Load ...": the values of such a file go on the pages, and become the live ones with OK.
  void loadSeparate();
  void loadFrom(const std::string& path);
  FileRequest separateFileRequest() const;
  void recoverFromFailedSave(const Tarnwickfile::FileNotOpenE& failure);
  /// The warning about -g with -O; the text of both its boxes.
  static const char* debugWithFastcodeWarning();

  SettingsContext& context_;
  std::string reason_;
  ToolsPage toolsPage_;
  JavacPage javacPage_;
  JavaPage javaPage_;
  JdbPage jdbPage_;
  AppletviewerPage appletviewerPage_;
  EditorPage editorPage_;
  PathsPage pathsPage_;
};

}  // namespace tarnwick
