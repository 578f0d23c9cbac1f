#pragma once

namespace tarnwick {

/// What a command of the console's frame types for the debugger, in the form that `TarnwickView::sendKeys` takes; null
/// for a command that types nothing. A text without Return is left for the user to complete.
const char* jdbText(int command);

}  // namespace tarnwick
