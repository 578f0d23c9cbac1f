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
  found.start = line.find(mark, cursor);
  if (found.start == std::string::npos) return false;
  std::size_t end = found.start + 2;
  while (end < line.size() && isLetter(line[end])) ++end;
  found.name = line.substr(found.start + 2, end - found.start - 2);
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
