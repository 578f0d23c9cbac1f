// How the messages' window looks.
#pragma once

#include "app/MessagesText.h"
#include "console/ConsoleGrid.h"
#include "console/ConsoleSurface.h"

#include <optional>

namespace tarnwick {

/// The columns at the left in which the marks of errors and warnings stand.
inline constexpr int messageGutter = 3;

/// Colours on light ground and on dark.
struct MessageColours {
  Colour ground;
  Colour text;
  Colour dimmed;
  Colour current;  ///< what the message that the user is at stands on
  Colour error;
  Colour warning;
  Colour note;
};

const MessageColours& messageColours(bool dark);

/// What stands in the place of the text as long as there is none.
inline constexpr const char* noMessagesYet = "What javac and the other tools say comes here.";

/// Draws what of the text lies in the painter's clip. `current` is the number of the message that the user is at.
void paintMessages(ConsolePainter& painter, const MessagesText& text, const ConsoleGrid& grid,
                   const MessageColours& colours, std::optional<std::size_t> current);

}  // namespace tarnwick
