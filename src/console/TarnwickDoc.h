#pragma once

#include "console/ConsoleLine.h"
#include "console/LineRecord.h"
#include "console/TextLock.h"

#include <cstddef>
#include <cstdint>
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
  static constexpr int tabWidth = 8;
  /// A line that has no end is broken when it holds so many bytes, and only so many of its pieces are kept.
  static constexpr std::size_t longestLine = std::size_t{1} << 20;
  static constexpr int maxBrokenLines = 16;
  /// Where a line goes on that was broken.
  static const char brokenMark[];

  explicit TarnwickDoc(std::string title);

  TextLock& textLock() { return textLock_; }
  const std::string& title() const { return title_; }

  /// Records the last line if a recording runs, and begins another; the first one goes when there are too many.
  void newLine();

  /// Adds to the last line. "\n" begins a new line, "\b" takes back the last typed character, tabs become blanks.
  ColumnRange addText(std::string_view text, int kind);

  /// Writes output on the last line from this column on, over what stands there.
  ColumnRange write(int column, std::string_view text, int kind, const TextStyle& style);
  /// How many lines have fallen off the top, or were cleared.
  std::uint64_t linesGone() const { return linesGone_; }
  /// How many lines there have been so far.
  std::uint64_t linesBegun() const { return linesGone_ + lines_.size(); }

  /// True if the last line has no room for so many bytes of output.
  bool isFull(std::size_t bytes) const;
  /// Goes on with the last line on a new one, behind a mark.
  void breakLine();

  /// Takes what was typed off the end of the last line, if something was.
  std::optional<ConsoleSegment> takeInput();
  /// Puts that at the end of the last line.
  void giveInput(ConsoleSegment input);

  /// Lets all lines go but the last one.
  void clear();

  /// Replaces what was typed at the end of the last line, or adds it.
  ColumnRange replaceInput(std::string_view text);

  /// The last line's last segment, null if there is none.
  const std::string* lastSegment(int& kindOut) const { return lines_.back().lastSegment(kindOut); }
  /// Columns of the last line. Kept with the line: it may have a million segments.
  int lastLineLength() const { return lines_.back().length(); }

  const std::deque<ConsoleLine>& lines() const { return lines_; }
  const ConsoleLine& lastLine() const { return lines_.back(); }
  int lineCount() const { return static_cast<int>(lines_.size()); }
  /// The greatest length of any line so far; it goes down only when the lines are cleared.
  int widestLine() const { return widestLine_; }
  /// True once a line has fallen off the top.
  bool linesDropped() const { return linesDropped_; }
  /// Why a recording has ended by itself, as a message; empty if none has since the last call.
  std::string takeRecordFailure();

  // The file operations. They belong to the user-interface thread and take the text lock themselves.

  /// Records every line to this file that is completed from now on. No recording runs. Throws
  /// Tarnwickfile::FileNotOpenE.
  void startRecording(const std::string& path);
  /// Closes the file. Gives what has gone wrong with it, as a message; empty if nothing has, or if none ran.
  [[nodiscard]] std::string stopRecording();
  /// Puts all that is there in this file, the unfinished last line too; a file that was there stays as it is until the
  /// new one is whole. Throws Tarnwickfile::FileNotOpenE.
  void saveDisplay(const std::string& path);
  bool recording() const;

  /// What is told behind the reason where no file can be opened, or where none was chosen.
  static const char cantOpen[];

 private:
  void record(const ConsoleLine& line);
  void writeAll(std::FILE* stream);
  ColumnRange takeBack(int kind);
  void noteWidth();
  void dropFirstLine();

  std::string title_;
  mutable TextLock textLock_;
  std::deque<ConsoleLine> lines_;
  int widestLine_ = 0;
  bool linesDropped_ = false;
  /// For each break the count of lines that had been begun by then, and how many have gone: what pieces there are.
  std::deque<std::uint64_t> breaks_;
  std::uint64_t linesGone_ = 0;
  std::unique_ptr<LineRecord> record_;
  std::string recordFailure_;
};

}  // namespace tarnwick
