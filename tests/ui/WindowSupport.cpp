#include "platform/FileSystem.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"
#include "ui/WindowTest.h"
#include "ui/Wine.h"

#include <wx/app.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/dcscreen.h>
#include <wx/dialog.h>
#include <wx/hyperlink.h>
#include <wx/image.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

// Needs its own family's header first, which on Linux does not bring it.
#include <wx/generic/hyperlink.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace tarnwick::test {

namespace {

ui::WxDesktop* theDesktop = nullptr;

/// Ends a test program that hangs, with a message, whatever the user-interface thread is at.
class Watchdog {
 public:
  Watchdog() {
    std::thread([this] { watch(); }).detach();
  }

  void step(const std::string& name) {
    const std::lock_guard<std::mutex> guard(lock_);
    step_ = name;
    ++signs_;
  }

 private:
  void watch() {
    constexpr int patience = 240;  // seconds without a sign of life; a busy machine is slow
    for (int waited = 0;; ++waited) {
      const int before = signs_;
      std::this_thread::sleep_for(std::chrono::seconds(1));
      if (before != signs_) waited = 0;
      if (waited < patience) continue;
      const std::lock_guard<std::mutex> guard(lock_);
      std::printf("A window test hangs at: %s\n", step_.c_str());
      std::fflush(stdout);
      std::_Exit(3);
    }
  }

  std::mutex lock_;
  std::string step_;
  std::atomic<int> signs_ = 0;
};

Watchdog& watchdog() {
  static auto* const dog = new Watchdog;  // its thread outlives everything
  return *dog;
}

std::string testName() {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  return test ? std::string(test->test_suite_name()) + "." + test->name() : "between tests";
}

}  // namespace

ui::WxDesktop& desktop() {
  return *theDesktop;
}

void setDesktop(ui::WxDesktop* desktop) {
  theDesktop = desktop;
}

Steps::Steps() {
  Start(15);
}

Steps::~Steps() {
  Stop();
  for (const auto& step : steps_) ADD_FAILURE() << "never came to the step: " << step.name;
}

void Steps::then(const std::string& name, std::function<void()> action) {
  steps_.push_back({name, std::move(action), {}});
}

void Steps::until(const std::string& name, std::function<bool()> condition) {
  steps_.push_back({name, {}, std::move(condition)});
}

void Steps::settle(int rounds) {
  auto left = std::make_shared<int>(rounds);
  until("settle", [left] { return --*left <= 0; });
}

void Steps::Notify() {
  if (steps_.empty()) return;
  if (steps_.front().condition) {
    if (!steps_.front().condition()) return giveItTheKeyboard();
    begun_ = true;
    watchdog().step(testName() + ": after " + steps_.front().name);
    steps_.pop_front();
    return;
  }
  begun_ = true;
  const auto step = std::move(steps_.front());
  steps_.pop_front();
  watchdog().step(testName() + ": " + step.name);
  // Not from the timer itself, which would stand still while a step's dialog is open.
  wxTheApp->CallAfter(step.action);
}

void Steps::giveItTheKeyboard() {
  // Where a window comes just as another one goes, Wine and the window manager may end up with none that is active. A
  // person would click on it. What a program's own doing makes of the keyboard comes later in a test.
  constexpr int patience = 1000;  // some 15 seconds
  if (begun_ || !runsUnderWine() || ++waits_ % patience != 0 || desktop().openDialogs().empty()) return;
  std::printf("No window is active: the test's first one is raised.\n");
  desktop().openDialogs().back()->dialog().Raise();
}

WindowTest::WindowTest() {
  watchdog().step(testName());
}

WindowTest::~WindowTest() = default;

ui::WxTopWindow& WindowTest::top() const {
  if (desktop().openDialogs().empty()) throw std::runtime_error("no dialog is open");
  return *desktop().openDialogs().back();
}

namespace {

/// The control's window, or null with a failed test if a person could not use it.
wxWindow* usable(ui::WxDialogWindow& window, int control) {
  wxWindow* const found = window.windowOf(control);
  if (!found) {
    ADD_FAILURE() << "no control " << control;
    return nullptr;
  }
  EXPECT_TRUE(found->IsEnabled()) << "control " << control << " is disabled";
  EXPECT_TRUE(found->IsShownOnScreen()) << "control " << control << " does not show";
  const auto& open = desktop().openDialogs();
  EXPECT_TRUE(open.empty() || wxGetTopLevelParent(found) == &open.back()->dialog())
      << "control " << control << " is not in the innermost dialog";
  return testing::Test::HasFailure() ? nullptr : found;
}

void send(wxWindow& window, const wxEventTypeTag<wxCommandEvent>& type, int value = 0) {
  wxCommandEvent event(type, window.GetId());
  event.SetEventObject(&window);
  event.SetInt(value);
  window.ProcessWindowEvent(event);
}

}  // namespace

void press(ui::WxDialogWindow& window, int control) {
  wxWindow* const pressed = usable(window, control);
  if (!pressed) return;
  if (auto* box = dynamic_cast<wxCheckBox*>(pressed)) {
    box->SetValue(!box->GetValue());
    send(*box, wxEVT_CHECKBOX, box->GetValue());
  } else if (auto* radio = dynamic_cast<wxRadioButton*>(pressed)) {
    radio->SetValue(true);
    send(*radio, wxEVT_RADIOBUTTON, 1);
  } else {
    send(*pressed, wxEVT_BUTTON);
  }
}

void type(ui::WxDialogWindow& window, int control, const std::string& text) {
  if (auto* field = dynamic_cast<wxTextCtrl*>(usable(window, control))) {
    EXPECT_TRUE(field->IsEditable()) << "field " << control << " only shows";
    field->SetFocus();
    field->SetValue(ui::toWx(text));  // sends its event, as typing does
  }
}

void choose(ui::WxDialogWindow& window, int control, int index) {
  wxWindow* const found = usable(window, control);
  if (auto* combo = dynamic_cast<wxComboBox*>(found)) {
    combo->SetSelection(index);
    send(*combo, wxEVT_COMBOBOX, index);
  } else if (auto* list = dynamic_cast<wxListBox*>(found)) {
    list->SetSelection(index);
    send(*list, wxEVT_LISTBOX, index);
  } else if (auto* tabs = dynamic_cast<wxNotebook*>(found)) {
    tabs->SetSelection(static_cast<std::size_t>(index));  // sends its event
  }
}

void key(int code, int modifiers) {
  wxUIActionSimulator keyboard;
  keyboard.Char(code, modifiers);
}

namespace {

std::string nameOf(const wxWindow& window) {
  return ui::fromWx(window.GetName() + " \"" + window.GetLabel() + "\"");
}

/// The controls that stand side by side on one surface and show.
std::vector<wxWindow*> shownOn(const wxWindow& surface) {
  std::vector<wxWindow*> shown;
  for (wxWindow* child : surface.GetChildren()) {
    if (child->IsShown() && !child->IsTopLevel()) shown.push_back(child);
  }
  return shown;
}

void expectPlaces(const wxWindow& surface, const wxRect& room) {
  const auto windows = shownOn(surface);
  for (std::size_t i = 0; i < windows.size(); ++i) {
    const wxRect rect = windows[i]->GetRect();
    EXPECT_TRUE(room.Contains(rect)) << nameOf(*windows[i]) << " stands out: " << rect.x << "," << rect.y << " "
                                     << rect.width << "x" << rect.height << " in " << room.width << "x" << room.height;
    for (std::size_t other = i + 1; other < windows.size(); ++other) {
      const wxRect second = windows[other]->GetRect();
      if (!rect.Intersects(second)) continue;
      // A frame goes around its controls, which come after it.
      const bool framed = dynamic_cast<wxStaticBox*>(windows[i]) && rect.Contains(second);
      EXPECT_TRUE(framed) << nameOf(*windows[i]) << " and " << nameOf(*windows[other]) << " overlap";
    }
  }
}

/// Every tab must be there for the mouse, at least as wide as its label.
void expectTabsWhole(const wxNotebook& tabs) {
  std::vector<int> widths(tabs.GetPageCount());
  const int middle = ui::pageRect(tabs).y / 2;
  for (int x = 0; x < tabs.GetSize().x; ++x) {
    const int tab = tabs.HitTest(wxPoint(x, middle));
    if (tab >= 0) ++widths[static_cast<std::size_t>(tab)];
  }
  for (std::size_t i = 0; i < widths.size(); ++i) {
    const wxString label = tabs.GetPageText(i).Trim(true).Trim(false);
    EXPECT_GE(widths[i], tabs.GetTextExtent(label).x) << "the tab " << label << " is cut";
  }
}

/// What the eye makes of a colour, from 0 to 1.
double luminance(const wxColour& colour) {
  const auto linear = [](unsigned char channel) { return std::pow(channel / 255.0, 2.2); };
  return 0.2126 * linear(colour.Red()) + 0.7152 * linear(colour.Green()) + 0.0722 * linear(colour.Blue());
}

/// Links have colours of their own, whatever the theme's.
void expectReadable(const wxGenericHyperlinkCtrl& link, const wxColour& background) {
  const double paper = luminance(background);
  for (const auto& colour : {link.GetNormalColour(), link.GetVisitedColour(), link.GetHoverColour()}) {
    const double ink = luminance(colour);
    const double contrast = (std::max(ink, paper) + 0.05) / (std::min(ink, paper) + 0.05);
    EXPECT_GT(contrast, 3) << ui::fromWx(colour.GetAsString()) << " on " << ui::fromWx(background.GetAsString());
  }
}

bool mustShowWhole(const wxWindow& window) {
  return !dynamic_cast<const wxTextCtrl*>(&window) && !dynamic_cast<const wxListBox*>(&window) &&
         !dynamic_cast<const wxNotebook*>(&window) && !dynamic_cast<const wxPanel*>(&window) &&
         !dynamic_cast<const wxStaticBox*>(&window);
}

int widthOfLongestLine(const wxButton& button) {
  int width = 0;
  for (const auto& line : wxSplit(button.GetLabelText(), '\n', '\0'))
    width = std::max(width, button.GetTextExtent(line).x);
  return width;
}

void expectWhole(const wxWindow& surface) {
  for (const wxWindow* window : shownOn(surface)) {
    const wxSize size = window->GetSize();
    if (mustShowWhole(*window)) {
      wxSize best = window->GetBestSize();
      // A button's best size is never less than the toolkit's usual width, though its text may need less.
      if (const auto* button = dynamic_cast<const wxButton*>(window)) {
        best.x = 2 * button->GetCharWidth() + widthOfLongestLine(*button);
      }
      EXPECT_TRUE(best.x <= size.x && best.y <= size.y)
          << nameOf(*window) << " is cut: " << size.x << "x" << size.y << " of " << best.x << "x" << best.y;
    } else if (dynamic_cast<const wxStaticBox*>(window)) {
      EXPECT_LE(window->GetTextExtent(window->GetLabel()).x, size.x) << nameOf(*window) << " is cut";
    }
    if (const auto* link = dynamic_cast<const wxGenericHyperlinkCtrl*>(window)) {
      expectReadable(*link, surface.GetBackgroundColour());
    } else if (const auto* tabs = dynamic_cast<const wxNotebook*>(window)) {
      expectTabsWhole(*tabs);
    } else if (dynamic_cast<const wxTextCtrl*>(window)) {
      EXPECT_GE(size.y, window->GetCharHeight()) << nameOf(*window) << " is too low";
      EXPECT_GE(size.x, 4 * window->GetCharWidth()) << nameOf(*window) << " is too narrow";
    }
  }
}

}  // namespace

void expectGoodLooks(ui::WxDialogWindow& window) {
  const wxWindow& surface = window.surface();
  if (!surface.IsShownOnScreen()) return;  // another tab's page
  expectPlaces(surface, wxRect(surface.GetClientSize()));
  expectWhole(surface);
  for (const auto& child : window.children()) expectGoodLooks(*child);
}

bool isScaledRun() {
  return platform::environment("TARNWICK_TEST_SCALED").has_value();
}

void expectFitsSmallScreen(ui::WxTopWindow& window) {
  if (isScaledRun()) return;
  const wxSize size = window.dialog().GetSize();
  EXPECT_LE(size.x, 1024);
  EXPECT_LE(size.y, 730);
}

void signOfLife() {
  watchdog().step(testName());
}

void shoot(const std::string& name) {
  const auto folder = platform::environment("TARNWICK_SHOTS");
  if (!folder) return;
  const std::string file = *folder + "/" + name;
  // The X server's own tool cuts the empty room off.
  if (std::system(("import -window root -trim +repage \"" + file + ".png\"").c_str()) == 0) return;
  screen(wxRect(wxScreenDC().GetSize())).SaveFile(ui::toWx(file + ".bmp"), wxBITMAP_TYPE_BMP);
}

}  // namespace tarnwick::test
