// The toolkit's key events in the console's words.
#pragma once

#include "console/ConsoleSurface.h"
#include "resources/Menu.h"

#include <wx/event.h>

#include <string>

namespace tarnwick::ui {

ConsoleKey consoleKeyOf(int keyCode);

/// The held modifiers as a sum of `KeyModifier`s.
int modifiersOf(const wxKeyEvent& event);

/// The character that the event brings, as bytes of the platform's character set; empty if it brings none.
std::string characterOf(const wxKeyEvent& event);

/// True for a key that stands for plus where Control is held, whatever keyboard that is.
bool isPlusKey(const wxKeyEvent& event);

/// True if the event is the key of this accelerator.
bool matches(const wxKeyEvent& event, const Accelerator& accelerator);

}  // namespace tarnwick::ui
