#pragma once

#include "dialogbase/TabbedDialog.h"

#include <functional>
#include <string>
#include <vector>

namespace tarnwick {

struct DialogItem;

/// The place beside an option where such a page has its mark; room is kept for it.
DialogItem optionMark(int control);

/// A page whose options are marked where the chosen JDK no longer knows them: "not in JDK 25" stands beside the
/// control, and in its tool tip. They are given to the tools all the same.
class MarkedPage : public TabPage {
 public:
  /// Tells the main version of the chosen JDK; 0 if it is unknown.
  using JdkVersion = std::function<int()>;

  MarkedPage(Desktop& desktop, int pageId, int ownerId, const DialogLayout& layout, JdkVersion jdk)
      : TabPage(desktop, pageId, ownerId, layout), jdk_(std::move(jdk)) {}

  void initialise(DialogWindow& window) override;
  void loadFromTags() override;
  /// Shows the marks anew, for the JDK that is chosen now.
  void showMarks();

 protected:
  struct OptionMark {
    int control;
    int label;
    std::string tool;
    std::string option;  ///< empty where `optionOf` tells, or for the tool itself
  };

  /// What the control stands for now.
  virtual std::string optionOf(const OptionMark& mark) const { return mark.option; }

  /// Filled by the derived class before initialisation.
  std::vector<OptionMark> marks_;

 private:
  std::string tipOf(int control) const;

  JdkVersion jdk_;
};

}  // namespace tarnwick
