#pragma once

namespace tarnwick {

struct DialogLayout;

/// The console's hint about quick copying: the program's icon and four lines, without buttons or caption.
DialogLayout hintLayout();

}  // namespace tarnwick
