// Which system this is, where that decides on words or on limits.
#pragma once

namespace tarnwick::platform {

/// Whether the user sits at Windows, and knows its words: "Notepad", "Explorer", "startmenu".
bool isWindowsDesktop();

/// True on Windows 98, which keeps Alt+F6 for itself.
bool isWindows98();

}  // namespace tarnwick::platform
