// Nothing that is shown speaks of another system than the one it is shown on.
#include "platform/Path.h"
#include "resources/Menu.h"
#include "resources/SystemWords.h"
#include "resources/Toolbar.h"
#include "support/AllLayouts.h"
#include "support/CheckoutFolder.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

namespace tarnwick::test {
namespace {

namespace fs = std::filesystem;

/// Whether a text holds a word of Windows alone. Our own windows are none, nor are the names of programs.
bool speaksOfWindows(const std::string& text) {
  static const std::regex words(
      R"re(Windows|Explorer|Notepad|NOTEPAD|[Ss]tart ?[Mm]enu|[Ss]tart ?button|AUTOEXEC|WinShortcut|\.exe)re");
  return std::regex_search(text, words);
}

/// A text in a source: literals with nothing but blanks between them.
struct SourceText {
  int line = 0;
  std::string text;
  bool isPaired = false;  ///< it is what `inSystemWords` is given
};

/// Reads the texts of one source.
class TextReader {
 public:
  explicit TextReader(const std::string& source) : source_(source) {}

  std::vector<SourceText> texts() {
    while (at_ < source_.size()) step();
    flush();
    return texts_;
  }

 private:
  bool here(const char* words) const { return source_.compare(at_, std::strlen(words), words) == 0; }

  void step() {
    const char c = source_[at_];
    if (here("//") || (c == '#' && atLineStart_))
      skipTo("\n");
    else if (here("/*"))
      skipTo("*/");
    else if (c == '"')
      literal();
    else if (c == '\'' && !std::isalnum(static_cast<unsigned char>(lastOfCode())))
      character();
    else
      code(c);
  }

  char lastOfCode() const { return code_.empty() ? ' ' : code_.back(); }

  void skipTo(const char* end) {
    const auto found = source_.find(end, at_);
    const auto next = found == std::string::npos ? source_.size() : found;
    line_ += static_cast<int>(std::count(source_.begin() + static_cast<std::ptrdiff_t>(at_),
                                         source_.begin() + static_cast<std::ptrdiff_t>(next), '\n'));
    at_ = std::min(source_.size(), next + (*end == '\n' ? 0 : 2));
  }

  void code(char c) {
    if (c == '\n') ++line_;
    if (c == '\n') atLineStart_ = true;
    if (!std::isspace(static_cast<unsigned char>(c))) {
      flush();
      atLineStart_ = false;
      code_ += c;
    }
    ++at_;
  }

  void character() {
    flush();
    for (++at_; at_ < source_.size() && source_[at_] != '\''; ++at_) at_ += source_[at_] == '\\' ? 1 : 0;
    ++at_;
    code_ += '\'';
  }

  void literal() {
    atLineStart_ = false;
    if (!open_) {
      open_ = true;
      text_ = {line_, "", code_.ends_with("inSystemWords(")};
    }
    if (lastOfCode() == 'R') return raw();
    for (++at_; at_ < source_.size() && source_[at_] != '"'; ++at_) {
      const bool escaped = source_[at_] == '\\';
      if (escaped) ++at_;
      text_.text += escaped && source_[at_] == 'n' ? '\n' : source_[at_];
    }
    ++at_;
  }

  void raw() {
    const auto bracket = source_.find('(', at_);
    const std::string end = ')' + source_.substr(at_ + 1, bracket - at_ - 1) + '"';
    const auto found = std::min(source_.find(end, bracket), source_.size());
    text_.text += source_.substr(bracket + 1, found - bracket - 1);
    at_ = std::min(source_.size(), found + end.size());
  }

  void flush() {
    if (open_) texts_.push_back(text_);
    open_ = false;
  }

  const std::string& source_;
  std::size_t at_ = 0;
  int line_ = 1;
  bool atLineStart_ = true;
  bool open_ = false;
  SourceText text_;
  std::string code_;  ///< without blanks and texts
  std::vector<SourceText> texts_;
};

/// What names a file or a setting, and shows nowhere.
const std::set<std::pair<std::string, std::string>>& namesOfThings() {
  static const std::set<std::pair<std::string, std::string>> names = {
      {"settings/SettingsValues.cpp", "EDITOR=NOTEPAD"},
      {"settings/SettingsValues.cpp", "DISPLAY=NOTEPAD"},
      {"process/EditorLaunch.cpp", "Notepad"},
      {"resources/PanelPictures.cpp", "WinShortcut"},
      {"process/EditorLaunch.cpp", ".exe"},
      {"process/EditorForms.cpp", ".exe"},
  };
  return names;
}

class ShownWordsTest : public testing::Test {
 protected:
  void SetUp() override {
    if (platform::folderSeparator == '\\' && !fs::exists(sources()))
      GTEST_SKIP() << "the sources are not on this machine: " << sources();
  }

  /// Under Wine they are on drive Z:.
  static fs::path sources() {
    const std::string path = checkoutFolder() + "/src";  // UTF-8, whatever this process's own set is
    const fs::path folder(std::u8string(path.begin(), path.end()));
    return platform::folderSeparator == '\\' && !folder.has_root_name() ? fs::path("Z:") / folder : folder;
  }

  /// Calls `look` for each text of each source that is made for more than Windows, the table itself aside.
  template <typename Look>
  static int eachText(const Look& look) {
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(sources())) {
      const std::string name = entry.path().lexically_relative(sources()).generic_string();
      const bool isSource = name.ends_with(".cpp") || name.ends_with(".h");
      if (!isSource || name.find("win32/") != std::string::npos || name == "resources/SystemWords.cpp") continue;
      std::ifstream in(entry.path(), std::ios::binary);
      std::ostringstream bytes;
      bytes << in.rdbuf();
      const std::string content = bytes.str();
      for (const auto& text : TextReader(content).texts()) look(name, text);
      ++files;
    }
    return files;
  }

  static std::vector<SourceText> read(const std::string& source) { return TextReader(source).texts(); }
};

TEST_F(ShownWordsTest, EveryTextThatSpeaksOfWindowsHasAPair) {
  std::set<std::pair<std::string, std::string>> found;
  const int files = eachText([&](const std::string& name, const SourceText& text) {
    if (!speaksOfWindows(text.text) || text.isPaired) return;
    found.emplace(name, text.text);
    EXPECT_TRUE(namesOfThings().count({name, text.text})) << name << ':' << text.line << ": " << text.text;
  });
  EXPECT_GT(files, 200);
  EXPECT_EQ(found, namesOfThings()) << "what shows nowhere";
}

TEST_F(ShownWordsTest, ThePairsAreThoseThatAreAskedFor) {
  std::set<std::string> asked;
  eachText([&](const std::string&, const SourceText& text) {
    if (text.isPaired) asked.insert(text.text);
  });
  std::set<std::string> known;
  for (const auto& pair : wordPairs()) known.insert(pair.onWindows);
  EXPECT_EQ(asked, known);
  EXPECT_EQ(known.size(), wordPairs().size()) << "a text has one pair";
}

TEST_F(ShownWordsTest, TheOtherSideSpeaksOfNoWindows) {
  for (const auto& pair : wordPairs()) {
    EXPECT_TRUE(speaksOfWindows(pair.onWindows) || pair.onWindows.find("Asterisk") != std::string::npos ||
                pair.onWindows.find("Exclamation") != std::string::npos)
        << pair.onWindows;
    EXPECT_FALSE(speaksOfWindows(pair.elsewhere)) << pair.elsewhere;
  }
}

TEST_F(ShownWordsTest, TextsAreReadWhole) {
  const auto texts = read(
      "#include \"Windows\"\nf(\"a\\\"b\"\n  \"c\\n\", // \"d\"\n '\"', 1'000, /* \"e\" */ "
      "inSystemWords(\n\"x\" \"y\"), R\"re(r\"\\n)re\");");
  ASSERT_EQ(texts.size(), 3U);
  EXPECT_EQ(texts[0].text, "a\"bc\n");
  EXPECT_EQ(texts[0].line, 2);
  EXPECT_FALSE(texts[0].isPaired);
  EXPECT_EQ(texts[1].text, "xy");
  EXPECT_EQ(texts[1].line, 5);
  EXPECT_TRUE(texts[1].isPaired);
  EXPECT_EQ(texts[2].text, "r\"\\n");
  EXPECT_FALSE(texts[2].isPaired);
}

/// All that a layout shows or tells to readers of the screen.
void collect(const DialogItem& item, std::vector<std::string>& words) {
  words.push_back(item.text);
  words.push_back(item.spoken);
  words.insert(words.end(), item.entries.begin(), item.entries.end());
  for (const auto& child : item.children) collect(child, words);
}

TEST(ShownLayoutsTest, TheyAreInTheSystemsOwnWords) {
  std::vector<std::string> words;
  for (const auto* layout : allLayouts()) {
    words.push_back(layout->title);
    collect(layout->content, words);
  }
  for (const auto* const bar : {&consoleMenuBar(), &newerConsoleMenuBar()}) {
    for (const auto& menu : *bar) {
      words.push_back(menu.title);
      for (const auto& entry : menu.items) words.push_back(entry.text);
    }
  }
  for (const auto& button : debuggerToolbar()) words.push_back(button.toolTip);
  ASSERT_GT(words.size(), 300U);
  const bool windows = platform::folderSeparator == '\\';
  for (const auto& pair : wordPairs()) {
    EXPECT_EQ(std::count(words.begin(), words.end(), windows ? pair.elsewhere : pair.onWindows), 0)
        << (windows ? pair.elsewhere : pair.onWindows);
  }
  for (const auto& word : words) EXPECT_TRUE(windows || !speaksOfWindows(word)) << word;
}

}  // namespace
}  // namespace tarnwick::test
