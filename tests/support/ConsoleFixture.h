#pragma once

#include "console/ConsoleFiles.h"
#include "console/TarnwickView.h"
#include "platform/Characters.h"
#include "support/FakeChild.h"
#include "support/FakeSurface.h"
#include "support/RecordingDesktop.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace tarnwick::test {

/// True where a character may be more than one byte.
inline bool charactersAreUtf8() {
  return platform::columnsOf("\xC3\xA4") == 1;
}

/// The lines' texts.
inline std::vector<std::string> textOf(const TarnwickDoc& document) {
  std::vector<std::string> lines;
  for (const auto& line : document.lines()) lines.push_back(line.text());
  return lines;
}

/// Adds output with its line ends. The caller holds the text lock.
inline void addOutput(TarnwickDoc& document, const std::string& text) {
  std::size_t start = 0;
  for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', start)) {
    document.addText(text.substr(start, end - start), KIND_OUTPUT);
    document.newLine();
    start = end + 1;
  }
  if (start < text.size()) document.addText(text.substr(start), KIND_OUTPUT);
}

/// The segments of a line, each as its kind, a colon and its text.
inline std::vector<std::string> segmentsOf(const ConsoleLine& line) {
  std::vector<std::string> segments;
  for (const auto& segment : line.segments()) segments.push_back(std::to_string(segment.kind) + ':' + segment.text);
  return segments;
}

/// A console on a fake window with a scripted child, whose waits are short.
class ConsoleFixture : public testing::Test {
 protected:
  ConsoleFixture() { program.timing = {std::chrono::milliseconds(15), std::chrono::milliseconds(25), 8}; }
  ~ConsoleFixture() override { view.reset(); }

  /// Opens the window; the child starts by itself.
  TarnwickView& open() {
    program.start = [this](const platform::ChildCommand& command) -> std::unique_ptr<platform::ChildProcess> {
      started = command;
      return std::make_unique<FakeChild>(child);
    };
    return openWith(program);
  }

  TarnwickView& openWith(const ConsoleProgram& what) {
    view = std::make_unique<TarnwickView>(document, desktop, what, [this](int group, int index) {
      asked.emplace_back(group, index);
      return keyText;
    });
    view->onStart(surface);
    return *view;
  }

  /// Opens it and waits until both readers have begun their line.
  TarnwickView& openRunning() {
    open();
    EXPECT_TRUE(until([&] { return view->childState() == 1 && lineCount() == 3; }));
    return *view;
  }

  /// A view without any child's output under way: the start has failed.
  TarnwickView& openIdle() {
    program.start = [](const platform::ChildCommand&) -> std::unique_ptr<platform::ChildProcess> {
      throw platform::SystemError{"CreateProcess", 2, ""};
    };
    openWith(program);
    EXPECT_TRUE(until([&] { return !desktop.messages.empty(); }));
    desktop.messages.clear();
    surface.forget();
    return *view;
  }

  /// The end of a child that has said something.
  void endChild() {
    child->out("x\n");
    // What is not read before the end has settled would count as nothing said.
    ASSERT_TRUE(until([&] {
      const auto all = lines();
      return std::find(all.begin(), all.end(), "x") != all.end();
    }));
    child->end();
    ASSERT_TRUE(until([&] { return view->childState() == 0; }));
    pump();
  }

  /// Does what the window's event loop does until the condition holds. False after a minute.
  template <typename Condition>
  bool until(Condition holds) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    for (;;) {
      pump();
      if (holds()) return true;
      if (std::chrono::steady_clock::now() > deadline) return false;
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }

  void pump() {
    if (surface.takeWake()) view->onWake();
    desktop.runPosted();
  }

  int lineCount() {
    const TextGuard guard(document.textLock());
    return document.lineCount();
  }
  std::vector<std::string> lines() {
    const TextGuard guard(document.textLock());
    return textOf(document);
  }
  std::string lastLine() {
    const TextGuard guard(document.textLock());
    return document.lastLine().text();
  }
  std::vector<std::string> lastSegments() {
    const TextGuard guard(document.textLock());
    return segmentsOf(document.lastLine());
  }

  void type(const std::string& text) {
    for (const char character : text) view->onCharacter(std::string(1, character), 1);
  }

  RecordingDesktop desktop;
  TarnwickDoc document{"a title"};
  ConsoleFiles files{document, desktop};
  FakeSurface surface;
  std::shared_ptr<ChildScript> child = std::make_shared<ChildScript>();
  ConsoleProgram program{"C:\\Jdk\\Bin\\Java.exe", " -cp x Main", {}, {}};
  platform::ChildCommand started;
  std::string keyText;
  std::vector<std::pair<int, int>> asked;  ///< function keys that were looked up
  std::unique_ptr<TarnwickView> view;
};

}  // namespace tarnwick::test
