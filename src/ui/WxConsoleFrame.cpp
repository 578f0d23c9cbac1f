#include "ui/WxConsoleFrame.h"

#include "ui/ConsoleKeys.h"
#include "ui/Icons.h"
#include "ui/InputBar.h"
#include "ui/MessageBoxes.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"
#include "ui/WxConsoleSurface.h"

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/menu.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/toolbar.h>

namespace tarnwick::ui {

namespace {

constexpr int columns = 80;
constexpr int rows = 25;
// Above the numbers of the menus.
constexpr int firstToolId = wxID_HIGHEST + 100;

}  // namespace

WxConsoleFrame::WxConsoleFrame(WindowStack& stack, Desktop& desktop, ConsoleFrame& rules)
    : stack_(stack), rules_(rules), frame_(new wxFrame(nullptr, wxID_ANY, toWx(rules.title()))) {
  frame_->SetIcons(programIcons());
  buildMenus();
  buildToolbar();
  surface_ = new WxConsoleSurface(frame_.get(), stack_, desktop, rules_.view(), [this] { requestClose(); });
  nameBySpeech(*surface_, "Console");
  if (rules_.isOfToday()) surface_->useTodaysWays();
  const int scrollBar = std::max(0, wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, frame_.get()));
  // One column more for the margin at the left.
  wxSize size((columns + 1) * surface_->cell().x + scrollBar, rows * surface_->cell().y);
  size += surface_->margins();
  // A debugger's buttons all show, however wide the system makes them.
  if (auto* const buttons = frame_->GetToolBar()) size.x = std::max(size.x, buttons->GetBestSize().x);
  buildInputBar();
  if (inputBar_) {
    const wxSize bar = inputBar_->GetBestSize();
    size = {std::max(size.x, bar.x), size.y + bar.y};
  }
  frame_->SetClientSize(size);
  if (!inputBar_) surface_->SetSize(size);
  frame_->Bind(wxEVT_CHAR_HOOK, &WxConsoleFrame::onKey, this);
  frame_->Bind(wxEVT_MENU_OPEN, [this](wxMenuEvent& event) {
    event.Skip();
    updateMenus();
  });
  frame_->Bind(wxEVT_MENU, [this](wxCommandEvent& event) {
    const auto found = commandOfId_.find(event.GetId());
    if (found == commandOfId_.end()) return;
    command(found->second);
    // What a button has typed is completed at the keyboard.
    surface_->SetFocus();
  });
  frame_->Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
    event.Skip();
    surface_->invalidateAll();
    if (inputBar_) inputBar_->showChoice();
  });
  frame_->Bind(wxEVT_ICONIZE, [this](wxIconizeEvent& event) {
    event.Skip();
    // Not every system hides it with its window.
    if (event.IsIconized()) surface_->showHint(false);
  });
  frame_->Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
    if (event.CanVeto()) {
      event.Veto();
      requestClose();
    } else {
      stop();  // the session ends: there is no time for the loop
    }
  });
}

WxConsoleFrame::~WxConsoleFrame() {
  stop();
}

void WxConsoleFrame::buildMenus() {
  auto* const bar = new wxMenuBar;
  // The commands' own numbers are too large for the toolkit.
  int id = wxID_HIGHEST;
  for (const auto& menu : rules_.menuBar()) {
    auto* const list = new wxMenu;
    for (const auto& item : menu.items) {
      if (item.text.empty()) {
        list->AppendSeparator();
        continue;
      }
      list->Append(++id, toWx(item.text), "", item.isMark ? wxITEM_CHECK : wxITEM_NORMAL);
      commandOfId_[id] = item.command;
    }
    bar->Append(list, toWx(menu.title));
  }
  frame_->SetMenuBar(bar);
}

void WxConsoleFrame::buildToolbar() {
  if (!rules_.toolbar()) return;
  auto* const bar = frame_->CreateToolBar(wxTB_HORIZONTAL | wxTB_FLAT);
  const bool dark = wxSystemSettings::GetAppearance().IsDark();
  bar->SetToolBitmapSize(frame_->FromDIP(toolbarPictureSize()));
  int id = firstToolId;
  for (const auto& button : *rules_.toolbar()) {
    if (button.command == 0) {
      bar->AddSeparator();
      continue;
    }
    const wxString tip = toWx(button.toolTip);
    wxBitmapBundle picture = toolbarPicture(button.drawing, dark);
    // The button works all the same, by its tip.
    if (!picture.IsOk()) picture = wxBitmap(bar->GetToolBitmapSize());
    bar->AddTool(++id, tip, picture, wxNullBitmap, wxITEM_NORMAL, tip, tip);
    commandOfId_[id] = button.command;
  }
  bar->Realize();
}

void WxConsoleFrame::buildInputBar() {
  if (rules_.inputChoices().empty()) return;
  inputBar_ = new InputBar(frame_.get(), rules_, [this](int number) {
    command(number);
    // What is chosen is typed next.
    surface_->SetFocus();
  });
  surface_->showInputTargetBy([this] { inputBar_->showChoice(); });
  auto* const column = new wxBoxSizer(wxVERTICAL);
  column->Add(surface_, 1, wxEXPAND);
  column->Add(inputBar_, 0, wxEXPAND);
  frame_->SetSizer(column);
}

void WxConsoleFrame::updateMenus() {
  guarded(stack_, [this] {
    for (const auto& [id, number] : commandOfId_) {
      auto* const item = frame_->GetMenuBar()->FindItem(id);
      if (!item) continue;
      item->Enable(rules_.commandEnabled(number));
      if (item->IsCheckable()) item->Check(rules_.commandMarked(number));
    }
  });
}

void WxConsoleFrame::command(int number) {
  guarded(stack_, [&] {
    if (rules_.commandEnabled(number)) rules_.onCommand(number);
  });
}

// Here rather than by the toolkit's own table: both systems then know the same keys, and a key that stands for a
// disabled command is swallowed as well, not typed.
void WxConsoleFrame::onKey(wxKeyEvent& event) {
  for (const auto& accelerator : rules_.accelerators()) {
    if (!matches(event, accelerator)) continue;
    command(accelerator.command);
    return;
  }
  event.Skip();
}

void WxConsoleFrame::requestClose() {
  if (place_) place_->wishEnd();
}

void WxConsoleFrame::stop() {
  if (stopped_) return;
  stopped_ = true;
  surface_->stop();
  guarded(stack_, [this] { rules_.view().onClose(); });
}

void WxConsoleFrame::run() {
  bool ended = false;
  WindowStack::Place place(stack_, frame_.get(), [&ended] {
    ended = true;
    if (auto* loop = wxTheApp->GetMainLoop()) loop->ScheduleExit();
  });
  place_ = &place;
  surface_->start();
  if (inputBar_) inputBar_->showChoice();
  updateMenus();
  if (!ended) {
    frame_->Show();
    surface_->SetFocus();
    wxTheApp->MainLoop();
    frame_->Hide();
  }
  place_ = nullptr;
  stop();
}

}  // namespace tarnwick::ui
