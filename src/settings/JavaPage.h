#pragma once

#include "dialogbase/TabbedDialog.h"
#include "process/EditorLaunch.h"
#include "settings/OptionList.h"
#include "settings/SettingsContext.h"
#include "settings/ToolsPage.h"

#include <functional>
#include <optional>
#include <string>

namespace tarnwick {

/// The settings page "java".
class JavaPage : public TabPage {
 public:
  /// `toolsPage` tells the folder of the tools as it stands in its field; `editors` what a log is shown with.
  JavaPage(SettingsContext& context, const TagRow* rows, const ToolsPage& toolsPage,
           std::function<EditorChoice()> editors);

  void initialise(DialogWindow& window) override;
  void detached() override;
  void onCommand(int control) override;
  void onSelectionChanged(int control) override;
  void setText(int control, const std::string& text) override;
  std::string getText(int control) const override;

 private:
  void showVersion();

  SettingsContext& context_;
  const ToolsPage& toolsPage_;
  std::function<EditorChoice()> editors_;
  // Lives as long as the window that holds its box.
  mutable std::optional<OptionList> collector_;
};

}  // namespace tarnwick
