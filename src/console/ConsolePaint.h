// Painting the console's text.
#pragma once

#include "console/ConsoleGrid.h"
#include "console/ConsoleLooks.h"
#include "console/ConsoleSurface.h"
#include "console/LineRows.h"
#include "console/TarnwickDoc.h"
#include "console/TextSearch.h"

namespace tarnwick {

/// Draws what of the text lies in the painter's clip, with marks on what the search finds. The caller holds the text
/// lock.
void paintText(ConsolePainter& painter, const TarnwickDoc& document, const ConsoleGrid& grid,
               const TextSearch& search = {}, const ConsolePalette& palette = classicPalette);

/// The same for lines that are broken into rows.
void paintBrokenText(ConsolePainter& painter, const TarnwickDoc& document, const ConsoleGrid& grid,
                     const LineRows& rows, const TextSearch& search, const ConsolePalette& palette);

}  // namespace tarnwick
