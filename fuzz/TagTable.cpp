// The configuration file: any file is read as a plain reading of its lines says, and what was read survives being
// written and read back.
#include "base/TagTable.h"

#include "MemoryFile.h"
#include "Property.h"
#include "TextMode.h"
#include "base/TagRow.h"
#include "base/Tarnwickfile.h"
#include "settings/Settings.h"
#include "settings/SettingsResources.h"
#include "settings/SettingsValues.h"

#include <algorithm>
#include <string_view>

namespace tarnwick::fuzz {
namespace {

constexpr std::string_view whiteSpace = " \t\n\v\f\r";
const std::string version = "Tarnwick V0";

/// All settings at their defaults.
class Configuration {
 public:
  Configuration() {
    table_.resetToDefaults(SETTINGS_DIALOG);
    table_.resetToDefaults(JAVADOC_DIALOG);
  }
  const std::vector<TagRow>& rows() const { return values_.tagRows; }
  TagTable& table() { return table_; }

 private:
  PlacedWindow* noWindow_ = nullptr;
  SettingsValues values_{noWindow_};
  TagTable table_{values_.tagRows.data(), version,
                  [](const std::string&) { require(false, "the settings' own table has no bad row"); }};
};

std::string withoutLeadingWhite(std::string_view text) {
  const auto first = text.find_first_not_of(whiteSpace);
  return first == std::string_view::npos ? "" : std::string(text.substr(first));
}

std::string upper(std::string text) {
  for (char& c : text)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return text;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const auto end = std::min(text.find('\n', at), text.size());
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

void apply(StringableM& variable, const std::string& value) {
  try {
    variable.fromString(value);
  } catch (const StringableM::InvalidDataE&) {
    // It is told nowhere.
  }
}

int applyNumber(int& variable, std::string_view value) {
  if (value.empty()) return READ_NO_VALUE;
  const bool negative = value[0] == '-';
  if (negative) value.remove_prefix(1);
  long long number = 0;
  while (!value.empty() && value[0] >= '0' && value[0] <= '9') {
    number = (number * 10 + (value[0] - '0')) % (1LL << 32);
    value.remove_prefix(1);
  }
  variable = static_cast<int>(static_cast<std::uint32_t>(negative ? -number : number));
  return value.empty() ? 0 : READ_BAD_VALUE;
}

int applySwitch(bool& variable, const std::string& value) {
  if (value.empty()) return READ_NO_VALUE;
  const std::string word = upper(value.substr(0, value.find_first_of(whiteSpace)));
  if (word == "ON") variable = true;
  if (word == "OFF") variable = false;
  return word == "ON" || word == "OFF" ? 0 : READ_BAD_VALUE;
}

int applyLine(const std::vector<TagRow>& rows, const std::string& line) {
  const std::string text = withoutLeadingWhite(line);
  const auto tagEnd = std::min(text.find_first_of(whiteSpace), text.size());
  const std::string tag = upper(text.substr(0, tagEnd));
  const std::string value = withoutLeadingWhite(std::string_view(text).substr(tagEnd));
  if (tag == "REM") return 0;
  for (const TagRow& row : rows) {
    if (row.isEnd() || tag != row.tag) continue;
    if (row.kind() == TAG_INT) return applyNumber(*std::get<int*>(row.variable), value);
    if (row.kind() == TAG_BOOL) return applySwitch(*std::get<bool*>(row.variable), value);
    if (row.kind() == TAG_STRING)
      *std::get<std::string*>(row.variable) = value;
    else
      apply(*std::get<StringableM*>(row.variable), value);
    return 0;
  }
  return READ_UNKNOWN_TAG;
}

std::string valueOf(const TagRow& row) {
  if (row.kind() == TAG_STRING) return *std::get<std::string*>(row.variable);
  if (row.kind() == TAG_STRINGABLE) return std::get<StringableM*>(row.variable)->toString();
  if (row.kind() == TAG_BOOL) return *std::get<bool*>(row.variable) ? "1" : "0";
  return std::to_string(*std::get<int*>(row.variable));
}

void requireSameValues(const Configuration& found, const Configuration& expected, const char* rule) {
  for (std::size_t i = 0; i + 1 < found.rows().size(); ++i)
    requireSame(found.rows()[i].tag + (' ' + valueOf(found.rows()[i])),
                expected.rows()[i].tag + (' ' + valueOf(expected.rows()[i])), rule);
}

/// Reads the bytes into the settings. They are first read line by line in the plain way.
void readAsThePlainWaySays(Configuration& settings, const std::string& bytes) {
  const MemoryFile content(bytes);
  auto file = Tarnwickfile::unopened(content.path(), FileMode::Read);
  const int status = settings.table().read(file);
  require(file.isOpen(), "the file stays open");
  require((status & ~(READ_UNKNOWN_TAG | READ_BAD_VALUE | READ_NO_VALUE)) == 0, "only what a file can do is told");
  // A zero byte hides the rest of what `fgets` gave, and that depends on the buffer's size.
  if (bytes.find('\0') != std::string::npos) return;
  Configuration expected;
  int bits = 0;
  for (const auto& line : linesOf(asText(bytes))) bits |= applyLine(expected.rows(), line);
  require(status == bits, "the status is that of the lines");
  requireSameValues(settings, expected, "each value is that of its last line");
}

std::string expectedFile(const Configuration& settings) {
  std::string text = "REM  This configuration file was written by " + version + "\nREM\n";
  for (const TagRow& row : settings.rows()) {
    if (row.isEnd()) break;
    std::string value = valueOf(row);
    if (row.kind() == TAG_BOOL) value = value == "0" ? "OFF" : "ON";
    // What came later stands there only where it is used: switches are off by default, texts are empty.
    if (row.isLater && value == (row.kind() == TAG_BOOL ? "OFF" : "")) continue;
    text += row.tag + std::string(row.kind() == TAG_STRING && value.empty() ? " " : "  ") + value + '\n';
  }
  return text;
}

/// Writes the settings and reads them back into fresh ones. Most inputs change nothing; the defaults are tried once.
void writeAndReadBack(Configuration& settings) {
  static std::string defaults;
  if (expectedFile(settings) == defaults) return;
  if (defaults.empty()) defaults = expectedFile(Configuration());
  const MemoryFile content("what stood there before, and is longer than nothing");
  {
    Tarnwickfile file(content.path(), FileMode::Write);
    settings.table().write(file);
  }
  requireSame(content.content(), expectedFile(settings), "one line a row, in the form of its kind");
  Configuration again;
  auto file = Tarnwickfile::unopened(content.path(), FileMode::Read);
  require(again.table().read(file) == 0, "what was written is read without complaint");
  // White space before a value is lost, and so is a carriage return that stands just before the line's end.
  Configuration expected;
  for (const auto& line : linesOf(asText(expectedFile(settings)))) applyLine(expected.rows(), line);
  requireSameValues(again, expected, "what was written is what is read back");
  for (std::size_t i = 0; i + 1 < settings.rows().size(); ++i) {
    const TagRow& row = settings.rows()[i];
    const std::string before = valueOf(row);
    const bool exact = row.kind() != TAG_STRINGABLE && (before.empty() || before.back() != '\r');
    if (exact) requireSame(valueOf(again.rows()[i]), before, "texts, numbers and switches survive");
  }
}

/// A table with a row of no known kind: the read ends at the first line with its tag.
void meetABadRow(const std::string& bytes) {
  if (bytes.find('\0') != std::string::npos) return;
  std::string text;
  int number = 0;
  const std::vector<TagRow> rows = {{"A", &text, nullptr, 0, 0, 0, 0},
                                    {"B", &number, nullptr, 0, 0, 0, 0},
                                    {"BAD", std::monostate(), nullptr, 0, 0, 0, 0},
                                    endOfRows};
  std::string told;
  TagTable table(rows.data(), version, [&told](const std::string& message) { told += message; });
  const MemoryFile content(bytes);
  auto file = Tarnwickfile::unopened(content.path(), FileMode::Read);
  const int status = table.read(file);
  const auto lines = linesOf(asText(bytes));
  const bool isBad = std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
    const std::string tail = withoutLeadingWhite(line);
    return upper(tail.substr(0, tail.find_first_of(whiteSpace))) == "BAD";
  });
  require((status == READ_BAD_ROW) == isBad, "a bad row is the whole status");
  require(isBad || (status & READ_BAD_ROW) == 0, "without such a row there is no such bit");
  requireSame(told, isBad ? "Settings: Error processing tag \"BAD\"/\"BAD\"" : "", "a bad row is told once");
}

}  // namespace
}  // namespace tarnwick::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick::fuzz;
  const std::string bytes = textOf(data, size);
  Configuration settings;
  readAsThePlainWaySays(settings, bytes);
  writeAndReadBack(settings);
  meetABadRow(bytes);
  return 0;
}
