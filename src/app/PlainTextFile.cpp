#include "app/PlainTextFile.h"

#include "base/ReplacingFile.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace tarnwick {

namespace {

using CharacterSet = PlainText::CharacterSet;
using LineEnd = PlainText::LineEnd;

/// Stands for bytes that no text can hold. Nobody assigns letters there.
constexpr char32_t standIn = 0x100000;
constexpr char32_t lastStandIn = standIn + 0xFF;
constexpr char32_t highestLetter = 0x10FFFF;

const std::string utf8Signature = "\xEF\xBB\xBF";
const std::string utf16LittleSignature = "\xFF\xFE";
const std::string utf16BigSignature = "\xFE\xFF";

bool isStandIn(char32_t letter) {
  return letter >= standIn && letter <= lastStandIn;
}

void appendUtf8(std::string& bytes, char32_t letter) {
  const auto add = [&bytes](char32_t value) { bytes += static_cast<char>(value); };
  if (letter < 0x80) {
    add(letter);
  } else if (letter < 0x800) {
    add(0xC0 | letter >> 6);
    add(0x80 | (letter & 0x3F));
  } else if (letter < 0x10000) {
    add(0xE0 | letter >> 12);
    add(0x80 | (letter >> 6 & 0x3F));
    add(0x80 | (letter & 0x3F));
  } else {
    add(0xF0 | letter >> 18);
    add(0x80 | (letter >> 12 & 0x3F));
    add(0x80 | (letter >> 6 & 0x3F));
    add(0x80 | (letter & 0x3F));
  }
}

/// The letter that begins at `at`, and its length; length 0 where no letter begins.
std::size_t letterAt(const std::string& bytes, std::size_t at, char32_t& letter) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned char first = byte(at);
  if (first < 0x80) {
    letter = first;
    return 1;
  }
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || at + length > bytes.size()) return 0;
  letter = first & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(at + i) & 0xC0) != 0x80) return 0;
    letter = letter << 6 | (byte(at + i) & 0x3F);
  }
  const char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = letter >= 0xD800 && letter <= 0xDFFF;
  return letter < least[length] || letter > highestLetter || surrogate ? 0 : length;
}

/// The letters of UTF-8. `doubts` counts bytes that belong to none, less the letters that prove it to be UTF-8.
std::u32string lettersOfUtf8(const std::string& bytes, long& doubts) {
  std::u32string letters;
  for (std::size_t at = 0; at < bytes.size();) {
    char32_t letter = 0;
    const std::size_t length = letterAt(bytes, at, letter);
    if (length == 0) {
      letter = standIn + static_cast<unsigned char>(bytes[at]);
      ++doubts;
    }
    if (length > 1) --doubts;
    letters += letter;
    at += length == 0 ? 1 : length;
  }
  return letters;
}

std::u32string lettersOfLatin1(const std::string& bytes) {
  std::u32string letters;
  for (const char byte : bytes) letters += static_cast<unsigned char>(byte);
  return letters;
}

char32_t unitAt(const std::string& bytes, std::size_t at, bool big) {
  const auto first = static_cast<unsigned char>(bytes[at]);
  const auto second = static_cast<unsigned char>(bytes[at + 1]);
  return big ? static_cast<char32_t>(first << 8 | second) : static_cast<char32_t>(second << 8 | first);
}

/// The letters of UTF-16 without its signature; halves of pairs that stand alone are left as they are.
std::u32string lettersOfUtf16(const std::string& bytes, bool big) {
  std::u32string letters;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    char32_t letter = unitAt(bytes, at, big);
    if (letter >= 0xD800 && letter < 0xDC00 && at + 3 < bytes.size()) {
      const char32_t low = unitAt(bytes, at + 2, big);
      if (low >= 0xDC00 && low < 0xE000) {
        letter = 0x10000 + ((letter - 0xD800) << 10) + (low - 0xDC00);
        at += 2;
      }
    }
    letters += letter;
  }
  return letters;
}

void appendUtf16(std::string& bytes, char32_t letter, bool big) {
  const auto unit = [&](char32_t value) {
    const char high = static_cast<char>(value >> 8);
    const char low = static_cast<char>(value & 0xFF);
    bytes += big ? high : low;
    bytes += big ? low : high;
  };
  if (letter < 0x10000) return unit(letter);
  unit(0xD800 + ((letter - 0x10000) >> 10));
  unit(0xDC00 + ((letter - 0x10000) & 0x3FF));
}

/// The one kind of line end that there is; a mixture counts as line feeds.
LineEnd lineEndOf(const std::u32string& letters) {
  bool lf = false;
  bool crLf = false;
  bool cr = false;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    if (letters[i] == '\n') (i > 0 && letters[i - 1] == '\r' ? crLf : lf) = true;
    if (letters[i] == '\r' && (i + 1 == letters.size() || letters[i + 1] != '\n')) cr = true;
  }
  if (crLf && !lf && !cr) return LineEnd::CrLf;
  return cr && !lf && !crLf ? LineEnd::Cr : LineEnd::Lf;
}

PlainText textOf(const std::u32string& letters, CharacterSet characterSet) {
  PlainText result;
  result.characterSet = characterSet;
  result.lineEnd = lineEndOf(letters);
  for (const char32_t letter : letters) {
    if (letter == '\r' && result.lineEnd == LineEnd::CrLf) continue;
    if (letter == '\r' && result.lineEnd == LineEnd::Cr) {
      result.text += '\n';
    } else {
      appendUtf8(result.text, letter == 0 || letter == '\r' ? standIn + letter : letter);
    }
  }
  return result;
}

PlainText guessed(const std::string& bytes) {
  long doubts = 0;
  if (bytes.starts_with(utf8Signature)) {
    return textOf(lettersOfUtf8(bytes.substr(utf8Signature.size()), doubts), CharacterSet::Utf8Signed);
  }
  if (bytes.starts_with(utf16LittleSignature)) {
    return textOf(lettersOfUtf16(bytes.substr(2), false), CharacterSet::Utf16Little);
  }
  if (bytes.starts_with(utf16BigSignature)) {
    return textOf(lettersOfUtf16(bytes.substr(2), true), CharacterSet::Utf16Big);
  }
  const auto letters = lettersOfUtf8(bytes, doubts);
  // A few bad bytes among good letters are bad bytes; nothing but bad bytes is another character set.
  return doubts > 0 ? textOf(lettersOfLatin1(bytes), CharacterSet::Latin1) : textOf(letters, CharacterSet::Utf8);
}

std::string signatureOf(CharacterSet characterSet) {
  switch (characterSet) {
    case CharacterSet::Utf8Signed:
      return utf8Signature;
    case CharacterSet::Utf16Little:
      return utf16LittleSignature;
    case CharacterSet::Utf16Big:
      return utf16BigSignature;
    default:
      return "";
  }
}

/// False if the character set does not know the letter.
bool append(std::string& bytes, char32_t letter, CharacterSet characterSet) {
  if (characterSet == CharacterSet::Utf16Little || characterSet == CharacterSet::Utf16Big) {
    appendUtf16(bytes, isStandIn(letter) ? letter - standIn : letter, characterSet == CharacterSet::Utf16Big);
  } else if (isStandIn(letter)) {
    bytes += static_cast<char>(letter - standIn);
  } else if (characterSet == CharacterSet::Latin1) {
    if (letter > 0xFF) return false;
    bytes += static_cast<char>(letter);
  } else {
    appendUtf8(bytes, letter);
  }
  return true;
}

struct Closer {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, Closer>;

/// The file's bytes; nothing if there is no such file. Throws Tarnwickfile::FileNotOpenE.
std::optional<std::string> contentOf(const std::string& path) {
  refuseSpecial(path);
  refuseLarge(platform::fileSize(path).value_or(0), path);
  const Stream stream(platform::openFile(path, "rb"));
  if (!stream && errno == ENOENT) return std::nullopt;
  if (!stream) throw Tarnwickfile::FileNotOpenE(std::strerror(errno), path);
  std::string content;
  char block[8192];
  while (const std::size_t count = std::fread(block, 1, sizeof block, stream.get())) {
    content.append(block, count);
    // A file may grow while it is read.
    refuseLarge(content.size(), path);
  }
  if (std::ferror(stream.get())) throw Tarnwickfile::FileNotOpenE(std::strerror(errno), path);
  return content;
}

}  // namespace

PlainText decoded(const std::string& bytes) {
  const PlainText guess = guessed(bytes);
  // Where the guess would not give the same bytes again, every byte is taken for a letter: that always does.
  if (encoded(guess) == bytes) return guess;
  return textOf(lettersOfLatin1(bytes), CharacterSet::Latin1);
}

std::optional<std::string> encoded(const PlainText& text) {
  std::string bytes = signatureOf(text.characterSet);
  long doubts = 0;
  for (const char32_t letter : lettersOfUtf8(text.text, doubts)) {
    if (letter == '\n' && text.lineEnd != LineEnd::Lf) append(bytes, '\r', text.characterSet);
    if (letter == '\n' && text.lineEnd == LineEnd::Cr) continue;
    if (!append(bytes, letter, text.characterSet)) return std::nullopt;
  }
  return bytes;
}

PlainTextFile::PlainTextFile() {
  if (platform::folderSeparator == '\\') content_.lineEnd = LineEnd::CrLf;
}

void PlainTextFile::load(const std::string& path) {
  const auto bytes = contentOf(path);
  content_ = bytes ? decoded(*bytes) : PlainTextFile().content_;
  bytes_ = bytes.value_or("");
  path_ = path;
}

bool PlainTextFile::changedByOthers() const {
  if (path_.empty()) return false;
  try {
    const auto now = contentOf(path_);
    return now && *now != bytes_;
  } catch (const Tarnwickfile::FileNotOpenE&) {
    // What has become a device, or larger than any text of ours, is not what was read.
    return platform::isSpecial(path_) || platform::fileSize(path_).value_or(0) > largestContent;
  }
}

std::optional<std::string> PlainTextFile::bytesOf(const std::string& text) const {
  // A carriage return can only have been pasted.
  std::string lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r')
      lines += text[i];
    else if (i + 1 == text.size() || text[i + 1] != '\n')
      lines += '\n';
  }
  return encoded({lines, content_.characterSet, content_.lineEnd});
}

void PlainTextFile::save(const std::string& path, const std::string& bytes) {
  ReplacingFile file(path, ReplacingFile::Bytes{});
  std::fwrite(bytes.data(), 1, bytes.size(), file.stream());
  file.commit();
  path_ = path;
  bytes_ = bytes;
}

}  // namespace tarnwick
