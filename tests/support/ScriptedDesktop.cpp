#include "support/ScriptedDesktop.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>

namespace tarnwick::test {

ScriptedWindow::ScriptedWindow(const DialogLayout& layout, DialogHandler& handler, const ScriptedPlaces& places)
    : handler_(handler), places_(places), title_(layout.title) {
  collect(layout.content, nextRadioGroup_++);
  const auto known = places_.rects.find(layout.resource);
  if (known == places_.rects.end()) return;
  for (const auto& [control, rect] : known->second) (control == 0 ? rect_ : at(control).rect) = rect;
}

ScriptedWindow::~ScriptedWindow() {
  detach();
}

void ScriptedWindow::detach() {
  if (std::exchange(detached_, true)) return;
  for (const auto& [tabs, pages] : pages_) {
    for (const auto& page : pages) page->detach();
  }
  for (const auto& [slot, child] : children_) child->detach();
  handler_.detached();
}

void ScriptedWindow::collect(const DialogItem& item, int radioGroup) {
  if (item.control != 0) {
    if (controls_.count(item.control)) ADD_FAILURE() << "two controls bear the number " << item.control;
    Control control{};
    control.kind = item.kind;
    control.text = item.text;
    control.readOnly = item.readOnly;
    control.visible = !item.startsHidden;
    control.entries = item.entries;
    control.radioGroup = item.kind == ItemKind::RadioButton ? radioGroup : 0;
    controls_.emplace(item.control, control);
  }
  const int group = item.children.empty() ? radioGroup : nextRadioGroup_++;
  for (const auto& child : item.children) collect(child, group);
}

ScriptedWindow::Control& ScriptedWindow::at(int control) {
  return controls_.at(control);
}
const ScriptedWindow::Control& ScriptedWindow::at(int control) const {
  return controls_.at(control);
}

ScriptedWindow::Control* ScriptedWindow::usable(int control, const char* what) {
  const auto found = controls_.find(control);
  if (found == controls_.end()) {
    ADD_FAILURE() << "can't " << what << " " << control << " in \"" << title_ << "\": no such control";
    return nullptr;
  }
  if (!found->second.visible || !found->second.enabled) {
    ADD_FAILURE() << "can't " << what << " " << control << " in \"" << title_ << "\": it is hidden or disabled";
    return nullptr;
  }
  return &found->second;
}

void ScriptedWindow::press(int control) {
  Control* pressed = usable(control, "press");
  if (!pressed) return;
  if (pressed->kind == ItemKind::CheckBox) pressed->checked = !pressed->checked;
  if (pressed->kind == ItemKind::RadioButton) setChecked(control, true);
  handler_.onCommand(control);
}

void ScriptedWindow::chooseSystemCommand(const std::string& label) {
  const auto found = systemCommands_.find(label);
  if (found == systemCommands_.end())
    ADD_FAILURE() << "no system command \"" << label << '"';
  else
    found->second();
}

void ScriptedWindow::type(int control, const std::string& text) {
  Control* typed = usable(control, "type into");
  if (!typed) return;
  if (typed->kind != ItemKind::Edit || typed->readOnly) {
    ADD_FAILURE() << "can't type into " << control;
    return;
  }
  typed->text = text;
  handler_.onTextChanged(control);
}

bool ScriptedWindow::pressControlReturn(int control) {
  if (!usable(control, "press Ctrl+Return in")) return false;
  const auto action = handler_.controlReturn(control);
  if (action) action();
  return static_cast<bool>(action);
}

void ScriptedWindow::choose(int control, int index) {
  Control* chosen = usable(control, "choose in");
  if (!chosen) return;
  select(control, index);
  handler_.onSelectionChanged(control);
}

void ScriptedWindow::doubleClick(int control, int index) {
  Control* pressed = usable(control, "press twice in");
  if (!pressed) return;
  select(control, index);
  handler_.onDoubleClick(control);
}

std::string ScriptedWindow::toolTip(int control) const {
  return at(control).toolTip;
}

std::vector<std::string> ScriptedWindow::tabLabels(int tabs) const {
  return at(tabs).entries;
}

ScriptedWindow& ScriptedWindow::page(int tabs, int index) {
  return *pages_.at(tabs).at(static_cast<std::size_t>(index));
}
ScriptedWindow& ScriptedWindow::child(int slot) {
  return *children_.at(slot);
}

std::string ScriptedWindow::text(int control) const {
  return at(control).text;
}
void ScriptedWindow::setText(int control, const std::string& text) {
  at(control).text = text;
}
bool ScriptedWindow::checked(int control) const {
  return at(control).checked;
}

void ScriptedWindow::setChecked(int control, bool on) {
  Control& changed = at(control);
  if (changed.kind == ItemKind::RadioButton && on) {
    for (auto& [number, other] : controls_) {
      if (other.radioGroup == changed.radioGroup) other.checked = false;
    }
  }
  changed.checked = on;
}

bool ScriptedWindow::enabled(int control) const {
  return at(control).enabled;
}
void ScriptedWindow::enable(int control, bool on) {
  at(control).enabled = on;
}
bool ScriptedWindow::visible(int control) const {
  return at(control).visible;
}
void ScriptedWindow::show(int control, bool on) {
  at(control).visible = on;
}
Rect ScriptedWindow::rect(int control) const {
  return at(control).rect;
}
void ScriptedWindow::setRect(int control, const Rect& rect) {
  at(control).rect = rect;
}
void ScriptedWindow::focus(int control) {
  at(control);
  focused_ = control;
}

Rect ScriptedWindow::windowRect() const {
  Rect rect = rect_;
  if (position_) rect = {position_->x, position_->y, position_->x + rect_.width(), position_->y + rect_.height()};
  return rect;
}

void ScriptedWindow::setWindowRect(const Rect& rect) {
  if (fillsTabControl_) return;
  rect_ = rect;
  redrawn_ = false;
  if (position_) position_ = {rect.left, rect.top};
}

Rect ScriptedWindow::clientRect() const {
  return {0, 0, rect_.width() - places_.frameWidth, rect_.height() - places_.frameHeight};
}

void ScriptedWindow::scrollToEnd(int control) {
  at(control).shownToEnd = true;
}
void ScriptedWindow::setToolTip(int control, const std::string& text) {
  at(control).toolTip = text;
}
std::string ScriptedWindow::wordsInPlace(int control) const {
  const Control& asked = at(control);
  const bool holdsEntries = asked.kind == ItemKind::ListBox || asked.kind == ItemKind::ComboBox;
  return (holdsEntries ? asked.entries.empty() : asked.text.empty()) ? asked.emptyText : "";
}
std::vector<std::string> ScriptedWindow::entries(int control) const {
  return at(control).entries;
}
void ScriptedWindow::setEntries(int control, const std::vector<std::string>& entries) {
  at(control).entries = entries;
  at(control).chosen.assign(entries.size(), false);
}
int ScriptedWindow::selection(int control) const {
  return at(control).selection;
}
void ScriptedWindow::select(int control, int index) {
  at(control).selection = index;
}

bool ScriptedWindow::selected(int control, int index) const {
  return at(control).chosen.at(static_cast<std::size_t>(index));
}
void ScriptedWindow::setSelected(int control, int index, bool on) {
  at(control).chosen.at(static_cast<std::size_t>(index)) = on;
}

DialogWindow& ScriptedWindow::addTabPage(int tabs, const std::string& label, const DialogLayout& layout,
                                         DialogHandler& handler) {
  Control& control = at(tabs);
  control.entries.push_back(label);
  if (control.selection < 0) control.selection = 0;
  auto& page = pages_[tabs].emplace_back(std::make_unique<ScriptedWindow>(layout, handler, places_));
  page->position_ = std::nullopt;
  page->fillsTabControl_ = true;
  handler.initialise(*page);
  return *page;
}

DialogWindow& ScriptedWindow::addChild(int slot, const DialogLayout& layout, DialogHandler& handler) {
  at(slot);
  if (std::count(places_.refusedSlots.begin(), places_.refusedSlots.end(), slot)) throw std::runtime_error("refused");
  auto& child = children_[slot];
  child = std::make_unique<ScriptedWindow>(layout, handler, places_);
  child->position_ = std::nullopt;
  child->shown_ = at(slot).visible;
  handler.initialise(*child);
  return *child;
}

void ScriptedWindow::close(int result) {
  closed_ = true;
  result_ = result;
}

ScriptedDesktop::~ScriptedDesktop() {
  for (const auto& step : steps_) ADD_FAILURE() << "never came: " << step.kind << " \"" << step.text << "\"";
  EXPECT_EQ(waiting_, 0) << "the wait cursor was left";
}

void ScriptedDesktop::expectMessage(const std::string& text) {
  steps_.push_back({"message", text, {}, false, {}});
}

void ScriptedDesktop::expectHint(const std::string& text) {
  steps_.push_back({"hint", text, {}, false, {}});
}
void ScriptedDesktop::expectQuestion(const std::string& text, bool answer) {
  steps_.push_back({"question", text, {}, answer, {}});
}
void ScriptedDesktop::expectOpenFile(std::optional<std::string> answer) {
  steps_.push_back({"open", "", std::move(answer), false, {}});
}
void ScriptedDesktop::expectOpenFiles(std::vector<std::string> answer) {
  steps_.push_back({"several", "", {}, false, {}, std::move(answer)});
}
void ScriptedDesktop::expectSaveFile(std::optional<std::string> answer) {
  steps_.push_back({"save", "", std::move(answer), false, {}});
}
void ScriptedDesktop::expectBrowseFolder(std::optional<std::string> answer) {
  steps_.push_back({"folder", "", std::move(answer), false, {}});
}
void ScriptedDesktop::expectDialog(const std::string& title, DialogScript script) {
  steps_.push_back({"dialog", title, {}, false, std::move(script)});
}
void ScriptedDesktop::expectMainDialog(DialogScript script) {
  steps_.push_back({"main", "", {}, false, std::move(script)});
}

std::optional<ScriptedDesktop::Step> ScriptedDesktop::take(const std::string& kind, const std::string& text) {
  if (steps_.empty() || steps_.front().kind != kind) {
    ADD_FAILURE() << "unexpected " << kind << " \"" << text << "\""
                  << (steps_.empty() ? "" : ", expected " + steps_.front().kind + " \"" + steps_.front().text + "\"");
    return std::nullopt;
  }
  Step step = steps_.front();
  steps_.pop_front();
  EXPECT_EQ(step.text, text) << "in a " << kind;
  return step;
}

void ScriptedDesktop::message(const std::string& text) {
  take("message", text);
}

void ScriptedDesktop::hint(const std::string& text) {
  take("hint", text);
}

bool ScriptedDesktop::ask(const std::string& text) {
  const auto step = take("question", text);
  return step && step->yes;
}

std::optional<std::string> ScriptedDesktop::pickFile(const FileRequest& request) {
  lastRequest_ = request;
  const auto step = take("open", "");
  return step ? step->answer : std::nullopt;
}

std::vector<std::string> ScriptedDesktop::pickFiles(const FileRequest& request) {
  lastRequest_ = request;
  const auto step = take("several", "");
  return step ? step->answers : std::vector<std::string>();
}

void ScriptedDesktop::showWaitCursor(bool on) {
  waits_ += on ? 1 : 0;
  waiting_ += on ? 1 : -1;
}

std::optional<std::string> ScriptedDesktop::pickFileToSave(const FileRequest& request) {
  lastRequest_ = request;
  const auto step = take("save", "");
  return step ? step->answer : std::nullopt;
}

std::optional<std::string> ScriptedDesktop::pickFolder(const std::string& root) {
  lastRoot_ = root;
  const auto step = take("folder", "");
  return step ? step->answer : std::nullopt;
}

bool ScriptedDesktop::setClipboardText(const std::string& text) {
  clipboard_ = text;
  return true;
}

int ScriptedDesktop::play(const std::string& kind, const DialogLayout& layout, DialogHandler& handler) {
  ScriptedWindow window(layout, handler, places_);
  if (kind == "main") window.setKnownPosition(windowPosition_);
  handler.initialise(window);
  // Dialogs that initialisation itself opened have been played by now, so the step is taken after it.
  const auto step = take(kind, kind == "main" ? "" : window.title());
  if (!step) return IDCANCEL_CONTROL;
  // What a script expects comes before what was expected behind its dialog.
  std::deque<Step> later;
  later.swap(steps_);
  if (step->script) step->script(window);
  steps_.insert(steps_.end(), later.begin(), later.end());
  if (!window.closed()) ADD_FAILURE() << "\"" << window.title() << "\" was left open";
  if (kind == "main") windowPosition_ = window.position();
  return window.result();
}

int ScriptedDesktop::runDialog(const DialogLayout& layout, DialogHandler& handler) {
  return play("dialog", layout, handler);
}

void ScriptedDesktop::runMainDialog(const DialogLayout& layout, DialogHandler& handler) {
  play("main", layout, handler);
}

int ScriptedDesktop::startTimer(int /*milliseconds*/, std::function<void()> tick) {
  timers_[++lastTimer_] = std::move(tick);
  return lastTimer_;
}

void ScriptedDesktop::post(std::function<void()> task) {
  const std::lock_guard guard(postLock_);
  posted_.push_back(std::move(task));
}

void ScriptedDesktop::runPosted() {
  for (;;) {
    std::function<void()> task;
    {
      const std::lock_guard guard(postLock_);
      if (posted_.empty()) return;
      task = std::move(posted_.front());
      posted_.pop_front();
    }
    task();
  }
}

void ScriptedDesktop::tickTimers() {
  const auto running = timers_;
  for (const auto& [timer, tick] : running) {
    if (timers_.count(timer)) tick();
  }
}

}  // namespace tarnwick::test
