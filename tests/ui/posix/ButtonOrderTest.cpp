// The buttons that end a dialog stand as the desktop says.
#include "ui/DialogChecks.h"
#include "ui/DialogFixture.h"

#include <gtk/gtk.h>

namespace tarnwick::test {

namespace {

constexpr int HELP = 7;
constexpr int NAME = 8;

DialogLayout askingLayout() {
  using namespace layout;
  DialogLayout dialog;
  dialog.title = "A question";
  dialog.content = column({
      row({label("Name"), edit(NAME, 60).stretched()}),
      row({space(), button(IDOK_CONTROL, "OK").asDefault(), button(IDCANCEL_CONTROL, "Cancel"), button(HELP, "Help")})
          .closing(),
  });
  return dialog;
}

/// What the desktop tells of the order, for as long as a test lasts.
class Told {
 public:
  explicit Told(bool asOnWindows) {
    g_object_get(gtk_settings_get_default(), setting, &before_, nullptr);
    g_object_set(gtk_settings_get_default(), setting, static_cast<gboolean>(asOnWindows), nullptr);
  }
  ~Told() { g_object_set(gtk_settings_get_default(), setting, before_, nullptr); }
  Told(const Told&) = delete;
  Told& operator=(const Told&) = delete;

 private:
  static constexpr const char* setting = "gtk-alternative-button-order";
  gboolean before_ = FALSE;
};

}  // namespace

class ButtonOrderTest : public DialogTest {
 protected:
  wxRect at(int control) const { return top().windowOf(control)->GetRect(); }

  void expectOrder(const std::vector<int>& wanted) {
    const auto reached = std::make_shared<Stops>();
    waitForDialog();
    walkByTab(steps, reached);
    steps.then("look", [this, wanted, reached] {
      Stops expected = {top().windowOf(NAME)};
      for (const int control : wanted) expected.push_back(top().windowOf(control));
      EXPECT_EQ(*reached, expected) << "the order by Tab";
      for (std::size_t i = 1; i < wanted.size(); ++i) EXPECT_LT(at(wanted[i - 1]).GetRight(), at(wanted[i]).x);
      EXPECT_EQ(at(wanted.back()).GetRight(), at(NAME).GetRight());
    });
    thenClose();
    desktop().runDialog(askingLayout(), rules);
  }
};

TEST_F(ButtonOrderTest, AsADesktopHasItByItself) {
  const Told told(false);
  steps.until("the dialog shows", [this] { return openDialogs() == 1; });
  steps.then("look", [this] {
    const int fieldsLeft = top().windowOf(NAME)->GetRect().x;
    EXPECT_LT(at(HELP).x, fieldsLeft) << "Help stands below the label";
    EXPECT_GT(at(IDCANCEL_CONTROL).x, at(HELP).GetRight() + at(HELP).width) << "room between Help and the answers";
  });
  expectOrder({HELP, IDCANCEL_CONTROL, IDOK_CONTROL});
}

TEST_F(ButtonOrderTest, AsADesktopMayAskForIt) {
  const Told told(true);
  expectOrder({IDOK_CONTROL, IDCANCEL_CONTROL, HELP});
}

}  // namespace tarnwick::test
