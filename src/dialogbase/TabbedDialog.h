#pragma once

#include "dialogbase/ToolTipDlg.h"

#include <string>
#include <vector>

namespace tarnwick {

/// A dialog's page inside a tab control.
class TabPage : public ToolTipDlg {
 public:
  TabPage(Desktop& desktop, int pageId, int ownerId, const DialogLayout& layout)
      : ToolTipDlg(desktop, pageId, ownerId), layout_(layout) {}

  const DialogLayout& layout() const { return layout_; }

  /// A page has no end of its own.
  void onCloseRequest() override {}

 private:
  const DialogLayout& layout_;
};

/// A dialog with a tab control.
class TabbedDialog : public ToolTipDlg {
 public:
  TabbedDialog(Desktop& desktop, int pageId, int tabControl)
      : ToolTipDlg(desktop, pageId, pageId), tabControl_(tabControl) {}

  void initialise(DialogWindow& window) override;
  void onSelectionChanged(int control) override;

  int currentPage() const { return currentPage_; }

 protected:
  struct TabRow {
    int index;
    std::string label;
    TabPage* page;  ///< not owned
  };

  void addTab(const std::string& label, TabPage& page);
  /// The window of the page with this index.
  DialogWindow& pageWindow(int index) const { return *pageWindows_.at(static_cast<std::size_t>(index)); }
  /// Opens a tab as a user would, but `onTabChanged` is not told.
  void openPage(int index);
  /// The user has opened another tab.
  virtual void onTabChanged() {}

  int initialPage_ = 0;

 private:
  int tabControl_;
  std::vector<TabRow> tabs_;
  std::vector<DialogWindow*> pageWindows_;
  int currentPage_ = -1;
};

}  // namespace tarnwick
