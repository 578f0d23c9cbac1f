#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>

namespace tarnwick {

/// The lines that the user has sent, for the keys Up and Down.
class InputHistory {
 public:
  static constexpr std::size_t capacity = 20;

  /// Adds a line unless it is the one added last. Either way `older` begins at the newest again.
  void add(const std::string& text);
  /// The newest line at first, then ever older ones; it stays at the oldest. Only while `count` is not 0.
  const std::string& older();
  /// The empty text before any `older`, then ever newer lines; it stays at the newest.
  std::string newer();

  std::size_t count() const { return lines_.size(); }

 private:
  std::deque<std::string> lines_;
  std::optional<std::size_t> cursor_;
  /// Empty at first, so that an empty line is not stored before any other.
  std::string lastAdded_;
};

}  // namespace tarnwick
