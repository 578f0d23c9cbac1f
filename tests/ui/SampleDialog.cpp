#include "ui/SampleDialog.h"

#include "resources/DialogLayout.h"

namespace tarnwick::test {

using namespace layout;

DialogLayout sampleLayout() {
  DialogLayout dialog;
  dialog.title = "A sample of all controls";
  dialog.firstFocus = SAMPLE_EDIT;
  dialog.content = column({
      row({icon(), heading("A heading in large letters")}),
      label("Two lines of text,\nthe second one longer than the first", SAMPLE_LABEL),
      row({
          group(SAMPLE_GROUP, " A group with a title ",
                {
                    row({label("Name"), edit(SAMPLE_EDIT, 24).stretched(), button(SAMPLE_SMALL, "...")}),
                    row({label("A longer label"), edit(SAMPLE_SHOWN, 24).showingOnly().stretched()}),
                    checkBox(SAMPLE_CHECK, "A check box"),
                    row({radioButton(SAMPLE_RADIO_A, "This"), radioButton(SAMPLE_RADIO_B, "That"),
                         radioButton(SAMPLE_RADIO_C, "None of the two")}),
                    row({label("Either"), radioButton(SAMPLE_OTHER_A, "Left"), radioButton(SAMPLE_OTHER_B, "Right")}),
                }),
          group(0, " Lists ",
                {comboBox(SAMPLE_COMBO, {"first", "second entry", "third"}), listBox(SAMPLE_LIST, 20).stretched()}),
      }),
      tabs(SAMPLE_TABS),
      slot(SAMPLE_SLOT),
      row({space(), button(SAMPLE_BUTTON, "A button"), button(IDOK_CONTROL, "OK").asDefault(),
           button(IDCANCEL_CONTROL, "Cancel")})
          .withEqualWidths(),
  });
  return dialog;
}

DialogLayout samplePageLayout() {
  DialogLayout page;
  page.content = column({
      group(0, " On the page ", {row({label("Field"), edit(1, 30).stretched()})}),
      row({button(2, "One"), button(3, "Another one"), space()}).withEqualWidths(),
  });
  return page;
}

DialogLayout sampleBarLayout() {
  DialogLayout bar;
  bar.content = row({button(1, "Switch view"), button(2, "Exit"), space(), button(3, "=="), button(4, "------")});
  return bar;
}

DialogLayout smallLayout(const std::string& title) {
  DialogLayout dialog;
  dialog.title = title;
  dialog.content = column({
      label("Just a question"),
      row({space(), button(IDOK_CONTROL, "OK").asDefault(), button(IDCANCEL_CONTROL, "Cancel")}),
  });
  return dialog;
}

}  // namespace tarnwick::test
