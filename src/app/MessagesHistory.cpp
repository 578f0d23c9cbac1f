#include "app/MessagesHistory.h"

#include "platform/Characters.h"

#include <numeric>
#include <utility>

namespace tarnwick {

namespace {

std::size_t bytesOf(const MessagesText& text) {
  // A line's end counts, too: a text of empty lines is none that takes no room.
  const auto more = [](std::size_t bytes, const MessagesText::Line& line) { return bytes + line.text.size() + 1; };
  return std::accumulate(text.lines.begin(), text.lines.end(), std::size_t{0}, more);
}

void append(MessagesText& text, const MessagesText& more) {
  const std::size_t first = text.lines.size();
  text.lines.insert(text.lines.end(), more.lines.begin(), more.lines.end());
  for (ToolMessage message : more.messages) {
    message.logLine += first;
    message.lastLine += first;
    text.messages.push_back(std::move(message));
  }
}

}  // namespace

void MessagesHistory::add(MessagesText said, const std::string& sum) {
  if (!commands_.empty() && commands_.back().said.lines.empty()) commands_.pop_back();
  const std::size_t bytes = bytesOf(said);
  commands_.push_back({std::move(said), sum, bytes});
  dropOldest();
}

void MessagesHistory::showAnew(MessagesText said, const std::string& sum) {
  if (!commands_.empty()) commands_.pop_back();
  add(std::move(said), sum);
}

void MessagesHistory::dropOldest() {
  std::size_t bytes = 0;
  for (const auto& command : commands_) bytes += command.bytes;
  while (commands_.size() > 1 && (commands_.size() > mostCommands_ || bytes > mostBytes_)) {
    bytes -= commands_.front().bytes;
    commands_.pop_front();
  }
}

MessagesText MessagesHistory::text() const {
  MessagesText text;
  for (const auto& command : commands_) {
    const bool isNewest = &command == &commands_.back();
    if (!isNewest) {
      const auto columns = static_cast<int>(platform::columnsOf(command.sum));
      text.lines.push_back({command.sum, columns, MessagesText::LineKind::Command});
    }
    text.newestLine = text.lines.size();
    text.newestMessage = text.messages.size();
    append(text, command.said);
    text.shortened = command.said.shortened;
    if (!isNewest) text.lines.push_back({});
  }
  return text;
}

}  // namespace tarnwick
