#pragma once

#include "base/PlacedWindow.h"

#include <functional>
#include <string>
#include <vector>

namespace tarnwick {

class DialogHandler;
struct DialogLayout;

/// One open window of a dialog, addressed by control number. The rules of a dialog stand above it and never see the
/// toolkit. A number that no control bears is a fault of the program: std::out_of_range.
class DialogWindow : public PlacedWindow {
 public:
  virtual std::string text(int control) const = 0;
  /// Sends no notification.
  virtual void setText(int control, const std::string& text) = 0;
  virtual bool checked(int control) const = 0;
  /// Sends no notification.
  virtual void setChecked(int control, bool on) = 0;
  virtual bool enabled(int control) const = 0;
  virtual void enable(int control, bool on) = 0;
  virtual bool visible(int control) const = 0;
  virtual void show(int control, bool on) = 0;
  /// In this window's client coordinates.
  virtual Rect rect(int control) const = 0;
  virtual void setRect(int control, const Rect& rect) = 0;
  /// The width at which its label shows whole; a field's is that of a dozen letters.
  virtual int leastWidth(int control) const = 0;
  virtual void focus(int control) = 0;
  /// Scrolls a field so that a long text shows its end.
  virtual void scrollToEnd(int control) = 0;
  virtual void setToolTip(int control, const std::string& text) = 0;
  /// Words that show in the place of what a list or a field holds, as long as it holds nothing: what its user may do
  /// then. They are no text and no entry of it.
  virtual void setEmptyText(int control, const std::string& words) = 0;

  /// Entries of a combo box or list, or of a field that offers some.
  virtual std::vector<std::string> entries(int control) const = 0;
  virtual void setEntries(int control, const std::vector<std::string>& entries) = 0;
  /// Index of the selected entry or tab; -1 for none. Of a field: the entry that was chosen last.
  virtual int selection(int control) const = 0;
  /// Sends no notification.
  virtual void select(int control, int index) = 0;
  /// Of a list whose entries may be selected each for itself.
  virtual bool selected(int control, int index) const = 0;
  /// Likewise. Sends no notification.
  virtual void setSelected(int control, int index, bool on) = 0;

  /// Adds a tab with a page of its own; the page of the selected tab shows. The handler's `initialise` has run when
  /// this returns. The page lives as long as this window.
  virtual DialogWindow& addTabPage(int tabs, const std::string& label, const DialogLayout& layout,
                                   DialogHandler& handler) = 0;
  /// Fills a slot with a child window of its own; likewise.
  virtual DialogWindow& addChild(int slot, const DialogLayout& layout, DialogHandler& handler) = 0;

  virtual std::string title() const = 0;
  virtual void setTitle(const std::string& title) = 0;
  virtual void showWindow(bool on) = 0;

  /// Adds a separator and a command to the window's system menu, where the system lets programs do so (Windows).
  virtual void addSystemCommand(const std::string& label, std::function<void()> action) = 0;

  /// The window's own rectangle: a top window's on the screen with its frame, a child window's in its parent's client
  /// coordinates.
  virtual Rect windowRect() const = 0;
  /// Places and sizes the window itself. A tab's page fills its tab control, whatever is asked here.
  virtual void setWindowRect(const Rect& rect) = 0;
  /// The room inside the frame; left and top are 0.
  virtual Rect clientRect() const = 0;
  /// Gives the window the size that its content needs, and puts all controls where the layouts put them, those of its
  /// child windows too. Otherwise that happens when the window opens.
  virtual void arrangeControls() = 0;
  /// Paints the window anew with all that is in it, as it shows by then.
  virtual void redraw() = 0;

  /// The room for windows, without a window manager's frame around them, on the screen that the top window stands on.
  virtual Rect workArea() const = 0;

  /// Ends the dialog with this result.
  virtual void close(int result) = 0;
};

/// What a dialog's rules hear of its window. No exception leaves these operations.
class DialogHandler {
 public:
  virtual ~DialogHandler() = default;

  /// The window stands, with all controls, and does not show yet.
  virtual void initialise(DialogWindow& window) = 0;
  /// A button, check box or radio button was pressed by the user; or Return or Escape stood for one.
  virtual void onCommand(int control) = 0;
  /// What Ctrl+Return does in a field; nothing where it has no meaning of its own, and stands for Return.
  virtual std::function<void()> controlReturn(int /*control*/) { return {}; }
  /// The user changed the text of a field.
  virtual void onTextChanged(int /*control*/) {}
  /// The user chose another entry of a combo box or list, another tab, or any entry that a field offers.
  virtual void onSelectionChanged(int /*control*/) {}
  /// The user pressed an entry of a list twice.
  virtual void onDoubleClick(int /*control*/) {}
  /// The title bar's close box; or Escape where no Cancel button stands, of which child windows that show hear first.
  virtual void onCloseRequest() = 0;
  /// Files were dropped on a main window.
  virtual void onFilesDropped(const std::vector<std::string>& /*files*/) {}
  /// The window is about to go; nothing may address it afterwards.
  virtual void detached() {}
};

}  // namespace tarnwick
