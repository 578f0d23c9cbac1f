// Which of the program's windows takes input: the main window and whatever is open on top of it, in order.
#pragma once

#include <wx/window.h>

#include <functional>
#include <list>

namespace tarnwick::ui {

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
    /// `window` is the parent of what opens on top of it, or null. `end` ends this one; it may be empty for what only
    /// its user can end.
    Place(WindowStack& stack, wxWindow* window, End end = {});
    ~Place();
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    /// Ends this one at once if it is the innermost, else as soon as it has become that.
    void wishEnd();

   private:
    friend class WindowStack;
    WindowStack& stack_;
    wxWindow* window_;
    End end_;
    bool wished_ = false;
  };

  /// What a new dialog stands on top of; null if nothing shows.
  wxWindow* parent() const;

 private:
  void endInnermostIfWished();

  std::list<Place*> places_;
};

}  // namespace tarnwick::ui
