#pragma once

#include "dialogbase/TabbedDialog.h"

namespace tarnwick {

/// The settings page "appletviewer": two fields, and no rules.
class AppletviewerPage : public TabPage {
 public:
  AppletviewerPage(Desktop& desktop, const TagRow* rows);
};

}  // namespace tarnwick
