// The five pages of the dialog "javadoc".
#pragma once

#include "settings/SettingsValues.h"
#include "settingsdialog/MarkedPage.h"
#include "tools/JavadocArguments.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// What the pages have in common. A field shows the end of what the rules put into it.
class JavadocPage : public MarkedPage {
 public:
  void setText(int control, const std::string& text) override { setFieldText(control, text); }
  /// A list of paths as the user typed it, in the form that settings keep.
  std::string getText(int control) const override;

 protected:
  /// `pathLists` are the fields with lists of paths. The settings outlive the page.
  JavadocPage(Desktop& desktop, SettingsValues& settings, const DialogLayout& layout, std::vector<int> pathLists);

  /// In a list of paths, pasted lines are its elements.
  std::string fieldText(int control) const override;
  JavadocValues& values() { return settings_.javadoc; }
  /// Asks for an existing file, beginning where `text` leads: it may be a folder or a file.
  std::optional<std::string> askForFile(const std::string& filter, const std::string& preset, const std::string& text);

 private:
  bool listsPaths(int control) const;

  SettingsValues& settings_;
  std::vector<int> pathLists_;
};

/// "source files".
class JavadocSourcesPage : public JavadocPage {
 public:
  /// `files` is the list that the page shows, and takes when it is stored. `projectFolder` is empty if there is no
  /// project.
  JavadocSourcesPage(Desktop& desktop, SettingsValues& settings, std::string& files, std::string projectFolder);

  void onCommand(int control) override;
  void loadFromTags() override;
  void storeToTags() override;

 private:
  void addFiles();

  std::string& files_;
  std::string projectFolder_;
  std::string lastFolder_;
};

/// "javadoc files and paths".
class JavadocPathsPage : public JavadocPage {
 public:
  /// The page shows the four paths of `run`, and takes them when it is stored.
  JavadocPathsPage(Desktop& desktop, SettingsValues& settings, JavadocRun& run);

  void onCommand(int control) override;
  void loadFromTags() override;
  void storeToTags() override;

 private:
  void browseDoclet();
  void browseOverview();

  JavadocRun& run_;
};

/// "javadoc options".
class JavadocOptionsPage : public JavadocPage {
 public:
  JavadocOptionsPage(Desktop& desktop, SettingsValues& settings);

  void onCommand(int control) override;
  void loadFromTags() override;
  void storeToTags() override;
};

/// "doclet files and paths".
class DocletPathsPage : public JavadocPage {
 public:
  DocletPathsPage(Desktop& desktop, SettingsValues& settings);

  void onCommand(int control) override;

 private:
  void browseFile(int field, const std::string& filter, const std::string& preset);
  void addTaglet();
};

/// "doclet options": fields and marks, and no rules.
class DocletOptionsPage : public JavadocPage {
 public:
  DocletOptionsPage(Desktop& desktop, SettingsValues& settings);
};

}  // namespace tarnwick
