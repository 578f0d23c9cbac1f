#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// A place in a source. Line and column count from 1; the column is 0 where nothing tells it.
struct SourcePlace {
  std::string file;  ///< as the tool has written it
  int line = 0;
  int column = 0;
  bool operator==(const SourcePlace&) const = default;
};

enum class MessageKind { Error, Warning, Note };

/// One thing that a tool has to say, in its first line.
struct ToolMessage {
  std::size_t logLine = 0;  ///< the line of the text, from 0
  std::size_t lastLine =
      0;  ///< the last of those that belong to it: the source's own, the mark, what is indented below
  MessageKind kind = MessageKind::Error;
  std::optional<SourcePlace> place;  ///< none for what concerns no line of a source
};

/// The messages of a compiler's text, in their order.
///
/// A place is known in any language: ".java:", a line's number and a colon, with the file before it from the line's
/// start on, blanks and colons included; the column is that of the lone "^" below. The kind, too, goes by the text's
/// own form as far as that tells it; beyond that the words decide in which the JDK says "warning" and "note", and what
/// is neither is an error.
std::vector<ToolMessage> toolMessages(std::string_view text);

/// What a summary tells of messages.
struct MessageCount {
  int errors = 0;
  int warnings = 0;
  int files = 0;  ///< in which those have their places
};

MessageCount countOf(const std::vector<ToolMessage>& messages);

/// As in "3 errors, 1 warning in 2 files"; empty if there are neither.
std::string countText(const MessageCount& count);

/// The lines of a text, without their ends.
std::vector<std::string_view> linesOf(std::string_view text);

}  // namespace tarnwick
