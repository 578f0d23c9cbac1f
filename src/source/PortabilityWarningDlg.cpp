#include "source/PortabilityWarningDlg.h"

#include "dialogbase/Desktop.h"
#include "resources/DialogLayout.h"
#include "resources/SourceLayouts.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"

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
  staysAway_ = getCheck(STAY_AWAY);
  ToolTipDlg::onOk();
}

bool maySplit(const Settings& settings) {
  bool& warn = settings.context().warnAboutSplitting;
  if (!warn) return true;
  PortabilityWarningDlg warning(settings.context().desktop);
  const bool goOn = warning.runModal() == DIALOG_OK;
  warn = !goOn || !warning.staysAway();
  return goOn;
}

}  // namespace tarnwick
