#pragma once

#include "ui/WindowStack.h"

#include <functional>
#include <string>

namespace tarnwick::ui {

/// The first two have an OK alone.
enum class MessageKind { Fault, Hint, OkCancel, YesNo };

/// A text of a message box, with the middle of a long one left out and endless words broken: the buttons must stay on
/// the screen.
std::string shownPart(const std::string& text);

/// Shows a message box on top of what is open. True after OK or Yes.
bool showMessage(WindowStack& stack, const std::string& text, MessageKind kind);

/// Runs what a window was asked to do. An exception that nobody expected ends here, in words, and nowhere else:
/// the toolkit could not carry it on.
void guarded(WindowStack& stack, const std::function<void()>& action);

}  // namespace tarnwick::ui
