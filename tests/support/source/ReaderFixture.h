#pragma once

#include "source/SourceReader.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>

namespace tarnwick::test {

/// A reader over a text that the test gives.
class ReaderFixture : public testing::Test {
 protected:
  SourceReader& read(const std::string& text) {
    reader_.reset();
    writeFile(path(), text);
    file_ = std::make_unique<Tarnwickfile>(path(), FileMode::Read);
    reader_ = std::make_unique<SourceReader>(*file_);
    return *reader_;
  }
  std::string path() const { return scratch_.file("Some Source.java"); }
  std::string quotedPath() const { return '"' + path() + '"'; }

  /// All characters; EndBraceE shows as "^", a failure as "[its message]".
  std::string delivered(const std::string& text) {
    SourceReader& reader = read(text);
    std::string all;
    while (!reader.atEof()) all += step(reader);
    return all;
  }

  /// The same, with "s" for each character inside a string or constant, and "." for the others.
  std::string insides(const std::string& text) {
    SourceReader& reader = read(text);
    std::string all;
    for (;;) {
      char c = 0;
      const bool inside = reader.next(c);
      if (reader.atEof()) return all;
      all += inside ? 's' : '.';
    }
  }

  static std::string step(SourceReader& reader) {
    try {
      char c = 0;
      reader.next(c);
      return reader.atEof() ? std::string() : std::string(1, c);
    } catch (const SourceReader::EndBraceE&) {
      return "^";
    } catch (const SourceReader::BadDataE& failure) {
      return '[' + failure.message + ']';
    }
  }

  /// The texts without the contents of strings, "|" behind each; EndBraceE and failures as with `delivered`.
  std::string statements(const std::string& text) {
    SourceReader& reader = read(text);
    std::string all;
    while (!reader.atEof()) {
      try {
        std::string_view code;
        reader.readStatement(code);
        all += std::string(code) + '|';
      } catch (const SourceReader::EndBraceE&) {
        all += "^";
      } catch (const SourceReader::BadDataE& failure) {
        all += '[' + failure.message + ']';
      }
    }
    return all;
  }

 private:
  ScratchFolder scratch_;
  std::unique_ptr<Tarnwickfile> file_;
  std::unique_ptr<SourceReader> reader_;
};

}  // namespace tarnwick::test
