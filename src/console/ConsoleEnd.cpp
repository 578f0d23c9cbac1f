#include "console/ConsoleEnd.h"

namespace tarnwick {
namespace {

std::string manner(const ConsoleEnd& end) {
  if (end.stopped) return "stopped";
  if (!end.cause.empty()) return "ended by a signal (" + end.cause + ')';
  return "ended with " + std::to_string(end.code);
}

/// Seconds to one digit behind the point, whatever the user's language writes there.
std::string seconds(std::chrono::milliseconds time) {
  const auto tenths = (time.count() + 50) / 100;
  return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " s";
}

}  // namespace

std::string titleAtEnd(const std::string& title, const ConsoleEnd& end) {
  return title + " - " + manner(end) + " after " + seconds(end.time);
}

}  // namespace tarnwick
