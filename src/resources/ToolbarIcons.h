// The toolbar's pictures as plain data.
#pragma once

#include <vector>

namespace tarnwick {

struct IconSpot {
  double x = 0;
  double y = 0;
};

/// A colour of the pictures; `Ink` is whatever stands out from the toolbar's ground.
enum class IconColour { Ink, Green, Red, Blue, Amber, White };

/// One shape of a picture. Pictures are 16 wide and 15 high.
struct IconShape {
  /// `Area`: the polygon of the spots; `Line`: a line of `width` through them; `Disc`: around the first spot, as wide
  /// as `width`; `Ring`: a disc's border, one and a half wide.
  enum class Kind { Area, Line, Disc, Ring };
  Kind kind = Kind::Area;
  IconColour colour = IconColour::Ink;
  double width = 0;
  std::vector<IconSpot> spots;
};

inline constexpr int toolbarIconWidth = 16;
inline constexpr int toolbarIconHeight = 15;

/// The picture of a toolbar command, from the lowest shape to the topmost.
const std::vector<IconShape>& toolbarIcon(int command);

}  // namespace tarnwick
