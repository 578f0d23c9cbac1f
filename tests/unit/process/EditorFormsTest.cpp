#include "platform/Path.h"
#include "process/EditorForms.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Words = std::vector<std::string>;

const std::string file = "a b/C.java";

Words known(const std::string& editor, const EditorPlace& place = {12, 5}) {
  return editorArguments(editor, "", file, place);
}

Words byPattern(const std::string& pattern, const std::string& name = file) {
  return editorArguments("whatever", pattern, name, {12, 5});
}

TEST(EditorFormsTest, EachEditorGetsTheLineInItsOwnForm) {
  const struct {
    const char* editor;
    Words arguments;
  } table[] = {
      {"tarnwick-notepad", {"+12:5", file}},
      {"gedit", {"+12:5", file}},
      {"xed", {"+12:5", file}},
      {"emacs", {"+12:5", file}},
      {"emacs-gtk", {"+12:5", file}},
      {"emacsclient", {"+12:5", file}},
      {"pluma", {"+12", file}},
      {"featherpad", {"+12", file}},
      {"nvim-qt", {"+12", file}},
      {"mousepad", {"-l", "12", "-c", "5", file}},
      {"kate", {"-l", "12", "-c", "5", file}},
      {"kwrite", {"-l", "12", "-c", "5", file}},
      {"notepadqq", {"-l", "12", "-c", "5", file}},
      {"geany", {"-l", "12", "--column", "5", file}},
      {"scite", {file, "-goto:12,5"}},
      {"notepad++", {"-n12", "-c5", file}},
      {"notepad4", {"/g", "12,5", file}},
      {"notepad3", {"/g", "12,5", file}},
      {"notepad2", {"/g", "12,5", file}},
      {"code", {"-g", file + ":12:5"}},
      {"code-insiders", {"-g", file + ":12:5"}},
      {"codium", {"-g", file + ":12:5"}},
      {"cursor", {"-g", file + ":12:5"}},
      {"subl", {file + ":12:5"}},
      {"sublime_text", {file + ":12:5"}},
      {"zed", {file + ":12:5"}},
      {"atom", {file + ":12:5"}},
      {"idea", {"--line", "12", "--column", "5", file}},
      {"idea64", {"--line", "12", "--column", "5", file}},
      {"studio", {"--line", "12", "--column", "5", file}},
      {"studio64", {"--line", "12", "--column", "5", file}},
      {"gvim", {"+call cursor(12,5)", file}},
      {"vim", {"+call cursor(12,5)", file}},
      {"mvim", {"+call cursor(12,5)", file}},
      {"jedit", {file, "+line:12"}},
  };
  for (const auto& row : table) EXPECT_EQ(known(row.editor), row.arguments) << row.editor;
}

TEST(EditorFormsTest, AnEditorIsKnownByItsNameWhateverStandsAroundIt) {
  const Words arguments = {"-g", file + ":12:5"};
  const std::string folder = std::string("some folder") + platform::folderSeparator;
  for (const std::string name : {"code", "Code.exe", "CODE.CMD", "code.sh"}) {
    EXPECT_EQ(known(name), arguments) << name;
    EXPECT_EQ(known(folder + name), arguments) << name;
    EXPECT_EQ(known('"' + folder + name + '"'), arguments) << name;
  }
  EXPECT_EQ(known("jedit.jar"), (Words{file, "+line:12"}));
}

TEST(EditorFormsTest, AnUnknownEditorGetsTheFileAlone) {
  for (const char* name :
       {"", "notepad", "Notepad.exe", "gnome-text-editor", "l3afpad", "gedits", "my code", "x.code"}) {
    EXPECT_EQ(known(name), Words{file}) << name;
  }
}

TEST(EditorFormsTest, WithoutALineEveryEditorGetsTheFileAlone) {
  EXPECT_EQ(known("gedit", {}), Words{file});
  EXPECT_EQ(editorArguments("gedit", "+%l %f", file, {}), Words{file});
  EXPECT_EQ(editorArguments("gedit", "", "", {12, 5}), Words{""}) << "nor is there a line where there is no file";
}

TEST(EditorFormsTest, AnUnknownColumnIsTheFirst) {
  EXPECT_EQ(known("gedit", {12, 0}), (Words{"+12:1", file}));
}

TEST(EditorFormsTest, ThePatternOfTheUserComesBeforeWhatIsKnown) {
  EXPECT_EQ(editorArguments("gedit", "--line=%l %f", file, {12, 5}), (Words{"--line=12", file}));
  EXPECT_EQ(editorArguments("gedit", "  ", file, {12, 5}), (Words{"+12:5", file})) << "blanks are none";
}

TEST(EditorFormsTest, InAPatternQuotesHoldAnArgumentTogether) {
  EXPECT_EQ(byPattern("-x \"go to %l\" \"%f\""), (Words{"-x", "go to 12", file}));
  EXPECT_EQ(byPattern("%l%%%c%x %f%"), (Words{"12%5%x", file + '%'}));
  EXPECT_EQ(byPattern("-o 5%%f"), (Words{"-o", "5%f", file})) << "which names no file, so that comes behind it";
}

TEST(EditorFormsTest, AFileThatThePatternDoesNotNameComesLast) {
  EXPECT_EQ(byPattern("-n%l"), (Words{"-n12", file}));
}

TEST(EditorFormsTest, NoArgumentOfAFileLooksLikeAnOption) {
  const std::string here = std::string(".") + platform::folderSeparator;
  for (const std::string name : {"-x.java", "@x.java", "+x.java"}) {
    EXPECT_EQ(byPattern("%f:%l", name), Words{here + name + ":12"});
    EXPECT_EQ(editorArguments("gedit", "", name, {12, 5}), (Words{"+12:5", here + name}));
    EXPECT_EQ(editorArguments("unknown", "", name, {12, 5}), (Words{here + name}));
  }
}

}  // namespace
}  // namespace tarnwick
