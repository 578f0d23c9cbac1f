// The part of the console's window in which the text stands.
#include "platform/Characters.h"
#include "ui/ConsoleKeys.h"
#include "ui/ConsoleWindow.h"
#include "ui/Pixels.h"
#include "ui/ProgramAnew.h"
#include "ui/Text.h"

#include <wx/uiaction.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace tarnwick::test {

namespace {

constexpr Colour red{200, 0, 0};

}  // namespace

TEST_F(ConsoleTest, TheFrameHoldsEightyColumnsAndTwentyFiveRows) {
  waitForFrame();
  steps.then("look", [this] {
    const Point cell = console.surface->cell();
    const Point size = console.surface->clientSize();
    EXPECT_GE(console.sizeAtStart.x, 80 * cell.x);
    EXPECT_GE(size.x, 80 * cell.x);
    EXPECT_GE(size.y, 25 * cell.y);
    EXPECT_LE(size.y, 27 * cell.y);
    EXPECT_EQ(frame()->GetTitle(), "Console under test");
  });
  thenClose();
  play();
  EXPECT_EQ(console.heard, Heard{"closed"});
}

TEST_F(ConsoleTest, TextAndInvertedCellsShowOnWhite) {
  const auto cellRect = [this](int column, int row) {
    const Point cell = console.surface->cell();
    return wxRect(column * cell.x, row * cell.y, cell.x, cell.y);
  };
  console.onPaint = [this](ConsolePainter& painter) {
    const Point cell = console.surface->cell();
    painter.drawText(2 * cell.x, cell.y, "MMMMMMMMMM", red);
    painter.drawText(2 * cell.x, 3 * cell.y, "MMMM", red);
    painter.invert({3 * cell.x, 3 * cell.y, 5 * cell.x, 4 * cell.y});
    painter.invert({4 * cell.x, 3 * cell.y, 5 * cell.x, 4 * cell.y});  // twice is as before
  };
  waitForFrame();
  steps.settle(10);
  steps.then("look", [&] {
    shoot("console-cells");
    const wxImage picture = pictureOf(*window());
    const int whole = console.surface->cell().x * console.surface->cell().y;
    EXPECT_EQ(countIn(picture, cellRect(1, 1), isWhite), whole);
    EXPECT_EQ(countIn(picture, cellRect(12, 1), isWhite), whole);
    for (int column = 2; column < 12; ++column) {
      EXPECT_GT(countIn(picture, cellRect(column, 1), isReddish), whole / 10) << column;
    }
    EXPECT_GT(countIn(picture, cellRect(2, 3), isReddish), whole / 10);
    EXPECT_EQ(countIn(picture, cellRect(3, 3), isReddish), 0);
    EXPECT_GT(countIn(picture, cellRect(3, 3), isCyanish), whole / 10);
    EXPECT_GT(countIn(picture, cellRect(3, 3), isBlack), whole / 5);
    EXPECT_GT(countIn(picture, cellRect(4, 3), isReddish), whole / 10);
    EXPECT_EQ(countIn(picture, cellRect(4, 3), isBlack), 0);
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, WideCharactersTakeTheirCells) {
  const std::string before = ui::fromWx(wxString(wxUniChar(0x65E5)) + wxString(wxUniChar(0xE4)));
  const auto columns = static_cast<int>(platform::columnsOf(before));
  console.onPaint = [&](ConsolePainter& painter) { painter.drawText(0, 0, before + "M", red); };
  waitForFrame();
  steps.settle(10);
  steps.then("look", [&] {
    shoot("console-wide");
    const Point cell = console.surface->cell();
    const wxImage picture = pictureOf(*window());
    const int whole = cell.x * cell.y;
    EXPECT_GT(countIn(picture, wxRect(0, 0, cell.x, cell.y), isReddish), 0);
    EXPECT_GT(countIn(picture, wxRect(columns * cell.x, 0, cell.x, cell.y), isReddish), whole / 10);
    EXPECT_EQ(countIn(picture, wxRect((columns + 1) * cell.x, 0, 4 * cell.x, cell.y), isReddish), 0);
  });
  thenClose();
  play();
}

// Another font's lines may be higher than ours: their letters stand on our line all the same.
TEST_F(ConsoleTest, CharactersOfAnotherFontStandOnTheSameLine) {
  const std::string borrowed = ui::fromWx(wxString(wxUniChar(0x65E5)) + wxString(wxUniChar(0xE9)));
  console.onPaint = [&](ConsolePainter& painter) { painter.drawText(0, console.surface->cell().y, borrowed, red); };
  waitForFrame();
  steps.settle(10);
  steps.then("look", [&] {
    const Point cell = console.surface->cell();
    const wxImage picture = pictureOf(*window());
    EXPECT_GT(countIn(picture, wxRect(0, cell.y, 4 * cell.x, cell.y), isReddish), cell.x);
    // A letter may hang a little lower than ours do.
    EXPECT_EQ(countIn(picture, wxRect(0, 2 * cell.y + 2, 4 * cell.x, cell.y), isReddish), 0);
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, ScrollingMovesTheDocumentUnderTheWindow) {
  console.onPaint = [this](ConsolePainter& painter) {
    const Point cell = console.surface->cell();
    painter.drawText(0, 50 * cell.y, "MMMM", red);
  };
  waitForFrame();
  steps.then("scroll", [this] {
    const Point cell = console.surface->cell();
    console.surface->setScrollSizes({200 * cell.x, 100 * cell.y});
    console.surface->scrollTo({0, 45 * cell.y});
    EXPECT_EQ(console.surface->scrollPosition(), (Point{0, 45 * cell.y}));
  });
  steps.settle(10);
  steps.then("look", [this] {
    const Point cell = console.surface->cell();
    const wxImage picture = pictureOf(*window());
    EXPECT_GT(countIn(picture, wxRect(0, 5 * cell.y, 4 * cell.x, cell.y), isReddish), cell.x * cell.y / 10);
    EXPECT_EQ(countIn(picture, wxRect(0, 4 * cell.y, 4 * cell.x, cell.y), isReddish), 0);
    console.surface->scrollTo({100000, 100000});
    const Point size = console.surface->clientSize();
    EXPECT_EQ(console.surface->scrollPosition(), (Point{200 * cell.x - size.x, 100 * cell.y - size.y}));
    console.surface->scrollTo({-5, -5});
    EXPECT_EQ(console.surface->scrollPosition(), (Point{0, 0}));
    console.surface->scrollTo({0, 45 * cell.y});
    console.surface->setScrollSizes({cell.x, 2 * cell.y});
    EXPECT_EQ(console.surface->scrollPosition(), (Point{0, 0}));
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, WhatTheUserScrollsIsToldWhatTheViewScrollsIsNot) {
  waitForFrame();
  steps.then("scroll", [this] {
    const Point cell = console.surface->cell();
    console.surface->setScrollSizes({200 * cell.x, 100 * cell.y});
    console.surface->scrollTo({0, 45 * cell.y});
    EXPECT_EQ(console.scrolled, 0);
    wxScrollWinEvent up(wxEVT_SCROLLWIN_LINEUP, 0, wxVERTICAL);
    window()->ProcessWindowEvent(up);
    EXPECT_EQ(console.scrolled, 1);
    wxScrollWinEvent top(wxEVT_SCROLLWIN_TOP, 0, wxVERTICAL);
    window()->ProcessWindowEvent(top);
    EXPECT_EQ(console.scrolled, 2);
    EXPECT_EQ(console.surface->scrollPosition().y, 0);
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, TheWheelScrollsThreeLines) {
  waitForFrame();
  steps.then("scroll", [this] {
    const Point cell = console.surface->cell();
    console.surface->setScrollSizes({cell.x, 100 * cell.y});
    wxMouseEvent wheel(wxEVT_MOUSEWHEEL);
    wheel.m_wheelRotation = -120;
    wheel.m_wheelDelta = 120;
    window()->ProcessWindowEvent(wheel);
    EXPECT_EQ(console.surface->scrollPosition(), (Point{0, 3 * cell.y}));
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, WithControlTheWheelIsTheViewsStepByStep) {
  const auto turn = [this](int rotation) {
    wxMouseEvent wheel(wxEVT_MOUSEWHEEL);
    wheel.m_wheelRotation = rotation;
    wheel.m_wheelDelta = 120;
    wheel.SetControlDown(true);
    window()->ProcessWindowEvent(wheel);
  };
  waitForFrame();
  steps.then("the classic console scrolls", [&] {
    const Point cell = console.surface->cell();
    console.surface->setScrollSizes({cell.x, 100 * cell.y});
    turn(-120);
    EXPECT_EQ(console.surface->scrollPosition(), (Point{0, 3 * cell.y}));
    EXPECT_EQ(console.heard, Heard{});
  });
  steps.then("the other does not", [&] {
    console.today = true;
    const Point before = console.surface->scrollPosition();
    turn(120);
    turn(-240);
    // Some wheels turn by less.
    turn(50);
    turn(50);
    turn(50);
    EXPECT_EQ(console.heard, (Heard{"zoom 1", "zoom -2", "zoom 0", "zoom 0", "zoom 1"}));
    EXPECT_EQ(console.surface->scrollPosition(), before);
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, LettersOfAnotherSizeMakeOtherCells) {
  console.onPaint = [this](ConsolePainter& painter) { painter.drawText(0, 0, "MMMM", red); };
  waitForFrame();
  Point usual;
  steps.then("larger", [&] {
    usual = console.surface->cell();
    EXPECT_GE(console.surface->usualLetters(), 10);
    console.surface->setLetters(3 * console.surface->usualLetters());
    EXPECT_NEAR(console.surface->cell().x, 3 * usual.x, 3);
    EXPECT_NEAR(console.surface->cell().y, 3 * usual.y, 6);
  });
  steps.settle(10);
  steps.then("look", [&] {
    shoot("console-large");
    const Point cell = console.surface->cell();
    const wxImage picture = pictureOf(*window());
    EXPECT_GT(countIn(picture, wxRect(3 * cell.x, 0, cell.x, cell.y), isReddish), cell.x * cell.y / 10);
    EXPECT_EQ(countIn(picture, wxRect(4 * cell.x, 0, cell.x, cell.y), isReddish), 0);
    console.surface->setLetters(0);
    EXPECT_EQ(console.surface->cell(), usual);
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, OnlyTheInvalidPartIsPainted) {
  Rect clip;
  waitForFrame();
  steps.settle(10);
  steps.then("invalidate", [&] {
    console.onPaint = [&](ConsolePainter& painter) { clip = painter.clip(); };
    console.surface->invalidate({16, 32, 48, 50});
  });
  steps.until("painted", [&] { return clip.width() > 0; });
  steps.then("look", [&] {
    EXPECT_LE(clip.left, 16);
    EXPECT_LE(clip.top, 32);
    EXPECT_GE(clip.right, 48);
    EXPECT_GE(clip.bottom, 50);
    EXPECT_LT(clip.height(), console.surface->clientSize().y);
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, CharactersAndControlCharactersArrive) {
  waitForFrame();
  for (const int code : {static_cast<int>('a'), static_cast<int>(' '), static_cast<int>(WXK_RETURN),
                         static_cast<int>(WXK_TAB), static_cast<int>(WXK_BACK), static_cast<int>(WXK_ESCAPE)}) {
    press(code);
  }
  press('D', wxMOD_CONTROL);
  press('Z', wxMOD_CONTROL);
  thenExpect({"char a", "char  ", "char <13>", "char <9>", "char <8>", "char <27>", "char <4>", "char <26>"});
  thenClose();
  play();
}

TEST(ConsoleKeys, WhoTurnsTheSoundDownTypesNothing) {
  for (const int code :
       std::initializer_list<int>{WXK_BROWSER_BACK, WXK_VOLUME_DOWN, WXK_MEDIA_PLAY_PAUSE, WXK_LAUNCH_APP2})
    EXPECT_EQ(ui::consoleKeyOf(code), ConsoleKey::Modifier) << code;
  EXPECT_EQ(ui::consoleKeyOf(WXK_F4), ConsoleKey::Other);
}

TEST(ConsoleKeys, WithControlBracketsMakeControlCharactersOnEverySystem) {
  const auto typed = [](char character, int modifiers) {
    wxKeyEvent event(wxEVT_CHAR);
    event.m_keyCode = character;
    event.m_uniChar = character;
    event.SetControlDown((modifiers & wxMOD_CONTROL) != 0);
    event.SetAltDown((modifiers & wxMOD_ALT) != 0);
    return ui::characterOf(event);
  };
  EXPECT_EQ(typed('[', wxMOD_CONTROL), "\x1B");
  EXPECT_EQ(typed('\\', wxMOD_CONTROL), "\x1C");
  EXPECT_EQ(typed('_', wxMOD_CONTROL), "\x1F");
  EXPECT_EQ(typed('\x1B', wxMOD_CONTROL), "\x1B") << "where the system has made one";
  EXPECT_EQ(typed('[', 0), "[");
  EXPECT_EQ(typed('[', wxMOD_CONTROL | wxMOD_ALT), "[") << "as many keyboards have it";
  EXPECT_EQ(typed(' ', wxMOD_CONTROL), " ");
}

TEST_F(ConsoleTest, NavigationAndFunctionKeysArriveWithTheirModifiers) {
  waitForFrame();
  press(WXK_HOME);
  press(WXK_END);
  press(WXK_DELETE);
  press(WXK_UP);
  press(WXK_F5);
  press(WXK_F10);
  press(WXK_F9, wxMOD_SHIFT);
  press(WXK_F12, wxMOD_CONTROL);
  press(WXK_F6, wxMOD_ALT);
  const auto keyText = [](ConsoleKey key, int modifiers) {
    return "key " + std::to_string(static_cast<int>(key)) + " " + std::to_string(modifiers);
  };
  thenExpect({keyText(ConsoleKey::Home, 0), keyText(ConsoleKey::End, 0), keyText(ConsoleKey::Delete, 0),
              keyText(ConsoleKey::Up, 0), keyText(ConsoleKey::F5, 0), keyText(ConsoleKey::F10, 0),
              keyText(ConsoleKey::F9, SHIFT_BIT), keyText(ConsoleKey::F12, CTRL_BIT),
              keyText(ConsoleKey::F6, ALT_BIT)});
  thenClose();
  play();
}

// By hand: some window systems keep keys with so many modifiers for themselves.
TEST_F(ConsoleTest, FunctionKeysArriveInAllEightGroups) {
  waitForFrame();
  Heard expected;
  for (int group = 0; group < 8; ++group) {
    for (int index = 0; index < 8; ++index) {
      const int number = static_cast<int>(ConsoleKey::F5) + index;
      expected.push_back("key " + std::to_string(number) + " " + std::to_string(group));
    }
  }
  steps.then("press all", [this] {
    for (int group = 0; group < 8; ++group) {
      for (int index = 0; index < 8; ++index) {
        wxKeyEvent pressed(wxEVT_KEY_DOWN);
        pressed.m_keyCode = WXK_F5 + index;
        pressed.SetShiftDown((group & SHIFT_BIT) != 0);
        pressed.SetControlDown((group & CTRL_BIT) != 0);
        pressed.SetAltDown((group & ALT_BIT) != 0);
        window()->ProcessWindowEvent(pressed);
      }
    }
  });
  thenExpect(expected);
  thenClose();
  play();
}

// Alt leads to the menus, so it must differ from a key that closes a console whose program has ended.
TEST_F(ConsoleTest, AltIsHeardAsAltFromItsFirstPress) {
  std::vector<int> modifiers;
  console.onOtherKey = [&](int held) { modifiers.push_back(held & (SHIFT_BIT | ALT_BIT)); };
  waitForFrame();
  // Not alone: released after a press of its own it would open the menus of some systems.
  press(WXK_F9, wxMOD_SHIFT);
  press(WXK_F6, wxMOD_ALT);
  steps.until("both were heard", [&] { return modifiers.size() >= 2; });
  steps.then("look", [&] { EXPECT_EQ(modifiers, (std::vector<int>{SHIFT_BIT, ALT_BIT})); });
  thenClose();
  play();
}

TEST_F(ConsoleTest, WhatIsTypedBehindAltWithAFunctionKeyIsHeard) {
  const std::string withAlt = "key " + std::to_string(static_cast<int>(ConsoleKey::F7)) + " " + std::to_string(ALT_BIT);
  waitForFrame();
  for (int round = 0; round < 2; ++round) {
    press(WXK_F7, wxMOD_ALT);
    press('5');
  }
  thenExpect({withAlt, "char 5", withAlt, "char 5"});
  thenClose();
  play();
}

// Some systems open their menus when Alt goes up.
TEST_F(ConsoleTest, AnAltThatServedAFunctionKeyIsKeptFromTheMenus) {
  waitForFrame();
  steps.then("press and release", [this] {
    const auto goesOn = [this](const wxEventTypeTag<wxKeyEvent>& type, int code, bool alt, bool control = false) {
      wxKeyEvent event(type);
      event.m_keyCode = code;
      event.SetAltDown(alt);
      event.SetControlDown(control);
      return !window()->ProcessWindowEvent(event);
    };
    EXPECT_TRUE(goesOn(wxEVT_KEY_UP, WXK_ALT, false)) << "Alt alone is for the menus";
    EXPECT_TRUE(goesOn(wxEVT_KEY_DOWN, WXK_F7, true)) << "the system learns that Alt was not pressed alone";
    EXPECT_FALSE(goesOn(wxEVT_KEY_UP, WXK_F7, true));
    EXPECT_FALSE(goesOn(wxEVT_KEY_UP, WXK_ALT, false));
    EXPECT_TRUE(goesOn(wxEVT_KEY_UP, WXK_ALT, false)) << "just once";
    EXPECT_FALSE(goesOn(wxEVT_KEY_DOWN, WXK_F7, false));
    EXPECT_FALSE(goesOn(wxEVT_KEY_UP, WXK_F7, false));
    EXPECT_TRUE(goesOn(wxEVT_KEY_UP, WXK_ALT, false)) << "a key without Alt keeps nothing";
    EXPECT_TRUE(goesOn(wxEVT_KEY_DOWN, WXK_F8, true, true));
    EXPECT_FALSE(goesOn(wxEVT_KEY_UP, WXK_ALT, false, true)) << "with Control too";
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, TheMouseSpeaksInTheWindowsCoordinates) {
  waitForFrame();
  steps.then("click", [this] {
    wxUIActionSimulator hand;
    hand.MouseMove(window()->ClientToScreen(wxPoint(40, 60)));
    hand.MouseClick(wxMOUSE_BTN_LEFT);
  });
  thenExpect({"down 40,60", "up 40,60"});
  steps.then("click right", [] {
    wxUIActionSimulator hand;
    hand.MouseClick(wxMOUSE_BTN_RIGHT);
  });
  thenExpect({"right 40,60"});
  thenClose();
  play();
}

TEST_F(ConsoleTest, ControlSpeaksForAMouseThatRestsAndLeavingIsToldToo) {
  waitForFrame();
  steps.then("point", [this] { wxUIActionSimulator().MouseMove(window()->ClientToScreen(wxPoint(40, 60))); });
  steps.until("the mouse is there", [this] { return console.lastMove == "40,60"; });
  steps.then("Control down", [] { wxUIActionSimulator().KeyDown(WXK_CONTROL); });
  steps.until("it is told", [this] { return console.lastMove == "40,60 control"; });
  steps.then("Control up", [] { wxUIActionSimulator().KeyUp(WXK_CONTROL); });
  steps.until("that is told, too", [this] { return console.lastMove == "40,60"; });
  steps.then("leave", [this] { wxUIActionSimulator().MouseMove(frame()->ClientToScreen(wxPoint(-60, -60))); });
  steps.until("it has left", [this] { return console.lastMove == "-1,-1"; });
  steps.then("Control elsewhere", [] { wxUIActionSimulator().KeyDown(WXK_CONTROL); });
  steps.settle(5);
  steps.then("is not told", [this] {
    EXPECT_EQ(console.lastMove, "-1,-1");
    wxUIActionSimulator().KeyUp(WXK_CONTROL);
  });
  steps.settle();
  thenClose();
  play();
}

TEST_F(ConsoleTest, WakesOfAnyThreadAreMergedAndKeepTheirDistance) {
  std::thread other;
  std::atomic<bool> enough = false;
  std::size_t calls = 0;
  waitForFrame();
  steps.then("flood", [&] {
    other = std::thread([&, surface = console.surface] {
      const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
      while (!enough && std::chrono::steady_clock::now() < end) {
        surface->wake();
        ++calls;
      }
    });
  });
  steps.until("some wakes have come", [&] { return console.wakes.size() >= 10; });
  steps.then("the flood is over", [&] {
    enough = true;
    other.join();
  });
  steps.settle(10);
  steps.then("look", [&] {
    EXPECT_GT(calls, 10 * console.wakes.size());
    for (std::size_t i = 1; i < console.wakes.size(); ++i) {
      EXPECT_GE(console.wakes[i] - console.wakes[i - 1], std::chrono::milliseconds(15));
    }
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, AWakeThatComesAfterAnotherIsNotLost) {
  waitForFrame();
  steps.then("wake", [&] { console.surface->wake(); });
  steps.until("woken", [&] { return console.wakes.size() == 1; });
  steps.then("wake", [&] { console.surface->wake(); });
  steps.until("woken", [&] { return console.wakes.size() == 2; });
  thenClose();
  play();
}

TEST_F(ConsoleTest, TheHintShowsNearTheCornerAndLeavesTheFocus) {
  waitForFrame();
  steps.then("show", [&] { console.surface->showHint(true); });
  steps.settle(10);
  steps.then("look", [&] {
    shoot("console-hint");
    ASSERT_NE(hint(), nullptr);
    EXPECT_TRUE(hint()->IsShown());
    EXPECT_EQ(hint()->GetScreenPosition(), window()->ClientToScreen(wxPoint(20, 20)));
    EXPECT_EQ(wxWindow::FindFocus(), window());
    console.surface->showHint(false);
  });
  steps.settle();
  steps.then("look again", [&] { EXPECT_TRUE(!hint() || !hint()->IsShown()); });
  thenClose();
  play();
}

TEST_F(ConsoleTest, TodaysHintKeepsWithinTheWindowAndOffTheLineUnderTheMouse) {
  console.today = true;
  waitForFrame();
  for (const auto& [width, share] :
       std::initializer_list<std::pair<int, int>>{{700, 1}, {700, 3}, {320, 1}, {320, 3}}) {
    steps.then("resize", [this, w = width] { frame()->SetClientSize(w, 480); });
    steps.until("it has the size", [this, w = width] { return std::abs(frame()->GetClientSize().x - w) < 3; });
    steps.settle(5);
    steps.then("point", [this, s = share] {
      wxUIActionSimulator().MouseMove(window()->ClientToScreen(wxPoint(60, window()->GetClientSize().y * s / 4)));
    });
    steps.settle(5);
    steps.then("show", [this] { console.surface->showHint(true); });
    steps.until("it shows", [this] { return hint() && hint()->IsShown(); });
    steps.settle(10);
    steps.then("look", [this, w = width, s = share] {
      shoot("console-hint-" + std::to_string(w) + "-" + std::to_string(s));
      const wxRect area = hint()->GetScreenRect();
      const wxRect seen(window()->ClientToScreen(wxPoint(0, 0)), window()->GetClientSize());
      EXPECT_GE(area.x, seen.x);
      EXPECT_LE(area.GetRight(), seen.GetRight());
      const int mouse = window()->ClientToScreen(wxPoint(0, window()->GetClientSize().y * s / 4)).y;
      EXPECT_TRUE(area.y > mouse || area.GetBottom() < mouse) << area.y << ' ' << area.GetBottom() << ' ' << mouse;
      for (const wxWindow* const part : hint()->GetChildren())
        EXPECT_TRUE(wxRect(area.GetSize()).Contains(part->GetRect())) << part->GetLabel();
      console.surface->showHint(false);
    });
  }
  thenClose();
  play();
}

TEST_F(ConsoleTest, TodaysTextHasMarginsAndTheViewsOwnGround) {
  console.today = true;
  console.paper = {30, 30, 30};
  console.onPaint = [this](ConsolePainter& painter) {
    const Point cell = console.surface->cell();
    for (int row = 0; row < 100; ++row) painter.fill({0, row * cell.y, 400 * cell.x, (row + 1) * cell.y}, red);
  };
  waitForFrame();
  steps.then("scroll", [this] {
    const Point cell = console.surface->cell();
    console.surface->setScrollSizes({400 * cell.x, 100 * cell.y});
    console.surface->scrollTo({cell.x / 2, cell.y / 2});
  });
  steps.settle(10);
  steps.then("look", [this] {
    shoot("console-margins");
    const wxImage picture = pictureOf(*window());
    const wxSize size = window()->GetClientSize();
    const int margin = window()->FromDIP(4);
    EXPECT_EQ(console.surface->clientSize(), (Point{size.x - margin, size.y - margin}));
    const auto shade = [&](int x, int y) { return picture.GetRed(x, y); };
    EXPECT_EQ(shade(size.x / 2, margin - 1), 30);
    EXPECT_EQ(shade(size.x / 2, margin), 200);
    EXPECT_EQ(shade(size.x - margin, size.y / 2), 30);
    EXPECT_EQ(shade(size.x - margin - 1, size.y / 2), 200);
  });
  steps.then("click", [this] {
    wxUIActionSimulator hand;
    hand.MouseMove(window()->ClientToScreen(wxPoint(40, 60)));
    hand.MouseClick(wxMOUSE_BTN_LEFT);
  });
  steps.until("it is told", [this] { return console.heard.size() >= 2; });
  steps.then("look", [this] { EXPECT_EQ(console.heard[0], "down 40," + std::to_string(60 - window()->FromDIP(4))); });
  thenClose();
  play();
}

TEST_F(ConsoleTest, TodaysFrameHoldsAsManyColumnsAndRows) {
  console.today = true;
  waitForFrame();
  steps.then("look", [this] {
    const Point cell = console.surface->cell();
    const Point size = console.surface->clientSize();
    EXPECT_GE(size.x, 80 * cell.x);
    EXPECT_GE(size.y, 25 * cell.y);
  });
  thenClose();
  play();
}

TEST_F(ConsoleTest, TodaysScrollBarTakesItsRoomWhileThereIsSomethingToScroll) {
  if (onWindows()) GTEST_SKIP() << "the system's bars always do";
  console.today = true;
  waitForFrame();
  int before = 0;
  steps.then("more than it shows", [&] {
    before = console.surface->clientSize().x;
    console.surface->setScrollSizes({1, 100 * console.surface->cell().y});
  });
  steps.until("the bar has its room", [&] { return console.surface->clientSize().x < before; });
  steps.then("shoot", [this] { shoot("console-bar"); });
  thenClose();
  play();
}

TEST_F(ConsoleTest, TheHintDoesNotStayAloneWhenItsWindowIsMinimised) {
  waitForFrame();
  steps.then("show", [this] { console.surface->showHint(true); });
  steps.until("the hint shows", [this] { return hint() && hint()->IsShown(); });
  steps.then("minimise", [this] { frame()->Iconize(true); });
  steps.until("the hint has gone", [this] { return !hint() || !hint()->IsShown(); });
  steps.then("restore", [this] { frame()->Iconize(false); });
  steps.until("the window is back", [this] { return !frame()->IsIconized(); });
  steps.then("show again", [this] { console.surface->showHint(true); });
  steps.until("the hint shows again", [this] { return hint() && hint()->IsShown(); });
  thenClose();
  play();
}

TEST_F(ConsoleTest, ResizingIsHeard) {
  waitForFrame();
  steps.then("resize", [this] {
    console.resized = 0;
    frame()->SetClientSize(400, 300);
  });
  steps.until("heard", [this] { return console.resized > 0 && console.surface->clientSize().x <= 400; });
  thenClose();
  play();
}

}  // namespace tarnwick::test
