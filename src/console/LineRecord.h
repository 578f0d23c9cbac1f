#pragma once

#include "console/ConsoleLine.h"

#include <cstdio>
#include <string>

namespace tarnwick {

/// Writes the line's text and a line end. False with `errno` if not all of it could be written.
bool writeLine(std::FILE* stream, const ConsoleLine& line);

/// The file that a console's lines are recorded to. A line that was added is in the file: whoever follows it sees it,
/// and nothing is lost if nobody gets to close it.
class LineRecord {
 public:
  /// Empties the file, or makes it. Throws Tarnwickfile::FileNotOpenE with the system's reason, as all that follows.
  explicit LineRecord(std::string path);
  ~LineRecord();
  LineRecord(const LineRecord&) = delete;
  LineRecord& operator=(const LineRecord&) = delete;

  /// Never waits for whoever reads the file: if he has not made room, that is a failure.
  void add(const ConsoleLine& line);
  void close();

 private:
  [[noreturn]] void fail(int reason) const;

  std::string path_;
  std::FILE* stream_ = nullptr;
};

}  // namespace tarnwick
