// What gives way where a screen is too narrow for an arrangement: fields, then buttons down to their words, then the
// words, which leaves their pictures.
#pragma once

#include "app/PanelArrangement.h"

namespace tarnwick {

/// An arrangement of the places as they stand in the resource.
using Arrangement = void (*)(PanelPlaces&);

/// Makes fields and buttons so narrow that this arrangement, which puts everything in one row, is no wider than the
/// screen. On a screen that is too narrow even for pictures they stay as they are then.
void fitInOneRow(PanelPlaces& places, Arrangement arrangement);

/// Likewise for an arrangement of groups, tabs and bar side by side.
void fitSideBySide(PanelPlaces& places, Arrangement arrangement);

}  // namespace tarnwick
