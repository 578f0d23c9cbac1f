#pragma once

#include "app/NotepadStart.h"
#include "app/PlainTextFile.h"
#include "ui/WindowStack.h"

#include <wx/fdrepdlg.h>
#include <wx/frame.h>
#include <wx/textctrl.h>

#include <memory>
#include <string>

namespace tarnwick::ui {

/// A small editor of plain text, for systems that have none. No text is lost: it asks before it closes with unsaved
/// changes, a failed save leaves the file as it was, and what is not changed keeps its bytes.
class NotepadFrame {
 public:
  NotepadFrame();
  ~NotepadFrame();
  NotepadFrame(const NotepadFrame&) = delete;
  NotepadFrame& operator=(const NotepadFrame&) = delete;

  /// Shows the editor with the file in it that it begins with, if any, until its user closes it.
  void run(const NotepadStart& start);

  /// Reads a file; shows why it can't be read. Asks first about unsaved changes.
  void open(const std::string& path);
  /// Writes the text to its file, or to one that the user names. False, and shown, where that failed or was called off.
  bool save();
  bool saveAs();
  bool saveTo(const std::string& path);
  /// Puts the caret there, in sight; both count from 1. Beyond the end it goes to the last line, or to the line's end.
  void goTo(int line, int column);
  bool modified() const { return modified_; }
  /// Selects the next place of the words, beyond the end from the start on. Tells if there is none.
  void find(const wxString& words, bool forward, bool matchCase);

  wxFrame& frame() { return *frame_; }
  wxTextCtrl& text() { return *text_; }

 private:
  void buildMenus();
  void onMenu(wxCommandEvent& event);
  void onFind(wxFindDialogEvent& event);
  void showFind();
  void findAgain();
  void take();
  void updateTitle();
  void setModified(bool on);
  /// The text's bytes; empty after the user has called it off.
  std::optional<std::string> bytesToSave();
  /// False if the user wants to stay with the text.
  bool changesMayGo();
  void requestClose();
  std::string shownName() const;
  bool ask(const std::string& question);

  WindowStack stack_;
  wxFrame* frame_;
  wxTextCtrl* text_;
  PlainTextFile file_;
  wxFindReplaceData findData_{wxFR_DOWN};
  std::unique_ptr<wxFindReplaceDialog> findDialog_;
  bool modified_ = false;  ///< the control's own mark forgets what was changed without the keyboard
  bool closed_ = false;
};

}  // namespace tarnwick::ui
