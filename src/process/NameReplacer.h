#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnwick {

/// Puts other names in the place of some in a text that comes in blocks. A name that a block's end has cut is
/// understood.
class NameReplacer {
 public:
  /// Pairs of what is replaced and what takes its place.
  using Names = std::vector<std::pair<std::string, std::string>>;

  explicit NameReplacer(const Names& names) : names_(names) {}

  /// The text so far that is settled: what may be the beginning of a name is held back.
  std::string take(std::string_view block);
  /// What was held back.
  std::string rest();

 private:
  Names names_;
  std::string pending_;
};

}  // namespace tarnwick
