#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"
#include "ui/Text.h"
#include "ui/WindowTest.h"
#include "ui/posix/NotepadFrame.h"

#include <wx/filedlg.h>
#include <wx/msgdlg.h>
#include <wx/testing.h>
#include <wx/uiaction.h>

#include <sys/stat.h>

namespace tarnwick::test {

namespace {

using Texts = std::vector<std::string>;

/// Answers message boxes and file dialogs, and keeps what was shown.
class Answers : public wxModalDialogHook {
 public:
  Answers() { Register(); }

  Texts shown;
  std::deque<int> answers;

 protected:
  int Enter(wxDialog* dialog) override {
    if (auto* const box = dynamic_cast<wxMessageDialog*>(dialog)) {
      shown.push_back(ui::fromWx(box->GetMessage()));
    } else if (dynamic_cast<wxFileDialog*>(dialog)) {
      shown.emplace_back("file dialog");
      EXPECT_EQ(answers.empty() ? wxID_NONE : answers.front(), wxID_CANCEL) << "a path cannot be chosen from outside";
    } else {
      return wxID_NONE;
    }
    if (answers.empty()) {
      ADD_FAILURE() << "not expected: " << shown.back();
      return wxID_CANCEL;
    }
    const int answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

class NotepadTest : public WindowTest {
 protected:
  std::string file(const std::string& content) {
    writeFile(folder.file("x.txt"), content);
    return folder.file("x.txt");
  }

  void waitForWindow() {
    steps.until("the window shows", [this] { return notepad.frame().IsActive() && notepad.text().HasFocus(); });
    steps.settle();
  }

  void thenClose() {
    steps.then("close", [this] { notepad.frame().Close(); });
  }

  /// What the user types at the end.
  void typeAtTheEnd(const wxString& text) {
    notepad.text().SetInsertionPointEnd();
    notepad.text().WriteText(text);
  }

  std::string title() { return ui::fromWx(notepad.frame().GetTitle()); }

  ScratchFolder folder;
  Answers answers;
  ui::NotepadFrame notepad;
};

}  // namespace

TEST_F(NotepadTest, ShowsAFileInAFixedPitchFont) {
  waitForWindow();
  steps.then("look", [this] {
    EXPECT_EQ(title(), "x.txt - Tarnwick text editor");
    EXPECT_EQ(ui::fromWx(notepad.text().GetValue()), "\n\njavac -d . A.java\n\nA.java:3: error: \xC3\xA4\n");
    EXPECT_TRUE(notepad.text().GetFont().IsFixedWidth());
    EXPECT_EQ(notepad.text().GetTextExtent("iiii"), notepad.text().GetTextExtent("WWWW"));
    shoot("notepad");
  });
  thenClose();
  notepad.run({file("\n\njavac -d . A.java\n\nA.java:3: error: \xC3\xA4\n")});
  EXPECT_EQ(answers.shown, Texts{}) << "nothing was changed";
}

TEST_F(NotepadTest, BeginsAtTheLineAndColumnThatItIsGiven) {
  std::string text;
  for (int line = 1; line <= 500; ++line) text += "\tline " + std::to_string(line) + '\n';
  long column = 0;
  long line = 0;
  waitForWindow();
  steps.until("the line is in sight", [this] {
    long x = 0;
    long top = 0;
    const auto hit = notepad.text().HitTest(wxPoint(2, notepad.text().GetClientSize().y / 2), &x, &top);
    return hit != wxTE_HT_UNKNOWN && top > 300 && top < 500;
  });
  steps.then("look", [&] {
    notepad.text().PositionToXY(notepad.text().GetInsertionPoint(), &column, &line);
    notepad.goTo(9999, 9999);
    EXPECT_EQ(notepad.text().GetInsertionPoint(), notepad.text().GetLastPosition()) << "no such line";
    notepad.goTo(2, 9999);
    EXPECT_EQ(notepad.text().GetInsertionPoint(), 15) << "no such column: at the line's end";
    EXPECT_FALSE(notepad.modified());
  });
  thenClose();
  notepad.run({file(text), 450, 3});
  EXPECT_EQ(line, 449);
  EXPECT_EQ(column, 2);
}

TEST_F(NotepadTest, WhatIsTypedIsSavedByItsKey) {
  waitForWindow();
  steps.then("type", [this] { typeAtTheEnd("b"); });
  steps.then("look", [this] { EXPECT_EQ(title(), "*x.txt - Tarnwick text editor"); });
  steps.then("save", [] { key('S', wxMOD_CONTROL); });
  steps.until("saved", [this] { return title() == "x.txt - Tarnwick text editor"; });
  thenClose();
  notepad.run({file("a\r\n")});
  EXPECT_EQ(contentOf(folder.file("x.txt")), "a\r\nb");
}

TEST_F(NotepadTest, TypedLettersComeFromTheKeyboard) {
  waitForWindow();
  steps.then("type", [] { wxUIActionSimulator().Text("ab\t"); });
  steps.until("typed", [this] { return notepad.text().GetValue() == "ab\t"; });
  steps.then("save", [] { key('S', wxMOD_CONTROL); });
  steps.until("saved", [this] { return !notepad.modified(); });
  thenClose();
  notepad.run({file("")});
  EXPECT_EQ(contentOf(folder.file("x.txt")), "ab\t");
}

TEST_F(NotepadTest, WhatIsNotChangedKeepsItsBytes) {
  std::string all = "\xC3\xA4\xE6\x97\xA5\xE6\x9C\xAC\r\nlone\rhere\n\xE2\x80\xA8\xE2\x80\xA9\xFF";
  for (int byte = 0; byte < 128; ++byte) all += static_cast<char>(byte);
  waitForWindow();
  steps.then("add a line", [this] {
    typeAtTheEnd("\nend");
    EXPECT_TRUE(notepad.save());
  });
  thenClose();
  notepad.run({file(all)});
  EXPECT_EQ(contentOf(folder.file("x.txt")), all + "\nend");
}

TEST_F(NotepadTest, ClosingWithUnsavedChangesAsks) {
  waitForWindow();
  steps.then("type", [this] { typeAtTheEnd("b"); });
  steps.then("call off", [this] {
    answers.answers = {wxID_CANCEL};
    notepad.frame().Close();
    EXPECT_TRUE(notepad.frame().IsShown());
  });
  steps.then("save", [this] {
    answers.answers = {wxID_YES};
    notepad.frame().Close();
  });
  notepad.run({file("a")});
  EXPECT_EQ(answers.shown, Texts(2, "Do you want to save the changes to x.txt?"));
  EXPECT_EQ(contentOf(folder.file("x.txt")), "ab");
}

TEST_F(NotepadTest, ChangesMayBeGivenUp) {
  waitForWindow();
  steps.then("type", [this] { typeAtTheEnd("b"); });
  steps.then("close", [this] {
    answers.answers = {wxID_NO};
    notepad.frame().Close();
  });
  notepad.run({file("a")});
  EXPECT_EQ(contentOf(folder.file("x.txt")), "a");
}

TEST_F(NotepadTest, AFailedSaveIsToldAndKeepsTheWindowWithItsText) {
  waitForWindow();
  steps.then("close while it cannot be saved", [this] {
    typeAtTheEnd("b");
    platform::deleteFile(folder.file("x.txt"));
    ::mkdir(folder.file("x.txt").c_str(), 0755);
    answers.answers = {wxID_YES, wxID_OK};
    notepad.frame().Close();
    EXPECT_EQ(answers.shown, (Texts{"Do you want to save the changes to x.txt?",
                                    "Can't save " + folder.file("x.txt") + "\nIs a directory"}));
    EXPECT_EQ(notepad.text().GetValue(), "ab");
    EXPECT_EQ(title(), "*x.txt - Tarnwick text editor");
    ::rmdir(folder.file("x.txt").c_str());
  });
  steps.then("now it can", [this] {
    answers.answers = {wxID_YES};
    notepad.frame().Close();
  });
  notepad.run({file("a")});
  EXPECT_EQ(contentOf(folder.file("x.txt")), "ab");
}

TEST_F(NotepadTest, AFileThatAnotherProgramChangedIsReplacedOnlyAfterAQuestion) {
  waitForWindow();
  steps.then("save", [this] {
    typeAtTheEnd("b");
    writeFile(folder.file("x.txt"), "another's");
    answers.answers = {wxID_NO, wxID_YES};
    EXPECT_FALSE(notepad.save());
    EXPECT_EQ(contentOf(folder.file("x.txt")), "another's");
    EXPECT_TRUE(notepad.save());
  });
  thenClose();
  notepad.run({file("a")});
  EXPECT_EQ(answers.shown,
            Texts(2, folder.file("x.txt") + " has been changed by another program.\nDo you want to replace it?"));
  EXPECT_EQ(contentOf(folder.file("x.txt")), "ab");
}

TEST_F(NotepadTest, ALetterThatTheCharacterSetLacksIsAskedAbout) {
  const std::string question =
      "The file's character set does not have all letters of the text.\nDo you want to save it as UTF-8?";
  waitForWindow();
  steps.then("save", [this] {
    typeAtTheEnd(wxString::FromUTF8("\xE2\x82\xAC"));
    answers.answers = {wxID_NO, wxID_YES};
    EXPECT_FALSE(notepad.save());
    EXPECT_EQ(contentOf(folder.file("x.txt")), "\xE4");
    EXPECT_TRUE(notepad.save());
  });
  thenClose();
  notepad.run({file("\xE4")});
  EXPECT_EQ(answers.shown, Texts(2, question));
  EXPECT_EQ(contentOf(folder.file("x.txt")), "\xC3\xA4\xE2\x82\xAC");
}

TEST_F(NotepadTest, ATextWithoutANameAsksForOne) {
  waitForWindow();
  steps.then("save", [this] {
    EXPECT_EQ(title(), "Untitled - Tarnwick text editor");
    typeAtTheEnd("new\n");
    answers.answers = {wxID_CANCEL};
    EXPECT_FALSE(notepad.save());
    EXPECT_EQ(title(), "*Untitled - Tarnwick text editor");
    EXPECT_TRUE(notepad.saveTo(folder.file("new.txt")));
    EXPECT_EQ(title(), "new.txt - Tarnwick text editor");
  });
  thenClose();
  notepad.run({""});
  EXPECT_EQ(answers.shown, Texts{"file dialog"});
  EXPECT_EQ(contentOf(folder.file("new.txt")), "new\n");
}

TEST_F(NotepadTest, AnotherFileMayBeOpenedAfterTheQuestion) {
  writeFile(folder.file("y.txt"), "other");
  waitForWindow();
  steps.then("open", [this] {
    typeAtTheEnd("b");
    answers.answers = {wxID_CANCEL};
    notepad.open(folder.file("y.txt"));
    EXPECT_EQ(notepad.text().GetValue(), "ab");
    answers.answers = {wxID_NO};
    notepad.open(folder.file("y.txt"));
    EXPECT_EQ(notepad.text().GetValue(), "other");
    EXPECT_EQ(title(), "y.txt - Tarnwick text editor");
  });
  steps.then("the file dialog opens by its key", [this] {
    answers.answers = {wxID_CANCEL};
    key('O', wxMOD_CONTROL);
  });
  steps.until("asked", [this] { return answers.shown.size() == 3; });
  thenClose();
  notepad.run({file("a")});
  EXPECT_EQ(answers.shown.back(), "file dialog");
}

TEST_F(NotepadTest, AFileThatCannotBeReadIsTold) {
  answers.answers = {wxID_OK};
  waitForWindow();
  steps.then("look", [this] {
    EXPECT_EQ(answers.shown, Texts{"Can't open " + folder.path() + "\nIs a directory"});
    EXPECT_EQ(title(), "Untitled - Tarnwick text editor");
  });
  thenClose();
  notepad.run({folder.path()});
}

TEST_F(NotepadTest, FindsForwardsBackwardsAndAround) {
  const auto selected = [this] {
    long begin = 0;
    long end = 0;
    notepad.text().GetSelection(&begin, &end);
    return std::pair(begin, end);
  };
  using At = std::pair<long, long>;
  waitForWindow();
  steps.then("find", [&] {
    notepad.find("word", true, false);
    EXPECT_EQ(selected(), At(2, 6));
    notepad.find("word", true, false);
    EXPECT_EQ(selected(), At(7, 11));
    notepad.find("word", true, false);
    EXPECT_EQ(selected(), At(2, 6)) << "from the start on";
    notepad.find("word", false, false);
    EXPECT_EQ(selected(), At(7, 11)) << "from the end on";
    notepad.find("word", false, false);
    EXPECT_EQ(selected(), At(2, 6));
    notepad.find("word", true, true);
    EXPECT_EQ(selected(), At(7, 11));
    notepad.find("word", true, true);
    EXPECT_EQ(selected(), At(7, 11)) << "the only one in this case";
    answers.answers = {wxID_OK};
    notepad.find("nowhere", true, false);
    EXPECT_EQ(selected(), At(7, 11));
  });
  thenClose();
  notepad.run({file("\xC3\xA4 Word\nword\n")});
  EXPECT_EQ(answers.shown, Texts{"Can't find \"nowhere\""});
}

TEST_F(NotepadTest, TheFindDialogOpensByItsKeyAndFindNextGoesOn) {
  waitForWindow();
  steps.then("select a word", [this] { notepad.text().SetSelection(0, 4); });
  steps.then("find", [] { key('F', wxMOD_CONTROL); });
  steps.until("the dialog shows", [] { return wxFindWindowByLabel("Find") != nullptr; });
  steps.settle(10);
  steps.then("look", [] { shoot("notepad-find"); });
  steps.then("Return", [] { key(WXK_RETURN); });
  steps.until("found", [this] {
    long begin = 0;
    long end = 0;
    notepad.text().GetSelection(&begin, &end);
    return begin == 5;
  });
  thenClose();
  notepad.run({file("word word")});
}

}  // namespace tarnwick::test
