// What readers of the screen find in a window: things of a kind, with names and states.
#pragma once

#include "ui/WindowTest.h"

#include <wx/window.h>

#include <atk/atk.h>
#include <string>
#include <vector>

namespace tarnwick::test {

/// One thing that shows, as a reader of the screen finds it.
struct Spoken {
  AtkRole role = ATK_ROLE_INVALID;
  /// Its own, or that of the label that stands for it; empty for none.
  std::string name;
  std::vector<AtkStateType> states;
  std::string description;
  /// What a field says while it is empty.
  std::string placeholder;

  bool is(AtkStateType state) const;
};

std::ostream& operator<<(std::ostream& out, const Spoken& spoken);

/// What has the focus when the control has it.
Spoken spokenOf(wxWindow& control);

/// All that shows in the window, itself first.
std::vector<Spoken> spokenIn(wxWindow& window);

/// The names of all things of one kind that show in the window, in their order.
std::vector<std::string> namesIn(wxWindow& window, AtkRole role);

/// Fails the test unless everything in the window that is used or has the focus has a name and a kind.
void expectSpeakingParts(wxWindow& window);

/// Fails the test unless the dialog's controls are told to be what they are, in the state that they are in.
void expectRolesAndStates(const ui::WxDialogWindow& window);

}  // namespace tarnwick::test
