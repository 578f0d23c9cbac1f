#include "resources/HintLayout.h"

#include "resources/DialogLayout.h"

namespace tarnwick {

DialogLayout hintLayout() {
  DialogLayout hint;
  hint.content = layout::row({
      layout::icon(),
      layout::column({
          layout::label("Tarnwick uses the right mousebutton for quickcopy operations:"),
          layout::label(
              "First select some text, either by moving the mouse over it with the left button pressed, or by "
              "doubleclicking on a word."),
          layout::label("Then click the right mousebutton to copy the selected text to the input line."),
          layout::label("Currently, you have not selected any text, so rightclicking does not have any effect other "
                        "than displaying this message."),
      }),
  });
  return hint;
}

}  // namespace tarnwick
