#pragma once

#include "dialogbase/TabbedDialog.h"
#include "settings/OptionList.h"

#include <optional>
#include <string>

namespace tarnwick {

/// The settings page "javac". Which warnings it offers follows from the JDK version that the user declares.
class JavacPage : public TabPage {
 public:
  JavacPage(Desktop& desktop, const TagRow* rows);

  void initialise(DialogWindow& window) override;
  void detached() override;
  void onCommand(int control) override;
  void onSelectionChanged(int control) override;
  void loadFromTags() override;
  void setText(int control, const std::string& text) override;
  std::string getText(int control) const override;

 private:
  /// The list behind a combo box; null for any other control, and while there is no window.
  OptionList* listOf(int control) const;
  void showWarnings();

  // They live as long as the window that holds their boxes.
  mutable std::optional<OptionList> source_;
  mutable std::optional<OptionList> target_;
  mutable std::optional<OptionList> version_;
};

}  // namespace tarnwick
