#include "app/MessagesPaint.h"
#include "app/MessagesView.h"
#include "support/FakeSurface.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace tarnwick {
namespace {

constexpr int cellWidth = 8;
constexpr int cellHeight = 16;

std::string manyMessages() {
  std::string log = "\n\njavac *.java\n\n";
  for (int i = 1; i <= 40; ++i) {
    log += "A.java:" + std::to_string(i) + ": " + (i % 2 ? "error" : "warning") + ": x\n\tint i;\n\t    ^\n";
    if (i == 2) log += "error: this has no place\n";
  }
  return log;
}

struct Drawn {
  int x;
  int y;
  std::string text;
  Colour colour;
};

class Canvas : public ConsolePainter {
 public:
  explicit Canvas(const Rect& clip) : clip_(clip) {}
  Rect clip() const override { return clip_; }
  void drawText(int x, int y, const std::string& text, Colour colour) override {
    drawn.push_back({x, y, text, colour});
  }
  void fill(const Rect& rect, Colour colour) override { fills.emplace_back(rect, colour); }
  void invert(const Rect& rect) override { inverted.push_back(rect); }

  Colour colourOf(const std::string& text) const {
    for (const auto& one : drawn) {
      if (one.text == text) return one.colour;
    }
    ADD_FAILURE() << "not drawn: " << text;
    return {};
  }

  std::vector<Drawn> drawn;
  std::vector<std::pair<Rect, Colour>> fills;
  std::vector<Rect> inverted;

 private:
  Rect clip_;
};

class MessagesViewTest : public testing::Test {
 protected:
  MessagesViewTest() {
    view.onStart(surface);
    view.setText(messagesText(manyMessages(), {{0, "folder"}}));
  }

  MouseState at(int column, int line, bool shift = false) const {
    MouseState mouse;
    mouse.at = {4 + column * cellWidth, line * cellHeight + 3 - surface.position.y};
    mouse.leftDown = true;
    mouse.shift = shift;
    return mouse;
  }

  /// The line in its file of the message that the user is at; 0 for none.
  int currentLine() const { return view.current() ? view.text().messages[*view.current()].place->line : 0; }

  Canvas painted() {
    Canvas canvas({surface.position.x, surface.position.y, surface.position.x + 644, surface.position.y + 400});
    view.paint(canvas);
    return canvas;
  }

  bool dark = false;
  std::vector<int> opened;
  test::FakeSurface surface;
  MessagesView view{
      [this] { return dark; },
      [this](const ToolMessage& message) { opened.push_back(message.place->line * 100 + message.place->column); }};
};

TEST_F(MessagesViewTest, TheSurfaceIsAsLargeAsTheText) {
  EXPECT_EQ(surface.sizes, (Point{4 + (24 + 4) * cellWidth, 123 * cellHeight}));
}

TEST_F(MessagesViewTest, WithoutATextItTellsWhatComesThere) {
  const std::string words = "What javac and the other tools say comes here.";
  EXPECT_EQ(view.wordsInPlace(), "");
  view.setText({});
  EXPECT_EQ(view.wordsInPlace(), words);
  for (const bool on : {false, true}) {
    dark = on;
    const Canvas canvas = painted();
    ASSERT_EQ(canvas.drawn.size(), 1U);
    EXPECT_EQ(canvas.drawn[0].text, words);
    EXPECT_EQ(canvas.drawn[0].y, 0);
    EXPECT_EQ(canvas.drawn[0].colour, messageColours(dark).dimmed);
  }
  view.selectAll();
  EXPECT_EQ(view.selectedText(), "") << "no part of the text";
  EXPECT_EQ(painted().inverted, std::vector<Rect>{});
  view.setText(messagesText(manyMessages(), {{0, "folder"}}));
  for (const auto& one : painted().drawn) EXPECT_NE(one.text, words);
}

TEST_F(MessagesViewTest, OtherLettersLeaveTheTopLineAndTheSelectionWhereTheyAre) {
  std::vector<int> told;
  view.useLetters(0, [&](int letters) { told.push_back(letters); });
  surface.position.y = 50 * cellHeight;
  view.onLeftDown(at(5, 52));
  view.onMouseMove(at(8, 52));
  view.onLeftUp({});
  const std::string selected = view.selectedText();
  EXPECT_TRUE(view.onZoom(5));
  EXPECT_EQ(surface.letters, 16);
  EXPECT_EQ(surface.sizes, (Point{4 + (24 + 4) * 12, 123 * 25}));
  EXPECT_EQ(surface.position.y, 50 * 25);
  EXPECT_EQ(view.selectedText(), selected);
  EXPECT_EQ(painted().inverted, (std::vector<Rect>{{4 + 5 * 12, 52 * 25, 4 + 8 * 12, 53 * 25}}));
  view.stepLetters(0);
  view.useUsualLetters();
  EXPECT_EQ(surface.position.y, 50 * cellHeight);
  EXPECT_EQ(told, (std::vector<int>{16, 0}));
}

TEST_F(MessagesViewTest, StepsLeadThroughThePlacesInTheirOrderAndEndThere) {
  EXPECT_EQ(view.current(), std::nullopt);
  for (int line = 1; line <= 40; ++line) {
    ASSERT_NE(view.step(true), nullptr);
    EXPECT_EQ(currentLine(), line);
  }
  EXPECT_EQ(view.step(true), nullptr);
  EXPECT_EQ(currentLine(), 40) << "it stays at the last one";
  for (int line = 39; line >= 1; --line) {
    ASSERT_NE(view.step(false), nullptr);
    EXPECT_EQ(currentLine(), line);
  }
  EXPECT_EQ(view.step(false), nullptr);
  EXPECT_EQ(currentLine(), 1);
  EXPECT_TRUE(opened.empty()) << "a step opens nothing by itself";
}

TEST_F(MessagesViewTest, AStepBackFromNowhereLeadsToTheLast) {
  EXPECT_NE(view.step(false), nullptr);
  EXPECT_EQ(currentLine(), 40);
}

TEST_F(MessagesViewTest, WhereNothingHasAPlaceThereIsNoStep) {
  view.setText(messagesText("\n\njavac\n\nerror: x\nNote: y\n", {{0, "folder"}}));
  EXPECT_EQ(view.step(true), nullptr);
  EXPECT_EQ(view.step(false), nullptr);
  view.setText({});
  EXPECT_EQ(view.step(true), nullptr);
  EXPECT_EQ(view.step(false), nullptr);
}

TEST_F(MessagesViewTest, AStepBringsTheWholeMessageIntoSight) {
  for (int line = 1; line <= 7; ++line) view.step(true);
  EXPECT_EQ(surface.position.y, 0) << "all were in sight";
  view.step(true);
  EXPECT_EQ(surface.position.y, (24 - 2) * cellHeight) << "its last line was not";
  view.step(false);
  EXPECT_EQ(surface.position.y, (21 - 2) * cellHeight) << "upwards as well";
}

TEST_F(MessagesViewTest, ANewTextBeginsAtItsTopAndAtNoMessage) {
  view.step(false);
  view.selectAll();
  view.setText(messagesText(manyMessages(), {{0, "folder"}}));
  EXPECT_EQ(surface.position, (Point{0, 0}));
  EXPECT_EQ(view.current(), std::nullopt);
  EXPECT_EQ(view.selectedText(), "");
}

/// Two commands of which the second has two messages.
MessagesText withEarlier() {
  MessagesText text = messagesText(manyMessages() + "\n\njavac B.java\n\nB.java:1: error: x\nB.java:2: error: x\n",
                                   {{0, "folder"}, {manyMessages().size(), "folder"}});
  text.newestLine = 124;
  text.newestMessage = 41;
  return text;
}

TEST_F(MessagesViewTest, TheNewestStandsAtTheTopHoweverShortItIs) {
  ASSERT_EQ(withEarlier().lines[124].text, "javac B.java");
  view.setText(withEarlier());
  EXPECT_EQ(surface.position, (Point{0, 124 * cellHeight}));
  EXPECT_EQ(surface.sizes.y, 124 * cellHeight + 400) << "there is room for a whole window of it";
  surface.position = {};
  view.onClose();
  view.onStart(surface);
  EXPECT_EQ(surface.position, (Point{0, 124 * cellHeight})) << "in a window that opens, too";
  MessagesText longer = messagesText(manyMessages(), {{0, "folder"}});
  longer.newestLine = 2;
  view.setText(longer);
  EXPECT_EQ(surface.position, (Point{0, 2 * cellHeight}));
  EXPECT_EQ(surface.sizes.y, 123 * cellHeight);
}

TEST_F(MessagesViewTest, InALargerWindowTheNewestStandsAtTheTopStill) {
  view.setText(withEarlier());
  surface.client.y = 800;
  surface.position.y -= 400;
  view.onResized();
  EXPECT_EQ(surface.sizes.y, 124 * cellHeight + 800);
  EXPECT_EQ(surface.position.y, 124 * cellHeight);
  surface.position.y = 50 * cellHeight;
  view.onScrolled();
  view.onResized();
  EXPECT_EQ(surface.position.y, 50 * cellHeight) << "whoever has scrolled back stays there";
  view.step(true);
  view.onKey(ConsoleKey::Home, 0);
  view.onResized();
  EXPECT_EQ(surface.position.y, 0);
}

TEST_F(MessagesViewTest, StepsLeadThroughTheNewestAlone) {
  view.setText(withEarlier());
  EXPECT_EQ(surface.position.y, 124 * cellHeight);
  ASSERT_NE(view.step(true), nullptr);
  EXPECT_EQ(view.current(), 41U);
  EXPECT_EQ(view.step(false), nullptr);
  ASSERT_NE(view.step(true), nullptr);
  EXPECT_EQ(view.step(true), nullptr);
  surface.position.y = 0;
  view.onDoubleClick(at(10, 2));
  EXPECT_EQ(opened, std::vector<int>{106}) << "an earlier one can be opened all the same";
  EXPECT_EQ(view.step(false), nullptr);
  EXPECT_EQ(view.current(), 0U);
  ASSERT_NE(view.step(true), nullptr);
  EXPECT_EQ(view.current(), 41U) << "from an earlier one the first comes next";
  MessagesText silent = withEarlier();
  silent.newestLine = silent.lines.size();
  silent.newestMessage = silent.messages.size();
  view.setText(silent);
  EXPECT_EQ(view.step(true), nullptr);
  EXPECT_EQ(view.step(false), nullptr);
}

TEST_F(MessagesViewTest, TheArrowsStepAndReturnOpens) {
  EXPECT_TRUE(view.onKey(ConsoleKey::Down, 0));
  EXPECT_TRUE(view.onKey(ConsoleKey::Down, 0));
  EXPECT_TRUE(view.onKey(ConsoleKey::Up, 0));
  EXPECT_TRUE(opened.empty());
  view.onCharacter("\r", 1);
  EXPECT_EQ(opened, std::vector<int>{106});
  view.onCharacter("x", 1);
  EXPECT_EQ(opened.size(), 1u);
  EXPECT_FALSE(view.onKey(ConsoleKey::Down, CTRL_BIT));
}

TEST_F(MessagesViewTest, ReturnAtNoMessageDoesNothing) {
  view.onCharacter("\r", 1);
  EXPECT_TRUE(opened.empty());
}

TEST_F(MessagesViewTest, HomeEndAndSidewardsScroll) {
  view.onKey(ConsoleKey::End, 0);
  EXPECT_EQ(surface.position.y, 123 * cellHeight);
  view.onKey(ConsoleKey::Home, 0);
  EXPECT_EQ(surface.position.y, 0);
  view.onKey(ConsoleKey::Right, 0);
  EXPECT_EQ(surface.position.x, cellWidth);
  view.onKey(ConsoleKey::Left, 0);
  EXPECT_EQ(surface.position.x, 0);
}

TEST_F(MessagesViewTest, ADoubleClickOnAnyLineOfAMessageOpensIt) {
  view.onDoubleClick(at(10, 2));
  view.onDoubleClick(at(0, 3));
  view.onDoubleClick(at(70, 7));
  EXPECT_EQ(opened, (std::vector<int>{106, 106, 206}));
  EXPECT_EQ(currentLine(), 2);
  view.onDoubleClick(at(5, 0));
  EXPECT_EQ(opened.size(), 3u) << "the command is no message";
  view.onDoubleClick(at(5, 8));
  EXPECT_EQ(opened.size(), 3u) << "this one has no place";
  view.onDoubleClick(at(5, 5000));
  EXPECT_EQ(opened.size(), 3u);
}

TEST_F(MessagesViewTest, AClickGoesToAMessageAndOpensNothing) {
  view.onLeftDown(at(10, 6));
  view.onLeftUp(at(10, 6));
  EXPECT_EQ(currentLine(), 2);
  EXPECT_TRUE(opened.empty());
  EXPECT_EQ(view.selectedText(), "");
}

TEST_F(MessagesViewTest, TheMouseSelectsTextWithoutTheMarks) {
  view.onLeftDown(at(3 + 7, 2));
  view.onMouseMove(at(3 + 4, 4));
  view.onLeftUp(at(3 + 4, 4));
  EXPECT_EQ(view.selectedText(), "1: error: x\r\n        int i;\r\n    ");
  view.onLeftDown(at(0, 5, true));
  view.onLeftUp(at(0, 5, true));
  EXPECT_EQ(view.selectedText(), "1: error: x\r\n        int i;\r\n            ^\r\n");
  view.onLeftDown(at(0, 0));
  EXPECT_EQ(view.selectedText(), "");
}

TEST_F(MessagesViewTest, EverythingCanBeSelected) {
  view.setText(messagesText("\n\njavac\n\nA.java:1: error: \xC3\xA4\n\nx\n", {{0, "folder"}}));
  view.selectAll();
  EXPECT_EQ(view.selectedText(), "javac\r\n\r\nA.java:1: error: \xC3\xA4\r\n\r\nx");
}

TEST_F(MessagesViewTest, KindsAreToldApartByColourAndMark) {
  const MessageColours& colours = messageColours(false);
  const Canvas canvas = painted();
  EXPECT_EQ(canvas.colourOf("javac *.java"), colours.dimmed);
  EXPECT_EQ(canvas.colourOf("A.java:1: error: x"), colours.error);
  EXPECT_EQ(canvas.colourOf("A.java:2: warning: x"), colours.warning);
  EXPECT_EQ(canvas.colourOf("        int i;"), colours.text);
  EXPECT_EQ(canvas.colourOf("E"), colours.ground);
  EXPECT_EQ(canvas.colourOf("W"), colours.ground);
  ASSERT_FALSE(canvas.fills.empty());
  EXPECT_EQ(canvas.fills[0], (std::pair<Rect, Colour>({0, 0, 644, 400}, colours.ground)));
  const Rect mark{4, 2 * cellHeight + 1, 4 + 2 * cellWidth, 3 * cellHeight - 1};
  EXPECT_EQ(canvas.fills[1], (std::pair<Rect, Colour>(mark, colours.error)));
}

TEST_F(MessagesViewTest, WhereTheUserIsTheGroundIsAnother) {
  view.step(true);
  const Canvas canvas = painted();
  const Rect whole{0, 2 * cellHeight, 644, 5 * cellHeight};
  EXPECT_EQ(canvas.fills[1], (std::pair<Rect, Colour>(whole, messageColours(false).current)));
}

TEST_F(MessagesViewTest, WhatIsSelectedIsInverted) {
  view.onLeftDown(at(3, 2));
  view.onMouseMove(at(8, 2));
  view.onLeftUp(at(8, 2));
  const std::vector<Rect> expected = {{4 + 3 * cellWidth, 2 * cellHeight, 4 + 8 * cellWidth, 3 * cellHeight}};
  EXPECT_EQ(painted().inverted, expected);
}

TEST_F(MessagesViewTest, OnADarkDesktopTheGroundIsDark) {
  dark = true;
  const Canvas canvas = painted();
  EXPECT_EQ(canvas.fills[0].second, messageColours(true).ground);
  EXPECT_EQ(canvas.colourOf("A.java:1: error: x"), messageColours(true).error);
}

/// How much lighter one colour is than the other, as readers with weak eyes see it: 1 to 21.
double contrastOf(Colour left, Colour right) {
  const auto light = [](Colour colour) {
    const auto part = [](std::uint8_t value) {
      const double share = value / 255.0;
      return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.red) + 0.7152 * part(colour.green) + 0.0722 * part(colour.blue);
  };
  const auto [less, more] = std::minmax(light(left), light(right));
  return (more + 0.05) / (less + 0.05);
}

TEST(MessageColoursTest, AllCanBeReadOnBothGrounds) {
  for (const bool dark : {false, true}) {
    const MessageColours& colours = messageColours(dark);
    for (const Colour ground : {colours.ground, colours.current}) {
      for (const Colour letters : {colours.text, colours.dimmed, colours.error, colours.warning, colours.note})
        EXPECT_GE(contrastOf(letters, ground), 4.5) << dark << ' ' << int{letters.red};
    }
  }
}

TEST_F(MessagesViewTest, AfterTheCloseNothingAddressesTheWindow) {
  view.onClose();
  const int before = surface.allInvalidated;
  view.setText({});
  view.step(true);
  view.selectAll();
  view.onResized();
  view.onLeftDown(at(0, 0));
  view.onDoubleClick(at(0, 0));
  EXPECT_FALSE(view.onKey(ConsoleKey::Down, 0));
  EXPECT_EQ(surface.allInvalidated, before);
}

}  // namespace
}  // namespace tarnwick
