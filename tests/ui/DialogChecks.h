// What a person needs of every dialog beside its looks: a way through it by the keyboard, and words for those who hear
// it.
#pragma once

#include "ui/WindowTest.h"

#include <memory>
#include <vector>

namespace tarnwick::test {

/// The controls to be seen of the window and its child windows that a person reads or uses, disabled ones too; no
/// labels, frames and tabs.
std::vector<wxWindow*> namedControls(const ui::WxDialogWindow& window);

/// The controls, tabs included, at which Tab has to stop. Of radio buttons that exclude one another it is the marked
/// one; the arrows lead to the others.
std::vector<wxWindow*> tabStops(const ui::WxDialogWindow& window);

/// Fails the test unless readers of the screen have a name in words for every control, and no two have the same.
void expectNames(const ui::WxDialogWindow& window);

using Stops = std::vector<wxWindow*>;

/// Adds steps that press Tab until the focus is back where it was. `reached` takes the stops, the first one included.
void walkByTab(Steps& steps, std::shared_ptr<Stops> reached);

/// Fails the test unless the walk came to all stops of the window, and to nothing else.
void expectAllReached(const ui::WxDialogWindow& window, const Stops& reached);

/// Fails the test unless each stop follows the one before it as a page is read: to its right, below it, or at the head
/// of the next column. Once, from the last stop to the first, the walk begins anew.
void expectReadingOrder(const Stops& reached);

}  // namespace tarnwick::test
