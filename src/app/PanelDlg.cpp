#include "app/PanelDlg.h"

#include "resources/PanelLayouts.h"

namespace tarnwick {

namespace {

constexpr int TAB_CONTROL = 1231;

}  // namespace

PanelPage::PanelPage(Desktop& desktop, PanelDlg& panel, std::array<std::string, 3> labels, std::vector<ToolTip> tips)
    : TabPage(desktop, panelPageLayout().resource, 0, panelPageLayout()), panel_(panel), labels_(std::move(labels)) {
  toolTips_ = std::move(tips);
}

void PanelPage::initialise(DialogWindow& window) {
  TabPage::initialise(window);
  window.setText(LEFT, labels_[0]);
  window.setText(MIDDLE, labels_[1]);
  window.setText(RIGHT, labels_[2]);
}

void PanelPage::onCommand(int control) {
  panel_.onPageButton(control);
}

ButtonBar::ButtonBar(Desktop& desktop, PanelDlg& panel, std::string switchLabel)
    : ToolTipDlg(desktop, verticalBarLayout().resource, 0), panel_(panel), switchLabel_(std::move(switchLabel)) {}

void ButtonBar::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  window.setText(SWITCH_VIEW, switchLabel_);
  // The other view and the other layouts are not there yet.
  for (const int control : {SWITCH_VIEW, LAYOUT_LEFT, LAYOUT_RIGHT}) window.enable(control, false);
}

void ButtonBar::onCommand(int control) {
  panel_.onCommand(control);
}

PanelDlg::PanelDlg(Settings& settings, int resource, const std::string& switchLabel,
                   std::function<void()> endMainDialog)
    : TabbedDialog(settings.context().desktop, resource, TAB_CONTROL),
      settings_(settings),
      leftPage_(
          desktop_, *this, {"Browse", "jdb debug", "java"},
          {{PanelPage::LEFT, "Select executable class file"},
           {PanelPage::MIDDLE, "Execute class file under debugger control"},
           {PanelPage::RIGHT, "Execute class file"},
           {PanelPage::FIELD, "File specification for executable class, optionally followed by runtime arguments"}}),
      middlePage_(desktop_, *this, {"Browse", "appletdebug", "appletviewer"},
                  {{PanelPage::LEFT, "Select HTML file"},
                   {PanelPage::MIDDLE, "Start appletviewer under debugger control"},
                   {PanelPage::RIGHT, "Start appletviewer"},
                   {PanelPage::FIELD, "HTML file specification"}}),
      rightPage_(desktop_, *this, {"jar", "javadoc", "WinShortcut"}, {}),
      verticalBar_(desktop_, *this, switchLabel),
      endMainDialog_(std::move(endMainDialog)) {
  addTab(" Main program ", leftPage_);
  addTab("  Applet  ", middlePage_);
  addTab("  Utilities  ", rightPage_);
}

void PanelDlg::initialise(DialogWindow& window) {
  initialPage_ = settings_.fileviewTab;
  TabbedDialog::initialise(window);
  window.addChild(BAR_SLOT, verticalBarLayout(), verticalBar_);
}

void PanelDlg::onCommand(int control) {
  if (control == ButtonBar::SETTINGS) {
    settings_.runModal(0);
    settings_.saveIfWindowMoved();
  }
  if (control == ButtonBar::EXIT) exitProgram();
}

void PanelDlg::applyLayout() {
  try {
    const int left = settings_.windowPosition.getLeft();
    const int top = settings_.windowPosition.getTop();
    settings_.context().mainWindow->moveTo({left, top});
  } catch (const WindowPosition::UndefinedE&) {
    // The window system does not tell positions; the window stays where it puts it.
  }
  updateTitle();
}

void PanelDlg::exitProgram() {
  settings_.saveIfWindowMoved();
  endMainDialog_();
}

}  // namespace tarnwick
