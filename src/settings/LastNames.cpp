#include "settings/LastNames.h"

#include "base/TokenString.h"
#include "platform/Path.h"

namespace tarnwick {

void putNameFirst(TokenString& names, const std::string& name, std::size_t limit) {
  if (name.empty()) return;
  TokenString fresh;
  fresh.add(name);
  for (const auto& known : firstNames(names, static_cast<std::size_t>(names.count()))) {
    if (static_cast<std::size_t>(fresh.count()) == limit) break;
    if (!platform::sameFileName(known, name)) fresh.add(known);
  }
  names = fresh;
}

std::vector<std::string> firstNames(const TokenString& names, std::size_t limit) {
  std::vector<std::string> all = names.elements();
  // A file that was changed by hand may hold anything.
  std::erase(all, "");
  if (all.size() > limit) all.resize(limit);
  return all;
}

}  // namespace tarnwick
