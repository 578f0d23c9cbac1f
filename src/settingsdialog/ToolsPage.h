#pragma once

#include "dialogbase/TabbedDialog.h"
#include "settings/JdkDiscovery.h"

#include <string>
#include <vector>

namespace tarnwick {

struct SettingsContext;

/// The settings page "JDK tools": where the tools are, and what shows their diagnostics.
class ToolsPage : public TabPage {
 public:
  ToolsPage(SettingsContext& context, const TagRow* rows);

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void onSelectionChanged(int control) override;
  void onTextChanged(int control) override;
  void updateControls() override;
  /// The folder of the tools always ends in a separator, so that an empty field stands for the root folder.
  std::string getText(int control) const override;
  /// Of the three choices for diagnostics, two have settings of their own.
  void setCheck(int control, bool on) override;
  bool getCheck(int control) const override;
  /// The folder as it stands in its field.
  std::string toolsFolder() const;

 private:
  void browse();
  void placeInStartMenu();
  /// Makes a shortcut to the program in this folder; with none on the desktop.
  void placeShortcut(const std::string* folder);
  /// Offers the JDKs of this machine if there are several.
  void offerJdks();
  /// Marks the JDK in the list whose folder stands in the field, or none.
  void markJdk();

  SettingsContext& context_;
  std::vector<Jdk> jdks_;
  std::string folder_;
  bool withNotepad_ = false;
  bool inMessages_ = false;
};

}  // namespace tarnwick
