#include "base/ToolMessages.h"

#include <gtest/gtest.h>
#include <iterator>
#include <sstream>

namespace tarnwick {
namespace {

std::string nameOf(MessageKind kind) {
  return kind == MessageKind::Error ? "error" : kind == MessageKind::Warning ? "warning" : "note";
}

/// A message a line: the line of the text, the kind, and the place if there is one.
std::string told(const std::string& text) {
  std::ostringstream all;
  for (const auto& message : toolMessages(text)) {
    all << message.logLine << ' ' << nameOf(message.kind);
    if (message.place) all << ' ' << message.place->file << ' ' << message.place->line << ':' << message.place->column;
    all << '\n';
  }
  return all.str();
}

std::string summed(const std::string& text) {
  return countText(countOf(toolMessages(text)));
}

/// What javac of JDK 17 says in English.
const char english[] = R"(

javac -Xlint:all a b:c/W.java

warning: [options] bootstrap class path not set in conjunction with -source 8
a b:c/W.java:5: warning: [rawtypes] found raw type: List
	public void f(int a) { List l = new ArrayList(); } // See Y.java:3: error: nothing
	                       ^
  missing type arguments for generic class List<E>
  where E is a type-variable:
    E extends Object declared in interface List
a b:c/W.java:6: error: cannot find symbol
	int g() { return nope; }
	                 ^
  symbol:   variable nope
  location: class W
V.java:7: error: cannot find symbol
	void h() { Runnable r = (Runnable) unknown(
	                                   ^
  symbol:   method unknown(int)
  location: class W
Note: Old.java uses or overrides a deprecated API.
Note: Recompile with -Xlint:deprecation for details.
2 errors
2 warnings
)";

TEST(ToolMessagesTest, EachMessageHasItsLineKindAndPlace) {
  EXPECT_EQ(told(english),
            "4 warning\n"
            "5 warning a b:c/W.java 5:25\n"
            "11 error a b:c/W.java 6:19\n"
            "16 error V.java 7:37\n"
            "21 note\n"
            "22 note\n");
  EXPECT_EQ(summed(english), "2 errors, 2 warnings in 2 files");
}

TEST(ToolMessagesTest, InAnyLanguageOfTheJdk) {
  const struct {
    const char* language;
    const char* text;
  } table[] = {
      {"German, 25",
       "Warnung: [options] Quellwert 8 ist veraltet und wird in einem zukünftigen Release entfernt\n"
       "W.java:5: Warnung: [cast] Redundantes Casting in String\n"
       "	String s = (String) \"a\";\n"
       "	           ^\n"
       "W.java:6: Fehler: Symbol nicht gefunden\n"
       "	int g() { return nope; }\n"
       "	                 ^\n"
       "  Symbol: Variable nope\n"
       "  Ort: Klasse W\n"
       "Hinweis: Old.java verwendet oder überschreibt eine veraltete API.\n"
       "Fehler: Datei nicht gefunden: nix.java\n"},
      {"Japanese, 17",
       "警告:[options] ブートストラップ・クラスパスが-source 8と一緒に設定されていません\n"
       "W.java:5: 警告:[cast] Stringへの冗長なキャストです\n"
       "	String s = (String) \"a\";\n"
       "	           ^\n"
       "W.java:6: エラー: シンボルを見つけられません\n"
       "	int g() { return nope; }\n"
       "	                 ^\n"
       "  シンボル:   変数 nope\n"
       "  場所: クラス W\n"
       "ノート:Old.javaは推奨されないAPIを使用またはオーバーライドしています。\n"
       "エラー: ファイルが見つかりません: nix.java\n"},
      {"Japanese, 25",
       "警告: [options] ソース値8は廃止されていて、今後のリリースで削除される予定です\n"
       "W.java:5: 警告: [cast] Stringへの冗長なキャストです\n"
       "	String s = (String) \"a\";\n"
       "	           ^\n"
       "W.java:6: エラー: シンボルを見つけられません\n"
       "	int g() { return nope; }\n"
       "	                 ^\n"
       "  シンボル:   変数 nope\n"
       "  場所: クラス W\n"
       "ノート: Old.javaは推奨されないAPIを使用またはオーバーライドしています。\n"
       "エラー: ファイルが見つかりません: nix.java\n"},
      {"Chinese, 25",
       "警告: [options] 源值 8 已过时，将在未来发行版中删除\n"
       "W.java:5: 警告: [cast] 出现冗余的到String的转换\n"
       "	String s = (String) \"a\";\n"
       "	           ^\n"
       "W.java:6: 错误: 找不到符号\n"
       "	int g() { return nope; }\n"
       "	                 ^\n"
       "  符号:   变量 nope\n"
       "  位置: 类 W\n"
       "注: Old.java使用或覆盖了已过时的 API。\n"
       "错误: 找不到文件: nix.java\n"},
      // No JDK speaks it: but for the note the form alone tells.
      {"Swedish",
       "Varning: [options] Källvärde 8 är föråldrat\n"
       "W.java:5: Varning: [cast] överflödig typomvandling till String\n"
       "	String s = (String) \"a\";\n"
       "	           ^\n"
       "W.java:6: Fel: hittar inte symbolen\n"
       "	int g() { return nope; }\n"
       "	                 ^\n"
       "  symbol:   variabel nope\n"
       "  plats: klass W\n"
       "Note: -\n"
       "Fel: filen hittades inte: nix.java\n"},
  };
  for (const auto& row : table) {
    EXPECT_EQ(told(row.text), "0 warning\n1 warning W.java 5:13\n4 error W.java 6:19\n9 note\n10 error\n")
        << row.language;
    EXPECT_EQ(summed(row.text), "2 errors, 2 warnings in 1 file") << row.language;
  }
}

TEST(ToolMessagesTest, AWarningWithoutACategoryIsKnownByItsWord) {
  EXPECT_EQ(told("W.java:2: warning: no comment\npublic class W {\n       ^\n"), "0 warning W.java 2:8\n");
  EXPECT_EQ(told("W.java:2: Warnung: kein Kommentar\n"), "0 warning W.java 2:0\n");
  EXPECT_EQ(told("W.java:2: 警告:コメントなし\n"), "0 warning W.java 2:0\n");
}

TEST(ToolMessagesTest, WhatJavadocDoesBesideIsNoMessage) {
  EXPECT_EQ(told("Loading source file a b:c/W.java...\nConstructing Javadoc information...\n"
                 "Standard Doclet version 17.0.21.1+2-1-deb12u1-Debian\nGenerating ../doc/W.html...\n"
                 "a b:c/W.java:3: error: @param name not found\n	/** @param zz nothing\n	           ^\n"
                 "Building index for all classes...\n1 error\nerror: No source files for package nopackage\n"),
            "4 error a b:c/W.java 3:13\n9 error\n");
}

TEST(ToolMessagesTest, WhatOldCompilersDoNotCallAnErrorIsOne) {
  EXPECT_EQ(told("A.java:3: cannot resolve symbol\nsymbol  : class Nix\nlocation: class A\n    Nix x;\n    ^\n"
                 "A.java:5: ';' expected\nA.java:6: incompatible types: x\nincompatible types: y\n1 error\n"),
            "0 error A.java 3:5\n5 error A.java 5:0\n6 error A.java 6:0\n");
}

TEST(ToolMessagesTest, WhatToolsThinkOfTheirCommandLineIsAMessage) {
  EXPECT_EQ(told("javac: invalid flag: -foo\nUsage: javac <options> <source files>\n"), "0 error\n");
  EXPECT_EQ(told("javadoc: error - No packages or classes specified.\njavadoc: warning - No source files.\n"),
            "0 error\n1 warning\n");
  EXPECT_EQ(told("Error: Could not create the Java Virtual Machine.\n"), "0 error\n");
  EXPECT_EQ(told("Loading source files for package a...\njavadoc -d docs A.java\n"), "");
}

TEST(ToolMessagesTest, AFailureByItsFullNameIsAMessageWithItsTrace) {
  const std::string text =
      "java.io.FileNotFoundException: a.txt (No such file or directory)\n"
      "\tat java.base/java.io.FileInputStream.open0(Native Method)\n"
      "\tat java.base/java.io.FileInputStream.open(FileInputStream.java:216)\n";
  ASSERT_EQ(told(text), "0 error\n");
  EXPECT_EQ(toolMessages(text)[0].lastLine, 2U);
  EXPECT_EQ(told("java.lang.OutOfMemoryError: Java heap space\n"), "0 error\n");
  EXPECT_EQ(told("Exception: nothing\nshop.Till: nothing\n"), "");
}

TEST(ToolMessagesTest, ThePlaceReachesToTheLinesStart) {
  const struct {
    const char* line;
    const char* file;
    int number;
    int column;
  } table[] = {
      {"A.java:1: x", "A.java", 1, 0},
      {"A.java:1:", "A.java", 1, 0},
      {"C:\\my programs\\A.java:12: x", "C:\\my programs\\A.java", 12, 0},
      {"/home/Zo\xC3\xAB/a:b c/A.java:3: error: x", "/home/Zo\xC3\xAB/a:b c/A.java", 3, 0},
      {"odd.java:7:/A.java:3: error: x", "odd.java:7:/A.java", 3, 0},
      {"odd.java:/A.java:3: error: x", "odd.java:/A.java", 3, 0},
      {"A.java:3: error: see B.java:5: x", "A.java", 3, 0},
      {"X.java:2:9: compiler.err.expected: ';'", "X.java", 2, 9},
      {" A.java:1: x", " A.java", 1, 0},
  };
  for (const auto& row : table) {
    const auto messages = toolMessages(row.line);
    ASSERT_EQ(messages.size(), 1u) << row.line;
    EXPECT_EQ(messages[0].place, (SourcePlace{row.file, row.number, row.column})) << row.line;
  }
}

TEST(ToolMessagesTest, WhatHasNoLineIsNoPlace) {
  for (const char* line : {"", "A.java", "A.java: x", "A.java:x: y", "A.java:0: x", "A.java:-1: x", "A.java:3",
                           "A.java:3 x", ".java:3: x", "A.java:99999999999: x", "A.jav:3: x", "A.java:3:x", "1 error",
                           "javac A.java", "C:\\A.java", "\tat A.main(A.java:3)"}) {
    EXPECT_EQ(told(line), "") << line;
  }
}

TEST(ToolMessagesTest, AColumnIsThatOfTheLoneMark) {
  const std::string head = "A.java:3: error: x\n";
  EXPECT_EQ(told(head + "\t  x\n\t  ^\n"), "0 error A.java 3:4\n") << "a tab is one column";
  EXPECT_EQ(told(head + "x\n^\n"), "0 error A.java 3:1\n");
  EXPECT_EQ(told(head + "more of it\nstill more\nx y\n  ^\n"), "0 error A.java 3:3\n") << "a message of several lines";
  EXPECT_EQ(told(head + "x\n  ^ y\n"), "0 error A.java 3:0\n") << "not alone";
  EXPECT_EQ(told(head + "x\n ^\ny\n  ^\n"), "0 error A.java 3:2\n") << "the first counts";
  EXPECT_EQ(told("  ^\n" + head), "1 error A.java 3:0\n") << "it stands below";
}

TEST(ToolMessagesTest, WhatIsIndentedBelowBelongsToAMessage) {
  const auto messages = toolMessages(english);
  const std::size_t last[] = {4, 10, 15, 20, 21, 22};
  ASSERT_EQ(messages.size(), std::size(last));
  for (std::size_t i = 0; i < std::size(last); ++i) EXPECT_EQ(messages[i].lastLine, last[i]);
  EXPECT_EQ(toolMessages("A.java:3: error: x\nclass A {\n      ^\n1 error\n")[0].lastLine, 2u)
      << "the mark's line does even if the source's is not indented";
  EXPECT_EQ(toolMessages("A.java:3: error: x\nhello\n  world\n")[0].lastLine, 0u);
}

TEST(ToolMessagesTest, ALineAboveTheMarkIsTheSourcesOwn) {
  EXPECT_EQ(told("A.java:3: error: x\nB.java:5: error: y\n   ^\n"), "0 error A.java 3:4\n");
}

TEST(ToolMessagesTest, TheSourcesOwnLineMayBeAMarkAlone) {
  EXPECT_EQ(told("A.java:2: error: illegal start of type\n  ^\n  ^\nB.java:3: error: y\n  int x;\n      ^\n"),
            "0 error A.java 2:3\n3 error B.java 3:7\n");
}

TEST(ToolMessagesTest, LineEndsOfBothSystemsEndLines) {
  EXPECT_EQ(told("A.java:3: error: x\r\n\tx\r\n\t^\r\nB.java:4: error: y\r\n"),
            "0 error A.java 3:2\n3 error B.java 4:0\n");
  EXPECT_EQ(linesOf("a\r\nb\n\nc"), (std::vector<std::string_view>{"a", "b", "", "c"}));
  EXPECT_EQ(linesOf(""), std::vector<std::string_view>{});
}

TEST(ToolMessagesTest, TheSumTellsOfErrorsAndWarningsAlone) {
  const struct {
    MessageCount count;
    const char* text;
  } table[] = {
      {{0, 0, 0}, ""},
      {{1, 0, 0}, "1 error"},
      {{0, 2, 1}, "2 warnings in 1 file"},
      {{3, 1, 2}, "3 errors, 1 warning in 2 files"},
  };
  for (const auto& row : table) EXPECT_EQ(countText(row.count), row.text);
  EXPECT_EQ(summed("Note: A.java uses unchecked or unsafe operations.\n"), "");
  EXPECT_EQ(summed("A.java:3: error: x\nA.java:4: error: x\n"), "2 errors in 1 file");
}

}  // namespace
}  // namespace tarnwick
