#pragma once

#include "dialogbase/DialogWindow.h"
#include "ui/Arrangement.h"
#include "ui/Controls.h"
#include "ui/WindowStack.h"

#include <wx/panel.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick::ui {

/// A dialog's content as real controls on some window of the toolkit. Derived classes own that window.
class WxDialogWindow : public DialogWindow {
 public:
  WxDialogWindow(const WxDialogWindow&) = delete;
  WxDialogWindow& operator=(const WxDialogWindow&) = delete;

  std::string text(int control) const override;
  void setText(int control, const std::string& text) override;
  bool checked(int control) const override;
  void setChecked(int control, bool on) override;
  bool enabled(int control) const override;
  void enable(int control, bool on) override;
  bool visible(int control) const override;
  void show(int control, bool on) override;
  Rect rect(int control) const override;
  void setRect(int control, const Rect& rect) override;
  int leastWidth(int control) const override;
  void focus(int control) override;
  void scrollToEnd(int control) override;
  void setToolTip(int control, const std::string& text) override;
  void setEmptyText(int control, const std::string& words) override;
  std::vector<std::string> entries(int control) const override;
  void setEntries(int control, const std::vector<std::string>& entries) override;
  int selection(int control) const override;
  void select(int control, int index) override;
  bool selected(int control, int index) const override;
  void setSelected(int control, int index, bool on) override;
  DialogWindow& addTabPage(int tabs, const std::string& label, const DialogLayout& layout,
                           DialogHandler& handler) override;
  DialogWindow& addChild(int slot, const DialogLayout& layout, DialogHandler& handler) override;
  Rect windowRect() const override;
  void setWindowRect(const Rect& rect) override;
  Rect clientRect() const override;
  Rect workArea() const override;
  void arrangeControls() override;
  void redraw() override { surface_.Refresh(); }

  /// The toolkit's window of a control; null if no control bears the number. For tests.
  wxWindow* windowOf(int control) const;
  /// The numbers of all controls. For tests.
  std::vector<int> controls() const;
  /// The window that bears the controls.
  wxWindow& surface() const { return surface_; }
  /// The child windows: tab pages in their order, and what fills the slots. For tests.
  const std::vector<std::unique_ptr<WxDialogWindow>>& children() const { return children_; }

 protected:
  /// Builds the controls on `surface`. The derived constructor calls `start` when the whole object stands.
  WxDialogWindow(WindowStack& stack, wxWindow& surface, const DialogLayout& layout, DialogHandler& handler, int margin);

  void start();
  /// The size that the whole content needs.
  wxSize contentSize();
  /// Puts the controls into a surface of this size, unless the dialog's rules have begun to place them.
  void arrange(const wxSize& size);
  /// Puts the controls of all child windows into the rooms that these have now.
  void arrangeChildren();
  /// From now on the dialog's rules place and size what is in the window.
  void placeByRules() { placedByRules_ = true; }
  /// Tells the handlers, the inner ones first, that their windows go.
  void detach();
  /// Gives the focus to the control that the layout names, or to the first that takes it, on the open tab if there
  /// are tabs. False if nothing does.
  bool focusFirst();
  /// Gives the focus to the first control that takes it from this one on, round and round. False if nothing does.
  bool focusFrom(const wxWindow* last);
  /// The control that a window with the focus belongs to; null if it is none that a person sees and can use.
  wxWindow* stopAround(const wxWindow* window) const;
  void guard(const std::function<void()>& action) { guarded_(action); }
  DialogHandler& handler() { return handler_; }
  WindowStack& stack() { return stack_; }
  bool hasUsable(int control) const;
  void command(int control);
  /// What Ctrl+Return does in this field, which may be a child window's; nothing for all that is no such field.
  std::function<void()> controlReturnOf(const wxWindow* field) const;
  /// Tells the child windows that show, the inner ones first, that the user asks to close.
  void askChildrenToClose();

 private:
  const Control& at(int control) const;
  ControlEvents events();
  Node build(const DialogItem& item, const DialogItem* before);
  wxSize marginsSize() const { return {margins_.left + margins_.right, margins_.top + margins_.bottom}; }
  std::vector<Node> buildChildren(const std::vector<DialogItem>& items);
  Node buildControl(const DialogItem& item, const DialogItem* before);
  void finishControl(const DialogItem& item, Control& control, const DialogItem* before);
  void setNatural(Node& node, const DialogItem& item, const Control& control);
  void bindTabs(int control, wxWindow& tabs);
  /// The child window that shows in a tab control or slot; null for any other control.
  WxDialogWindow* childInSight(const Control& control) const;
  /// All controls as Tab would reach them if everything showed, those of the child windows too.
  void collectStops(std::vector<Control>& stops) const;
  DialogWindow& adopt(std::unique_ptr<WxDialogWindow> child);

  WindowStack& stack_;
  std::function<void(const std::function<void()>&)> guarded_;
  wxWindow& surface_;
  DialogHandler& handler_;
  Gaps gaps_;
  Margins margins_;
  int firstFocus_;
  std::map<int, Control> controls_;
  std::vector<Control> inOrder_;  ///< as Tab reaches them
  std::map<int, std::vector<WxDialogWindow*>> childrenOf_;
  std::vector<std::unique_ptr<WxDialogWindow>> children_;
  Node root_;
  wxRadioButton* radioRun_ = nullptr;
  wxWindow* lastLabel_ = nullptr;
  bool placedByRules_ = false;
  bool quiet_ = false;  ///< while a change is ours, not the user's
  bool detached_ = false;
};

/// A child window: a tab page, or what fills a slot.
class WxPage : public WxDialogWindow {
 public:
  /// `panel` stands in a slot or a tab control of the owner.
  WxPage(WindowStack& stack, WxDialogWindow& owner, wxPanel& panel, const DialogLayout& layout, DialogHandler& handler,
         int margin);

  std::string title() const override { return title_; }
  void setTitle(const std::string& title) override { title_ = title; }
  void showWindow(bool on) override;
  Rect windowRect() const override;
  void setWindowRect(const Rect& rect) override;
  void addSystemCommand(const std::string& label, std::function<void()> action) override {
    owner_.addSystemCommand(label, std::move(action));
  }
  std::optional<Point> position() const override { return owner_.position(); }
  void moveTo(const Point& leftTop) override { owner_.moveTo(leftTop); }
  void close(int result) override { owner_.close(result); }

 private:
  WxDialogWindow& owner_;
  std::string title_;
};

}  // namespace tarnwick::ui
