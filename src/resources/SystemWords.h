// The words of the system that the user sits at. Texts are written in Windows' words; where another desktop calls the
// same thing by another name, a table holds both.
#pragma once

#include <string>
#include <vector>

namespace tarnwick {

/// A whole text in the words of both.
struct WordPair {
  std::string onWindows;
  std::string elsewhere;
};

/// All texts that differ, in no order that would matter.
const std::vector<WordPair>& wordPairs();

/// The text as this system's user knows it. A text that stands in no pair is the same everywhere.
std::string inSystemWords(const std::string& windowsWords);
/// The same, for a desktop that is Windows or is not.
std::string inWordsOf(bool windowsDesktop, const std::string& windowsWords);

}  // namespace tarnwick
