#pragma once

#include "console/ConsoleScreen.h"
#include "console/EscapeSequence.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick {

/// Brings what the child writes to one of its outputs into the text. The operations take the text lock themselves.
class OutputReader {
 public:
  /// How much of a child's output is handled at once.
  static constexpr std::size_t blockSize = 512;

  OutputReader(ConsoleScreen& screen, int kind) : screen_(screen), kind_(kind) {}

  /// The output begins on a line of its own.
  void begin();
  /// Handles one block under one hold of the lock, so that two outputs never mix within a block: that is short, and the
  /// lock is fair. A character that the block cuts waits for the next one.
  void handle(std::string_view block);
  /// Nothing more comes: what there is of a cut character shows as it is.
  void end();

 private:
  void add(std::string_view text);
  /// Breaks a line that would become too long.
  void makeRoom(std::size_t bytes);
  void handleControl(char byte);
  /// What only a terminal does. False for any other byte.
  bool handleTerminal(char byte);
  /// Asks for the columns that were added since the last call to be shown.
  void show(int leastColumn);

  ConsoleScreen& screen_;
  int kind_;
  std::string cut_;  ///< the beginning of a character
  EscapeSequence sequence_;
  int high_ = 0;  ///< the right end of what was added to the present line
};

}  // namespace tarnwick
