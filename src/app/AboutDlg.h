#pragma once

#include "app/LinkedDlg.h"

namespace tarnwick {

struct ProgramInfo;

/// Tells what this program is, whose, and under which terms.
class AboutDlg : public LinkedDlg {
 public:
  AboutDlg(Desktop& desktop, const ProgramInfo& program);

  void runModal();
  void initialise(DialogWindow& window) override;

 private:
  const ProgramInfo& program_;
};

}  // namespace tarnwick
