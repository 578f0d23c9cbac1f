#pragma once

#include "dialogbase/TabbedDialog.h"
#include "settings/JdkDiscovery.h"
#include "settings/SettingsContext.h"

#include <string>
#include <vector>

namespace tarnwick {

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
  /// The folder as it stands in its field.
  std::string toolsFolder() const;

 private:
  void browse();
  /// Offers the JDKs of this machine if there are several.
  void offerJdks();
  /// Marks the JDK in the list whose folder stands in the field, or none.
  void markJdk();

  SettingsContext& context_;
  std::vector<Jdk> jdks_;
  std::string folder_;
  int withNotepad_ = 0;
};

}  // namespace tarnwick
