#pragma once

#include "app/LinkedDlg.h"

#include <string>

namespace tarnwick {

/// Greets at first use and after an upgrade.
class WelcomeDlg : public LinkedDlg {
 public:
  WelcomeDlg(Desktop& desktop, std::string firstText, std::string secondText);

  void runModal();
  void initialise(DialogWindow& window) override;

 private:
  std::string firstText_;
  std::string secondText_;
};

}  // namespace tarnwick
