// The words and the controls of a dialog's layout.
#pragma once

#include "resources/DialogLayout.h"

#include <string>
#include <vector>

namespace tarnwick::test {

using Words = std::vector<std::string>;

/// Adds the words of a control and of those inside it.
inline void collect(const DialogItem& item, Words& words) {
  if (!item.text.empty()) words.push_back(item.text);
  for (const auto& child : item.children) collect(child, words);
}

/// All words of a dialog in the order of reading, its title first.
inline Words wordsOf(const DialogLayout& layout) {
  Words words;
  if (!layout.title.empty()) words.push_back(layout.title);
  collect(layout.content, words);
  return words;
}

/// The control with this number; null for none.
inline const DialogItem* find(const DialogItem& item, int control) {
  if (item.control == control) return &item;
  for (const auto& child : item.children) {
    if (const auto* found = find(child, control)) return found;
  }
  return nullptr;
}

}  // namespace tarnwick::test
