#pragma once

#include "dialogbase/TabbedDialog.h"

#include <memory>
#include <string>

namespace tarnwick {

class Settings;
struct EditorChoice;
struct FileRequest;
struct SettingsContext;

/// The dialog "Tarnwick settings": seven pages over the rows of the settings.
class SettingsDialog : public TabbedDialog {
 public:
  /// The settings outlive the dialog.
  explicit SettingsDialog(Settings& settings);
  ~SettingsDialog() override;

  /// Runs the dialog, opened on this page. Gives the dialog's result. Where it opens unasked, `reason` stands above the
  /// pages.
  int runModal(int page, const std::string& reason = "");
  /// Takes all values from the open pages.
  void collectPages();

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;

 protected:
  void onOk() override;
  void onTabChanged() override;

 private:
  struct Pages;

  /// What shows a log while the dialog is open: a window of our own could not be used beside it.
  EditorChoice editorsBesideDialog() const;
  /// "Save ...": the values of the pages go to a file of their own, and the live ones stay as they are.
  void saveSeparately();
  void saveTo(const std::string& path);
  /// "Load ...": the values of such a file go on the pages, and become the live ones with OK.
  void loadSeparate();
  void loadFrom(const std::string& path);
  FileRequest separateFileRequest() const;

  Settings& settings_;
  SettingsContext& context_;
  std::string reason_;
  std::unique_ptr<Pages> pages_;
};

}  // namespace tarnwick
