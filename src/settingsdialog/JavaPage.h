#pragma once

#include "process/EditorLaunch.h"
#include "settingsdialog/MarkedPage.h"
#include "settingsdialog/OptionBox.h"
#include "settingsdialog/ToolsPage.h"

#include <functional>
#include <optional>
#include <string>

namespace tarnwick {

struct SettingsContext;

/// The settings page "java".
class JavaPage : public MarkedPage {
 public:
  /// `toolsPage` tells the folder of the tools as it stands in its field; `editors` what a log is shown with.
  JavaPage(SettingsContext& context, const TagRow* rows, const ToolsPage& toolsPage,
           std::function<EditorChoice()> editors, JdkVersion jdk);

  void initialise(DialogWindow& window) override;
  void detached() override;
  void onCommand(int control) override;
  void onSelectionChanged(int control) override;
  void setText(int control, const std::string& text) override;
  std::string getText(int control) const override;

 protected:
  std::string optionOf(const OptionMark& mark) const override;

 private:
  void showVersion();

  SettingsContext& context_;
  const ToolsPage& toolsPage_;
  std::function<EditorChoice()> editors_;
  // Lives as long as the window that holds its box.
  mutable std::optional<OptionBox> collector_;
};

}  // namespace tarnwick
