#include "settings/FunctionKeys.h"

namespace tarnwick {

const char FunctionKeys::defaultText[] =
    "cont\\n;monitor list\\n;list\\n;locals\\n;trace methods\\n;next\\n;step\\n;step up\\n!"
    ";;;;untrace methods\\n;;;!"
    ";monitor\\n;where\\n;dump this\\n;monitor ;stepi\\n;;!"
    ";;;;unmonitor ;;;!"
    "lock ;monitor ;list ;dump ;trace methods ;watch ;;!"
    ";unmonitor ;;;untrace methods ;unwatch ;;!"
    ";;;;;;;!"
    ";;;;;;;";

FunctionKeys::FunctionKeys() : groups_('!', ']') {
  groups_.fromString(defaultText);
}

void FunctionKeys::fromString(const std::string& text) {
  try {
    groups_.fromString(text);
    if (groups_.count() == 8) return;
  } catch (const InvalidDataE&) {
    // The default follows, as for a wrong count.
  }
  groups_.fromString(defaultText);
}

std::string FunctionKeys::key(int group, int index) const {
  try {
    return TokenString(groups_.element(group), ';', ']').element(index);
  } catch (const TokenString::OutOfBoundsE&) {
    return "";
  } catch (const InvalidDataE&) {
    return "";
  }
}

void FunctionKeys::setGroup(int group, const std::vector<std::string>& keys) {
  TokenString changed(';', ']');
  for (const auto& key : keys) changed.add(key);
  TokenString groups('!', ']');
  for (int i = 0; i < groups_.count(); ++i) groups.add(i == group ? changed.toString() : groups_.element(i));
  groups_ = groups;
}

}  // namespace tarnwick
