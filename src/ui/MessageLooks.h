// How message boxes look, where the toolkit leaves it to us.
#pragma once

#include <cstddef>
#include <string_view>

namespace tarnwick::ui {

/// The length of a text's first line, if it is a headline of more; else 0. A line that goes on in small letters has
/// only been broken there.
std::size_t headlineLength(std::string_view text);

/// While it lives, message boxes show the sign of their kind, and their headlines in bold. Their texts stay whole, for
/// readers of the screen, too.
class MessageLooks {
 public:
  MessageLooks();
  ~MessageLooks();
  MessageLooks(const MessageLooks&) = delete;
  MessageLooks& operator=(const MessageLooks&) = delete;

 private:
  unsigned long hook_ = 0;
};

}  // namespace tarnwick::ui
