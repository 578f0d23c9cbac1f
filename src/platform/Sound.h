// The short alerts of the desktop. They never block, and are silent where there is no sound.
#pragma once

namespace tarnwick::platform {

enum class Alert { Exclamation, Asterisk, Beep };

void playAlert(Alert alert);

}  // namespace tarnwick::platform
