// The pictures: drawn anew for each size, and for light and dark ground.
#include "resources/Toolbar.h"
#include "ui/Icons.h"
#include "ui/WindowTest.h"

#include <wx/image.h>

#include <cstring>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

wxImage pictureOf(const wxBitmapBundle& picture, const wxSize& size) {
  return picture.GetBitmap(size).ConvertToImage();
}

/// Opacity and colours of both.
bool same(const wxImage& one, const wxImage& other) {
  if (one.GetSize() != other.GetSize() || one.HasAlpha() != other.HasAlpha()) return false;
  const auto pixels = static_cast<std::size_t>(one.GetWidth()) * static_cast<std::size_t>(one.GetHeight());
  return std::memcmp(one.GetData(), other.GetData(), 3 * pixels) == 0 &&
         (!one.HasAlpha() || std::memcmp(one.GetAlpha(), other.GetAlpha(), pixels) == 0);
}

class IconsTest : public WindowTest {};

TEST_F(IconsTest, TheToolbarsPicturesAreDrawnForEachSizeAndGround) {
  for (const auto& button : debuggerToolbar()) {
    if (button.command == 0) continue;
    const wxBitmapBundle picture = ui::toolbarPicture(button.drawing, false);
    ASSERT_TRUE(picture.IsOk()) << button.toolTip;
    EXPECT_EQ(picture.GetDefaultSize(), ui::toolbarPictureSize());
    const wxImage usual = pictureOf(picture, {16, 15});
    const wxImage large = pictureOf(picture, {32, 30});
    EXPECT_EQ(large.GetSize(), wxSize(32, 30));
    EXPECT_TRUE(large.HasAlpha()) << "the ground shows through";
    EXPECT_FALSE(same(large, usual.Scale(32, 30))) << button.toolTip << ": enlarged, not drawn";
    EXPECT_FALSE(same(usual, pictureOf(ui::toolbarPicture(button.drawing, true), {16, 15}))) << button.toolTip;
  }
  EXPECT_FALSE(ui::toolbarPicture("unheard of", false).IsOk());
}

TEST_F(IconsTest, TheProgramsIconIsRoundedAndFilledInEverySize) {
  for (const int side : {16, 48, 256}) {
    const wxImage icon = pictureOf(ui::programPicture(48), {side, side});
    ASSERT_EQ(icon.GetSize(), wxSize(side, side));
    EXPECT_EQ(icon.GetAlpha(0, 0), 0) << side;
    EXPECT_EQ(icon.GetAlpha(side - 1, side - 1), 0) << side;
    EXPECT_EQ(icon.GetAlpha(side / 2, side / 2), 255) << side;
    // The sky above is warm, the water below is not.
    EXPECT_GT(icon.GetRed(side / 2, 0), icon.GetBlue(side / 2, 0)) << side;
    EXPECT_LT(icon.GetRed(side / 2, side - 1), icon.GetBlue(side / 2, side - 1)) << side;
  }
  EXPECT_EQ(ui::programIcons().GetIconCount(), 5U);
}

}  // namespace
}  // namespace tarnwick::test
