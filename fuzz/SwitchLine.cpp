// The command line of a console: any line is cut into switches as its marks cut it, and what was found can be written
// as a line that gives the same switches.
#include "app/SwitchLine.h"

#include "Property.h"

#include <vector>

namespace tarnwick::fuzz {
namespace {

const std::string mark = "\\/";

std::vector<Switch> switchesOf(const std::string& line) {
  std::vector<Switch> switches;
  std::size_t cursor = 0;
  for (Switch found; nextSwitch(line, cursor, found);) {
    require(found.start < cursor && cursor - found.start >= 2 * mark.size(), "the cursor moves on");
    require(cursor <= line.size() + mark.size(), "the cursor goes no further than past a mark that is missing");
    switches.push_back(found);
  }
  Switch nothing;
  require(!nextSwitch(line, cursor, nothing), "the end stays the end");
  return switches;
}

/// The line cut at its marks: every second piece, from the one behind the first mark on, is a switch.
std::vector<Switch> reference(const std::string& line) {
  std::vector<Switch> switches;
  std::size_t start = 0;
  std::size_t at = line.find(mark);
  while (at != std::string::npos) {
    const auto begin = at + mark.size();
    const auto end = line.find(mark, begin);
    const std::string inside = line.substr(begin, end == std::string::npos ? end : end - begin);
    std::size_t letters = 0;
    while (letters < inside.size() && ((inside[letters] | 0x20) >= 'a' && (inside[letters] | 0x20) <= 'z')) ++letters;
    std::size_t value = letters;
    if (value < inside.size() && inside[value] == '=') ++value;
    while (value < inside.size() && inside[value] == ' ') ++value;
    switches.push_back({inside.substr(0, letters), inside.substr(value), start});
    start = end == std::string::npos ? end : end + mark.size();
    at = line.find(mark, start);
  }
  return switches;
}

void requireSameSwitches(const std::vector<Switch>& found, const std::vector<Switch>& expected, bool samePlaces) {
  require(found.size() == expected.size(), "there are as many switches");
  for (std::size_t i = 0; i < found.size(); ++i) {
    requireSame(found[i].name, expected[i].name, "the name is the letters behind the mark");
    requireSame(found[i].value, expected[i].value, "the value is what is left, without blanks before it");
    require(!samePlaces || found[i].start == expected[i].start, "a switch starts where the one before it ended");
  }
}

}  // namespace
}  // namespace tarnwick::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick::fuzz;
  const std::string line = textOf(data, size);
  const auto switches = switchesOf(line);
  requireSameSwitches(switches, reference(line), true);
  std::string written;
  for (const auto& found : switches) written += mark + found.name + "= " + found.value + mark + ' ';
  requireSameSwitches(switchesOf(written), switches, false);
  return 0;
}
