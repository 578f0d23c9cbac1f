#pragma once

#include "dialogbase/TabbedDialog.h"
#include "settings/FunctionKeys.h"

#include <string>

namespace tarnwick {

struct SettingsContext;

/// The settings page "jdb". It shows one group of function keys at a time, chosen by the modifiers.
class JdbPage : public TabPage {
 public:
  JdbPage(SettingsContext& context, const TagRow* rows);

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void updateControls() override;
  void setText(int control, const std::string& text) override;
  /// For the first field, which stands for all keys: the whole text of the function keys.
  std::string getText(int control) const override;

 private:
  /// The keys with the fields taken into the group that shows.
  FunctionKeys keysWithFields() const;

  SettingsContext& context_;
  FunctionKeys keys_;
  int mask_ = 0;  ///< the group that shows
};

}  // namespace tarnwick
