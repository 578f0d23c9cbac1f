#include "app/MessagesText.h"

#include "base/Filename.h"
#include "platform/Characters.h"
#include "platform/FileSystem.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>

namespace tarnwick {

namespace {

constexpr int tabWidth = 8;
/// A longer line, which no tool means to be read, is cut.
constexpr std::size_t longestLine = 10000;

using Line = MessagesText::Line;
using LineKind = MessagesText::LineKind;

Line lineOf(std::string_view text, LineKind kind) {
  Line line;
  line.kind = kind;
  text = text.substr(0, longestLine);
  while (!text.empty()) {
    const auto tab = std::min(text.find('\t'), text.size());
    line.text += text.substr(0, tab);
    if (tab == text.size()) break;
    const auto columns = static_cast<int>(platform::columnsOf(line.text));
    line.text.append(static_cast<std::size_t>(tabWidth - columns % tabWidth), ' ');
    text.remove_prefix(tab + 1);
  }
  line.text = platform::validText(line.text);
  line.columns = static_cast<int>(platform::columnsOf(line.text));
  return line;
}

LineKind kindOf(MessageKind kind) {
  if (kind == MessageKind::Error) return LineKind::Error;
  return kind == MessageKind::Warning ? LineKind::Warning : LineKind::Note;
}

/// A name as the tool has written it, which ran in this folder.
std::string wholePath(const std::string& name, const std::string& folder) {
  return platform::absolutePath(name) == name ? name : Filename(folder, name).fullName();
}

/// Adds one run: its command, and what the tool has said.
void addPart(MessagesText& text, std::string_view part, const LoggedPart& logged) {
  const auto start = part.find_first_not_of("\r\n");
  if (start == std::string_view::npos) return;
  part.remove_prefix(start);
  if (!text.lines.empty()) text.lines.push_back({});
  const std::size_t first = text.lines.size();
  for (const auto& line : linesOf(part)) text.lines.push_back(lineOf(line, LineKind::Other));
  if (logged.hasCommand) text.lines[first].kind = LineKind::Command;
  for (auto message : toolMessages(part)) {
    if (message.logLine == 0) continue;
    message.logLine += first;
    message.lastLine += first;
    text.lines[message.logLine].kind = kindOf(message.kind);
    if (message.place) message.place->file = wholePath(message.place->file, logged.folder);
    text.messages.push_back(std::move(message));
  }
}

void shorten(MessagesText& text, std::size_t mostLines) {
  if (text.lines.size() <= mostLines) return;
  text.shortened = true;
  text.lines.resize(mostLines);
  while (!text.messages.empty() && text.messages.back().lastLine >= mostLines) text.messages.pop_back();
}

/// The words for tools that did not end by themselves; empty for the others.
std::string wordsOf(RunEnd end) {
  if (end == RunEnd::Stopped) return "stopped";
  return end == RunEnd::BySignal ? "ended by a signal" : "";
}

/// The most that is shown of a log, in bytes.
constexpr std::size_t longestLog = std::size_t{4} * 1024 * 1024;

struct Closer {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};

/// The log's bytes, of a log that is too long a few more than are shown. Throws Tarnwickfile::FileNotOpenE.
std::string contentOf(const std::string& path) {
  const std::unique_ptr<std::FILE, Closer> stream(platform::openFile(path, "rb"));
  if (!stream) throw Tarnwickfile::FileNotOpenE(std::strerror(errno), path);
  std::string content;
  std::array<char, 8192> block;
  while (content.size() <= longestLog) {
    const std::size_t count = std::fread(block.data(), 1, block.size(), stream.get());
    if (count == 0) break;
    content.append(block.data(), count);
  }
  return content;
}

}  // namespace

int MessagesText::widest() const {
  int columns = 0;
  for (const auto& line : lines) columns = std::max(columns, line.columns);
  return columns;
}

MessagesText messagesText(const std::string& log, const std::vector<LoggedPart>& parts, std::size_t mostLines) {
  MessagesText text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const std::size_t begin = std::min(parts[i].begin, log.size());
    const std::size_t end = i + 1 < parts.size() ? std::min(parts[i + 1].begin, log.size()) : log.size();
    addPart(text, std::string_view(log).substr(begin, end - begin), parts[i]);
    shorten(text, mostLines);
    if (text.shortened) break;
  }
  return text;
}

MessagesText textOfLog(const ToolLog& log) {
  std::string content = contentOf(log.path());
  const bool isCut = content.size() > longestLog;
  if (isCut) content.resize(content.rfind('\n', longestLog - 1) + 1);
  MessagesText text = messagesText(content, log.parts());
  text.shortened = text.shortened || isCut;
  return text;
}

std::string secondsText(std::chrono::milliseconds time) {
  const auto tenths = (time.count() + 50) / 100;
  return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " s";
}

std::string messagesSummary(const MessagesText& text, std::chrono::milliseconds elapsed, RunEnd runEnd) {
  const std::string count = countText(countOf(text.messages));
  const std::string end = wordsOf(runEnd);
  std::string begin = count;
  if (count.empty()) begin = text.lines.empty() ? "No messages" : end.empty() ? "No errors or warnings" : "";
  if (!end.empty()) begin += (begin.empty() ? "" : ", ") + end;
  if (count.empty() && !begin.empty()) begin[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(begin[0])));
  return begin + ", " + secondsText(elapsed) + (text.shortened ? " (the log is longer than what is shown)" : "");
}

}  // namespace tarnwick
