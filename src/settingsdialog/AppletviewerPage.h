#pragma once

#include "settingsdialog/MarkedPage.h"

namespace tarnwick {

/// The settings page "appletviewer": two fields, and no rules.
class AppletviewerPage : public MarkedPage {
 public:
  AppletviewerPage(Desktop& desktop, const TagRow* rows, JdkVersion jdk);
};

}  // namespace tarnwick
