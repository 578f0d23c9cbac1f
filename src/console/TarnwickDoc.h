#pragma once

#include "console/ConsoleLine.h"
#include "console/LineRecord.h"
#include "console/TextLock.h"
#include "dialogbase/Desktop.h"

#include <cstdio>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// The columns that an addition took on the last line; `end` lies just behind it.
struct ColumnRange {
  int start = 0;
  int end = 0;
  bool operator==(const ColumnRange&) const = default;
};

/// The text of one console: a bounded list of lines, of which the last one is being written. It also records completed
/// lines to a file and saves what is there.
///
/// Everything but the three file operations is guarded by the text lock, which the caller holds.
class TarnwickDoc {
 public:
  static constexpr int maxLines = 1500;

  /// `desktop` outlives the document.
  TarnwickDoc(Desktop& desktop, std::string title);

  TextLock& textLock() { return textLock_; }
  const std::string& title() const { return title_; }

  /// Records the last line if a recording runs, and begins another; the first one goes when there are too many.
  void newLine();

  /// Adds to the last line. "\n" begins a new line, "\b" takes back the last typed character, tabs become blanks.
  ColumnRange addText(std::string_view text, int kind);

  /// Replaces what was typed at the end of the last line, or adds it.
  ColumnRange replaceInput(std::string_view text);

  /// The last line's last segment, null if there is none.
  const std::string* lastSegment(int& kindOut) const { return lines_.back().lastSegment(kindOut); }
  /// Columns of the last line. Kept with the line: it may have a million segments.
  int lastLineLength() const { return lines_.back().length(); }

  const std::deque<ConsoleLine>& lines() const { return lines_; }
  const ConsoleLine& lastLine() const { return lines_.back(); }
  int lineCount() const { return static_cast<int>(lines_.size()); }
  /// The greatest length of any line so far; it never goes down.
  int widestLine() const { return widestLine_; }
  /// True once a line has fallen off the top.
  bool linesDropped() const { return linesDropped_; }
  /// Why a recording has ended by itself, as a message; empty if none has since the last call.
  std::string takeRecordFailure();

  // The file operations. They belong to the user-interface thread and take the text lock themselves.

  /// Asks for a file and records every line to it that is completed from now on. True if the file is open.
  bool startRecording();
  /// Closes the file, and tells what has gone wrong with it.
  void stopRecording();
  /// Asks for a file and puts all that is there in it, the unfinished last line too; a file that was there stays as it
  /// is until the new one is whole. Ends a recording.
  void saveDisplay();
  bool recording() const;

 private:
  /// Ends a recording and asks for a file; nothing after the message.
  std::optional<std::string> chosenFile();
  void record(const ConsoleLine& line);
  void writeAll(std::FILE* stream);
  ColumnRange takeBack(int kind);
  void noteWidth();

  Desktop& desktop_;
  std::string title_;
  mutable TextLock textLock_;
  std::deque<ConsoleLine> lines_;
  int widestLine_ = 0;
  bool linesDropped_ = false;
  std::unique_ptr<LineRecord> record_;
  std::string recordFailure_;
  std::string recordFileName_;
};

}  // namespace tarnwick
