#pragma once

#include "settingsdialog/MarkedPage.h"
#include "settingsdialog/OptionBox.h"

#include <optional>
#include <string>

namespace tarnwick {

/// The settings page "javac". Which warnings it offers follows from the JDK version that the user declares.
class JavacPage : public MarkedPage {
 public:
  JavacPage(Desktop& desktop, const TagRow* rows, JdkVersion jdk);

  void initialise(DialogWindow& window) override;
  void detached() override;
  void onCommand(int control) override;
  void onSelectionChanged(int control) override;
  void loadFromTags() override;
  void setText(int control, const std::string& text) override;
  std::string getText(int control) const override;

 protected:
  std::string optionOf(const OptionMark& mark) const override;

 private:
  /// The list behind a combo box; null for any other control, and while there is no window.
  OptionBox* listOf(int control) const;
  void showWarnings();

  // They live as long as the window that holds their boxes.
  mutable std::optional<OptionBox> source_;
  mutable std::optional<OptionBox> target_;
  mutable std::optional<OptionBox> version_;
};

}  // namespace tarnwick
