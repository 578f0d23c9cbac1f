#pragma once

#include "app/ConsoleFrameHost.h"
#include "app/MessagesFrame.h"
#include "app/MessagesHistory.h"
#include "app/MessagesView.h"
#include "process/EditorForms.h"
#include "settings/Settings.h"

#include <functional>
#include <memory>
#include <optional>

namespace tarnwick {

/// The rules of the window that shows what the tools have said. It opens with the first log and stays; the logs before
/// stand above the newest.
class Messages : public MessagesFrame {
 public:
  /// Opens the user's editor on a file at a place.
  using OpenEditor = std::function<void(const std::string& file, const EditorPlace& place)>;

  /// Settings and host outlive it.
  Messages(Settings& settings, ConsoleFrameHost& host, OpenEditor openEditor);

  /// Shows the log. One that `said` nothing opens no window, and changes one that is open only if a tool has run since.
  void show(bool said);
  /// Shows the last log, if it does not yet, and brings the window before all others.
  void bringForward();
  /// Closes the window if it is open.
  void close();

  ConsoleSurfaceClient& view() override { return view_; }
  void onCommand(MessagesCommand command) override;
  std::string wordsInPlace() const override { return view_.wordsInPlace(); }
  std::optional<Rect> place() const override;
  void onClosed(const std::optional<Rect>& place) override;

 private:
  void step(bool forward);
  void open(const ToolMessage& message);
  void copy();
  void clear();
  void useRememberedLetters();

  Settings& settings_;
  ConsoleFrameHost& host_;
  OpenEditor openEditor_;
  MessagesHistory history_;
  MessagesView view_;
  std::unique_ptr<MessagesWindow> window_;
  int shownRuns_ = 0;
  std::optional<int> shownLog_;  ///< the runs before it; none where the window is empty
};

/// A rectangle as a setting keeps it, "left;top;width;height"; nothing for any other text.
std::optional<Rect> placeOf(const std::string& text);
std::string placeText(const Rect& place);

}  // namespace tarnwick
