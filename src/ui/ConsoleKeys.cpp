#include "ui/ConsoleKeys.h"

#include "ui/Text.h"
#include "ui/Toolkit.h"

#include <array>
#include <utility>

namespace tarnwick::ui {

namespace {

// The keys of the navigation block only: those of the number pad are others.
constexpr std::array<std::pair<int, ConsoleKey>, 26> keys{{
    {WXK_END, ConsoleKey::End},
    {WXK_HOME, ConsoleKey::Home},
    {WXK_LEFT, ConsoleKey::Left},
    {WXK_RIGHT, ConsoleKey::Right},
    {WXK_UP, ConsoleKey::Up},
    {WXK_DOWN, ConsoleKey::Down},
    {WXK_PAGEUP, ConsoleKey::PageUp},
    {WXK_PAGEDOWN, ConsoleKey::PageDown},
    {WXK_F5, ConsoleKey::F5},
    {WXK_DELETE, ConsoleKey::Delete},
    {WXK_F6, ConsoleKey::F6},
    {WXK_F7, ConsoleKey::F7},
    {WXK_F8, ConsoleKey::F8},
    {WXK_F9, ConsoleKey::F9},
    {WXK_F10, ConsoleKey::F10},
    {WXK_F11, ConsoleKey::F11},
    {WXK_F12, ConsoleKey::F12},
    {WXK_SHIFT, ConsoleKey::Modifier},
    {WXK_CONTROL, ConsoleKey::Modifier},
    {WXK_ALT, ConsoleKey::Modifier},
    {WXK_WINDOWS_LEFT, ConsoleKey::Modifier},
    {WXK_WINDOWS_RIGHT, ConsoleKey::Modifier},
    {WXK_CAPITAL, ConsoleKey::Modifier},
    {WXK_NUMLOCK, ConsoleKey::Modifier},
    {WXK_SCROLL, ConsoleKey::Modifier},
    // What the toolkit has no name for, such as the key for the third letter of another.
    {WXK_NONE, ConsoleKey::Modifier},
}};

}  // namespace

ConsoleKey consoleKeyOf(int keyCode) {
  // Who turns the sound down types nothing.
  if (keyCode >= WXK_BROWSER_BACK && keyCode <= WXK_LAUNCH_APP2) return ConsoleKey::Modifier;
  for (const auto& [code, key] : keys) {
    if (code == keyCode) return key;
  }
  return ConsoleKey::Other;
}

int modifiersOf(const wxKeyEvent& event) {
  return (event.ShiftDown() ? SHIFT_BIT : 0) | (event.ControlDown() ? CTRL_BIT : 0) | (event.AltDown() ? ALT_BIT : 0);
}

std::string characterOf(const wxKeyEvent& event) {
  // Alt with a letter belongs to the menus; with Control, Alt makes characters on many keyboards.
  if (event.AltDown() && !event.ControlDown()) return {};
  wxChar character = event.GetUnicodeKey();
  if (character == WXK_NONE || event.GetKeyCode() == WXK_DELETE) return {};
  // Not every system makes control characters of these: Escape, and those of the numbers 28 to 31.
  if (event.ControlDown() && !event.AltDown() && character >= '[' && character <= '_') character -= '@';
  return fromWx(wxString(wxUniChar(character)));
}

bool isPlusKey(const wxKeyEvent& event) {
  // With Shift on one keyboard, without it on another; and the key on which it stands with Shift serves without it.
  const int key = event.GetKeyCode();
  return key == '+' || key == '=' || key == WXK_NUMPAD_ADD;
}

bool matches(const wxKeyEvent& event, const Accelerator& accelerator) {
  if (event.ControlDown() != accelerator.control || event.AltDown()) return false;
  if (accelerator.key == Accelerator::Key::Plus) return isPlusKey(event);
  if (event.ShiftDown() != accelerator.shift) return false;
  switch (accelerator.key) {
    case Accelerator::Key::Plus:
      break;
    case Accelerator::Key::Minus:
      return event.GetKeyCode() == '-' || event.GetKeyCode() == WXK_NUMPAD_SUBTRACT;
    case Accelerator::Key::Zero:
      return event.GetKeyCode() == '0' || event.GetKeyCode() == WXK_NUMPAD0;
    case Accelerator::Key::Insert:
      return event.GetKeyCode() == WXK_INSERT;
    case Accelerator::Key::Delete:
      return event.GetKeyCode() == WXK_DELETE;
    case Accelerator::Key::F3:
      return event.GetKeyCode() == WXK_F3;
    case Accelerator::Key::Tab:
      return event.GetKeyCode() == WXK_TAB;
    case Accelerator::Key::Break:
      return isBreakKey(event);
    case Accelerator::Key::Letter:
      break;
  }
  // Depending on the system Control with a letter comes as the letter or as its control character.
  const int letter = static_cast<unsigned char>(accelerator.letter);
  const int key = event.GetKeyCode();
  return key == letter || (accelerator.control && key == letter - 'A' + 1);
}

}  // namespace tarnwick::ui
