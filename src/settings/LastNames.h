// Lists of the files that were used last.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarnwick {

class TokenString;

/// Makes this the first of the names, which holds no second one of the same file then, and at most so many. The empty
/// text is no name.
void putNameFirst(TokenString& names, const std::string& name, std::size_t limit);

/// The names in their order, at most so many.
std::vector<std::string> firstNames(const TokenString& names, std::size_t limit);

}  // namespace tarnwick
