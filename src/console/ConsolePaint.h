// Painting the console's text.
#pragma once

#include "console/ConsoleGrid.h"
#include "console/ConsoleSurface.h"
#include "console/TarnwickDoc.h"

namespace tarnwick {

/// The colour of a kind of text, on the view's own background whatever the desktop's colours are.
Colour colourOf(int kind);
inline constexpr Colour consoleBackground{255, 255, 255};
/// What a kind of text stands on.
Colour backgroundOf(int kind);

/// Draws what of the text lies in the painter's clip. The caller holds the text lock.
void paintText(ConsolePainter& painter, const TarnwickDoc& document, const ConsoleGrid& grid);

}  // namespace tarnwick
