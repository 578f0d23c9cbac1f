#pragma once

#include <optional>
#include <string>

namespace tarnwick {

/// A text with all that is needed to give back the bytes it was read from.
struct PlainText {
  enum class CharacterSet { Utf8, Utf8Signed, Utf16Little, Utf16Big, Latin1 };
  enum class LineEnd { Lf, CrLf, Cr };

  /// In UTF-8, with a line feed at each line's end. A zero byte, a carriage return that ends no line of the text's own
  /// kind, and a byte that belongs to no character have stand-ins from U+100000 on.
  std::string text;
  CharacterSet characterSet = CharacterSet::Utf8;
  LineEnd lineEnd = LineEnd::Lf;
};

/// Takes bytes for a text. What is not changed comes back byte for byte from `encoded`, whatever it was.
PlainText decoded(const std::string& bytes);

/// The bytes of a text; nothing if its character set does not know one of its letters.
std::optional<std::string> encoded(const PlainText& text);

/// A file with a text in it, as an editor holds it.
class PlainTextFile {
 public:
  /// A text without a name.
  PlainTextFile();

  /// Reads a file. One that does not exist is empty and is made by `save`. Throws Tarnwickfile::FileNotOpenE, and then
  /// nothing has changed.
  void load(const std::string& path);

  /// True if the file no longer holds what was read from it or written to it.
  bool changedByOthers() const;

  /// The bytes that the text would be saved as; nothing if the character set does not know one of its letters.
  std::optional<std::string> bytesOf(const std::string& text) const;

  /// Puts the text in the file's place in one step. Throws Tarnwickfile::FileNotOpenE, with the file as it was.
  void save(const std::string& path, const std::string& bytes);

  /// From now on the text is saved as UTF-8.
  void useUtf8() { content_.characterSet = PlainText::CharacterSet::Utf8; }

  /// The text as it was read.
  const std::string& text() const { return content_.text; }
  /// Empty for a text without a name.
  const std::string& path() const { return path_; }

 private:
  std::string path_;
  PlainText content_;
  std::string bytes_;  ///< what the file held when it was read or saved
};

}  // namespace tarnwick
