#include "console/JdbAddress.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr std::size_t longestLine = 4096;
constexpr std::size_t mostDigits = 5;
constexpr int lastPort = 65535;

/// The port of a line that ends with "host:port"; nothing for any other.
std::optional<std::string> portOf(std::string_view line) {
  while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.remove_suffix(1);
  // The system's own word that it has taken options from the environment, which may end in anything.
  if (line.starts_with("Picked up ")) return std::nullopt;
  const auto colon = line.rfind(':');
  const auto blank = line.rfind(' ');
  if (colon == std::string_view::npos || colon == 0) return std::nullopt;
  if (blank != std::string_view::npos && blank + 1 >= colon) return std::nullopt;
  const std::string port(line.substr(colon + 1));
  const bool digits = std::all_of(port.begin(), port.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (port.empty() || port.size() > mostDigits || !digits) return std::nullopt;
  const int number = std::stoi(port);
  if (number == 0 || number > lastPort) return std::nullopt;
  return port;
}

}  // namespace

bool JdbAddress::take(std::string_view block) {
  for (const char c : block) {
    if (!address_.empty()) {
      saidMore_ = true;
      break;
    }
    if (c != '\n') {
      if (line_.size() < longestLine) line_ += c;
      continue;
    }
    if (const auto port = portOf(line_)) address_ = "127.0.0.1:" + *port;
    line_.clear();
  }
  return !address_.empty();
}

}  // namespace tarnwick
