#include "resources/PanelLayouts.h"

#include "platform/Path.h"
#include "resources/DialogLayout.h"

namespace tarnwick {

using namespace layout;

namespace {

// The arrangements "HORIZONTAL" and "FLAT" leave these distances at the right and the bottom of the window.
constexpr Margins panelMargins = {12, 2, 12, 10};

DialogItem pictureButton(int control, const std::string& text) {
  return button(control, text).withItsPicture();
}

/// The three bars share their place; one of them shows. The status line comes behind them.
DialogItem bars() {
  return layers({slot(VERTICAL_BAR_SLOT), slot(HORIZONTAL_BAR_SLOT).floating().hiddenAtFirst(),
                 slot(FLAT_BAR_SLOT).floating().hiddenAtFirst(),
                 statusLine(PANEL_STATUS_LINE).floating().hiddenAtFirst()});
}

}  // namespace

const DialogLayout& mainLayout() {
  static const DialogLayout dialog = {
      158, "Tarnwick", true, layers({slot(FILE_VIEW_SLOT), slot(PROJECT_VIEW_SLOT).hiddenAtFirst()}), 0, Margins{}};
  return dialog;
}

const DialogLayout& fileViewLayout() {
  static const DialogLayout panel = {
      130,
      "",
      false,
      column({
          // Both views have both groups; here one of them only holds the place.
          layers({
                     group(1238, "", {}).hiddenAtFirst(),
                     group(1239, " Source (.java) ",
                           {
                               space(),
                               row({pictureButton(1240, "New").stretched(),
                                    pictureButton(1006, "Browse").named("Browse for a source file").stretched(),
                                    pictureButton(1007, "Edit").stretched(), pictureButton(1008, "javac").stretched()})
                                   .withEqualWidths(),
                               space(),
                               edit(1009, 20).asHighAsButtons().offeringEntries().named("Source file (.java)"),
                               space(),
                           })
                         .inLineWithTabs(),
                 })
              .stretched(),
          tabs(1231),
          bars(),
      }),
      1009,
      panelMargins};
  return panel;
}

const DialogLayout& projectViewLayout() {
  static const DialogLayout panel = {
      157,
      "",
      false,
      column({
          group(1238, " Project ",
                {row({pictureButton(1134, "New").stretched(), pictureButton(1136, "Open").stretched(),
                      pictureButton(1135, "Files").stretched()})
                     .withEqualWidths()})
              .inLineWithTabs()
              .stretched(),
          group(1239, " Source (.java) ",
                {row({pictureButton(1139, "Edit").stretched(), pictureButton(1133, "javac  all").stretched(),
                      pictureButton(1140, "javac").stretched()})
                     .withEqualWidths()})
              .inLineWithTabs()
              .stretched(),
          tabs(1231),
          bars(),
      }),
      1134,
      panelMargins};
  return panel;
}

const DialogLayout& panelPageLayout() {
  // The longest labels that each button gets.
  static const DialogLayout page = {
      195,
      "",
      false,
      column({
          row({pictureButton(1228, "Browse").stretched(), pictureButton(1229, "appletdebug").stretched(),
               pictureButton(1230, "appletviewer").stretched()})
              .withEqualWidths(),
          edit(1223, 20).asHighAsButtons().offeringEntries().named("File and its arguments"),
      }),
      1223,
      Margins{8, 8, 8, 6}};
  return page;
}

const DialogLayout& verticalBarLayout() {
  static const DialogLayout bar = {
      197,
      "",
      false,
      row({pictureButton(1000, "Settings"), pictureButton(1, "Switch view"), pictureButton(2, "Exit"), space(),
           pictureButton(1244, "==").named("Wide layout"), pictureButton(1242, "------").named("Flat layout")}),
      0,
      Margins{}};
  return bar;
}

const DialogLayout& horizontalBarLayout() {
  static const DialogLayout bar = {
      198,
      "",
      false,
      column({
          row({pictureButton(1000, "Settings").stretched(), pictureButton(1, "Switch view").stretched()}),
          row({pictureButton(2, "Exit").stretched(),
               pictureButton(1244, platform::brokenBar).named("Tall layout").stretched(),
               pictureButton(1242, "------").named("Flat layout").stretched()}),
      }),
      0,
      Margins{8, 0, 0, 0}};
  return bar;
}

const DialogLayout& flatBarLayout() {
  // The bar begins a row of buttons above the panel's own buttons, to whose right it stands.
  static const DialogLayout bar = {
      199,
      "",
      false,
      column({
          emptyButtonRow(),
          row({pictureButton(1000, "Settings"), pictureButton(1, "Switch view"), pictureButton(2, "Exit"),
               pictureButton(1244, platform::brokenBar).named("Tall layout"),
               pictureButton(1242, "==").named("Wide layout")}),
      }),
      0,
      Margins{}};
  return bar;
}

}  // namespace tarnwick
