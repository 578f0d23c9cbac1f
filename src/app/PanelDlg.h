#pragma once

#include "dialogbase/TabbedDialog.h"
#include "settings/Settings.h"

#include <array>
#include <functional>
#include <string>

namespace tarnwick {

class PanelDlg;

/// A tab page of a panel: three buttons and a field. What a button does is the panel's affair.
class PanelPage : public TabPage {
 public:
  enum Control { FIELD = 1223, LEFT = 1228, MIDDLE = 1229, RIGHT = 1230 };

  PanelPage(Desktop& desktop, PanelDlg& panel, std::array<std::string, 3> labels, std::vector<ToolTip> tips);

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;

  /// The page's window; null while the panel has none.
  using TabPage::window;

 private:
  PanelDlg& panel_;
  std::array<std::string, 3> labels_;
};

/// The bar with Settings, Exit and the layout buttons. It does nothing itself.
class ButtonBar : public ToolTipDlg {
 public:
  enum Control { SETTINGS = 1000, SWITCH_VIEW = 1, EXIT = 2, LAYOUT_LEFT = 1244, LAYOUT_RIGHT = 1242 };

  ButtonBar(Desktop& desktop, PanelDlg& panel, std::string switchLabel);

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void onCloseRequest() override {}

 private:
  PanelDlg& panel_;
  std::string switchLabel_;
};

/// The common base of the panels of the main window.
class PanelDlg : public TabbedDialog {
 public:
  /// `endMainDialog` ends the program's main dialog as with OK. `switchLabel` names the other view.
  PanelDlg(Settings& settings, int resource, const std::string& switchLabel, std::function<void()> endMainDialog);

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void onCloseRequest() override { settings_.saveIfWindowMoved(); }

  /// Puts the main window to its stored place and names it.
  virtual void applyLayout();
  virtual void updateTitle() = 0;
  virtual void exitProgram();
  /// A button of the page with this index, by PanelPage::Control.
  virtual void onPageButton(int page, int control) = 0;

  /// A button of the page that is open.
  void onPageButton(int control) { onPageButton(currentPage(), control); }

 protected:
  Settings& settings_;
  PanelPage leftPage_;
  PanelPage middlePage_;
  PanelPage rightPage_;
  ButtonBar verticalBar_;

 private:
  std::function<void()> endMainDialog_;
};

}  // namespace tarnwick
