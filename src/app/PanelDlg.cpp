#include "app/PanelDlg.h"

#include "app/RunStatus.h"
#include "app/UserEditor.h"
#include "base/Tarnwickexception.h"
#include "dialogbase/Desktop.h"
#include "dialogs/RunJavadoc.h"
#include "dialogs/ShortcutDlg.h"
#include "process/ToolLog.h"
#include "resources/DialogLayout.h"
#include "resources/PanelLayouts.h"
#include "resources/SystemWords.h"
#include "settings/EditorChoice.h"
#include "settings/SettingsContext.h"
#include "settingsdialog/SettingsDialog.h"

namespace tarnwick {

namespace {

constexpr int TAB_CONTROL = 1231;
constexpr int FIRST_GROUP = 1238;
constexpr int SECOND_GROUP = 1239;

/// With the width to which an arrangement may shorten it.
LayoutItem narrowable(DialogWindow& owner, int control) {
  LayoutItem item = LayoutItem::of(owner, control);
  item.leastWidth = owner.leastWidth(control);
  return item;
}

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

void PanelPage::onSelectionChanged(int control) {
  if (control == FIELD) panel_.onPageFileChosen();
}

std::function<void()> PanelPage::controlReturn(int control) {
  return control == FIELD ? panel_.controlReturnInField() : nullptr;
}

ButtonBar::ButtonBar(Desktop& desktop, PanelDlg& panel, const DialogLayout& layout)
    : ToolTipDlg(desktop, layout.resource, 0), panel_(panel), layout_(layout) {}

void ButtonBar::onCommand(int control) {
  panel_.onCommand(control);
}

PanelDlg::PanelDlg(Settings& settings, int resource, std::array<PageWords, 2> words, MainDialog mainDialog)
    : TabbedDialog(settings.context().desktop, resource, TAB_CONTROL),
      settings_(settings),
      leftPage_(desktop_, *this, std::move(words[0].labels), std::move(words[0].tips)),
      middlePage_(desktop_, *this, std::move(words[1].labels), std::move(words[1].tips)),
      rightPage_(desktop_, *this, {"jar", "javadoc", inSystemWords("WinShortcut")}, {}),
      verticalBar_(desktop_, *this, verticalBarLayout()),
      horizontalBar_(desktop_, *this, horizontalBarLayout()),
      flatBar_(desktop_, *this, flatBarLayout()),
      bars_{&verticalBar_, &horizontalBar_, &flatBar_},
      pages_{&leftPage_, &middlePage_, &rightPage_},
      mainDialog_(std::move(mainDialog)) {
  addTab(" Main program ", leftPage_);
  addTab("  Applet  ", middlePage_);
  addTab("  Utilities  ", rightPage_);
}

void PanelDlg::initialise(DialogWindow& window) {
  TabbedDialog::initialise(window);
  title_ = mainWindow().title();
  // A bar's slot bears the number of its resource.
  for (auto* bar : bars_) window.addChild(bar->pageId(), bar->layout(), *bar);
}

void PanelDlg::setPartner(PanelDlg* partner, const std::string& switchLabel) {
  partner_ = partner;
  for (auto* bar : bars_) {
    if (bar->window()) bar->window()->setText(ButtonBar::SWITCH_VIEW, switchLabel);
  }
}

void PanelDlg::onCommand(int control) {
  const int now = settings_.panelLayout.value;
  if (control == ButtonBar::SETTINGS) editSettings();
  if (control == PANEL_STATUS_LINE) showLastLog();
  if (control == ButtonBar::SWITCH_VIEW) switchView();
  if (control == ButtonBar::EXIT) exitProgram();
  if (control == ButtonBar::LAYOUT_LEFT) {
    changeLayout(now == LayoutValue::VERTICAL ? LayoutValue::HORIZONTAL : LayoutValue::VERTICAL);
  }
  if (control == ButtonBar::LAYOUT_RIGHT) {
    changeLayout(now == LayoutValue::FLAT ? LayoutValue::HORIZONTAL : LayoutValue::FLAT);
  }
  const bool ofLayout = control == ButtonBar::LAYOUT_LEFT || control == ButtonBar::LAYOUT_RIGHT;
  // The pressed button is gone with its bar; its successor gets the focus.
  if (ofLayout) bar().window()->focus(control);
}

void PanelDlg::editSettings() {
  const bool hadStatusLine = settings_.statusLine;
  SettingsDialog(settings_).runModal(0);
  settings_.saveIfWindowMoved();
  if (settings_.statusLine != hadStatusLine) applyLayout();
}

void PanelDlg::showLastLog() {
  const SettingsContext& context = settings_.context();
  if (!context.bringMessages || context.log.path().empty()) return desktop_.alert(AlertSound::Beep);
  try {
    context.bringMessages();
  } catch (const Tarnwickexception& failure) {
    desktop_.message(failure.message);
  }
}

void PanelDlg::updateStatus() {
  if (window()) window()->setText(PANEL_STATUS_LINE, statusText(settings_, mainDialog_.runs()));
}

void PanelDlg::onPageButton(int page, int control) {
  if (page != UTILITIES) return;
  if (control == PanelPage::LEFT) runJar(settings_, jarSession_);
  if (control == PanelPage::MIDDLE) runJavadoc(settings_, javadocInput_);
  if (control == PanelPage::RIGHT) makeShortcut();
}

std::function<void()> PanelDlg::controlReturnInField() {
  if (currentPage() != MAIN_PROGRAM) return {};
  return [this] { compileAndRun(); };
}

void PanelDlg::makeShortcut() {
  ShortcutDlg(settings_).runModal();
}

void PanelDlg::changeLayout(int layout) {
  settings_.panelLayout.value = layout;
  settings_.saveCurrent();
  applyLayout();
}

PanelPlaces PanelDlg::placesNow() {
  DialogWindow& top = mainWindow();
  DialogWindow& panel = *window();
  PanelPlaces places;
  places.topWindow = LayoutItem::of(top);
  places.frameWidth = places.topWindow.width() - top.clientRect().width();
  places.frameHeight = places.topWindow.height() - top.clientRect().height();
  places.screenWidth = top.workArea().width();
  places.panel = LayoutItem::of(panel);
  places.tabControl = LayoutItem::of(panel, TAB_CONTROL);
  places.firstGroup = narrowable(panel, FIRST_GROUP);
  places.secondGroup = narrowable(panel, SECOND_GROUP);
  for (std::size_t i = 0; i < bars_.size(); ++i) {
    DialogWindow& bar = *bars_[i]->window();
    places.bars[i] = LayoutItem::of(bar);
    for (const int control : {ButtonBar::SETTINGS, ButtonBar::SWITCH_VIEW, ButtonBar::EXIT, ButtonBar::LAYOUT_LEFT,
                              ButtonBar::LAYOUT_RIGHT}) {
      places.barButtons[i].push_back(narrowable(bar, control));
    }
  }
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    DialogWindow& page = *pages_[i]->window();
    places.pages[i] = {LayoutItem::of(page), narrowable(page, PanelPage::FIELD), narrowable(page, PanelPage::LEFT),
                       narrowable(page, PanelPage::MIDDLE), narrowable(page, PanelPage::RIGHT)};
  }
  for (const int control : ownControls()) places.own.push_back(narrowable(panel, control));
  clearFields(places);
  return places;
}

void PanelDlg::buildLayouts() {
  const PanelPlaces found = placesNow();
  for (int index = 0; index < 3; ++index) {
    PanelPlaces places = found;
    if (index == LayoutValue::VERTICAL) arrangeVertical(places);
    if (index == LayoutValue::HORIZONTAL) arrangeHorizontal(places);
    if (index == LayoutValue::FLAT) arrangeFlat(places);
    feet_[static_cast<std::size_t>(index)] = PanelFoot(places, window()->rect(PANEL_STATUS_LINE).height());
    auto& layout = layouts_[static_cast<std::size_t>(index)];
    layout = std::make_unique<PanelLayout>(index);
    addPlaces(*layout, std::move(places));
  }
}

void PanelDlg::applyLayout() {
  const auto index = static_cast<std::size_t>(settings_.panelLayout.value);
  PanelLayout* const layout = layouts_[index].get();
  if (!layout) return;
  LayoutItem& top = layout->findWindow(mainWindow());
  feet_[index].adjust(*layout, *window(), mainWindow(), settings_.statusLine);
  try {
    const int left = settings_.windowPosition.getLeft();
    top.moveTo(left, settings_.windowPosition.getTop());
  } catch (const WindowPosition::UndefinedE&) {
    // The window system does not tell positions; the window stays where it puts it.
    const Rect now = mainWindow().windowRect();
    top.moveTo(now.left, now.top);
  }
  layout->apply();
  feet_[index].show(*window(), settings_.statusLine);
  updateStatus();
  window()->select(TAB_CONTROL, currentPage());
  updateTitle();
  mainWindow().redraw();
}

void PanelDlg::switchView() {
  if (!partner_) return;  // it could not be made
  settings_.saveIfWindowMoved();
  window()->showWindow(false);
  partner_->window()->showWindow(true);
  partner_->shown_ = true;
  shown_ = false;
  partner_->updateTitle();
  partner_->applyLayout();
  partner_->bar().window()->focus(ButtonBar::SWITCH_VIEW);
}

bool PanelDlg::openEditor(const std::string& name) {
  return openUserEditor(settings_, name);
}

void PanelDlg::exitProgram() {
  mainDialog_.save();
  mainDialog_.end();
}

}  // namespace tarnwick
