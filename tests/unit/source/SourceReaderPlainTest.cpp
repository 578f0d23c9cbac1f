// The scanner and the outline read in blocks and take shortcuts. Whatever the text, they give what the plain rules
// give.
#include "support/TestProgram.h"
#include "support/source/PlainOutline.h"
#include "support/source/PlainSourceReader.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace tarnwick::test {
namespace {

using namespace std::string_literals;

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}
  int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(engine_); }

  /// Pieces of Java and of rubbish; the share of rubbish differs from text to text.
  std::string text(int pieces) {
    static const std::vector<std::string> java = {"class A",
                                                  "class B extends A",
                                                  "interface I extends J, K",
                                                  "implements X, Y ",
                                                  "package p.q;",
                                                  "public ",
                                                  "static ",
                                                  "void ",
                                                  "main(String[] a) ",
                                                  "{",
                                                  "{",
                                                  "{",
                                                  "}",
                                                  "}",
                                                  "}",
                                                  ";",
                                                  ";",
                                                  " ",
                                                  "\n",
                                                  "\r\n",
                                                  "\r",
                                                  "/* c */ ",
                                                  "/** d { } ' \" **/",
                                                  "// e ' \" {\n",
                                                  "\"s;{}\"",
                                                  "'c'",
                                                  "'\\n'",
                                                  "'\\u00e4'",
                                                  "x = y / z",
                                                  "import a.b;",
                                                  "\"a\\\"b\""};
    static const std::vector<std::string> rubbish = {"/",    "*",   "\"",   "'",    "\\",   "/*",   "*/",
                                                     "//",   "u",   "f",    "\0"s,  "\xFF", "\xFE", "''",
                                                     "/**/", "/*/", "'ab'", "{{{{", "}}}}"};
    const int share = below(8);
    std::string all;
    for (; pieces > 0; --pieces) {
      const auto& list = below(10) < share / 2 ? rubbish : java;
      all += list[static_cast<std::size_t>(below(static_cast<int>(list.size())))];
      if (below(400) == 0) all += std::string(static_cast<std::size_t>(below(70'000)), " x;"[below(3)]);
    }
    return all;
  }

 private:
  std::mt19937 engine_;
};

template <typename Reader>
std::string afterwards(Reader& reader, const std::string& what) {
  return what + " line " + std::to_string(reader.line()) + (reader.atEof() ? " end\n" : "\n");
}

/// One step of a reader, and what came of it.
template <typename Reader>
std::string step(Reader& reader, int kind) {
  try {
    if (kind == 0) {
      char c = 'x';
      const bool inside = reader.next(c);
      return afterwards(reader, "character " + std::string(1, c) + (inside ? " inside" : " outside"));
    }
    std::string_view code;
    std::string_view raw;
    reader.readStatement(code, kind == 1 ? &raw : nullptr);
    return afterwards(reader, "statement " + std::string(code) + '|' + std::string(raw));
  } catch (const SourceReader::EndBraceE&) {
    return afterwards(reader, "end");
  } catch (const SourceReader::BadDataE& failure) {
    return afterwards(reader, failure.message + failure.file);
  }
}

std::string stepOfLevel(PlainSourceReader& reader, bool statement) {
  try {
    std::string_view code;
    char c = 0;
    if (statement) reader.readStatement(code);
    while (!statement && !reader.atEof()) reader.next(c);
    return afterwards(reader, statement ? "statement " + std::string(code) : "no end");
  } catch (const SourceReader::EndBraceE&) {
    return afterwards(reader, "end");
  } catch (const SourceReader::BadDataE& failure) {
    return afterwards(reader, failure.message);
  }
}

std::string stepOfLevel(SourceReader& reader, bool statement) {
  try {
    std::string_view code;
    const bool goesOn = statement ? reader.readStatementOfLevel(code) : !reader.skipLevel();
    if (!goesOn) return afterwards(reader, "end");
    return afterwards(reader, statement ? "statement " + std::string(code) : "no end");
  } catch (const SourceReader::BadDataE& failure) {
    return afterwards(reader, failure.message);
  }
}

TEST(SourceReaderPlainTest, OnRandomTextsTheReaderFollowsThePlainRules) {
  const ScratchFolder scratch;
  const std::string path = scratch.file("A.java");
  for (unsigned seed = 0; seed < 300; ++seed) {
    Random random(seed);
    writeFile(path, random.text(1 + random.below(200)));
    Tarnwickfile file = Tarnwickfile::unopened(path, FileMode::Read);
    Tarnwickfile plainFile = Tarnwickfile::unopened(path, FileMode::Read);
    SourceReader reader(file);
    PlainSourceReader plain(plainFile);
    const int kinds = 1 + random.below(5);
    for (int behindEnd = 0; behindEnd < 5; behindEnd += plain.atEof()) {
      const int kind = random.below(kinds);
      if (random.below(5) == 0) {
        reader.pushLevel();
        plain.pushLevel();
      }
      if (kind < 3)
        ASSERT_EQ(step(reader, kind), step(plain, kind)) << "seed " << seed;
      else
        ASSERT_EQ(stepOfLevel(reader, kind == 3), stepOfLevel(plain, kind == 3)) << "seed " << seed;
    }
  }
}

TEST(SourceReaderPlainTest, OnRandomTextsTheOutlineFollowsThePlainRules) {
  const ScratchFolder scratch;
  const std::string path = scratch.file("A.java");
  for (unsigned seed = 0; seed < 1000; ++seed) {
    Random random(seed);
    writeFile(path, random.text(1 + random.below(60)));
    ASSERT_EQ(outlineOf(path), plainOutlineOf(path)) << "seed " << seed;
  }
}

TEST(SourceReaderPlainTest, WhereverABlockEnds) {
  const ScratchFolder scratch;
  const std::string path = scratch.file("A.java");
  const std::string tail =
      "\r\n/* a\r\n*/ class A { String s = \"\\\"\"; char c = '\\u0041'; // x\r\n void f() { } }\r\n}\r\n";
  for (std::size_t shift = 0; shift <= tail.size(); ++shift) {
    const std::string before = std::string(65'536 - shift, ' ');
    writeFile(path, before + tail);
    ASSERT_EQ(outlineOf(path), plainOutlineOf(path)) << shift;
    EXPECT_NE(outlineOf(path).find("Line 5: Too many }"), std::string::npos) << outlineOf(path);
  }
}

/// All characters of a file and what was told besides.
template <typename Reader>
std::string allSteps(const std::string& path) {
  Tarnwickfile file = Tarnwickfile::unopened(path, FileMode::Read);
  Reader reader(file);
  std::string all;
  while (!reader.atEof()) all += step(reader, 0);
  return all + step(reader, 0);
}

TEST(SourceReaderPlainTest, WhereverABlockEndsWhatIsTakenForTheEndIs) {
  const ScratchFolder scratch;
  const std::string path = scratch.file("A.java");
  const std::vector<std::string> tails = {"a/* \xFF */b",
                                          "a/**\xFF*/b",
                                          "a// \xFF\nb",
                                          "a/\xFFz",
                                          "a/**/\xFFz",
                                          "a\xFF\"\xFF\\\xFF\"'\xFF'z",
                                          "'a\xFF",
                                          "/* \0 */ // \0\n"s,
                                          "/* x *",
                                          "/* x */",
                                          "// x",
                                          "\"\\",
                                          "'",
                                          "'a",
                                          "'\\",
                                          "'\\u00e4",
                                          "/",
                                          "{}",
                                          "{/**/}/**/}"};
  // A block of 65,536 bytes and a little more, so that each byte of the tail is the first of the next one.
  for (const std::string& tail : tails) {
    for (std::size_t shift = 0; shift <= tail.size(); ++shift) {
      writeFile(path, "/*" + std::string(65'536 - 4 - shift, ' ') + "*/" + tail);
      ASSERT_EQ(allSteps<SourceReader>(path), allSteps<PlainSourceReader>(path)) << tail << " at " << shift;
    }
  }
}

}  // namespace
}  // namespace tarnwick::test
