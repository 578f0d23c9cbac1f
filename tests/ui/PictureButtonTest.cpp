// The panel's buttons, with their pictures.
#include "ui/DialogFixture.h"
#include "ui/PictureButton.h"
#include "ui/Toolkit.h"

namespace tarnwick::test {

namespace {

enum Number { JAVAC = 10, JAVA, SIGN, PLAIN };

DialogLayout panelLayout() {
  DialogLayout layout;
  layout.title = "Pictures";
  layout.content = layout::column(
      {layout::button(JAVAC, "javac").withItsPicture(), layout::button(JAVA, "jdb debug").withItsPicture(),
       layout::button(SIGN, "==").named("Wide layout").withItsPicture(),
       layout::button(PLAIN, "unheard of").withItsPicture(), layout::button(IDOK_CONTROL, "OK").asDefault()});
  return layout;
}

class PictureButtonTest : public DialogTest {
 protected:
  ui::PictureButton& button(int number) const { return dynamic_cast<ui::PictureButton&>(*top().windowOf(number)); }

  std::string heard(int number) const { return ui::spokenName(button(number)); }
  bool hasWords(int number) const { return button(number).GetLabel() == button(number).text(); }
};

}  // namespace

TEST_F(PictureButtonTest, ShowsItsPictureAndItsWords) {
  waitForDialog();
  steps.settle();
  steps.then("look", [this] {
    EXPECT_TRUE(button(JAVAC).GetBitmap().IsOk());
    EXPECT_TRUE(hasWords(JAVAC));
    EXPECT_TRUE(button(JAVAC).GetFont().GetWeight() >= wxFONTWEIGHT_BOLD) << "a main action";
    EXPECT_EQ(heard(JAVAC), "javac");
    EXPECT_FALSE(button(JAVA).GetFont().GetWeight() >= wxFONTWEIGHT_BOLD);
    EXPECT_FALSE(button(PLAIN).GetBitmap().IsOk());
    EXPECT_TRUE(hasWords(PLAIN));
    // Other words bring their picture and their weight.
    const int before = top().leastWidth(JAVA);
    top().setText(JAVA, "java");
    EXPECT_EQ(top().text(JAVA), "java");
    EXPECT_TRUE(button(JAVA).GetFont().GetWeight() >= wxFONTWEIGHT_BOLD);
    EXPECT_EQ(heard(JAVA), "java");
    EXPECT_LT(top().leastWidth(JAVA), before);
  });
  thenClose();
  desktop().runDialog(panelLayout(), rules);
}

TEST_F(PictureButtonTest, SignsAreDrawnAndTheirMeaningIsHeardAndTold) {
  waitForDialog();
  steps.settle();
  steps.then("look", [this] {
    EXPECT_EQ(top().text(SIGN), "==") << "for the rules it keeps its words";
    EXPECT_FALSE(hasWords(SIGN));
    EXPECT_TRUE(button(SIGN).GetBitmap().IsOk());
    EXPECT_EQ(heard(SIGN), "Wide layout");
    EXPECT_EQ(button(SIGN).GetToolTipText(), "Wide layout");
    top().enable(SIGN, false);
    top().enable(SIGN, true);
    EXPECT_TRUE(button(SIGN).GetBitmap().IsOk());
  });
  thenClose();
  desktop().runDialog(panelLayout(), rules);
}

TEST_F(PictureButtonTest, WhereItIsTooNarrowForItsWordsThePictureStays) {
  waitForDialog();
  steps.settle();
  steps.then("make it narrow and wide again", [this] {
    const Rect wide = top().rect(JAVAC);
    top().setRect(JAVAC, {wide.left, wide.top, wide.left + wide.height(), wide.bottom});
    EXPECT_FALSE(hasWords(JAVAC));
    EXPECT_TRUE(button(JAVAC).GetBitmap().IsOk());
    EXPECT_EQ(top().text(JAVAC), "javac");
    EXPECT_EQ(heard(JAVAC), "javac");
    EXPECT_EQ(button(JAVAC).GetToolTipText(), "javac");
    top().setRect(JAVAC, wide);
    EXPECT_TRUE(hasWords(JAVAC));
    EXPECT_EQ(button(JAVAC).GetToolTipText(), "");
    // A tip of its own stays.
    top().setToolTip(JAVAC, "Start compiler");
    top().setRect(JAVAC, {wide.left, wide.top, wide.left + wide.height(), wide.bottom});
    EXPECT_EQ(button(JAVAC).GetToolTipText(), "Start compiler");
    top().setRect(JAVAC, wide);
    EXPECT_EQ(button(JAVAC).GetToolTipText(), "Start compiler");
  });
  thenClose();
  desktop().runDialog(panelLayout(), rules);
}

}  // namespace tarnwick::test
