#include "resources/PanelLayouts.h"

namespace tarnwick {

using namespace layout;

const DialogLayout& mainLayout() {
  static const DialogLayout dialog = {158, "Tarnwick", true, column({slot(PANEL_SLOT)}), 0};
  return dialog;
}

const DialogLayout& fileViewLayout() {
  static const DialogLayout panel = {
      130, "", false,
      column({
          group(1239, " Source (.java) ",
                {
                    row({button(1240, "New"), button(1006, "Browse"), button(1007, "Edit"), button(1008, "javac")})
                        .withEqualWidths(),
                    edit(1009, 40),
                }),
          tabs(1231),
          slot(BAR_SLOT),
      }),
      1009};
  return panel;
}

const DialogLayout& panelPageLayout() {
  static const DialogLayout page = {
      195, "", false,
      column({
          row({button(1228, "appletviewer"), button(1229, "appletviewer"), button(1230, "appletviewer")})
              .withEqualWidths(),
          edit(1223, 40),
      }),
      1223};
  return page;
}

const DialogLayout& verticalBarLayout() {
  static const DialogLayout bar = {197, "", false,
                                   row({button(1000, "Settings"), button(1, "Switch view"), button(2, "Exit"), space(),
                                        button(1244, "=="), button(1242, "------")}),
                                   0};
  return bar;
}

const DialogLayout& welcomeLayout() {
  static const DialogLayout dialog = {
      200, "Welcome to Tarnwick", false,
      column({
          row({icon(), heading("Welcome to Tarnwick")}),
          label("", 1273),
          label("", 1272),
          label("For more information please consult the Tarnwick user's guide which is included in the kit. It is "
                "also available online."),
          row({space(), button(IDOK_CONTROL, "OK").asDefault()}),
      }),
      IDOK_CONTROL};
  return dialog;
}

}  // namespace tarnwick
