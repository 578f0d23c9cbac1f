#include "app/WelcomeDlg.h"

#include "dialogbase/Desktop.h"
#include "resources/DialogLayout.h"
#include "resources/HelpLayouts.h"

namespace tarnwick {

WelcomeDlg::WelcomeDlg(Desktop& desktop, std::string firstText, std::string secondText)
    : LinkedDlg(desktop, welcomeLayout().resource, 0),
      firstText_(std::move(firstText)),
      secondText_(std::move(secondText)) {}

void WelcomeDlg::runModal() {
  desktop_.runDialog(welcomeLayout(), *this);
}

void WelcomeDlg::initialise(DialogWindow& window) {
  LinkedDlg::initialise(window);
  window.setText(1273, firstText_);
  window.setText(1272, secondText_);
}

}  // namespace tarnwick
