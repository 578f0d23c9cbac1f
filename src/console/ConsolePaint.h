// Painting the console's text.
#pragma once

#include "console/ConsoleGrid.h"
#include "console/ConsoleSurface.h"
#include "console/TarnwickDoc.h"
#include "console/TextSearch.h"

namespace tarnwick {

/// The colour of a kind of text, on the view's own background whatever the desktop's colours are.
Colour colourOf(int kind);
inline constexpr Colour consoleBackground{255, 255, 255};
/// What a kind of text stands on.
Colour backgroundOf(int kind);

/// What marked text stands on; it shows in black.
inline constexpr Colour markGround{255, 224, 102};

/// Under a place that a click opens.
inline constexpr Colour linkColour{0, 102, 204};

/// Draws what of the text lies in the painter's clip, with marks on what the search finds. The caller holds the text
/// lock.
void paintText(ConsolePainter& painter, const TarnwickDoc& document, const ConsoleGrid& grid,
               const TextSearch& search = {});

}  // namespace tarnwick
