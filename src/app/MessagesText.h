#pragma once

#include "base/ToolMessages.h"
#include "process/ToolLog.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace tarnwick {

/// A log as the messages' window shows it.
struct MessagesText {
  enum class LineKind { Command, Error, Warning, Note, Other };

  struct Line {
    std::string text;  ///< with blanks in place of tabs
    int columns = 0;
    LineKind kind = LineKind::Other;
  };

  std::vector<Line> lines;
  /// In the order of their lines, their files with whole paths.
  std::vector<ToolMessage> messages;
  bool shortened = false;  ///< there was more than is shown
  /// Where the newest command begins; what stands before was said earlier.
  std::size_t newestLine = 0;
  std::size_t newestMessage = 0;

  int widest() const;
};

/// Takes a log apart into the lines of its runs. Only so many are kept.
MessagesText messagesText(const std::string& log, const std::vector<LoggedPart>& parts, std::size_t mostLines = 20000);

/// The same of a log's file, of which only so much is read: whole lines. Throws Tarnwickfile::FileNotOpenE.
MessagesText textOfLog(const ToolLog& log);

/// With one digit behind the point, as in "1.4 s".
std::string secondsText(std::chrono::milliseconds time);

/// What stands above the text of runs that took so long and ended so, as in "3 errors, 1 warning in 2 files, 1.4 s".
std::string messagesSummary(const MessagesText& text, std::chrono::milliseconds elapsed, RunEnd end = RunEnd::ByItself);

}  // namespace tarnwick
