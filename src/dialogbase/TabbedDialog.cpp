#include "dialogbase/TabbedDialog.h"

#include "dialogbase/Desktop.h"

#include <cstdlib>

namespace tarnwick {

void TabbedDialog::addTab(const std::string& label, TabPage& page) {
  tabs_.push_back({static_cast<int>(tabs_.size()), label, &page});
}

void TabbedDialog::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  pageWindows_.clear();
  for (const auto& tab : tabs_) {
    pageWindows_.push_back(&window.addTabPage(tabControl_, tab.label, tab.page->layout(), *tab.page));
  }
  if (initialPage_ >= 0 && initialPage_ < static_cast<int>(tabs_.size())) window.select(tabControl_, initialPage_);
  currentPage_ = window.selection(tabControl_);
}

void TabbedDialog::openPage(int index) {
  window()->select(tabControl_, index);
  currentPage_ = index;
}

void TabbedDialog::onSelectionChanged(int control) {
  if (control != tabControl_) return;
  currentPage_ = window()->selection(tabControl_);
  if (currentPage_ < 0 || currentPage_ >= static_cast<int>(tabs_.size())) {
    desktop_.message("Fatal error: Can't find dialog page for index " + std::to_string(currentPage_));
    std::exit(1);
  }
  onTabChanged();
}

}  // namespace tarnwick
