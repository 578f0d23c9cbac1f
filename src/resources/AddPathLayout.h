#pragma once

namespace tarnwick {

struct DialogLayout;

/// 185: adds a folder or an archive to a list of paths.
const DialogLayout& addPathLayout();

}  // namespace tarnwick
