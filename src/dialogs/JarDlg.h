#pragma once

#include "dialogbase/ToolTipDlg.h"
#include "platform/Trash.h"
#include "tools/JarArguments.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

class Settings;
class TempFile;
class WinApp;

/// What is said of a base folder that can't be entered.
extern const char invalidBaseFolder[];

/// What is kept of the dialog "jar" from one run to the next, and stands in no file.
struct JarSwitches {
  bool verbose = false;
  bool noCompression = false;
  bool noManifest = false;
};

/// What the dialog and its run need beside the settings.
struct JarSession {
  JarSwitches switches;
  /// What opens ".ZIP" files here; null or without a command text if nothing does.
  const WinApp* zipApplication = nullptr;
  /// Puts a copy of a file into the system's trash.
  std::function<bool(const std::string& path)> copyToTrash = platform::copyToTrash;
};

/// Gathers everything for one run of `jar`. Creating an archive is chosen by making the file, and the lines of a
/// manifest are written to a file that lives as long as this object; the run itself is somebody else's.
class JarDlg : public ToolTipDlg {
 public:
  /// Starts with the saved archive and base folder; with a project open, with the folder of its classes. `session`
  /// outlives the dialog.
  JarDlg(Settings& settings, const JarSession& session);
  ~JarDlg() override;

  int runModal();

  /// What was gathered.
  JarRun run() const;
  /// The archive's path, as it was chosen; empty if there is none.
  const std::string& archive() const { return run_.archive; }
  /// The base folder as it stands in its field.
  const std::string& baseFolder() const { return baseFolder_; }
  bool openAsZip() const { return openAsZip_; }
  JarSwitches switches() const { return {run_.verbose, run_.noCompression, run_.noManifest}; }

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void onTextChanged(int control) override;

 protected:
  /// "Run jar".
  void onOk() override;

 private:
  void showStart();
  void refresh();
  void applyManifestRules();
  void selectArchive(JarOperation operation);
  /// The file dialog's answer.
  std::optional<std::string> askForArchive(JarOperation operation);
  void browseBaseFolder();
  void baseFolderChanged();
  void allFilesChanged();
  void listChanged(int list);
  /// Puts names into one of the two lists; false after the message that they are too long for it.
  bool fillList(int list, const std::string& text);
  void clearList(int list);
  void enableLists(bool on);
  void selectFiles();
  void addAllSubfolders();
  void selectSubfolders();
  void browseManifest();
  void createIndex();
  void takeFields();
  /// The lines that Main Class and Class Path make.
  std::string generatedManifest() const;
  /// Writes them, if there are any.
  void writeManifest();
  /// False after the message that the files are too many.
  bool fitsOneCommandLine();
  /// The field's text as it stands; the empty text if it holds nothing but blanks.
  std::string textUnlessBlank(int field) const;
  /// The base folder as its field has it now, without blanks and quotes around it.
  std::string typedBaseFolder() const;
  /// The first of these and of the base folder that can be entered.
  std::string startFolder(const std::string& preferred) const;

  Settings& settings_;
  const JarSession& session_;
  JarRun run_;
  std::string baseFolder_;
  bool openAsZip_;
  std::unique_ptr<TempFile> tempManifest_;
};

}  // namespace tarnwick
