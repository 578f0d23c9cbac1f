#include "process/NameReplacer.h"

#include <utility>

namespace tarnwick {

std::string NameReplacer::take(std::string_view block) {
  pending_ += block;
  std::string settled;
  std::size_t at = 0;
  while (at < pending_.size()) {
    const std::string_view text = std::string_view(pending_).substr(at);
    bool cut = false;
    const std::pair<std::string, std::string>* found = nullptr;
    for (const auto& name : names_) {
      if (text.starts_with(name.first)) found = &name;
      if (std::string_view(name.first).starts_with(text)) cut = true;
    }
    if (!found && cut) break;
    settled += found ? std::string_view(found->second) : text.substr(0, 1);
    at += found ? found->first.size() : 1;
  }
  pending_.erase(0, at);
  return settled;
}

std::string NameReplacer::rest() {
  return std::exchange(pending_, "");
}

}  // namespace tarnwick
