#include "resources/AddPathLayout.h"

#include "resources/DialogLayout.h"

namespace tarnwick {

using namespace layout;

const DialogLayout& addPathLayout() {
  static const DialogLayout dialog = {
      185, "Add components to a path", false,
      column({
          label("", 1170),
          edit(1169, 60).showingOnly(),
          row({button(1171, "Add a folder ...").agreeing(), button(1172, "Add an archive ...").agreeing(), space(),
               button(IDCANCEL_CONTROL, "Cancel")})
              .closing(),
      }),
      1171};
  return dialog;
}

}  // namespace tarnwick
