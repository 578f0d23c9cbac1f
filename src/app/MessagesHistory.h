#pragma once

#include "app/MessagesText.h"

#include <cstddef>
#include <deque>
#include <string>

namespace tarnwick {

/// What the messages' window shows: what the newest command has said, and above it those before, as far as there is
/// room.
class MessagesHistory {
 public:
  /// So many commands, the newest among them, whose texts have so many bytes in all. The newest is always whole.
  explicit MessagesHistory(std::size_t mostCommands = 10, std::size_t mostBytes = std::size_t{4} * 1024 * 1024)
      : mostCommands_(mostCommands), mostBytes_(mostBytes) {}

  /// A command has ended, with this sum. The one before stays above it, if it has said anything.
  void add(MessagesText said, const std::string& sum);
  /// The newest command is shown anew.
  void showAnew(MessagesText said, const std::string& sum);
  void clear() { commands_.clear(); }

  /// All of it, the oldest first. Each but the newest stands below its sum.
  MessagesText text() const;

 private:
  struct Command {
    MessagesText said;
    std::string sum;
    std::size_t bytes;
  };

  void dropOldest();

  std::size_t mostCommands_;
  std::size_t mostBytes_;
  std::deque<Command> commands_;
};

}  // namespace tarnwick
