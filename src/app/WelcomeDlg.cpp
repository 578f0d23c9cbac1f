#include "app/WelcomeDlg.h"

#include "resources/PanelLayouts.h"

namespace tarnwick {

WelcomeDlg::WelcomeDlg(Desktop& desktop, std::string firstText, std::string secondText)
    : ToolTipDlg(desktop, welcomeLayout().resource, 0),
      firstText_(std::move(firstText)),
      secondText_(std::move(secondText)) {}

void WelcomeDlg::runModal() {
  desktop_.runDialog(welcomeLayout(), *this);
}

void WelcomeDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  window.setText(1273, firstText_);
  window.setText(1272, secondText_);
}

}  // namespace tarnwick
