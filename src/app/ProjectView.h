#pragma once

#include "app/PanelDlg.h"

namespace tarnwick {

/// The panel that works on a project.
class ProjectView : public PanelDlg {
 public:
  ProjectView(Settings& settings, std::function<void()> endMainDialog);

  void initialise(DialogWindow& window) override;
  void updateTitle() override;
  /// Enables what can be used now.
  void refreshButtons();

 protected:
  std::vector<int> ownControls() const override;
  void arrangeFlat(PanelPlaces& places) const override { arrangeFlatProjectView(places); }
  void onTabChanged() override { refreshButtons(); }
  using PanelDlg::onPageButton;
  void onPageButton(int page, int control) override;
};

}  // namespace tarnwick
