#pragma once

#include <string>

namespace tarnwick {

/// The text with each "%FILENAME%" replaced by `name`, until none is left. A name that holds a percent
/// sign, and so might bring the mark back for ever, is put in once for each mark of the text.
std::string withFileName(std::string text, const std::string& name);

}  // namespace tarnwick
