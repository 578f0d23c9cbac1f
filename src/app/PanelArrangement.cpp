#include "app/PanelArrangement.h"

#include "app/PanelFit.h"
#include "dialogbase/DialogWindow.h"
#include "settings/LayoutValue.h"

#include <algorithm>

namespace tarnwick {

namespace {

/// The place of the frame is in the formula; a wider one would cover the bar's end.
int roomForFrame(int room, const PanelPlaces& places) {
  return std::max(room, places.frameWidth + 2);
}

/// The page's field moves to the right of its buttons.
void flattenPage(PagePlaces& places) {
  places.field.moveTo(places.right.right + 4, places.left.top);
  places.page.resize(places.field.right + 4, places.field.bottom + 4);
}

/// Pages and tab control, for panels whose own controls are as high as `rowHeight`.
void flattenTabs(PanelPlaces& places, int rowHeight) {
  const int pageRows = places.pages[0].field.bottom - places.pages[0].left.top;
  for (auto& page : places.pages) flattenPage(page);
  places.tabControl.resize(places.pages[0].page.width() + 4, rowHeight + places.tabControl.height() + 2 - pageRows);
}

/// Bar and top window, once everything to their left has its place.
void closeFlat(PanelPlaces& places, int barTop) {
  LayoutItem& bar = places.bars[LayoutValue::FLAT];
  // It begins with empty room, which would stand out of the window where the tabs are low.
  bar.moveTo(places.tabControl.right + 4, std::max(0, barTop));
  places.topWindow.resize(bar.right + roomForFrame(8, places), places.tabControl.height() + places.frameHeight + 4);
}

void shift(LayoutItem& item, int x, int y) {
  item.moveTo(item.left + x, item.top + y);
}

void fileViewInOneRow(PanelPlaces& places) {
  LayoutItem& field = places.own[0];
  LayoutItem& group = places.secondGroup;
  const int groupAbove = places.own[1].top - group.top;
  flattenTabs(places, field.height());
  field.moveTo(8, places.pages[0].left.top + places.pages[0].page.top + 2);
  int x = field.right + 4;
  for (std::size_t i = 1; i < places.own.size(); ++i) {
    places.own[i].moveTo(x, field.top);
    x = places.own[i].right;
  }
  group.left = 4;
  group.right = x + 4;
  // Where the tabs are low, its title would stand out of the window.
  group.top = std::max(0, field.top - groupAbove);
  group.bottom = field.bottom + 4;
  places.tabControl.moveTo(group.right + 4, 2);
  closeFlat(places, places.firstGroup.top - field.height() + field.top);
}

void projectViewInOneRow(PanelPlaces& places) {
  LayoutItem& first = places.firstGroup;
  LayoutItem& second = places.secondGroup;
  const int tabsLeft = first.left + first.width() + second.width();
  flattenTabs(places, places.own[0].height());
  places.tabControl.moveTo(tabsLeft, 2);
  const int bottom = places.tabControl.bottom;
  const LayoutItem firstBefore = first;
  const LayoutItem secondBefore = second;
  first.moveTo(4, bottom - first.height());
  second.moveTo(first.right + 4, bottom - second.height());
  for (std::size_t i = 0; i < places.own.size(); ++i) {
    const LayoutItem& group = i < 3 ? first : second;
    const LayoutItem& before = i < 3 ? firstBefore : secondBefore;
    shift(places.own[i], group.left - before.left, group.top - before.top);
  }
  // Where the tabs are low, the titles would stand out of the window.
  for (LayoutItem* const group : {&first, &second}) group->top = std::max(0, group->top);
  closeFlat(places, places.own[3].top - places.own[3].height());
}

void sideBySide(PanelPlaces& places) {
  LayoutItem& bar = places.bars[LayoutValue::HORIZONTAL];
  LayoutItem& tabs = places.tabControl;
  const int top = places.firstGroup.top;
  const int bottom = places.secondGroup.bottom;
  places.topWindow.resize(bar.width() + tabs.width() + places.firstGroup.width() + 38, bottom + places.frameHeight + 4);
  tabs.moveTo(places.firstGroup.right + 4, std::max(0, bottom - top - 2 - tabs.height()) + 4);
  bar.moveTo(tabs.right + 5, (bottom + top - bar.height()) / 2 + 4);
}

}  // namespace

void clearFields(PanelPlaces& places) {
  const PagePlaces& first = places.pages[0];
  const int least = places.tabControl.top + first.page.top + first.field.bottom + 4;
  places.tabControl.bottom = std::max(places.tabControl.bottom, least);
}

void arrangeVertical(PanelPlaces& places) {
  places.bars[LayoutValue::VERTICAL].moveTo(places.tabControl.left, places.tabControl.bottom + 8);
}

void arrangeHorizontal(PanelPlaces& places) {
  fitSideBySide(places, sideBySide);
  sideBySide(places);
}

void arrangeFlatFileView(PanelPlaces& places) {
  fitInOneRow(places, fileViewInOneRow);
  fileViewInOneRow(places);
}

void arrangeFlatProjectView(PanelPlaces& places) {
  fitInOneRow(places, projectViewInOneRow);
  projectViewInOneRow(places);
}

void addPlaces(PanelLayout& layout, PanelPlaces places) {
  places.panel.moveTo(0, 0);
  places.panel.resize(places.topWindow.width(), places.topWindow.height());
  const auto asItIs = [&layout](const LayoutItem& item) { layout.add(item, LayoutItem::AS_IT_IS); };
  asItIs(places.panel);
  for (const auto& page : places.pages) {
    for (const auto* item : {&page.page, &page.field, &page.left, &page.middle, &page.right}) asItIs(*item);
  }
  asItIs(places.secondGroup);
  layout.addShown(places.firstGroup, places.firstGroup.owner->visible(places.firstGroup.control));
  for (int bar = 0; bar < 3; ++bar) {
    layout.addShown(places.bars[static_cast<std::size_t>(bar)], bar == layout.index());
  }
  for (const auto& button : places.barButtons[static_cast<std::size_t>(layout.index())]) asItIs(button);
  asItIs(places.tabControl);
  asItIs(places.topWindow);
  for (const auto& item : places.own) asItIs(item);
}

}  // namespace tarnwick
