#include "app/PanelFit.h"

#include "settings/LayoutValue.h"

#include <algorithm>

namespace tarnwick {

namespace {

using Row = std::vector<LayoutItem*>;

int surplusOf(PanelPlaces places, Arrangement arrangement) {
  arrangement(places);
  return places.topWindow.width() - places.screenWidth;
}

/// Takes so much off the item's width, but leaves `least`. Gives what could not be taken.
int shorten(LayoutItem& item, int surplus, int least) {
  const int taken = std::clamp(surplus, 0, std::max(0, item.width() - least));
  item.right -= taken;
  return surplus - taken;
}

/// A button with a picture and no words.
int widthOfPicture(const LayoutItem& button) {
  return button.height();
}

/// Shortens the buttons of a row alike, and moves those behind them up. Gives what could not be taken.
int shortenRow(const Row& row, int surplus, const std::vector<int>& least) {
  int rest = surplus;
  for (std::size_t i = 0; i < row.size() && rest > 0; ++i) {
    const int share = rest / static_cast<int>(row.size() - i);
    const int taken = share - shorten(*row[i], share, least[i]);
    rest -= taken;
    for (std::size_t next = i + 1; next < row.size(); ++next)
      row[next]->moveTo(row[next]->left - taken, row[next]->top);
  }
  return rest;
}

std::vector<int> pictures(const Row& row) {
  std::vector<int> widths;
  for (const auto* button : row) widths.push_back(widthOfPicture(*button));
  return widths;
}

std::vector<int> words(const Row& row) {
  std::vector<int> widths;
  for (const auto* button : row) widths.push_back(button->leastWidth);
  return widths;
}

/// The panel's own rows of buttons: the file view's stands behind its field, the project view has two of three.
std::vector<Row> ownRows(PanelPlaces& places) {
  auto& own = places.own;
  if (own.size() == 6) return {{&own[0], &own[1], &own[2]}, {&own[3], &own[4], &own[5]}};
  Row row;
  for (std::size_t i = 1; i < own.size(); ++i) row.push_back(&own[i]);
  return {row};
}

Row rowOf(PagePlaces& page) {
  return {&page.left, &page.middle, &page.right};
}

/// All pages are as wide as the one that needs the most.
std::vector<int> wordsOfPages(PanelPlaces& places) {
  std::vector<int> widest(3, 0);
  for (auto& page : places.pages) {
    const auto widths = words(rowOf(page));
    std::transform(widths.begin(), widths.end(), widest.begin(), widest.begin(),
                   [](int a, int b) { return std::max(a, b); });
  }
  return widest;
}

/// Of all pages alike.
int shortenPageFields(PanelPlaces& places, int surplus) {
  int left = surplus;
  for (auto& page : places.pages) left = shorten(page.field, surplus, page.field.leastWidth);
  return left;
}

/// Where the panel has a field of its own, both fields lose the same if both can.
int shortenFields(PanelPlaces& places, int surplus) {
  const bool hasField = places.own.size() != 6;
  if (!hasField || places.own.empty()) return shortenPageFields(places, surplus);
  LayoutItem& field = places.own[0];
  const int left = shorten(field, surplus / 2, field.leastWidth);
  const int rest = shortenPageFields(places, surplus - surplus / 2 + left);
  return shorten(field, rest, field.leastWidth);
}

/// In one row the groups are as wide as what is in them, or their headings.
void shortenOwn(PanelPlaces& places, int surplus, std::vector<int> (*least)(const Row&)) {
  auto rows = ownRows(places);
  int rest = surplus;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const int share = rest / static_cast<int>(rows.size() - i);
    const int taken = share - shortenRow(rows[i], share, least(rows[i]));
    rest -= taken;
    if (rows.size() < 2) continue;
    LayoutItem& group = i == 0 ? places.firstGroup : places.secondGroup;
    shorten(group, taken, group.leastWidth);
  }
}

void shortenPages(PanelPlaces& places, int surplus, const std::vector<int>& least) {
  for (auto& page : places.pages) shortenRow(rowOf(page), surplus, least);
}

/// Leaves the bar's buttons their pictures; its rows are given by how many buttons stand in each.
void pictureBar(PanelPlaces& places, int layout, const std::vector<std::size_t>& counts) {
  auto& buttons = places.barButtons[static_cast<std::size_t>(layout)];
  LayoutItem& bar = places.bars[static_cast<std::size_t>(layout)];
  int right = 0;
  std::size_t first = 0;
  for (const std::size_t count : counts) {
    Row row;
    for (std::size_t i = first; i < first + count && i < buttons.size(); ++i) row.push_back(&buttons[i]);
    shortenRow(row, bar.width() * static_cast<int>(count), pictures(row));
    if (!row.empty()) right = std::max(right, row.back()->right);
    first += count;
  }
  if (right > 0) bar.right = bar.left + right;
}

}  // namespace

void fitInOneRow(PanelPlaces& places, Arrangement arrangement) {
  const auto surplus = [&] { return surplusOf(places, arrangement); };
  const int whole = surplus();
  if (whole <= 0) return;
  const PanelPlaces natural = places;
  shortenFields(places, whole);
  if (surplus() > 0) shortenOwn(places, surplus(), words);
  if (surplus() > 0) shortenPages(places, surplus(), wordsOfPages(places));
  if (surplus() > 0) pictureBar(places, LayoutValue::FLAT, {5});
  const int everything = places.screenWidth;
  if (surplus() > 0) shortenOwn(places, everything, pictures);
  if (surplus() > 0) shortenPages(places, everything, pictures(rowOf(places.pages[0])));
  // What the words have left is the fields'.
  if (surplus() >= 0) return;
  for (std::size_t i = 0; i < places.pages.size(); ++i) {
    places.pages[i].field.right = places.pages[i].field.left + natural.pages[i].field.width();
  }
  if (places.own.size() != 6 && !places.own.empty()) {
    places.own[0].right = places.own[0].left + natural.own[0].width();
  }
  shortenFields(places, std::max(0, surplus()));
}

void fitSideBySide(PanelPlaces& places, Arrangement arrangement) {
  if (surplusOf(places, arrangement) <= 0) return;
  pictureBar(places, LayoutValue::HORIZONTAL, {2, 3});
  const int surplus = surplusOf(places, arrangement);
  if (surplus <= 0) return;
  const int ofTabs = surplus / 2;
  places.tabControl.right -= ofTabs;
  for (auto& page : places.pages) {
    page.page.right -= ofTabs;
    page.field.right -= ofTabs;
    shortenRow(rowOf(page), ofTabs, pictures(rowOf(page)));
  }
  const int ofGroups = surplus - ofTabs;
  places.firstGroup.right -= ofGroups;
  places.secondGroup.right -= ofGroups;
  for (const auto& row : ownRows(places)) shortenRow(row, ofGroups, pictures(row));
  if (places.own.size() != 6 && !places.own.empty()) places.own[0].right -= ofGroups;
}

}  // namespace tarnwick
