#include "base/ToolMessages.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <set>
#include <utility>

namespace tarnwick {

namespace {

using Lines = std::vector<std::string_view>;

constexpr std::string_view nameEnd = ".java:";

/// A number from 1 on with a colon behind it, which is taken off the text as well. 0 if the text begins with no such.
int takeNumber(std::string_view& text) {
  int number = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  const auto length = static_cast<std::size_t>(end - text.data());
  if (fault != std::errc() || number < 1 || length >= text.size() || text[length] != ':') return 0;
  text.remove_prefix(length + 1);
  return number;
}

/// The first line of a message taken apart.
struct Head {
  SourcePlace place;
  std::string_view words;  ///< what stands behind the place
};

std::optional<Head> headOf(std::string_view line) {
  // A folder may bear a name that looks like a source's, too: behind the place stands a blank, or nothing.
  for (auto at = line.find(nameEnd); at != std::string_view::npos; at = line.find(nameEnd, at + 1)) {
    std::string_view rest = line.substr(at + nameEnd.size());
    const int number = takeNumber(rest);
    if (at == 0 || number == 0) continue;
    const int column = takeNumber(rest);
    if (!rest.empty() && rest.front() != ' ') continue;
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    return Head{{std::string(line.substr(0, at + nameEnd.size() - 1)), number, column}, rest};
  }
  return std::nullopt;
}

/// The column that a lone "^" marks, from 1; 0 for any other line.
int markedColumn(std::string_view line) {
  const auto mark = line.find_first_not_of(" \t");
  if (mark == std::string_view::npos || line[mark] != '^') return 0;
  const bool alone = line.find_first_not_of(" \t", mark + 1) == std::string_view::npos;
  return alone ? static_cast<int>(mark) + 1 : 0;
}

/// The word with which the text begins, if a colon stands behind it; otherwise empty. Not all languages have a blank
/// behind that.
std::string_view introduction(std::string_view words) {
  const auto end = words.find(':');
  if (end == std::string_view::npos) return {};
  const std::string_view word = words.substr(0, end);
  return word.find_first_of(" '\"[(") == std::string_view::npos ? word : std::string_view();
}

/// True for "[unchecked] " and its like. Warnings alone are so sorted, in all languages.
bool beginsWithCategory(std::string_view words) {
  words.remove_prefix(std::min(words.find_first_not_of(' '), words.size()));
  if (words.empty() || words.front() != '[') return false;
  const auto end = words.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", 1);
  return end != std::string_view::npos && end > 1 && words.substr(end, 2) == "] ";
}

bool isOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

/// True for the name of a tool, with which it introduces what it thinks of its command line.
bool isTool(std::string_view word) {
  return isOneOf(word, {"javac", "javadoc", "jar", "java", "jdb", "appletviewer"});
}

/// True for a failure's full name, with which a tool's last words begin.
bool isFailure(std::string_view word) {
  return word.find('.') != std::string_view::npos && (word.ends_with("Exception") || word.ends_with("Error"));
}

/// Sorts messages by the words that introduce them.
class Introductions {
 public:
  /// Learns the words of this text.
  explicit Introductions(const Lines& lines) {
    for (const auto& line : lines) {
      const auto head = headOf(line);
      const std::string_view words = head ? head->words : line;
      const std::string_view word = introduction(words);
      if (word.empty()) continue;
      if (head) placed_.insert(word);
      if (beginsWithCategory(words.substr(word.size() + 1))) warnings_.insert(word);
    }
  }

  MessageKind kindOf(std::string_view word) const {
    if (warnings_.contains(word) || isOneOf(word, {"warning", "Warnung", "警告"})) return MessageKind::Warning;
    if (isOneOf(word, {"Note", "Hinweis", "ノート", "注"})) return MessageKind::Note;
    return MessageKind::Error;
  }

  /// True for the word of a message that need not have a place.
  bool known(std::string_view word) const {
    return placed_.contains(word) || kindOf(word) != MessageKind::Error ||
           isOneOf(word, {"error", "Error", "Fehler", "エラー", "错误"}) || isTool(word) || isFailure(word);
  }

 private:
  std::set<std::string_view> placed_;    ///< that have introduced a message with a place
  std::set<std::string_view> warnings_;  ///< that have introduced one of a category
};

/// The message that begins in this line, if one does.
std::optional<ToolMessage> messageAt(const Lines& lines, std::size_t at, const Introductions& introductions) {
  if (auto head = headOf(lines[at])) {
    return ToolMessage{at, at, introductions.kindOf(introduction(head->words)), std::move(head->place)};
  }
  const std::string_view word = introduction(lines[at]);
  if (word.empty() || !introductions.known(word)) return std::nullopt;
  std::string_view said = lines[at].substr(word.size() + 1);
  said.remove_prefix(std::min(said.find_first_not_of(' '), said.size()));
  const bool isWarning = isTool(word) && said.starts_with("warning");
  return ToolMessage{at, at, isWarning ? MessageKind::Warning : introductions.kindOf(word), std::nullopt};
}

/// Takes a line that stands below a message's first one for a part of it if it is one.
void takeFurther(ToolMessage& message, std::string_view line, std::size_t at) {
  const int column = markedColumn(line);
  const bool indented = !line.empty() && (line.front() == ' ' || line.front() == '\t');
  if (column > 0 ? message.place.has_value() : indented && at == message.lastLine + 1) message.lastLine = at;
  if (column > 0 && message.place && message.place->column == 0) message.place->column = column;
}

std::string counted(int number, const std::string& what) {
  return std::to_string(number) + ' ' + what + (number == 1 ? "" : "s");
}

}  // namespace

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const auto end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::vector<ToolMessage> toolMessages(std::string_view text) {
  const Lines lines = linesOf(text);
  const Introductions introductions(lines);
  std::vector<ToolMessage> messages;
  for (std::size_t at = 0; at < lines.size(); ++at) {
    if (!messages.empty()) takeFurther(messages.back(), lines[at], at);
    // The line above the mark is the source's own, whatever its comments look like; and where that is a mark alone,
    // two follow each other.
    const auto isMark = [&](std::size_t line) { return line < lines.size() && markedColumn(lines[line]) > 0; };
    if (isMark(at + 1) && !isMark(at + 2)) continue;
    if (auto message = messageAt(lines, at, introductions)) messages.push_back(std::move(*message));
  }
  return messages;
}

MessageCount countOf(const std::vector<ToolMessage>& messages) {
  MessageCount count;
  std::set<std::string_view> files;
  for (const auto& message : messages) {
    if (message.kind == MessageKind::Note) continue;
    ++(message.kind == MessageKind::Error ? count.errors : count.warnings);
    if (message.place) files.insert(message.place->file);
  }
  count.files = static_cast<int>(files.size());
  return count;
}

std::string countText(const MessageCount& count) {
  std::string text;
  if (count.errors > 0) text = counted(count.errors, "error");
  if (count.warnings > 0) text += (text.empty() ? "" : ", ") + counted(count.warnings, "warning");
  if (count.files > 0) text += " in " + counted(count.files, "file");
  return text;
}

}  // namespace tarnwick
