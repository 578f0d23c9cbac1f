#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// Finds in what `jdb` says where it waits for its program. Its words are translated; only the last one of the line, a
/// host with a port, is the same everywhere.
class JdbAddress {
 public:
  /// Takes another block of its output. True if the address is known by the end of it.
  bool take(std::string_view block);
  /// On this computer alone, whatever name the debugger has for that; empty until it is known.
  const std::string& address() const { return address_; }
  /// True if something stood behind the line with the address: the debugger then has hold of the program.
  bool saidMore() const { return saidMore_; }

 private:
  std::string line_;
  std::string address_;
  bool saidMore_ = false;
};

}  // namespace tarnwick
