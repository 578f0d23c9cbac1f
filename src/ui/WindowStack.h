// Which of the program's windows takes input: the main window and whatever is open on top of it, in order.
#pragma once

#include <wx/window.h>

#include <functional>
#include <list>

namespace tarnwick::ui {

/// Thrown where the program would go on although it has been told to end. It unwinds what was under way; only the edge
/// catches it.
struct ProgramEnds {};

/// The open windows that wait for each other. An outer one must never end while an inner one runs, so a wish to end
/// waits here until everything above has gone.
class WindowStack {
 public:
  using End = std::function<void()>;

  WindowStack() = default;
  WindowStack(const WindowStack&) = delete;
  WindowStack& operator=(const WindowStack&) = delete;

  /// A place on the stack for as long as it lives.
  class Place {
   public:
    /// `window` is the parent of what opens on top of it, or null. `end` ends this one; it may be empty for what ends
    /// by itself.
    /// Throws ProgramEnds after `endAll`.
    Place(WindowStack& stack, wxWindow* window, End end = {});
    ~Place();
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    /// Ends this one at once if it is the innermost, else as soon as it has become that.
    void wishEnd();
    /// False while something above it is open or at work.
    bool isInnermost() const { return stack_.places_.back() == this; }

   private:
    friend class WindowStack;
    WindowStack& stack_;
    wxWindow* window_;
    End end_;
    bool wished_ = false;
  };

  /// Ends all windows, the innermost first, and lets none be opened any more.
  void endAll();
  bool isEnding() const { return ending_; }
  /// To be called when a window has ended that others wait for. Throws ProgramEnds after `endAll`.
  void goOn() const;

  /// What a new dialog stands on top of; null if nothing shows.
  wxWindow* parent() const;

 private:
  void endInnermostIfWished();

  std::list<Place*> places_;
  bool ending_ = false;
};

}  // namespace tarnwick::ui
