#include "ui/DialogChecks.h"

#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/bmpbuttn.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/radiobut.h>
#include <wx/statbmp.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace tarnwick::test {

namespace {

template <typename... Kinds>
bool isOneOf(const wxWindow& window) {
  return (... || (dynamic_cast<const Kinds*>(&window) != nullptr));
}

std::string nameOf(wxWindow* window) {
  return window ? ui::fromWx(window->GetName() + " \"" + window->GetLabel() + "\"") : "nothing";
}

/// Whatever shows of the window and its child windows and is of a kind.
std::vector<wxWindow*> shown(const ui::WxDialogWindow& window, bool (*isMeant)(const wxWindow&)) {
  std::vector<wxWindow*> found;
  for (const int control : window.controls()) {
    wxWindow* const one = window.windowOf(control);
    if (one->IsShownOnScreen() && isMeant(*one)) found.push_back(one);
  }
  for (const auto& child : window.children()) {
    const auto inner = shown(*child, isMeant);
    found.insert(found.end(), inner.begin(), inner.end());
  }
  return found;
}

/// Where a person sees the control; of a tab control it is the row of the tabs.
wxRect placeOf(wxWindow& window) {
  wxRect place = window.GetScreenRect();
  if (const auto* tabs = dynamic_cast<wxNotebook*>(&window)) place.height = ui::pageRect(*tabs).y;
  return place;
}

bool onOneLine(const wxRect& first, const wxRect& second) {
  const int common = std::min(first.GetBottom(), second.GetBottom()) - std::max(first.y, second.y);
  return common > std::min(first.height, second.height) / 2;
}

bool follows(wxWindow& first, wxWindow& second) {
  const wxRect before = placeOf(first);
  const wxRect after = placeOf(second);
  if (onOneLine(before, after)) return after.x > before.x;
  return after.y > before.y || after.x > before.GetRight();
}

/// One walk: presses, waits for the focus to move, and notes where it went.
class Walk {
 public:
  explicit Walk(std::shared_ptr<Stops> reached) : reached_(std::move(reached)) {}

  /// One round of the event loop; true at the end.
  bool goOn() {
    wxWindow* const focus = wxWindow::FindFocus();
    if (!pressed_) {
      last_ = focus;
      reached_->push_back(focus);
      press();
      return false;
    }
    if (focus == last_ || !focus) return ++waited_ > patience;
    if (focus == reached_->front() || reached_->size() > mostStops) return true;
    last_ = focus;
    reached_->push_back(focus);
    press();
    return false;
  }

 private:
  static constexpr int patience = 60;
  static constexpr std::size_t mostStops = 60;

  void press() {
    pressed_ = true;
    waited_ = 0;
    key(WXK_TAB);
  }

  std::shared_ptr<Stops> reached_;
  wxWindow* last_ = nullptr;
  bool pressed_ = false;
  int waited_ = 0;
};

}  // namespace

std::vector<wxWindow*> namedControls(const ui::WxDialogWindow& window) {
  return shown(window, [](const wxWindow& one) {
    return !isOneOf<wxStaticText, wxStaticBox, wxStaticBitmap, wxPanel, wxNotebook>(one);
  });
}

std::vector<wxWindow*> tabStops(const ui::WxDialogWindow& window) {
  return shown(window, [](const wxWindow& one) {
    if (isOneOf<wxPanel>(one) || !one.IsEnabled() || !one.AcceptsFocusFromKeyboard()) return false;
    const auto* radio = dynamic_cast<const wxRadioButton*>(&one);
    return !radio || radio->GetValue();
  });
}

void expectNames(const ui::WxDialogWindow& window) {
  std::map<std::string, wxWindow*> known;
  const auto isLetter = [](unsigned char c) { return std::isalpha(c) != 0; };
  for (wxWindow* one : namedControls(window)) {
    const std::string name = ui::spokenName(*one);
    EXPECT_TRUE(std::any_of(name.begin(), name.end(), isLetter)) << nameOf(one) << " is called \"" << name << "\"";
    EXPECT_EQ(name.find("control "), std::string::npos) << "the toolkit's own name of " << nameOf(one);
    const auto added = known.emplace(name, one);
    EXPECT_TRUE(added.second) << nameOf(one) << " and " << nameOf(added.first->second) << " are both called " << name;
  }
}

void walkByTab(Steps& steps, std::shared_ptr<Stops> reached) {
  auto walk = std::make_shared<Walk>(std::move(reached));
  steps.until("the walk by Tab is over", [walk] { return walk->goOn(); });
}

void expectAllReached(const ui::WxDialogWindow& window, const Stops& reached) {
  const auto stops = tabStops(window);
  const std::set<wxWindow*> wanted(stops.begin(), stops.end());
  const std::set<wxWindow*> found(reached.begin(), reached.end());
  for (wxWindow* one : wanted) EXPECT_TRUE(found.count(one)) << "Tab does not come to " << nameOf(one);
  for (wxWindow* one : found) EXPECT_TRUE(wanted.count(one)) << "Tab comes to " << nameOf(one);
  EXPECT_EQ(found.size(), reached.size()) << "Tab comes twice to one control";
  EXPECT_FALSE(wanted.empty());
}

void expectReadingOrder(const Stops& reached) {
  int begins = 0;
  std::string order;
  for (std::size_t i = 0; i < reached.size(); ++i) {
    wxWindow* const one = reached[i];
    wxWindow* const next = reached[(i + 1) % reached.size()];
    if (!one || !next) continue;  // expectAllReached tells of it
    if (!follows(*one, *next)) {
      ++begins;
      order += nameOf(one) + " and then " + nameOf(next) + "\n";
    }
  }
  EXPECT_LE(begins, 1) << "The walk goes back after\n" << order;
}

}  // namespace tarnwick::test
