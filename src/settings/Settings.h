#pragma once

#include "base/TagTable.h"
#include "dialogbase/TabbedDialog.h"
#include "process/EditorLaunch.h"
#include "settings/OpenProject.h"
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
  explicit Settings(SettingsContext& context);

  /// All values to their defaults, but for the files of the file view and the version, which keep what they hold.
  void resetAll();

  /// Reads the default configuration, from beside the program if there is none in its own place. `status` gets
  /// ReadStatus bits; READ_FILE_LOST if neither can be opened.
  void readDefaultConfiguration(int& status);
  /// Reads a configuration and warns about settings that don't go together. Throws Tarnwickfile::FileNotOpenE.
  void readConfiguration(int& status, Tarnwickfile& file);
  /// Saves to the default configuration, or to `file`, which the caller has opened. A failure leads the user to
  /// another folder; it is shown here, and nothing is thrown.
  void saveDefaultConfiguration(Tarnwickfile* file);
  /// Saves to the open project, or to the default configuration.
  void saveCurrent();
  void saveIfWindowMoved();

  /// The value for `-classpath`; empty means that none is given.
  std::string effectiveClasspath() const;
  void normaliseClasspath();

  /// Runs the settings dialog, opened on this page. Gives the dialog's result.
  int runModal(int page);
  /// Takes all values from the open pages.
  void collectPages();

  EditorChoice editorChoice() const;
  const std::string& configPath() const { return configPath_; }
  SettingsContext& context() { return context_; }

  /// The open project, or null.
  std::unique_ptr<OpenProject> currentProject;

  void initialise(DialogWindow& window) override;

 protected:
  void onOk() override;

 private:
  void writeTo(Tarnwickfile* file);
  void recoverFromFailedSave(const Tarnwickfile::FileNotOpenE& failure);
  /// The warning about -g with -O; the text of both its boxes.
  static const char* debugWithFastcodeWarning();

  SettingsContext& context_;
  std::string configPath_;
  ToolsPage toolsPage_;
};

}  // namespace tarnwick
