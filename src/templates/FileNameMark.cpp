#include "templates/FileNameMark.h"

#include <string_view>

namespace tarnwick {

std::string withFileName(std::string text, const std::string& name) {
  constexpr std::string_view mark = "%FILENAME%";
  const bool onePass = name.find('%') != std::string::npos;
  for (auto at = text.find(mark); at != std::string::npos;) {
    text.replace(at, mark.size(), name);
    // A name may complete a mark with the percent signs around it.
    const auto from = onePass ? at + name.size() : (at < mark.size() ? 0 : at - mark.size());
    at = text.find(mark, from);
  }
  return text;
}

}  // namespace tarnwick
