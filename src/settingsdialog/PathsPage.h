#pragma once

#include "settingsdialog/MarkedPage.h"

#include <string>

namespace tarnwick {

/// The settings page "Paths".
class PathsPage : public MarkedPage {
 public:
  PathsPage(Desktop& desktop, const TagRow* rows, JdkVersion jdk);

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

  bool never_ = false;
  bool always_ = false;
  std::string classpath_;
  std::string sourcepath_;
  std::string bootpath_;
  std::string extdirs_;
};

}  // namespace tarnwick
