#pragma once

#include "base/TagTable.h"
#include "settings/SettingsValues.h"

#include <memory>
#include <string>

namespace tarnwick {

class OpenProject;
struct EditorChoice;
struct FileNotOpenE;
struct SettingsContext;

/// The one store of all settings. One object lives as long as the application; others are made for a moment, to look
/// into the default configuration without disturbing it.
class Settings : public SettingsValues, public TagTable {
 public:
  /// Holds the defaults; reads nothing. The context outlives the object.
  explicit Settings(SettingsContext& context);
  ~Settings() override;

  /// All values to their defaults, but for the files of the file view and the version, which keep what they hold.
  void resetAll();

  /// Reads the default configuration, from beside the program if there is none in its own place. `status` gets
  /// ReadStatus bits; READ_FILE_LOST if neither can be opened.
  void readDefaultConfiguration(int& status);
  /// Reads a configuration and tells of settings that don't go together. Throws Tarnwickfile::FileNotOpenE.
  void readConfiguration(int& status, Tarnwickfile& file);
  /// Saves to the default configuration. A failure goes to the context's `onSaveFailed`, a value that can't be written
  /// to its `tell`; nothing is thrown.
  void saveDefaultConfiguration();
  /// Writes what the default configuration would get to a file that the caller has opened. A failure goes to the
  /// context's `onSaveFailed` all the same. Throws LineEndE, and has written nothing then.
  void saveInto(Tarnwickfile& file);
  /// Saves to the open project, or to the default configuration.
  void saveCurrent();
  /// Saves as `saveCurrent` does if the main window is not where it was at the last save; otherwise does nothing.
  void saveIfWindowMoved();

  /// The value for `-classpath`; empty means that none is given.
  std::string effectiveClasspath() const;
  /// Puts the user's class path into the form that keeps the current folder on it.
  void normaliseClasspath();

  /// The settings that choose the editor.
  EditorChoice editorChoice() const;
  /// The default configuration's file. When one object leads the user to another folder, that holds for all of them.
  std::string configPath() const;
  SettingsContext& context() const { return context_; }

  /// What is told where -g and -O are both on.
  static const char* debugWithFastcodeWarning();

  /// The open project, or null.
  std::unique_ptr<OpenProject> currentProject;

 private:
  /// What every save does first.
  void prepareToSave();
  void writeDefaultConfiguration();
  void tellFailedSave(const FileNotOpenE& failure);

  SettingsContext& context_;
};

}  // namespace tarnwick
