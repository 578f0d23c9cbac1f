#pragma once

#include "dialogbase/ToolTipDlg.h"
#include "resources/TemplateLayouts.h"
#include "templates/TemplateList.h"

#include <optional>
#include <string>

namespace tarnwick {

class FileForSubprocess;
class Settings;

/// Creates a source file from a template.
class NewSourceFileDlg : public ToolTipDlg {
 public:
  /// `file` is the caller's, who wants to go on with the new file; may be null. `projectFolder` is where a typed name
  /// lies; needed in a project only.
  NewSourceFileDlg(Settings& settings, NewSourceMode mode, FileForSubprocess* file, std::string projectFolder = "");

  int runModal();
  /// The new file; empty unless one was created.
  const std::string& createdFile() const { return createdFile_; }

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void onTextChanged(int control) override;

 protected:
  /// "Create sourcefile".
  void onOk() override;

 private:
  void showTemplates();
  void addTemplate();
  void takeExisting();
  /// The new file's path. Nothing if the dialog stays open, or was closed with Cancel.
  std::optional<std::string> targetPath();
  std::optional<std::string> pathFromSaveDialog();
  std::optional<std::string> pathInProject();
  /// Makes the folders that the name begins with: read the newer way, a project has sources in such.
  std::string pathBelowProject(const std::string& name);
  bool mayWrite(const std::string& path);
  /// Throws Tarnwickfile::FileNotOpenE.
  void create(const std::string& path);
  /// The text of the chosen template. Nothing after a message about a template that can't be read.
  std::optional<std::string> templateText();
  std::string userDefinedText(const std::string& path);

  Settings& settings_;
  NewSourceMode mode_;
  TemplateList templates_;
  FileForSubprocess* file_;
  std::string projectFolder_;
  std::string createdFile_;
};

}  // namespace tarnwick
