// The three arrangements of a panel as plain arithmetic on rectangles.
#pragma once

#include "app/PanelLayout.h"

#include <array>
#include <limits>
#include <vector>

namespace tarnwick {

/// A tab page with its controls. The page's rectangle is in the tab control's coordinates.
struct PagePlaces {
  LayoutItem page;
  LayoutItem field;
  LayoutItem left;
  LayoutItem middle;
  LayoutItem right;
};

/// Where everything of a panel stands.
struct PanelPlaces {
  LayoutItem topWindow;
  LayoutItem panel;
  LayoutItem tabControl;
  LayoutItem firstGroup;           ///< 1238
  LayoutItem secondGroup;          ///< 1239
  std::array<LayoutItem, 3> bars;  ///< by the number of the arrangement
  /// The bars' buttons in the order of their rows, each in its bar's coordinates.
  std::array<std::vector<LayoutItem>, 3> barButtons;
  std::array<PagePlaces, 3> pages;
  /// The panel's own field and buttons, in the order in which they stand side by side.
  std::vector<LayoutItem> own;
  /// What the frame adds to the client area.
  int frameWidth = 0;
  int frameHeight = 0;
  /// How wide a window can be on this screen.
  int screenWidth = std::numeric_limits<int>::max();
};

/// The tab control becomes so high that the pages' fields are clear of its bottom.
void clearFields(PanelPlaces& places);

// Each of these changes the places as they stand in the resource. Where the screen is too narrow, `PanelFit` tells what
// gives way.
void arrangeVertical(PanelPlaces& places);
void arrangeHorizontal(PanelPlaces& places);
/// Of the panel with one group: a field and its buttons.
void arrangeFlatFileView(PanelPlaces& places);
/// Of the panel with two groups of three buttons.
void arrangeFlatProjectView(PanelPlaces& places);

/// The arrangement's items, all of them.
void addPlaces(PanelLayout& layout, PanelPlaces places);

}  // namespace tarnwick
