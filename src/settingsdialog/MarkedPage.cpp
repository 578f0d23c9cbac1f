#include "settingsdialog/MarkedPage.h"

#include "resources/DialogLayout.h"
#include "settings/GoneOptions.h"

#include <algorithm>

namespace tarnwick {

DialogItem optionMark(int control) {
  return layout::label("not in JDK 25", control).hiddenAtFirst();
}

void MarkedPage::initialise(DialogWindow& window) {
  TabPage::initialise(window);
  showMarks();
}

void MarkedPage::loadFromTags() {
  TabPage::loadFromTags();
  // The window gets its tool tips only after its first load.
  if (initialised()) showMarks();
}

void MarkedPage::showMarks() {
  if (!window()) return;
  const int jdk = jdk_();
  for (const auto& mark : marks_) {
    const GoneOption* const gone = goneOption(mark.tool, optionOf(mark), jdk);
    const std::string what = gone && !*gone->option ? mark.tool + ": " : "";
    const std::string words = what + "not in JDK " + std::to_string(jdk);
    if (gone) window()->setText(mark.label, words);
    showControl(mark.label, gone != nullptr);
    const std::string rest = gone && *gone->rest ? std::string("; ") + gone->rest : "";
    const std::string tip = tipOf(mark.control);
    window()->setToolTip(mark.control, gone ? tip + (tip.empty() ? "" : " ") + "(" + words + rest + ")" : tip);
  }
}

std::string MarkedPage::tipOf(int control) const {
  const auto tip =
      std::find_if(toolTips_.begin(), toolTips_.end(), [&](const ToolTip& one) { return one.control == control; });
  return tip == toolTips_.end() ? "" : tip->text;
}

}  // namespace tarnwick
