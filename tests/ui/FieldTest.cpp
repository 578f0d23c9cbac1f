// A field of one line with a path in it.
#include "ui/DialogFixture.h"
#include "ui/Field.h"
#include "ui/Text.h"

namespace tarnwick::test {

namespace {

constexpr int FIELD = 10;

DialogLayout fieldLayout() {
  DialogLayout layout;
  layout.title = "A field";
  layout.content = layout::column({layout::edit(FIELD, 20), layout::button(IDOK_CONTROL, "OK").asDefault()});
  layout.firstFocus = IDOK_CONTROL;
  return layout;
}

const char longPath[] = "/home/somebody/projects/of a long name/src/org/example/package/name/Main.java 1 2 3";
const char tip[] = "What is compiled";

class FieldTest : public DialogTest {
 protected:
  ui::Field& field() const { return dynamic_cast<ui::Field&>(*top().windowOf(FIELD)); }
  std::string tipUnderPointer() const {
    wxMouseEvent event(wxEVT_ENTER_WINDOW);
    event.SetEventObject(&field());
    field().GetEventHandler()->ProcessEvent(event);
    return ui::fromWx(field().GetToolTipText());
  }
  /// As the toolkit tells it.
  void hear(wxEventType type) const {
    wxFocusEvent event(type);
    event.SetEventObject(&field());
    field().GetEventHandler()->ProcessEvent(event);
  }
  bool showsEnd() const { return field().GetInsertionPoint() == field().GetLastPosition(); }
  void thenFocus(int control) {
    steps.then("focus", [this, control] { top().windowOf(control)->SetFocus(); });
    steps.until("it has come", [this, control] { return wxWindow::FindFocus() == top().windowOf(control); });
    steps.settle();
  }
};

}  // namespace

TEST_F(FieldTest, ALongPathShowsItsEndWhileNobodyWorksInIt) {
  waitForDialog();
  steps.then("a long one", [this] {
    top().setText(FIELD, longPath);
    EXPECT_TRUE(showsEnd());
  });
  thenFocus(FIELD);
  steps.then("the caret goes to the left", [this] { field().SetInsertionPoint(3); });
  thenFocus(IDOK_CONTROL);
  steps.then("look", [this] {
    EXPECT_TRUE(showsEnd());
    shoot("field-long");
  });
  thenFocus(FIELD);
  steps.then("a selection", [this] { field().SetSelection(2, 9); });
  thenFocus(IDOK_CONTROL);
  steps.then("it stays", [this] {
    EXPECT_EQ(field().GetStringSelection(), "ome/som");
    top().setText(FIELD, "Main.java");
    EXPECT_EQ(field().GetInsertionPoint(), 0);
  });
  thenClose();
  desktop().runDialog(fieldLayout(), rules);
}

TEST_F(FieldTest, WhatIsNoPathShowsItsBeginning) {
  waitForDialog();
  steps.then("a long text", [this] {
    top().setText(FIELD, std::string(200, 'x'));
    EXPECT_EQ(field().GetInsertionPoint(), 0);
  });
  thenClose();
  desktop().runDialog(fieldLayout(), rules);
}

TEST_F(FieldTest, TheToolTipTellsALongPathWhole) {
  waitForDialog();
  steps.then("look", [this] {
    top().setToolTip(FIELD, tip);
    top().setText(FIELD, "/home/Main.java");
    EXPECT_EQ(tipUnderPointer(), tip);
    top().setText(FIELD, longPath);
    EXPECT_EQ(tipUnderPointer(), std::string(longPath) + "\n\n" + tip);
    top().setText(FIELD, "Main.java");
    EXPECT_EQ(tipUnderPointer(), tip);
  });
  thenClose();
  desktop().runDialog(fieldLayout(), rules);
}

TEST_F(FieldTest, WhoComesBackFromAnotherProgramGoesOnWhereHeWas) {
  waitForDialog();
  steps.then("a long one", [this] { top().setText(FIELD, longPath); });
  thenFocus(FIELD);
  steps.then("away and back", [this] {
    for (const bool changed : {false, true}) {
      field().SetInsertionPoint(3);
      hear(wxEVT_KILL_FOCUS);
      EXPECT_TRUE(showsEnd());
      if (changed) top().setText(FIELD, std::string("/mnt") + longPath);
      hear(wxEVT_SET_FOCUS);
      EXPECT_EQ(field().GetInsertionPoint() == 3, !changed);
    }
  });
  thenClose();
  desktop().runDialog(fieldLayout(), rules);
}

}  // namespace tarnwick::test
