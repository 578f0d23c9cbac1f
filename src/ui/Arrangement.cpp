#include "ui/Arrangement.h"

#include <wx/window.h>

#include <algorithm>

namespace tarnwick::ui {

namespace {

bool isContainer(const Node& node) {
  return node.kind == ItemKind::Column || node.kind == ItemKind::Row || node.kind == ItemKind::Group ||
         node.kind == ItemKind::Layers;
}

/// Containers and what shows many entries take all the room across their row; single controls keep their height.
bool fillsHeight(const Node& node) {
  return isContainer(node) || node.kind == ItemKind::ListBox || node.kind == ItemKind::Tabs ||
         node.kind == ItemKind::Slot;
}

bool fillsWidth(const Node& node) {
  return fillsHeight(node) || node.kind == ItemKind::Edit || node.kind == ItemKind::ComboBox;
}

bool isInput(const Node& node) {
  return node.kind == ItemKind::Edit || node.kind == ItemKind::ComboBox || node.kind == ItemKind::ListBox;
}

bool isForm(const Node& node) {
  return node.kind == ItemKind::Row && node.children.size() >= 2 && node.children[0].kind == ItemKind::Label &&
         (isInput(node.children[1]) || node.children[1].kind == ItemKind::CheckBox);
}

bool isButtonRow(const Node& node) {
  const auto fits = [](const Node& child) { return child.kind == ItemKind::Button || child.kind == ItemKind::Space; };
  return node.kind == ItemKind::Row && std::all_of(node.children.begin(), node.children.end(), fits);
}

bool isGone(const Node& node) {
  if (node.floats) return true;
  return node.collapses && node.window && !node.window->IsShown();
}

/// A group, or several in one place.
bool isGroup(const Node& node) {
  const bool groups = node.kind == ItemKind::Layers && !node.children.empty();
  return node.kind == ItemKind::Group || (groups && isGroup(node.children.front()));
}

int gapBetween(const Node& first, const Node& second, int plain, const Gaps& gaps) {
  if (isGone(second) || first.kind == ItemKind::EmptyButtonRow) return 0;
  // A space is a gap already.
  if (first.kind == ItemKind::Space || second.kind == ItemKind::Space) return plain;
  const bool apart = isGroup(first) || isGroup(second) || isButtonRow(second) ||
                     (first.kind == ItemKind::Column && second.kind == ItemKind::Column) ||
                     first.kind == ItemKind::Icon;
  return apart ? std::max(plain, gaps.apart) : plain;
}

int gapsOf(const Node& node, int plain, const Gaps& gaps) {
  int sum = 0;
  for (std::size_t i = 1; i < node.children.size(); ++i) {
    sum += gapBetween(node.children[i - 1], node.children[i], plain, gaps);
  }
  return sum;
}

void equaliseButtons(Node& node) {
  int widest = 0;
  for (const auto& child : node.children) {
    if (child.kind == ItemKind::Button) widest = std::max(widest, child.least.x);
  }
  for (auto& child : node.children) {
    if (child.kind == ItemKind::Button) child.least.x = widest;
  }
}

wxSize sizeOfRow(const Node& node, const Gaps& gaps) {
  wxSize size(gapsOf(node, gaps.inRow, gaps), 0);
  for (const auto& child : node.children) {
    size.x += child.least.x;
    size.y = std::max(size.y, child.least.y);
  }
  return size;
}

wxSize sizeOfLayers(const Node& node) {
  wxSize size(0, 0);
  for (const auto& child : node.children) size.IncTo(child.least);
  return size;
}

wxSize sizeOfColumn(const Node& node, const Gaps& gaps) {
  wxSize size(0, gapsOf(node, gaps.inColumn, gaps));
  for (const auto& child : node.children) {
    size.x = std::max(size.x, child.least.x);
    size.y += child.least.y;
  }
  return size;
}

/// Neighbouring rows that begin with a label before a field or check box get labels of one width, so that the fields
/// line up.
void alignForms(Node& column, const Gaps& gaps) {
  auto& rows = column.children;
  for (auto row = rows.begin(); row != rows.end();) {
    if (!isForm(*row)) {
      ++row;
      continue;
    }
    const auto end = std::find_if_not(row, rows.end(), isForm);
    int widest = 0;
    std::for_each(row, end, [&](const Node& form) { widest = std::max(widest, form.children[0].least.x); });
    for (; row != end; ++row) {
      row->children[0].least.x = widest;
      row->least = sizeOfRow(*row, gaps);
    }
  }
}

/// The room that each child of a row or column gets along it.
std::vector<int> shares(const Node& node, int room, bool along, int plain, const Gaps& gaps) {
  int used = gapsOf(node, plain, gaps);
  int takers = 0;
  std::vector<int> lengths;
  for (const auto& child : node.children) {
    lengths.push_back(along ? child.least.x : child.least.y);
    used += lengths.back();
    if (child.stretch) ++takers;
  }
  int left = std::max(0, room - used);
  for (std::size_t i = 0; i < lengths.size() && takers > 0; ++i) {
    if (!node.children[i].stretch) continue;
    const int share = left / takers--;
    lengths[i] += share;
    left -= share;
  }
  return lengths;
}

int leftOf(const Node& group, const Gaps& gaps) {
  return group.asInTabs ? gaps.inTabs : gaps.indent;
}

int rightOf(const Node& group, const Gaps& gaps) {
  return group.asInTabs ? gaps.inTabs : 0;
}

wxRect insideGroup(const Node& group, const wxRect& outer, const Gaps& gaps) {
  wxRect inner = outer;
  const int above = group.headingHeight + gaps.inColumn;
  inner.x += leftOf(group, gaps);
  inner.width -= leftOf(group, gaps) + rightOf(group, gaps);
  inner.y += above;
  inner.height -= above;
  return inner;
}

/// Where the unframed children of a row stand: level with what is inside a group beside them.
wxRect roomBesideGroup(const Node& row, const wxRect& room, const Gaps& gaps) {
  const auto group = std::find_if(row.children.begin(), row.children.end(),
                                  [](const Node& child) { return child.kind == ItemKind::Group; });
  return group == row.children.end() ? room : insideGroup(*group, room, gaps);
}

void placeRow(const Node& node, const wxRect& room, const Gaps& gaps) {
  const auto widths = shares(node, room.width, true, gaps.inRow, gaps);
  const wxRect besideGroup = roomBesideGroup(node, room, gaps);
  int x = room.x;
  for (std::size_t i = 0; i < widths.size(); ++i) {
    const Node& child = node.children[i];
    if (i > 0) x += gapBetween(node.children[i - 1], child, gaps.inRow, gaps);
    const wxRect& here = isContainer(child) && !isButtonRow(child) ? room : besideGroup;
    const int height = fillsHeight(child) ? here.height : child.least.y;
    place(child, wxRect(x, here.y + (here.height - height) / 2, widths[i], height), gaps);
    x += widths[i];
  }
}

void placeColumn(const Node& node, const wxRect& room, const Gaps& gaps) {
  const auto heights = shares(node, room.height, false, gaps.inColumn, gaps);
  int y = room.y;
  for (std::size_t i = 0; i < heights.size(); ++i) {
    const Node& child = node.children[i];
    if (i > 0) y += gapBetween(node.children[i - 1], child, gaps.inColumn, gaps);
    const int width = fillsWidth(child) ? room.width : child.least.x;
    place(child, wxRect(room.x, y, width, heights[i]), gaps);
    y += heights[i];
  }
}

wxSize sizeOfGroup(const Node& group, const Gaps& gaps) {
  const wxSize content = sizeOfColumn(group, gaps);
  const wxSize title = group.natural ? group.natural() : wxSize();
  return {std::max(content.x + leftOf(group, gaps) + rightOf(group, gaps), title.x),
          content.y + group.headingHeight + gaps.inColumn};
}

}  // namespace

wxSize measure(Node& node, const Gaps& gaps) {
  for (auto& child : node.children) measure(child, gaps);
  if (node.equalWidths) equaliseButtons(node);
  if (node.kind == ItemKind::Column || node.kind == ItemKind::Group) alignForms(node, gaps);
  switch (node.kind) {
    case ItemKind::Row:
      node.least = sizeOfRow(node, gaps);
      break;
    case ItemKind::Column:
      node.least = sizeOfColumn(node, gaps);
      break;
    case ItemKind::Group:
      node.least = sizeOfGroup(node, gaps);
      break;
    case ItemKind::Layers:
      node.least = sizeOfLayers(node);
      break;
    default:
      node.least = node.natural && !isGone(node) ? node.natural() : wxSize(0, 0);
      break;
  }
  return node.least;
}

void place(const Node& node, const wxRect& room, const Gaps& gaps) {
  if (node.window) node.window->SetSize(node.floats ? wxRect(room.GetTopLeft(), node.natural()) : room);
  switch (node.kind) {
    case ItemKind::Row:
      placeRow(node, room, gaps);
      break;
    case ItemKind::Column:
      placeColumn(node, room, gaps);
      break;
    case ItemKind::Group:
      placeColumn(node, insideGroup(node, room, gaps), gaps);
      break;
    case ItemKind::Layers:
      for (const auto& child : node.children) place(child, room, gaps);
      break;
    default:
      break;
  }
}

}  // namespace tarnwick::ui
