#pragma once

#include "base/TempFile.h"
#include "dialogs/JavadocPages.h"
#include "tools/JavadocArguments.h"

#include <memory>
#include <string>
#include <vector>

namespace tarnwick {

class Settings;

/// Gathers everything for one run of `javadoc`, on five pages. The options go into the settings and are saved when
/// "Run javadoc" is pressed; four paths are for this run alone. The source files are written to a list that lives as
/// long as this object; the run itself is somebody else's.
class JavadocDlg : public TabbedDialog {
 public:
  /// `inputFiles` is the list of source files that the dialog starts with.
  JavadocDlg(Settings& settings, std::string inputFiles);

  int runModal();

  /// What was gathered beside the settings.
  JavadocRun run() const;
  /// The list of source files as it was run.
  const std::string& inputFiles() const { return inputFiles_; }

  void onCommand(int control) override;

 protected:
  /// "Run javadoc".
  void onOk() override;

 private:
  void storePages();
  /// Writes the list of files or, where it can't hold them, makes the text that takes its place. Throws
  /// Tarnwickfile::FileNotOpenE.
  void gather();
  /// False if some name needs the other way. The working folder follows the source path where a name asks for that.
  bool writeList(const std::vector<std::string>& names);
  /// True if the file can be read, as it stands or from the source path.
  bool reach(const std::string& name) const;
  /// False after the message that the files are too many.
  bool fitsOneCommandLine();

  Settings& settings_;
  JavadocRun run_;
  std::string inputFiles_;
  std::unique_ptr<TempFile> listFile_;
  JavadocSourcesPage sourcesPage_;
  JavadocPathsPage pathsPage_;
  JavadocOptionsPage optionsPage_;
  DocletPathsPage docletPathsPage_;
  DocletOptionsPage docletOptionsPage_;
};

}  // namespace tarnwick
