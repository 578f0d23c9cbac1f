#include "resources/SourceLayouts.h"

#include "resources/DialogLayout.h"

namespace tarnwick {

using namespace layout;

const DialogLayout& portabilityWarningLayout() {
  static const DialogLayout dialog = {
      204, "Java Portability Warning", false,
      column({
          label("javac accepts source files containing multiple classes and interfaces,\n"
                "but only one of them may be public.\n\n"
                "This source file contains more than one class or interface with the 'public' attribute."),
          label(" "),
          label("Tarnwick is capable of splitting this source file for the compilation.\n\n"
                "Please decide if you want to correct your source code for full portability,\n"
                "or use Tarnwick's capabilities of compiling nonportable source files."),
          row({space(), button(IDOK_CONTROL, "Compile").asDefault(), button(IDCANCEL_CONTROL, "Cancel")}).closing(),
          checkBox(1274, "Don't display this warning for some time"),
      }),
      IDOK_CONTROL};
  return dialog;
}

}  // namespace tarnwick
