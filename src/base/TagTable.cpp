#include "base/TagTable.h"

#include "base/FileForSubprocess.h"
#include "base/LineEndE.h"
#include "base/StringableM.h"
#include "base/TagRow.h"
#include "base/Tarnwickfile.h"
#include "base/Text.h"

#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <optional>
#include <utility>

namespace tarnwick {

namespace {

/// A line taken apart. A blank line gives the empty tag, which is in no row.
struct TaggedLine {
  std::string tag;    ///< in upper case, as the tags of the tables
  std::string value;  ///< without white space before it, with white space behind it
};

std::string firstWord(const std::string& text) {
  std::size_t end = 0;
  while (end < text.size() && !isWhite(text[end])) ++end;
  return text.substr(0, end);
}

TaggedLine takeApart(const std::string& line) {
  const std::string text = trimLeft(line);
  const std::string tag = firstWord(text);
  const std::string value = trimLeft(text.substr(tag.size()));
  return {upperCase(tag), value.substr(0, value.find('\n'))};
}

const TagRow* rowOf(const TagRow* rows, const std::string& tag) {
  for (const TagRow* row = rows; !row->isEnd(); ++row)
    if (tag == row->tag) return row;
  return nullptr;
}

/// The line that `fgets` gives. A text shorter than the line it came from was cut at a zero byte; the C string
/// functions see no further, nor do we.
std::optional<std::string> nextLine(std::FILE* stream, std::string& buffer) {
  if (!std::fgets(buffer.data(), static_cast<int>(buffer.size()) - 1, stream)) return std::nullopt;
  return buffer.substr(0, buffer.find('\0'));
}

int readNumber(int& variable, const std::string& value) {
  if (value.empty()) return READ_NO_VALUE;
  const bool negative = value[0] == '-';
  std::uint32_t number = 0;  // too large a number wraps around
  std::size_t at = negative ? 1 : 0;
  for (; at < value.size() && value[at] >= '0' && value[at] <= '9'; ++at)
    number = number * 10 + static_cast<std::uint32_t>(value[at] - '0');
  variable = static_cast<int>(negative ? 0 - number : number);
  // Deliberate: the digits before a character that is none count all the same, and a lone "-" is 0.
  return at < value.size() ? READ_BAD_VALUE : 0;
}

int readSwitch(bool& variable, const std::string& value) {
  if (value.empty()) return READ_NO_VALUE;
  const std::string word = upperCase(firstWord(value));
  if (word != "ON" && word != "OFF") return READ_BAD_VALUE;
  variable = word == "ON";
  return 0;
}

int readStringable(StringableM& variable, const std::string& value) {
  try {
    variable.fromString(value);
  } catch (const StringableM::InvalidDataE&) {
    // Deliberate: no trace in the status. The value has put itself right.
  }
  return 0;
}

/// Gives the bits of the status that the value adds.
int readValue(const TagRow& row, const std::string& value) {
  return std::visit(Overloaded{[&](std::string* text) {
                                 *text = value;
                                 return 0;
                               },
                               [&](int* number) { return readNumber(*number, value); },
                               [&](bool* flag) { return readSwitch(*flag, value); },
                               [&](StringableM* variable) { return readStringable(*variable, value); },
                               [](std::monostate) { return static_cast<int>(READ_BAD_ROW); }},
                    row.variable);
}

std::string defaultTextOf(const TagRow& row) {
  return row.defaultText ? row.defaultText : "";
}

void resetValue(const TagRow& row) {
  std::visit(
      Overloaded{[&](std::string* text) { *text = defaultTextOf(row); },
                 [&](int* number) { *number = row.defaultNumber; }, [&](bool* flag) { *flag = row.defaultNumber != 0; },
                 [&](StringableM* variable) { variable->fromString(defaultTextOf(row)); }, [](std::monostate) {}},
      row.variable);
}

/// The text behind the tag; nothing for a row without a variable.
std::optional<std::string> writtenValue(const TagRow& row) {
  using Written = std::optional<std::string>;
  return std::visit(Overloaded{[](const std::string* text) -> Written { return text->empty() ? " " : "  " + *text; },
                               [](const int* number) -> Written { return "  " + std::to_string(*number); },
                               [](const bool* flag) -> Written { return *flag ? "  ON" : "  OFF"; },
                               [](StringableM* variable) -> Written { return "  " + variable->toString(); },
                               [](std::monostate) -> Written { return std::nullopt; }},
                    row.variable);
}

bool hasDefault(const TagRow& row) {
  return std::visit(Overloaded{[&](const std::string* text) { return *text == defaultTextOf(row); },
                               [&](const int* number) { return *number == row.defaultNumber; },
                               [&](const bool* flag) { return *flag == (row.defaultNumber != 0); },
                               [&](StringableM* variable) { return variable->toString() == defaultTextOf(row); },
                               [](std::monostate) { return false; }},
                    row.variable);
}

}  // namespace

TagTable::TagTable(const TagRow* rows, std::string version, MessageShower showMessage)
    : rows_(rows), version_(std::move(version)), showMessage_(std::move(showMessage)) {}

void TagTable::resetToDefaults(int owner) {
  // Rows without an owner are set by hand.
  if (owner == 0) return;
  for (const TagRow* row = rows_; !row->isEnd(); ++row)
    if (row->owner == owner) resetValue(*row);
}

void TagTable::resetLaterRows() {
  for (const TagRow* row = rows_; !row->isEnd(); ++row)
    if (row->isLater) resetValue(*row);
}

int TagTable::read(Tarnwickfile& file) {
  constexpr std::size_t firstSize = 256;
  std::string buffer(firstSize, '\0');
  int status = 0;
  std::size_t size = 0;
  file.openContent(FileMode::Undefined);
  resetLaterRows();
  while (const auto line = nextLine(file.stream(), buffer)) {
    size += line->size();
    refuseLarge(size, file.name().fullName());
    if (line->size() >= buffer.size() - 2) {
      // Deliberate: for a line that may be longer than the buffer, the file is read again from its top with a larger
      // one. Twice as large, so that the longest line costs no more than a few passes.
      try {
        file.openContent(FileMode::Undefined);
      } catch (const Tarnwickfile::FileNotOpenE&) {
        return READ_FILE_LOST;
      }
      buffer.resize(2 * buffer.size());
      size = 0;
      continue;
    }
    const auto bits = readLine(*line);
    if (bits == READ_BAD_ROW) return READ_BAD_ROW;
    status |= bits;
  }
  return status;
}

int TagTable::readLine(const std::string& line) {
  const TaggedLine tagged = takeApart(line);
  if (tagged.tag == "REM") return 0;
  const TagRow* row = rowOf(rows_, tagged.tag);
  if (!row) return READ_UNKNOWN_TAG;
  const int bits = readValue(*row, tagged.value);
  if (bits == READ_BAD_ROW && showMessage_)
    showMessage_("Settings: Error processing tag \"" + tagged.tag + "\"/\"" + row->tag + "\"");
  return bits;
}

std::string TagTable::content() const {
  std::string text;
  for (const TagRow* row = rows_; !row->isEnd(); ++row) {
    if (row->isLater && hasDefault(*row)) continue;
    // A zero byte ends a value, as it does where the value is read.
    if (const auto value = writtenValue(*row)) text += row->tag + value->substr(0, value->find('\0')) + '\n';
  }
  return text;
}

void TagTable::write(Tarnwickfile& file) {
  for (const TagRow* row = rows_; !row->isEnd(); ++row) {
    if (row->isLater && hasDefault(*row)) continue;
    const auto value = writtenValue(*row);
    if (value && value->find('\n') != std::string::npos) throw LineEndE(row->tag, file.name().fullName());
  }
  // Deliberate: the header comes with each call, so a file that two tables write holds it twice.
  const std::string text = "REM  This configuration file was written by " + version_ + "\nREM\n" + content();
  std::fputs(text.c_str(), file.stream());
}

}  // namespace tarnwick
