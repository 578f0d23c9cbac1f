#include "base/Tarnwickfile.h"
#include "support/source/ReaderFixture.h"

namespace tarnwick::test {
namespace {

using namespace std::string_literals;

class SourceReaderTest : public ReaderFixture {};

const std::string invalid = "[Line 1: Invalid character constant.]";

TEST_F(SourceReaderTest, OpensTheFileForReadingAndClosesIt) {
  ScratchFolder scratch;
  writeFile(scratch.file("A.java"), "x");
  Tarnwickfile file = Tarnwickfile::unopened(scratch.file("A.java"), FileMode::Append);
  {
    SourceReader reader(file);
    EXPECT_TRUE(file.isOpen());
    EXPECT_EQ(file.mode(), FileMode::Read);
    EXPECT_EQ(reader.line(), 1);
    EXPECT_FALSE(reader.atEof());
  }
  EXPECT_FALSE(file.isOpen());
}

TEST_F(SourceReaderTest, AFileThatCannotBeOpenedIsToldByItsPlainName) {
  ScratchFolder scratch;
  Tarnwickfile file = Tarnwickfile::unopened(scratch.file("no such.java"), FileMode::Read);
  try {
    SourceReader reader(file);
    FAIL() << "opened";
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    EXPECT_EQ(failure.file, scratch.file("no such.java"));
  }
}

TEST_F(SourceReaderTest, AFolderIsNoFile) {
  ScratchFolder scratch;
  Tarnwickfile file = Tarnwickfile::unopened(scratch.path(), FileMode::Read);
  EXPECT_THROW(SourceReader reader(file), Tarnwickfile::FileNotOpenE);
}

TEST_F(SourceReaderTest, AnEmptyFile) {
  SourceReader& reader = read("");
  EXPECT_FALSE(reader.atEof()) << "nothing has been read yet";
  char c = 'x';
  EXPECT_FALSE(reader.next(c));
  EXPECT_EQ(c, '\0');
  EXPECT_TRUE(reader.atEof());
  EXPECT_FALSE(reader.next(c)) << "again";
  EXPECT_EQ(c, '\0');
}

TEST_F(SourceReaderTest, TheEndIsSeenByTheReadBehindTheLastCharacter) {
  SourceReader& reader = read("a");
  char c = 0;
  reader.next(c);
  EXPECT_EQ(c, 'a');
  EXPECT_FALSE(reader.atEof());
  reader.next(c);
  EXPECT_EQ(c, '\0');
  EXPECT_TRUE(reader.atEof());
}

// The machine of comments, row by row.

TEST_F(SourceReaderTest, CommentsAreRemoved) {
  EXPECT_EQ(delivered("a /* x */ b"), "a  b") << "the blank behind the comment is delivered";
  EXPECT_EQ(delivered("a // x\nb"), "a \nb");
  EXPECT_EQ(delivered("a // x\rb"), "a \rb") << "a carriage return ends a line comment";
}

TEST_F(SourceReaderTest, ALoneSlashIsDelivered) {
  EXPECT_EQ(delivered("a/b"), "a/b");
  EXPECT_EQ(delivered("/ /"), "/ ") << "the last one waits for what follows, which does not come";
  EXPECT_EQ(delivered("a/;b"), "a/;b");
  EXPECT_EQ(delivered("/\n/"), "/\n");
}

TEST_F(SourceReaderTest, BlockComments) {
  EXPECT_EQ(delivered("/*/x*/y"), "y") << "the star of the beginning is not used again";
  EXPECT_EQ(delivered("/**/x"), "x");
  EXPECT_EQ(delivered("/***/x"), "x");
  EXPECT_EQ(delivered("/* **/x"), "x");
  EXPECT_EQ(delivered("/* * / */x"), "x") << "a star and something else go on";
  EXPECT_EQ(delivered("/* // */x"), "x");
  EXPECT_EQ(delivered("/* /* */x*/"), "x*") << "they do not nest";
  EXPECT_EQ(delivered("/* \n */x"), "x");
}

TEST_F(SourceReaderTest, TheCharacterBehindABlockCommentBeginsNothing) {
  EXPECT_EQ(delivered("/**//x\n"), "/x\n");
  EXPECT_EQ(delivered("/**//*x"), "/*x");
  EXPECT_EQ(delivered("/**/\"//\""), "\"") << "the quote opens no string, so a comment follows";
  EXPECT_EQ(insides("/**/\"a"), "..");
  EXPECT_EQ(delivered("/**/'ab"), "'ab") << "nor a character constant";
}

TEST_F(SourceReaderTest, TheCharacterBehindALoneSlashBeginsNothing) {
  EXPECT_EQ(insides("/\"a"), "...");
  EXPECT_EQ(delivered("/'ab"), "/'ab");
}

TEST_F(SourceReaderTest, BracesBehindASlashOrACommentCount) {
  EXPECT_EQ(delivered("{/}x"), "{/}^x");
  EXPECT_EQ(delivered("/**/{/**/}x"), "{}^x");
}

TEST_F(SourceReaderTest, LineComments) {
  EXPECT_EQ(delivered("// a * / /* \nx"), "\nx");
  EXPECT_EQ(delivered("//\nx"), "\nx");
  EXPECT_EQ(delivered("///x\ny"), "\ny");
}

TEST_F(SourceReaderTest, AnOpenCommentEndsWithTheFile) {
  EXPECT_EQ(delivered("a//"), "a");
  EXPECT_EQ(delivered("a// x"), "a");
  EXPECT_EQ(delivered("a/*"), "a");
  EXPECT_EQ(delivered("a/* x *"), "a");
  EXPECT_EQ(delivered("a/* x */"), "a");
}

TEST_F(SourceReaderTest, BracesAndQuotesInCommentsAreNothing) {
  EXPECT_EQ(delivered("/* }'\" */ a // }'\"\nb"), " a \nb");
}

// The machine of strings, row by row.

TEST_F(SourceReaderTest, TheOpeningQuoteIsInsideTheClosingOneOutside) {
  EXPECT_EQ(insides("a\"b\"c"), ".ss..");
  EXPECT_EQ(insides("a'b'c"), ".ss..");
  EXPECT_EQ(insides("\"\"\""), "s.s");
}

TEST_F(SourceReaderTest, ABackslashInAStringHidesTheNextCharacter) {
  EXPECT_EQ(insides("\"\\\"a\"b"), "ssss..");
  EXPECT_EQ(insides("\"\\\\\"b"), "sss..");
  EXPECT_EQ(insides("\"\\n\"b"), "sss..");
}

TEST_F(SourceReaderTest, AStringStartsNoComment) {
  EXPECT_EQ(delivered("\"// /* \"x"), "\"// /* \"x");
  EXPECT_EQ(delivered("'/' '*'x"), "'/' '*'x");
  EXPECT_EQ(delivered("\"'\"x"), "\"'\"x") << "nor a character constant";
  EXPECT_EQ(delivered("'\"'x"), "'\"'x");
  EXPECT_EQ(insides("'\"'x"), "ss..");
}

TEST_F(SourceReaderTest, AStringMayRunOverLines) {
  EXPECT_EQ(insides("\"\n;\"x"), "sss..");
}

TEST_F(SourceReaderTest, CharacterConstants) {
  for (const std::string good :
       {"'a'", "'\\n'", "'\\u0041'", "'\\''", "'\\\\'", "'\"'", "'''", "'\\u'", "'\\uabcdefABCDEF0123456789'"})
    EXPECT_EQ(delivered(good + "x"), good + "x");
  EXPECT_EQ(insides("'\\u00Af'x"), "sssssss..");
  EXPECT_EQ(insides("'\\''x"), "sss..");
  EXPECT_EQ(insides("'''x"), "ss..") << "a single quote stands for itself";
}

TEST_F(SourceReaderTest, BadCharacterConstants) {
  EXPECT_EQ(delivered("'ab'"), "'a" + invalid + "'") << "the b is lost";
  EXPECT_EQ(delivered("'\\n2'"), "'\\n" + invalid + "'");
  EXPECT_EQ(delivered("'\\u00g'"), "'\\u00" + invalid + "'");
  EXPECT_EQ(delivered("''a"), "''" + invalid);
  EXPECT_EQ(delivered("'\\'a"), "'\\'" + invalid);
}

TEST_F(SourceReaderTest, AfterABadConstantTheReaderGoesOnInCode) {
  EXPECT_EQ(delivered("'ab x // c\ny"), "'a" + invalid + " x \ny");
  EXPECT_EQ(delivered("'a\"// c\nb\"//"), "'a" + invalid + "\nb\"//") << "what was refused has opened nothing";
}

TEST_F(SourceReaderTest, ABadConstantNamesTheFile) {
  SourceReader& reader = read("\n\n'ab");
  char c = 0;
  for (int i = 0; i < 4; ++i) reader.next(c);
  try {
    reader.next(c);
    FAIL() << "accepted";
  } catch (const SourceReader::BadDataE& failure) {
    EXPECT_EQ(failure.message, "Line 3: Invalid character constant.");
    EXPECT_EQ(failure.file, quotedPath());
  }
}

TEST_F(SourceReaderTest, ALineFeedThatSpoilsAConstantIsNotCounted) {
  EXPECT_EQ(delivered("'a\n'b\n"), "'a" + invalid + "'b" + invalid) << "still in line 1";
}

TEST_F(SourceReaderTest, TheEndOfTheFileSpoilsAConstant) {
  EXPECT_EQ(delivered("'a"), "'a" + invalid);
  EXPECT_EQ(delivered("'\\n"), "'\\n" + invalid);
  EXPECT_EQ(delivered("'\\u0"), "'\\u0" + invalid);
  EXPECT_EQ(delivered("'"), "'") << "the end is taken for the character in it";
  EXPECT_EQ(delivered("\"a"), "\"a") << "a string just ends";
}

// Bytes that are no text.

TEST_F(SourceReaderTest, AByteOf255InCodeIsDeliveredAsZero) {
  EXPECT_EQ(delivered("a\xFF"
                      "b"),
            "a\0b"s);
  EXPECT_EQ(insides("\"\xFF\"b"), "ss..");
  EXPECT_EQ(insides("\"\\\xFF\"b"), "sss..") << "it runs through the strings as any other";
  EXPECT_EQ(delivered("'a\xFF"
                      "b"),
            "'a" + invalid + "b");
  EXPECT_EQ(delivered("'\xFF'b"), "'\0'b"s);
}

TEST_F(SourceReaderTest, AByteOf255InACommentEndsTheFile) {
  EXPECT_EQ(delivered("a/*\xFF*/b"), "a");
  EXPECT_EQ(delivered("a/**\xFF*/b"), "a");
  EXPECT_EQ(delivered("a//\xFF\nb"), "a");
  EXPECT_EQ(delivered("a/\xFF"
                      "b"),
            "a");
  EXPECT_EQ(delivered("a/**/\xFF"
                      "b"),
            "a");
}

TEST_F(SourceReaderTest, AZeroByteIsDeliveredWhereverItStands) {
  EXPECT_EQ(delivered("a\0b"s), "a\0b"s);
  EXPECT_EQ(delivered("a/* \0 */b"s), "a\0b"s) << "the comment goes on";
  EXPECT_EQ(delivered("a// \0 x\nb"s), "a\0\nb"s);
  EXPECT_EQ(delivered("a/\0*x*/b"s), "a\0b"s) << "the slash waits for what comes behind";
  EXPECT_EQ(insides("\"\0\"b"s), "ss..");
}

TEST_F(SourceReaderTest, OtherBytesAreCharacters) {
  EXPECT_EQ(delivered("\xFE\x80"
                      "a"),
            "\xFE\x80"
            "a");
}

// Line ends.

TEST_F(SourceReaderTest, EveryLineEndCountsOnce) {
  SourceReader& reader = read("a\r\nb\nc\rd");
  std::string lines;
  char c = 0;
  for (reader.next(c); !reader.atEof(); reader.next(c)) lines += std::string(1, c) + std::to_string(reader.line());
  EXPECT_EQ(lines, "a1\n2b2\n3c3\r4d4") << "the two characters of one line end are one";
}

TEST_F(SourceReaderTest, LineEndsInCommentsAndStringsCount) {
  SourceReader& reader = read("/* \n\n\n*/a\"\n\"b");
  char c = 0;
  reader.next(c);
  EXPECT_EQ(c, 'a');
  EXPECT_EQ(reader.line(), 4);
  while (c != 'b') reader.next(c);
  EXPECT_EQ(reader.line(), 5);
}

TEST_F(SourceReaderTest, ALineEndBehindASlashCountsOnceThoughItComesBack) {
  SourceReader& reader = read("/\n;");
  char c = 0;
  reader.next(c);
  EXPECT_EQ(c, '/');
  EXPECT_EQ(reader.line(), 2);
  reader.next(c);
  EXPECT_EQ(c, '\n');
  EXPECT_EQ(reader.line(), 2);
}

// Braces and levels.

TEST_F(SourceReaderTest, TheEndOfALevelComesWithTheReadBehindTheBrace) {
  EXPECT_EQ(delivered("{}x"), "{}^x");
  EXPECT_EQ(delivered("{{}}x"), "{{}}^x");
  EXPECT_EQ(delivered("{ { }"), "{ { }") << "one is still open";
}

TEST_F(SourceReaderTest, TheEndOfTheLastLevelComesAtTheEndOfTheFileToo) {
  SourceReader& reader = read("{}");
  char c = 0;
  reader.next(c);
  reader.next(c);
  EXPECT_EQ(c, '}');
  EXPECT_FALSE(reader.atEof());
  EXPECT_THROW(reader.next(c), SourceReader::EndBraceE);
  EXPECT_FALSE(reader.next(c));
  EXPECT_TRUE(reader.atEof());
}

TEST_F(SourceReaderTest, TooManyBraces) {
  EXPECT_EQ(delivered("{}}x"), "{}^}[Line 1: Too many }]x");
  EXPECT_EQ(delivered("\n}x\n}"), "\n}[Line 2: Too many }]x\n}[Line 3: Too many }]");
  EXPECT_EQ(delivered("}{}x"), "}[Line 1: Too many }]{}[Line 1: Too many }]x") << "what is missing stays missing";
}

TEST_F(SourceReaderTest, TooManyBracesNameTheFile) {
  SourceReader& reader = read("}");
  char c = 0;
  reader.next(c);
  try {
    reader.next(c);
    FAIL() << "accepted";
  } catch (const SourceReader::BadDataE& failure) {
    EXPECT_EQ(failure.message, "Line 1: Too many }");
    EXPECT_EQ(failure.file, quotedPath());
  }
}

TEST_F(SourceReaderTest, BracesInStringsCount) {
  EXPECT_EQ(delivered("{\"}\"x"), "{\"}^\"x");
  EXPECT_EQ(delivered("{\"{\"}x"), "{\"{\"}x");
  EXPECT_EQ(delivered("'}'x"), "'}[Line 1: Too many }]'x");
  EXPECT_EQ(delivered("{'{'}x"), "{'{'}x");
}

TEST_F(SourceReaderTest, APushedLevelEndsFirst) {
  SourceReader& reader = read("{{{}}}x");
  char c = 0;
  reader.next(c);
  reader.pushLevel();
  reader.pushLevel();  // the depth is not above the last level's
  std::string rest;
  while (!reader.atEof()) rest += step(reader);
  EXPECT_EQ(rest, "{{}}^}^x");
}

TEST_F(SourceReaderTest, AtDepthZeroNoLevelIsPushed) {
  SourceReader& reader = read("{}x");
  reader.pushLevel();
  std::string rest;
  while (!reader.atEof()) rest += step(reader);
  EXPECT_EQ(rest, "{}^x");
}

TEST_F(SourceReaderTest, LevelsEndOneByOne) {
  SourceReader& reader = read("{{{}}}}x");
  char c = 0;
  for (int i = 0; i < 2; ++i) {
    reader.next(c);
    reader.pushLevel();
  }
  std::string rest;
  while (!reader.atEof()) rest += step(reader);
  EXPECT_EQ(rest, "{}^}^}^}[Line 1: Too many }]x");
}

// Statements.

TEST_F(SourceReaderTest, AStatementEndsBehindASemicolonOrBeforeABrace) {
  EXPECT_EQ(statements("int a; int b ;"), "int a;| int b ;||");
  EXPECT_EQ(statements("class A{"), "class A|{|");
  EXPECT_EQ(statements("{a{b;c"), "{a|{b;|c|") << "a brace that stands first is kept";
  EXPECT_EQ(statements("{{{"), "{|{|{|");
  EXPECT_EQ(statements(" {"), " |{|") << "white space, too, makes it not the first";
}

TEST_F(SourceReaderTest, AClosingBraceEndsNoStatement) {
  SourceReader& reader = read("{{a}b;c");
  char c = 0;
  reader.next(c);
  std::string_view code;
  reader.readStatement(code);
  EXPECT_EQ(code, "{a}b;");
}

TEST_F(SourceReaderTest, TheEndOfALevelEndsAStatementWithoutIt) {
  EXPECT_EQ(statements("{ a }b;"), "^b;||");
  SourceReader& reader = read("{ a }b;");
  std::string_view code;
  std::string_view raw;
  EXPECT_THROW(reader.readStatement(code, &raw), SourceReader::EndBraceE);
  EXPECT_EQ(reader.collected(), "{ a }") << "what was read is still to be had";
}

TEST_F(SourceReaderTest, AStatementsBraceIsCountedOnce) {
  SourceReader& reader = read("a{b}c;");
  std::string_view code;
  reader.readStatement(code);
  EXPECT_EQ(code, "a");
  reader.pushLevel();  // the depth is 0 again
  EXPECT_THROW(reader.readStatement(code), SourceReader::EndBraceE);
  reader.readStatement(code);
  EXPECT_EQ(code, "c;");
}

TEST_F(SourceReaderTest, TheTwoTextsOfAStatement) {
  std::string_view code;
  std::string_view raw;
  EXPECT_EQ(statements("\";\";"), "\";||") << "a semicolon in a string ends nothing, the closing quote stays";
  SourceReader& reader = read("a \"x;\" 'y'\n/* z */ ;b");
  reader.readStatement(code, &raw);
  EXPECT_EQ(code, "a \" '\n ;");
  EXPECT_EQ(raw, "a \"x;\" 'y'\n ;");
  reader.readStatement(code, &raw);
  EXPECT_EQ(code, "b");
  EXPECT_EQ(raw, "b");
  reader.readStatement(code, &raw);
  EXPECT_EQ(code, "");
  EXPECT_EQ(raw, "");
}

TEST_F(SourceReaderTest, ABraceInAStringEndsNoStatement) {
  EXPECT_EQ(statements("a\"{\"b;"), "a\"b;||");
  SourceReader& reader = read("\"x\"{");
  std::string_view code;
  std::string_view raw;
  reader.readStatement(code, &raw);
  EXPECT_EQ(raw, "\"x\"");
  SourceReader& inString = read("\"{\" {");
  inString.readStatement(code, &raw);
  EXPECT_EQ(raw, "\"{\" ");
  EXPECT_EQ(code, "\" ");
}

TEST_F(SourceReaderTest, ABraceBehindAnOpenQuoteAloneIsNotTheFirst) {
  // Only the raw text tells that something stands before the brace.
  SourceReader& reader = read("'a'{");
  std::string_view code;
  reader.readStatement(code);
  EXPECT_EQ(code, "'");
  reader.readStatement(code);
  EXPECT_EQ(code, "{");
}

TEST_F(SourceReaderTest, AStatementEndsBeforeTheZeroOfTheEnd) {
  EXPECT_EQ(statements("a\n"), "a\n|");
  EXPECT_EQ(statements(""), "|");
  EXPECT_EQ(statements("a\0b"s), "a\0b|"s) << "a zero byte in the text stays";
}

TEST_F(SourceReaderTest, AFailureInAStatementComesThrough) {
  EXPECT_EQ(statements("a 'bc; d;"), "[Line 1: Invalid character constant.];| d;||");
  EXPECT_EQ(statements("}a;"), "[Line 1: Too many }]a;||");
}

TEST_F(SourceReaderTest, APushedBackSemicolonEndsAStatement) {
  EXPECT_EQ(statements("a/;b"), "a/;|b|");
  EXPECT_EQ(statements("a/{b"), "a/|{b|");
}

TEST_F(SourceReaderTest, LongLinesAndStatements) {
  const std::string word(300'000, 'x');
  EXPECT_EQ(statements(word + ';' + word + '{'), word + ";|" + word + "|{|");
  EXPECT_EQ(delivered("/*" + word + "*/" + word + "//" + word + "\n"), word + "\n");
}

}  // namespace
}  // namespace tarnwick::test
