#include "platform/Process.h"

namespace tarnwick::platform {

std::string SystemError::text() const {
  return label + " error " + std::to_string(code) + '\n' + reason;
}

std::vector<std::string> splitCommandText(const std::string& text) {
  std::vector<std::string> words;
  std::string word;
  bool inWord = false;
  bool inQuotes = false;
  for (std::size_t i = 0; i < text.size();) {
    std::size_t backslashes = 0;
    while (i < text.size() && text[i] == '\\') ++backslashes, ++i;
    const bool quote = i < text.size() && text[i] == '"';
    // Backslashes are plain characters unless a double quote follows: then each pair stands for one.
    word.append(quote ? backslashes / 2 : backslashes, '\\');
    inWord = inWord || backslashes > 0;
    if (i == text.size()) break;
    const char c = text[i++];
    if (quote && backslashes % 2 == 0) {
      inWord = true;
      if (inQuotes && i < text.size() && text[i] == '"') {
        // Two of them inside a quoted stretch stand for one.
        word += '"';
        ++i;
      } else {
        inQuotes = !inQuotes;
      }
    } else if ((c == ' ' || c == '\t') && !inQuotes) {
      if (inWord) words.push_back(word);
      word.clear();
      inWord = false;
    } else {
      word += c;
      inWord = true;
    }
  }
  if (inWord) words.push_back(word);
  return words;
}

}  // namespace tarnwick::platform
