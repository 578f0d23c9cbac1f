#pragma once

#include <string_view>

namespace tarnwick {

/// How a button of the panel shows what it does.
struct PanelPicture {
  enum Words {
    Beside,      ///< the words stand beside the picture
    Emphasised,  ///< likewise, in bold: one of the two main actions
    Unseen       ///< the picture says it all; the words are signs that stand for it
  };
  std::string_view label;    ///< the button's words
  std::string_view drawing;  ///< the name of its drawing among those for buttons
  Words words = Beside;
};

/// The picture for a button of the panel by its words; null if it has none.
const PanelPicture* panelPicture(std::string_view label);

}  // namespace tarnwick
