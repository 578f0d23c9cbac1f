#include "app/SwitchLine.h"

#include <algorithm>

namespace tarnwick {

namespace {

const char mark[] = "\\/";

bool isLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

bool nextSwitch(const std::string& line, std::size_t& cursor, Switch& found) {
  if (cursor > line.size()) return false;
  const std::size_t opening = line.find(mark, cursor);
  if (opening == std::string::npos) return false;
  found.start = cursor;
  const std::size_t nameStart = opening + 2;
  std::size_t end = nameStart;
  while (end < line.size() && isLetter(line[end])) ++end;
  found.name = line.substr(nameStart, end - nameStart);
  const std::size_t closing = line.find(mark, end);
  const std::size_t stop = closing == std::string::npos ? line.size() : closing;
  found.value = line.substr(end, stop - end);
  if (!found.value.empty() && found.value.front() == '=') found.value.erase(0, 1);
  // Only blanks on the left go; those on the right stay.
  found.value.erase(0, std::min(found.value.find_first_not_of(' '), found.value.size()));
  cursor = stop + 2;
  return true;
}

}  // namespace tarnwick
