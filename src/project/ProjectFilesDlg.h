#pragma once

#include "dialogbase/ToolTipDlg.h"
#include "project/SourceFinder.h"

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

namespace tarnwick {

class ProjectContext;
class Settings;

/// Says which files belong to a project.
class ProjectFilesDlg : public ToolTipDlg {
 public:
  /// Looks at no more than about so many names in the folders below the project's.
  ProjectFilesDlg(Settings& settings, ProjectContext& project, std::size_t mostNames = SourceFinder::usualMost);

  int runModal();

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void onTextChanged(int control) override;

 protected:
  void onOk() override;
  void onCancel() override;

 private:
  using Names = std::unordered_set<std::string>;

  /// The names of one list, sorted. Those show that have each word of the filter.
  struct List {
    int control;
    int countLabel;
    std::string wordsIfEmpty;
    std::vector<std::string> names{};
    std::vector<std::string> shown{};
  };

  /// Both lists as project and folder are now; what was moved by hand is lost.
  void fillLists();
  /// The source and HTML files of the project's folder, and where the newer way reads sources the sources below it.
  std::vector<std::string> filesOfFolder();
  void showLists();
  void show(List& list);
  std::string countOf(const List& list) const;
  /// What there is to do about a list that shows no name.
  std::string wordsInEmpty(const List& list) const;
  /// The selected entries of one list go to the other.
  void move(List& from, List& to);
  void transfer(const Names& going, List& from, List& to);
  /// All sources that the right list shows go to the left one.
  void addAll();
  void selectAll(bool on);
  void createFile();
  /// Throws Tarnwickfile::FileNotOpenE. False after the message that there is more than one HTML file. Either way the
  /// project then stays as it was.
  bool takeMembers(const std::vector<std::string>& names);

  Settings& settings_;
  ProjectContext& project_;
  List members_;
  List others_;
  std::size_t mostNames_;
  bool foundAll_ = true;
  /// How many files have been made here.
  int createdCount_ = 0;
  std::string sourcesSnapshot_;
};

}  // namespace tarnwick
