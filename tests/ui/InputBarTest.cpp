// The bar below a debugging console that shows who gets what is typed.
#include "console/ConsoleLooks.h"
#include "ui/ConsoleWindow.h"
#include "ui/InputBar.h"
#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <wx/radiobut.h>
#include <wx/stattext.h>
#include <wx/tooltip.h>

namespace tarnwick::test {

namespace {

class InputBarTest : public ConsoleTest {
 protected:
  InputBarTest() {
    console.buttons = &debuggerToolbar();
    console.keys = {{true, false, Accelerator::Key::Tab, 0, COMMAND_OTHER_INPUT}};
    choose(0, lightPalette);
  }

  void choose(int number, const ConsolePalette& palette) {
    console.paper = palette.ground;
    console.choices = {{"to jdb", "the debugger", palette.debugger, COMMAND_INPUT_TO_DEBUGGER, number == 0},
                       {"to program", "the program", palette.output, COMMAND_INPUT_TO_PROGRAM, number == 1}};
  }
  ui::InputBar* bar() const {
    for (wxWindow* const child : frame()->GetChildren()) {
      if (auto* const found = dynamic_cast<ui::InputBar*>(child)) return found;
    }
    return nullptr;
  }
  static wxColour colour(const Colour& wanted) { return {wanted.red, wanted.green, wanted.blue}; }
};

TEST_F(InputBarTest, WhereThereIsNoChoiceThereIsNoBar) {
  console.choices.clear();
  waitForFrame();
  steps.then("look", [this] {
    EXPECT_EQ(bar(), nullptr);
    EXPECT_EQ(window()->GetSize(), frame()->GetClientSize());
  });
  thenClose();
  play();
}

TEST_F(InputBarTest, TheChoicesStandBelowTheTextWithTheirTips) {
  waitForFrame();
  steps.settle(10);
  steps.then("look", [this] {
    shoot("input-bar");
    ASSERT_NE(bar(), nullptr);
    const auto& buttons = bar()->buttons();
    ASSERT_EQ(buttons.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
      EXPECT_EQ(buttons[i]->GetLabel(), ui::toWx(console.choices[i].label));
      EXPECT_EQ(ui::spokenName(*buttons[i]), "Input goes " + console.choices[i].label);
      EXPECT_EQ(buttons[i]->GetToolTipText(), ui::toWx(console.choices[i].toolTip));
      EXPECT_GE(buttons[i]->GetSize().x, buttons[i]->GetBestSize().x) << "cut off";
      EXPECT_TRUE(bar()->GetClientRect().Contains(buttons[i]->GetRect()));
    }
    const wxRect text = window()->GetRect();
    EXPECT_EQ(text.GetBottom() + 1, bar()->GetRect().GetTop());
    EXPECT_EQ(bar()->GetRect().GetBottom() + 1, frame()->GetClientSize().y);
    EXPECT_EQ(bar()->GetSize().x, frame()->GetClientSize().x);
    EXPECT_GE(console.surface->clientSize().y, 25 * console.surface->cell().y) << "the text has all of its rows";
  });
  thenClose();
  play();
}

TEST_F(InputBarTest, TheOneThatIsChosenIsMarkedAndTheWordsHaveItsColour) {
  waitForFrame();
  for (const auto* const palette : {&lightPalette, &darkPalette}) {
    for (const int number : {0, 1}) {
      steps.then("choose", [this, palette, number] {
        choose(number, *palette);
        console.surface->showInputTarget();
      });
      steps.settle(10);
      steps.then("look", [this, palette, number] {
        shoot("input-bar-" + std::to_string(number) + (palette == &darkPalette ? "-dark" : "-light"));
        const auto& buttons = bar()->buttons();
        for (int i = 0; i < 2; ++i) {
          EXPECT_EQ(buttons[static_cast<std::size_t>(i)]->GetValue(), i == number);
          EXPECT_EQ(buttons[static_cast<std::size_t>(i)]->GetForegroundColour(),
                    colour(console.choices[static_cast<std::size_t>(i)].colour));
        }
        EXPECT_EQ(bar()->GetBackgroundColour(), colour(palette->ground));
        // Besides the buttons there are words.
        for (wxWindow* const child : bar()->GetChildren()) {
          if (dynamic_cast<wxStaticText*>(child) != nullptr) {
            EXPECT_EQ(child->GetForegroundColour(), colour(console.choices[static_cast<std::size_t>(number)].colour));
          }
          EXPECT_TRUE(bar()->GetClientRect().Contains(child->GetRect())) << child->GetLabel();
        }
      });
    }
  }
  thenClose();
  play();
}

TEST_F(InputBarTest, AClickChoosesAndTheKeysGoOnBeingTyped) {
  waitForFrame();
  steps.then("click", [this] {
    wxRadioButton& button = *bar()->buttons()[1];
    button.SetFocus();
    button.SetValue(true);
    wxCommandEvent clicked(wxEVT_RADIOBUTTON, button.GetId());
    clicked.SetEventObject(&button);
    button.ProcessWindowEvent(clicked);
  });
  thenExpect({"command 32867"});
  press('x');
  thenExpect({"char x"});
  thenClose();
  play();
}

TEST_F(InputBarTest, CtrlTabIsAKeyOfItsOwn) {
  waitForFrame();
  press(WXK_TAB, wxMOD_CONTROL);
  thenExpect({"command 32865"});
  press(WXK_TAB);
  thenExpect({"char <9>"});
  thenClose();
  play();
}

TEST_F(InputBarTest, AnotherSizeOfTheWindowGoesToTheText) {
  waitForFrame();
  steps.then("larger", [this] { frame()->SetClientSize(frame()->GetClientSize() + wxSize(50, 60)); });
  steps.until("the text has it", [this] { return window()->GetRect().GetBottom() + 1 == bar()->GetRect().GetTop(); });
  steps.settle(10);
  steps.then("look", [this] {
    EXPECT_EQ(bar()->GetRect().GetBottom() + 1, frame()->GetClientSize().y);
    EXPECT_EQ(window()->GetSize().x, frame()->GetClientSize().x);
  });
  thenClose();
  play();
}

}  // namespace
}  // namespace tarnwick::test
