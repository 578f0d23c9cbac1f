// What message boxes look like: their signs, and their headlines.
#include "ui/MessageLooks.h"
#include "ui/WindowTest.h"

#include <wx/modalhook.h>
#include <wx/msgdlg.h>

#include <string>
#include <utility>
#include <vector>

namespace tarnwick::test {

namespace {

/// Answers message boxes and keeps their signs.
class Signs : public wxModalDialogHook {
 public:
  Signs() { Register(); }
  std::vector<long> shown;

 protected:
  int Enter(wxDialog* dialog) override {
    auto* const box = dynamic_cast<wxMessageDialog*>(dialog);
    if (!box) return wxID_NONE;
    shown.push_back(box->GetMessageDialogStyle() & wxICON_MASK);
    return wxID_CANCEL;
  }
};

class MessageBoxTest : public WindowTest {
 protected:
  void photograph(const std::string& name) {
    steps.settle(20);
    steps.then("look", [name] { shoot(name); });
    steps.then("Return", [] { key(WXK_RETURN); });
  }
};

}  // namespace

TEST_F(MessageBoxTest, FaultsHintsAndQuestionsBearDifferentSigns) {
  Signs signs;
  desktop().message("Can't open the file");
  desktop().hint("Open a project first");
  desktop().askOkCancel("Go on?");
  desktop().askYesNo("Overwrite?");
  EXPECT_EQ(signs.shown, (std::vector<long>{wxICON_WARNING, wxICON_INFORMATION, wxICON_QUESTION, wxICON_QUESTION}));
}

TEST_F(MessageBoxTest, AFaultShows) {
  photograph("message-fault");
  desktop().message("Can't open /home/me/Greeter.java\nNo such file or directory");
}

TEST_F(MessageBoxTest, AHintShows) {
  photograph("message-hint");
  desktop().hint(
      "This project doesn't have any Java source files!\nClick on the Files button to add files to this "
      "project's context.");
}

TEST_F(MessageBoxTest, AQuestionShows) {
  photograph("message-question");
  desktop().askYesNo("/home/me/archive.jar already exists.\nDo you want to replace it?");
}

TEST(HeadlineTest, ItIsTheFirstLineOfSeveral) {
  for (const auto& [text, headline] : {std::pair<std::string, std::string>{"", ""},
                                       {"One line", ""},
                                       {"One line\n", ""},
                                       {"One line\n \n", ""},
                                       {"Can't open x\nNo such file", "Can't open x"},
                                       {"Tip:\nsome\nMore", ""},
                                       {"Can't open x\n\nno such file", "Can't open x"},
                                       {"Files B.java\nand A.java\nBoth", ""},
                                       {"It would show:\n/usr/x", "It would show:"},
                                       {"\xC3\xA4\n\xC3\x84", "\xC3\xA4"},
                                       {"\nB", ""}}) {
    EXPECT_EQ(text.substr(0, ui::headlineLength(text)), headline) << text;
  }
}

}  // namespace tarnwick::test
