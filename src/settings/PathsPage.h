#pragma once

#include "dialogbase/TabbedDialog.h"

#include <string>

namespace tarnwick {

/// The settings page "Paths".
class PathsPage : public TabPage {
 public:
  PathsPage(Desktop& desktop, const TagRow* rows);

  void onCommand(int control) override;
  void updateControls() override;
  void loadFromTags() override;
  /// A list as the user typed it, in the form that settings keep.
  std::string getText(int control) const override;

 protected:
  /// In a list of paths, pasted lines are its elements.
  std::string fieldText(int control) const override;

 private:
  void copyFromEnvironment();

  int never_ = 0;
  int always_ = 0;
  std::string classpath_;
  std::string sourcepath_;
  std::string bootpath_;
  std::string extdirs_;
};

}  // namespace tarnwick
