#include "ui/WxDialogWindow.h"

#include "ui/MessageBoxes.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/button.h>
#include <wx/display.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/statbox.h>
#include <wx/tooltip.h>

#include <algorithm>
#include <stdexcept>

namespace tarnwick::ui {

namespace {

constexpr int pageMargin = 10;

bool isForKeyboard(const Control& control) {
  switch (control.kind) {
    case ItemKind::Link:
    case ItemKind::StatusLine:
    case ItemKind::Edit:
    case ItemKind::Button:
    case ItemKind::CheckBox:
    case ItemKind::RadioButton:
    case ItemKind::ComboBox:
    case ItemKind::ListBox:
    case ItemKind::Tabs:
      return true;
    default:
      return false;
  }
}

bool takesFocus(const Control& control) {
  // The window may be still to be shown.
  if (!control.window->IsThisEnabled() || !control.window->IsShown() || !isForKeyboard(control)) return false;
  return control.kind != ItemKind::RadioButton || isChecked(control);  // the focus checks another
}

/// Whether a person sees the control and can use it.
bool isInUse(const Control& control) {
  return isForKeyboard(control) && control.window->IsShownOnScreen() && control.window->IsEnabled();
}

Margins inPixels(const wxWindow& surface, const Margins& margins) {
  return {surface.FromDIP(margins.left), surface.FromDIP(margins.top), surface.FromDIP(margins.right),
          surface.FromDIP(margins.bottom)};
}

Rect toRect(const wxRect& rect) {
  return {rect.x, rect.y, rect.x + rect.width, rect.y + rect.height};
}

bool hasName(ItemKind kind) {
  return kind == ItemKind::Edit || kind == ItemKind::ComboBox || kind == ItemKind::ListBox;
}

}  // namespace

WxDialogWindow::WxDialogWindow(WindowStack& stack, wxWindow& surface, const DialogLayout& layout,
                               DialogHandler& handler, int margin)
    : stack_(stack),
      guarded_([&stack](const std::function<void()>& action) { guarded(stack, action); }),
      surface_(surface),
      handler_(handler),
      margins_(inPixels(surface, layout.margins.value_or(Margins{margin, margin, margin, margin}))),
      firstFocus_(layout.firstFocus) {
  gaps_.inRow = surface.FromDIP(gaps_.inRow);
  gaps_.inColumn = surface.FromDIP(gaps_.inColumn);
  gaps_.apart = surface.FromDIP(gaps_.apart);
  gaps_.indent = surface.FromDIP(gaps_.indent);
  gaps_.inTabs = surface.FromDIP(gaps_.inTabs);
  root_ = build(layout.content, nullptr);
}

void WxDialogWindow::start() {
  // The rules may ask for rectangles, so everything has its place before they begin; what they then fill in may need
  // more room.
  arrange(contentSize());
  guard([this] { handler_.initialise(*this); });
}

Node WxDialogWindow::build(const DialogItem& item, const DialogItem* before) {
  switch (item.kind) {
    case ItemKind::Column:
    case ItemKind::Row:
    case ItemKind::Layers:
    case ItemKind::Space:
    case ItemKind::EmptyButtonRow: {
      Node node;
      node.kind = item.kind;
      if (item.kind == ItemKind::EmptyButtonRow) {
        node.natural = [this] { return wxSize(0, rowHeight(surface_)); };
      }
      node.stretch = item.stretch;
      node.equalWidths = item.equalWidths;
      node.children =
          item.closes ? buildChildren(inOrderOf(customOfButtons(), item.children)) : buildChildren(item.children);
      return node;
    }
    default:
      return buildControl(item, before);
  }
}

std::vector<Node> WxDialogWindow::buildChildren(const std::vector<DialogItem>& items) {
  std::vector<Node> nodes;
  const DialogItem* before = nullptr;
  for (const auto& child : items) {
    const bool goesOn = before && before->kind == ItemKind::RadioButton && child.kind == ItemKind::RadioButton;
    if (child.kind == ItemKind::RadioButton && !goesOn) radioRun_ = beginRadioRun(surface_);
    nodes.push_back(build(child, before));
    before = &child;
  }
  return nodes;
}

Node WxDialogWindow::buildControl(const DialogItem& item, const DialogItem* before) {
  Node node;
  node.kind = item.kind;
  node.stretch = item.stretch;
  node.equalWidths = item.equalWidths;
  node.collapses = item.collapses;
  node.floats = item.floats;
  node.asInTabs = item.asInTabs;
  // A frame comes before its controls, as their sibling: as their parent it could not let them move freely.
  Control control = makeControl(surface_, item, radioRun_, events());
  node.window = control.window;
  setNatural(node, item, control);
  finishControl(item, control, before);
  inOrder_.push_back(control);
  if (item.control != 0) controls_[item.control] = control;
  node.children = buildChildren(item.children);
  return node;
}

void WxDialogWindow::setNatural(Node& node, const DialogItem& item, const Control& control) {
  DialogItem alone = item;
  alone.children.clear();
  if (auto* tabs = dynamic_cast<wxNotebook*>(control.window)) {
    node.natural = [this, tabs, number = item.control] {
      wxSize page(0, 0);
      for (auto* child : childrenOf_[number]) page.IncTo(child->contentSize());
      return sizeWithTabs(*tabs, page);
    };
  } else if (item.kind == ItemKind::Slot) {
    node.natural = [this, number = item.control] {
      wxSize room(0, 0);
      for (auto* child : childrenOf_[number]) room.IncTo(child->contentSize());
      return room;
    };
  } else {
    node.natural = naturalSizes(alone, control);
  }
  if (auto* box = dynamic_cast<wxStaticBox*>(control.window)) {
    int beside = 0;
    box->GetBordersForSizer(&node.headingHeight, &beside);
  }
}

void WxDialogWindow::finishControl(const DialogItem& item, Control& control, const DialogItem* before) {
  control.window->SetName("control " + std::to_string(item.control));
  if (item.startsHidden) control.window->Hide();
  if (item.kind == ItemKind::Label) lastLabel_ = control.window;
  if (before && before->kind == ItemKind::Label && hasName(item.kind)) nameByLabel(*control.window, *lastLabel_);
  if (!item.spoken.empty()) nameBySpeech(*control.window, item.spoken);
  if (item.kind == ItemKind::Tabs) bindTabs(item.control, *control.window);
  if (item.isDefault) {
    static_cast<wxButton*>(control.window)->SetDefault();
    showAsDefault(*control.window);
  }
}

void WxDialogWindow::bindTabs(int control, wxWindow& tabs) {
  tabs.Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [this, control](wxBookCtrlEvent& event) {
    event.Skip();
    if (!quiet_ && !detached_) guard([&] { handler_.onSelectionChanged(control); });
  });
}

ControlEvents WxDialogWindow::events() {
  const auto heard = [this](void (DialogHandler::*operation)(int)) {
    return [this, operation](int control) {
      if (quiet_ || detached_ || control == 0) return;
      guard([&] { (handler_.*operation)(control); });
    };
  };
  return {heard(&DialogHandler::onCommand), heard(&DialogHandler::onTextChanged),
          heard(&DialogHandler::onSelectionChanged), heard(&DialogHandler::onDoubleClick)};
}

wxSize WxDialogWindow::contentSize() {
  // Once the rules place the controls themselves, the size is what they make of it.
  if (placedByRules_) return surface_.GetClientSize();
  wxSize size = measure(root_, gaps_);
  size.IncBy(marginsSize());
  return size;
}

void WxDialogWindow::arrange(const wxSize& size) {
  if (placedByRules_ || detached_) return;
  measure(root_, gaps_);
  place(root_, wxRect(wxPoint(margins_.left, margins_.top), size - marginsSize()), gaps_);
}

void WxDialogWindow::arrangeControls() {
  const wxSize size = contentSize();
  surface_.SetClientSize(size);
  arrange(size);
  arrangeChildren();
}

void WxDialogWindow::arrangeChildren() {
  for (const auto& [number, children] : childrenOf_) {
    const auto* const tabs = dynamic_cast<const wxNotebook*>(at(number).window);
    for (auto* child : children) {
      // The toolkit gives a page its size only when it shows.
      child->arrange(tabs ? pageRect(*tabs).GetSize() : child->surface_.GetClientSize());
      child->arrangeChildren();
    }
  }
}

Rect WxDialogWindow::windowRect() const {
  return toRect(surface_.GetRect());
}

void WxDialogWindow::setWindowRect(const Rect& rect) {
  surface_.SetSize(rect.left, rect.top, rect.width(), rect.height(), wxSIZE_ALLOW_MINUS_ONE);
}

Rect WxDialogWindow::clientRect() const {
  const wxSize size = surface_.GetClientSize();
  return {0, 0, size.x, size.y};
}

Rect WxDialogWindow::workArea() const {
  // A window manager may put its own frame around a window once that shows.
  const int frame = surface_.FromDIP(4);
  return toRect(wxDisplay(wxGetTopLevelParent(&surface_)).GetClientArea().Deflate(frame, 0));
}

void WxDialogWindow::detach() {
  for (auto& child : children_) child->detach();
  detached_ = true;  // the toolkit still sends this and that while it takes the windows down
  guard([this] { handler_.detached(); });
}

bool WxDialogWindow::focusFirst() {
  const auto named = controls_.find(firstFocus_);
  if (named != controls_.end() && takesFocus(named->second)) {
    named->second.window->SetFocus();
    return true;
  }
  for (const auto& control : inOrder_) {
    WxDialogWindow* const child = childInSight(control);
    if (child && child->focusFirst()) return true;
    if (!takesFocus(control)) continue;
    control.window->SetFocus();
    return true;
  }
  return false;
}

void WxDialogWindow::collectStops(std::vector<Control>& stops) const {
  for (const auto& control : inOrder_) {
    stops.push_back(control);
    for (const auto& [number, children] : childrenOf_) {
      if (at(number).window != control.window) continue;
      for (const auto* child : children) child->collectStops(stops);
    }
  }
}

wxWindow* WxDialogWindow::stopAround(const wxWindow* window) const {
  std::vector<Control> stops;
  collectStops(stops);
  for (; window && window != &surface_; window = window->GetParent()) {
    const auto found =
        std::find_if(stops.begin(), stops.end(), [&](const auto& stop) { return stop.window == window; });
    if (found != stops.end()) return isInUse(*found) ? found->window : nullptr;
  }
  return nullptr;
}

bool WxDialogWindow::focusFrom(const wxWindow* last) {
  std::vector<Control> stops;
  collectStops(stops);
  const auto first = std::find_if(stops.begin(), stops.end(), [&](const auto& stop) { return stop.window == last; });
  if (first == stops.end()) return false;
  std::rotate(stops.begin(), first, stops.end());
  const auto next =
      std::find_if(stops.begin(), stops.end(), [](const auto& stop) { return isInUse(stop) && takesFocus(stop); });
  if (next == stops.end()) return false;
  next->window->SetFocus();
  return true;
}

WxDialogWindow* WxDialogWindow::childInSight(const Control& control) const {
  if (!control.window->IsShown()) return nullptr;
  for (const auto& [number, children] : childrenOf_) {
    if (at(number).window != control.window || children.empty()) continue;
    const int selected = std::max(0, selectionOf(control));
    return children.at(static_cast<std::size_t>(selected));
  }
  return nullptr;
}

const Control& WxDialogWindow::at(int control) const {
  const auto found = controls_.find(control);
  if (found == controls_.end()) throw std::out_of_range("no control " + std::to_string(control));
  return found->second;
}

wxWindow* WxDialogWindow::windowOf(int control) const {
  const auto found = controls_.find(control);
  return found == controls_.end() ? nullptr : found->second.window;
}

std::vector<int> WxDialogWindow::controls() const {
  std::vector<int> numbers;
  for (const auto& [number, control] : controls_) numbers.push_back(number);
  return numbers;
}

std::string WxDialogWindow::text(int control) const {
  return textOf(at(control));
}

void WxDialogWindow::setText(int control, const std::string& text) {
  // A label must not take the size of its new text: it would grow over its neighbours.
  const Control& changed = at(control);
  const wxRect before = changed.window->GetRect();
  setTextOf(changed, text);
  if (changed.window->GetRect() != before) changed.window->SetSize(before);
}

bool WxDialogWindow::checked(int control) const {
  return isChecked(at(control));
}

void WxDialogWindow::setChecked(int control, bool on) {
  quiet_ = true;
  setCheckedOf(at(control), on);
  keepFirstFocus(surface_);
  quiet_ = false;
}

bool WxDialogWindow::enabled(int control) const {
  return at(control).window->IsThisEnabled();
}

void WxDialogWindow::enable(int control, bool on) {
  at(control).window->Enable(on);
}

bool WxDialogWindow::visible(int control) const {
  return at(control).window->IsShown();
}

void WxDialogWindow::show(int control, bool on) {
  at(control).window->Show(on);
}

Rect WxDialogWindow::rect(int control) const {
  return toRect(at(control).window->GetRect());
}

void WxDialogWindow::setRect(int control, const Rect& rect) {
  placedByRules_ = true;
  at(control).window->SetSize(rect.left, rect.top, rect.width(), rect.height(), wxSIZE_ALLOW_MINUS_ONE);
}

int WxDialogWindow::leastWidth(int control) const {
  return ui::leastWidth(at(control));
}

void WxDialogWindow::focus(int control) {
  at(control).window->SetFocus();
}

void WxDialogWindow::scrollToEnd(int control) {
  scrollToEndOf(at(control));
}

void WxDialogWindow::setToolTip(int control, const std::string& text) {
  setToolTipOf(at(control), text);
}

void WxDialogWindow::setEmptyText(int control, const std::string& words) {
  setEmptyTextOf(at(control), words);
}

std::vector<std::string> WxDialogWindow::entries(int control) const {
  return entriesOf(at(control));
}

void WxDialogWindow::setEntries(int control, const std::vector<std::string>& entries) {
  quiet_ = true;
  setEntriesOf(at(control), entries);
  quiet_ = false;
}

int WxDialogWindow::selection(int control) const {
  return selectionOf(at(control));
}

void WxDialogWindow::select(int control, int index) {
  quiet_ = true;
  selectIn(at(control), index);
  quiet_ = false;
}

bool WxDialogWindow::selected(int control, int index) const {
  return isEntrySelected(at(control), index);
}

void WxDialogWindow::setSelected(int control, int index, bool on) {
  quiet_ = true;
  setEntrySelected(at(control), index, on);
  quiet_ = false;
}

DialogWindow& WxDialogWindow::addTabPage(int tabs, const std::string& label, const DialogLayout& layout,
                                         DialogHandler& handler) {
  auto* const book = dynamic_cast<wxNotebook*>(at(tabs).window);
  if (!book) throw std::out_of_range("no tab control " + std::to_string(tabs));
  wxPanel* const panel = makePanel(*book);
  auto page = std::make_unique<WxPage>(stack_, *this, *panel, layout, handler, pageMargin);
  childrenOf_[tabs].push_back(page.get());
  quiet_ = true;
  book->AddPage(panel, toWx(label));
  nameTab(*book, book->GetPageCount() - 1, label);
  quiet_ = false;
  return adopt(std::move(page));
}

DialogWindow& WxDialogWindow::addChild(int slot, const DialogLayout& layout, DialogHandler& handler) {
  wxWindow* const place = at(slot).window;
  wxPanel* const panel = makePanel(*place);
  auto child = std::make_unique<WxPage>(stack_, *this, *panel, layout, handler, 0);
  childrenOf_[slot].push_back(child.get());
  place->Bind(wxEVT_SIZE, [place, panel](wxSizeEvent& event) {
    event.Skip();
    panel->SetSize(wxRect(place->GetClientSize()));
  });
  return adopt(std::move(child));
}

DialogWindow& WxDialogWindow::adopt(std::unique_ptr<WxDialogWindow> child) {
  children_.push_back(std::move(child));
  WxDialogWindow& adopted = *children_.back();
  adopted.start();
  return adopted;
}

WxPage::WxPage(WindowStack& stack, WxDialogWindow& owner, wxPanel& panel, const DialogLayout& layout,
               DialogHandler& handler, int margin)
    : WxDialogWindow(stack, panel, layout, handler, margin), owner_(owner), title_(layout.title) {
  panel.Bind(wxEVT_SIZE, [this, &panel](wxSizeEvent& event) {
    event.Skip();
    arrange(panel.GetClientSize());
  });
}

void WxPage::showWindow(bool on) {
  if (dynamic_cast<wxNotebook*>(surface().GetParent())) {
    surface().Show(on);
    return;
  }
  // A slot without its child window would lie over others that share its place.
  wxWindow& slot = *surface().GetParent();
  slot.Show(on);
  if (on) joinTabOrder(slot);
}

Rect WxPage::windowRect() const {
  const auto* const tabs = dynamic_cast<const wxNotebook*>(surface().GetParent());
  return toRect(tabs ? pageRect(*tabs) : surface().GetParent()->GetRect());
}

void WxPage::setWindowRect(const Rect& rect) {
  if (dynamic_cast<wxNotebook*>(surface().GetParent())) return;
  surface().GetParent()->SetSize(rect.left, rect.top, rect.width(), rect.height(), wxSIZE_ALLOW_MINUS_ONE);
}

}  // namespace tarnwick::ui
