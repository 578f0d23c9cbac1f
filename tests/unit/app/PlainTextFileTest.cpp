#include "app/PlainTextFile.h"
#include "base/Tarnwickfile.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <random>

namespace tarnwick::test {
namespace {

using CharacterSet = PlainText::CharacterSet;
using LineEnd = PlainText::LineEnd;
using namespace std::string_literals;

TEST(PlainText, ATextIsReadInItsCharacterSetWithItsLineEnds) {
  const struct {
    std::string bytes;
    std::string text;
    CharacterSet characterSet;
    LineEnd lineEnd;
  } table[] = {
      {"", "", CharacterSet::Utf8, LineEnd::Lf},
      {"a\nb", "a\nb", CharacterSet::Utf8, LineEnd::Lf},
      {"a\r\nb\r\n", "a\nb\n", CharacterSet::Utf8, LineEnd::CrLf},
      {"a\rb\r", "a\nb\n", CharacterSet::Utf8, LineEnd::Cr},
      {"\xC3\xA4\xE6\x97\xA5\xF0\x9F\x98\x80", "\xC3\xA4\xE6\x97\xA5\xF0\x9F\x98\x80", CharacterSet::Utf8, LineEnd::Lf},
      {"\xEF\xBB\xBF\xC3\xA4", "\xC3\xA4", CharacterSet::Utf8Signed, LineEnd::Lf},
      {"\xFF\xFE\xE4\0\r\0\n\0"s, "\xC3\xA4\n", CharacterSet::Utf16Little, LineEnd::CrLf},
      {"\xFE\xFF\0\xE4\xD8\x3D\xDE\0"s, "\xC3\xA4\xF0\x9F\x98\x80", CharacterSet::Utf16Big, LineEnd::Lf},
      {"Stra\xDF"
       "e",
       "Stra\xC3\x9F"
       "e",
       CharacterSet::Latin1, LineEnd::Lf},
      {"\xC3\xA4\xE6\x97\xA5\xFF", "\xC3\xA4\xE6\x97\xA5\xF4\x80\x83\xBF", CharacterSet::Utf8, LineEnd::Lf},
      {"a\0b"s,
       "a\xF4\x80\x80\x80"
       "b",
       CharacterSet::Utf8, LineEnd::Lf},
      {"a\r\nb\n", "a\xF4\x80\x80\x8D\nb\n", CharacterSet::Utf8, LineEnd::Lf},
  };
  for (const auto& row : table) {
    const PlainText text = decoded(row.bytes);
    EXPECT_EQ(text.text, row.text) << row.bytes;
    EXPECT_EQ(text.characterSet, row.characterSet) << row.bytes;
    EXPECT_EQ(text.lineEnd, row.lineEnd) << row.bytes;
    EXPECT_EQ(encoded(text), row.bytes);
  }
}

TEST(PlainText, AnyBytesComeBackAsTheyWere) {
  std::mt19937 random(4711);
  const std::string pieces[] = {"\r",           "\n",   "\r\n",   "\0"s,          "a",
                                "\xC3\xA4",     "\xFF", "\xFE",   "\xEF\xBB\xBF", "\xF4\x80\x80\x80",
                                "\xED\xA0\x80", "\xD8", "\xDC\0"s};
  for (int i = 0; i < 20000; ++i) {
    std::string bytes;
    for (auto count = random() % 8; count > 0; --count) bytes += pieces[random() % std::size(pieces)];
    ASSERT_EQ(encoded(decoded(bytes)), bytes) << i;
  }
}

TEST(PlainText, ALetterThatTheCharacterSetDoesNotKnowCannotBeWritten) {
  PlainText text = decoded(
      "Stra\xDF"
      "e");
  text.text += "\xE2\x82\xAC";
  EXPECT_EQ(encoded(text), std::nullopt);
  text.characterSet = CharacterSet::Utf8;
  EXPECT_EQ(encoded(text),
            "Stra\xC3\x9F"
            "e\xE2\x82\xAC");
}

TEST(PlainTextFile, WhatIsSavedKeepsCharacterSetAndLineEnds) {
  const ScratchFolder folder;
  writeFile(folder.file("x"),
            "Stra\xDF"
            "e\r\n");
  PlainTextFile file;
  file.load(folder.file("x"));
  const auto bytes = file.bytesOf(file.text() + "\xC3\xA4\n");
  ASSERT_TRUE(bytes);
  file.save(folder.file("x"), *bytes);
  EXPECT_EQ(contentOf(folder.file("x")),
            "Stra\xDF"
            "e\r\n\xE4\r\n");
  EXPECT_FALSE(file.changedByOthers());
}

TEST(PlainTextFile, PastedLineEndsBecomeThoseOfTheText) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "a\r\n");
  PlainTextFile file;
  file.load(folder.file("x"));
  EXPECT_EQ(file.bytesOf("a\nb\r\nc\rd"), "a\r\nb\r\nc\r\nd");
}

TEST(PlainTextFile, AFileThatIsNotThereIsEmptyAndMadeBySaving) {
  const ScratchFolder folder;
  PlainTextFile file;
  EXPECT_EQ(file.path(), "");
  file.load(folder.file("x"));
  EXPECT_EQ(file.text(), "");
  EXPECT_EQ(file.path(), folder.file("x"));
  EXPECT_FALSE(platform::isFile(folder.file("x")));
  EXPECT_FALSE(file.changedByOthers());
  file.save(folder.file("x"), "new\n");
  EXPECT_EQ(contentOf(folder.file("x")), "new\n");
}

TEST(PlainTextFile, AFolderIsToldAndTheTextBeforeStays) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "kept");
  PlainTextFile file;
  file.load(folder.file("x"));
  EXPECT_THROW(file.load(folder.path()), Tarnwickfile::FileNotOpenE);
  EXPECT_EQ(file.text(), "kept");
  EXPECT_EQ(file.path(), folder.file("x"));
}

TEST(PlainTextFile, WhatOthersWroteIsNoticed) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "a");
  PlainTextFile file;
  EXPECT_FALSE(file.changedByOthers()) << "no file yet";
  file.load(folder.file("x"));
  EXPECT_FALSE(file.changedByOthers());
  writeFile(folder.file("x"), "b");
  EXPECT_TRUE(file.changedByOthers());
  file.save(folder.file("x"), "c");
  EXPECT_FALSE(file.changedByOthers());
}

TEST(PlainTextFile, AFailedSaveIsThrownAndNothingChanges) {
  const ScratchFolder folder;
  writeFile(folder.file("x"), "a");
  PlainTextFile file;
  file.load(folder.file("x"));
  const std::string elsewhere = folder.file("x") + platform::folderSeparator + "y";
  EXPECT_THROW(file.save(elsewhere, "b"), Tarnwickfile::FileNotOpenE);
  EXPECT_EQ(file.path(), folder.file("x"));
  EXPECT_EQ(contentOf(folder.file("x")), "a");
}

}  // namespace
}  // namespace tarnwick::test
