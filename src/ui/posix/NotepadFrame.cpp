#include "ui/posix/NotepadFrame.h"

#include "base/Filename.h"
#include "base/Tarnwickfile.h"
#include "platform/FileSystem.h"
#include "ui/FileDialogs.h"
#include "ui/Icons.h"
#include "ui/MessageBoxes.h"
#include "ui/MessageLooks.h"
#include "ui/Text.h"

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>

#include <algorithm>

namespace tarnwick::ui {

namespace {

constexpr int columns = 90;
constexpr int rows = 32;
constexpr int findNext = wxID_HIGHEST + 1;

wxString shown(const std::string& utf8) {
  return wxString::FromUTF8(utf8.data(), utf8.size());
}

std::string utf8Of(const wxString& text) {
  const auto bytes = text.utf8_str();
  return {bytes.data(), bytes.length()};
}

}  // namespace

NotepadFrame::NotepadFrame()
    : frame_(new wxFrame(nullptr, wxID_ANY, "Tarnwick text editor")),
      text_(new wxTextCtrl(frame_, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                           wxTE_MULTILINE | wxTE_DONTWRAP | wxTE_NOHIDESEL | wxTE_PROCESS_TAB)) {
  frame_->SetIcons(programIcons());
  text_->SetFont(wxFontInfo(text_->GetFont().GetPointSize()).Family(wxFONTFAMILY_TELETYPE));
  const wxSize cell = text_->GetTextExtent("0");
  frame_->SetClientSize(cell.x * columns, cell.y * rows);
  buildMenus();
  text_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { setModified(true); });
  frame_->Bind(wxEVT_MENU, &NotepadFrame::onMenu, this);
  frame_->Bind(wxEVT_FIND, &NotepadFrame::onFind, this);
  frame_->Bind(wxEVT_FIND_NEXT, &NotepadFrame::onFind, this);
  frame_->Bind(wxEVT_FIND_CLOSE, [this](wxFindDialogEvent&) { findDialog_->Hide(); });
  frame_->Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
    if (event.CanVeto()) event.Veto();
    requestClose();
  });
  take();
}

NotepadFrame::~NotepadFrame() {
  findDialog_.reset();
  frame_->Destroy();
}

void NotepadFrame::buildMenus() {
  auto* const file = new wxMenu;
  file->Append(wxID_OPEN, "&Open...\tCtrl+O");
  file->Append(wxID_SAVE, "&Save\tCtrl+S");
  file->Append(wxID_SAVEAS, "Save &as...\tCtrl+Shift+S");
  file->AppendSeparator();
  file->Append(wxID_EXIT, "E&xit\tCtrl+Q");
  auto* const edit = new wxMenu;
  edit->Append(wxID_CUT, "Cu&t\tCtrl+X");
  edit->Append(wxID_COPY, "&Copy\tCtrl+C");
  edit->Append(wxID_PASTE, "&Paste\tCtrl+V");
  edit->Append(wxID_SELECTALL, "Select &all\tCtrl+A");
  edit->AppendSeparator();
  edit->Append(wxID_FIND, "&Find...\tCtrl+F");
  edit->Append(findNext, "Find &next\tF3");
  auto* const bar = new wxMenuBar;
  bar->Append(file, "&File");
  bar->Append(edit, "&Edit");
  frame_->SetMenuBar(bar);
}

void NotepadFrame::onMenu(wxCommandEvent& event) {
  guarded(stack_, [&] {
    switch (event.GetId()) {
      case wxID_OPEN: {
        FileRequest request;
        request.filter = "all files|*.*||";
        request.startFolder = Filename(file_.path()).directory();
        request.mustExist = true;
        if (const auto chosen = openFileDialog(stack_, request)) open(*chosen);
        break;
      }
      case wxID_SAVE:
        save();
        break;
      case wxID_SAVEAS:
        saveAs();
        break;
      case wxID_EXIT:
        requestClose();
        break;
      case wxID_CUT:
        text_->Cut();
        break;
      case wxID_COPY:
        text_->Copy();
        break;
      case wxID_PASTE:
        text_->Paste();
        break;
      case wxID_SELECTALL:
        text_->SelectAll();
        break;
      case wxID_FIND:
        showFind();
        break;
      case findNext:
        findAgain();
        break;
      default:
        event.Skip();
    }
  });
}

void NotepadFrame::run(const NotepadStart& start) {
  const WindowStack::Place place(stack_, frame_);
  frame_->Show();
  text_->SetFocus();
  if (!start.path.empty()) open(start.path);
  if (start.line > 0) goTo(start.line, start.column);
  if (!closed_) wxTheApp->MainLoop();
  frame_->Hide();
}

void NotepadFrame::open(const std::string& path) {
  if (!changesMayGo()) return;
  try {
    file_.load(platform::absolutePath(path));
    take();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    showMessage(stack_, "Can't open " + failure.file + "\n" + failure.message, MessageKind::Fault);
  }
}

void NotepadFrame::goTo(int line, int column) {
  const int lastLine = std::max(text_->GetNumberOfLines() - 1, 0);
  const int y = std::clamp(line - 1, 0, lastLine);
  const int x = std::clamp(column - 1, 0, std::max(text_->GetLineLength(y), 0));
  const long at = text_->XYToPosition(x, y);
  text_->SetInsertionPoint(at);
  text_->ShowPosition(at);
}

void NotepadFrame::take() {
  text_->ChangeValue(shown(file_.text()));
  text_->SetInsertionPoint(0);
  setModified(false);
}

std::string NotepadFrame::shownName() const {
  return file_.path().empty() ? "Untitled" : Filename(file_.path()).nameWithExtension();
}

void NotepadFrame::setModified(bool on) {
  modified_ = on;
  updateTitle();
}

void NotepadFrame::updateTitle() {
  frame_->SetTitle(toWx((modified_ ? "*" : "") + shownName() + " - Tarnwick text editor"));
}

bool NotepadFrame::ask(const std::string& question) {
  return showMessage(stack_, question, MessageKind::YesNo);
}

std::optional<std::string> NotepadFrame::bytesToSave() {
  const std::string text = utf8Of(text_->GetValue());
  auto bytes = file_.bytesOf(text);
  if (bytes) return bytes;
  if (!ask("The file's character set does not have all letters of the text.\nDo you want to save it as UTF-8?")) {
    return std::nullopt;
  }
  file_.useUtf8();
  return file_.bytesOf(text);
}

bool NotepadFrame::saveTo(const std::string& path) {
  const auto bytes = bytesToSave();
  if (!bytes) return false;
  try {
    file_.save(path, *bytes);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    showMessage(stack_, "Can't save " + failure.file + "\n" + failure.message, MessageKind::Fault);
    return false;
  }
  setModified(false);
  return true;
}

bool NotepadFrame::save() {
  if (file_.path().empty()) return saveAs();
  if (file_.changedByOthers() &&
      !ask(file_.path() + " has been changed by another program.\nDo you want to replace it?")) {
    return false;
  }
  return saveTo(file_.path());
}

bool NotepadFrame::saveAs() {
  FileRequest request;
  request.filter = "all files|*.*||";
  request.startFolder = Filename(file_.path()).directory();
  request.name = Filename(file_.path()).nameWithExtension();
  request.confirmOverwrite = true;
  const auto chosen = saveFileDialog(stack_, request);
  return chosen && saveTo(*chosen);
}

bool NotepadFrame::changesMayGo() {
  if (!modified_) return true;
  wxMessageDialog box(stack_.parent(), toWx("Do you want to save the changes to " + shownName() + "?"),
                      "Tarnwick text editor", wxYES_NO | wxCANCEL | wxICON_QUESTION | wxCENTRE);
  box.SetYesNoCancelLabels("&Save", "&Don't save", "&Cancel");
  const WindowStack::Place place(stack_, nullptr);
  const MessageLooks looks;
  const int answer = box.ShowModal();
  if (answer == wxID_YES) return save();
  return answer == wxID_NO;
}

void NotepadFrame::requestClose() {
  guarded(stack_, [this] {
    if (closed_ || !changesMayGo()) return;
    closed_ = true;
    if (auto* const loop = wxTheApp->GetMainLoop()) loop->ScheduleExit();
  });
}

void NotepadFrame::showFind() {
  const wxString selected = text_->GetStringSelection();
  if (!selected.empty() && selected.find('\n') == wxString::npos) findData_.SetFindString(selected);
  // The words in the dialog become the screen's selection, and ours goes: the search begins behind it all the same.
  long begin = 0;
  long end = 0;
  text_->GetSelection(&begin, &end);
  text_->SetInsertionPoint(end);
  findDialog_ = std::make_unique<wxFindReplaceDialog>(frame_, &findData_, "Find", wxFR_NOWHOLEWORD);
  findDialog_->Show();
}

void NotepadFrame::onFind(wxFindDialogEvent& event) {
  const bool forward = (event.GetFlags() & wxFR_DOWN) != 0;
  find(event.GetFindString(), forward, (event.GetFlags() & wxFR_MATCHCASE) != 0);
}

void NotepadFrame::findAgain() {
  if (findData_.GetFindString().empty()) return showFind();
  find(findData_.GetFindString(), (findData_.GetFlags() & wxFR_DOWN) != 0,
       (findData_.GetFlags() & wxFR_MATCHCASE) != 0);
}

void NotepadFrame::find(const wxString& words, bool forward, bool matchCase) {
  const wxString text = matchCase ? text_->GetValue() : text_->GetValue().Lower();
  const wxString wanted = matchCase ? words : words.Lower();
  long begin = 0;
  long end = 0;
  text_->GetSelection(&begin, &end);
  std::size_t found = wxString::npos;
  if (forward) {
    found = text.find(wanted, static_cast<std::size_t>(end));
    if (found == wxString::npos) found = text.find(wanted);
  } else {
    if (begin > 0) found = text.rfind(wanted, static_cast<std::size_t>(begin - 1));
    if (found == wxString::npos) found = text.rfind(wanted);
  }
  if (words.empty() || found == wxString::npos) {
    showMessage(stack_, "Can't find \"" + fromWx(words) + '"', MessageKind::Hint);
    return;
  }
  const auto at = static_cast<long>(found);
  text_->SetSelection(at, at + static_cast<long>(wanted.length()));
  text_->ShowPosition(at);
}

}  // namespace tarnwick::ui
