#include "source/PortabilityWarningDlg.h"

#include "resources/SourceLayouts.h"

namespace tarnwick {

namespace {

enum Control { STAY_AWAY = 1274 };

}  // namespace

PortabilityWarningDlg::PortabilityWarningDlg(Desktop& desktop)
    : ToolTipDlg(desktop, portabilityWarningLayout().resource, 0) {}

int PortabilityWarningDlg::runModal() {
  return desktop_.runDialog(portabilityWarningLayout(), *this);
}

void PortabilityWarningDlg::onOk() {
  staysAway_ = getCheck(STAY_AWAY) != 0;
  ToolTipDlg::onOk();
}

}  // namespace tarnwick
