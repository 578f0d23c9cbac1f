#include "platform/Associations.h"
#include "platform/FileSystem.h"
#include "support/Children.h"
#include "support/posix/XdgFolders.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

using test::StandInScript;

/// The system keeps its answers for the life of a process, so a fresh one is asked each time.
class PosixAssociationsTest : public testing::Test {
 protected:
  PosixAssociationsTest() {
    std::filesystem::create_directory(programs());
    path_ = std::make_unique<test::ScopedEnvironment>("PATH", programs());
  }

  std::string programs() const { return script_.folder().file("programs/"); }

  void makeProgram(const std::string& name) const {
    std::filesystem::copy_file(StandInScript::tool("java"), programs() + name);
  }

  std::string probe(const std::string& arguments) const {
    return test::outputOf(resolvedPath(test::standInFolder() + "launch_probe"), arguments);
  }

  bool recordIs(const std::string& expected) const {
    return test::waitUntil([&] { return script_.hasRecord() && script_.record() == expected; });
  }

  StandInScript script_{""};
  test::XdgFolders xdg_{script_.folder().path()};
  std::unique_ptr<test::ScopedEnvironment> path_;
};

TEST_F(PosixAssociationsTest, TheDefaultApplicationsCommandIsGivenWithItsPlaceholder) {
  makeProgram("packer");
  makeProgram("unpacker");
  xdg_.addApplication("packer", "packer --pack %U", "application/zip;");
  xdg_.addApplication("unpacker", "unpacker -x %f -q", "application/zip;");
  xdg_.setDefaults("application/zip=unpacker.desktop\n");
  EXPECT_EQ(probe("open .zip"), "unpacker -x %f -q\n");
  EXPECT_EQ(probe("open .ZIP"), "unpacker -x %f -q\n") << "also in capitals";
  xdg_.setDefaults("application/zip=packer.desktop\n");
  EXPECT_EQ(probe("open .zip"), "packer --pack %U\n");
}

TEST_F(PosixAssociationsTest, AnExtensionWithoutAnApplicationHasNoCommand) {
  EXPECT_EQ(probe("open .zip"), "\n");
  EXPECT_EQ(probe("open .tarnwick-unknown"), "\n");
  EXPECT_EQ(probe("runapp .zip x.zip \"\""), "0\n") << "and nothing is told";
}

TEST_F(PosixAssociationsTest, WithoutABrowserTheUserIsToldThePlaceOfTheDocument) {
  EXPECT_EQ(probe("browse file:///the%20guide.htm#paths \"/the guide.htm\""),
            "message: There is no browser on this computer. It would show:\n/the guide.htm\n");
  makeProgram("surfer");
  xdg_.addApplication("surfer", "surfer --new %u", "text/html;");
  EXPECT_EQ(probe("browse file:///the%20guide.htm#paths \"/the guide.htm\""), "");
  EXPECT_TRUE(recordIs("--new\nfile:///the%20guide.htm#paths\n"));
}

TEST_F(PosixAssociationsTest, AnApplicationForTheTerminalIsPassedOver) {
  makeProgram("pager");
  makeProgram("browser");
  xdg_.addApplication("pager", "pager %u", "text/html;", "Terminal=true\n");
  xdg_.setDefaults("text/html=pager.desktop\n");
  EXPECT_EQ(probe("open .htm"), "\n");
  xdg_.addApplication("browser", "browser %u", "text/html;");
  EXPECT_EQ(probe("open .htm"), "browser %u\n");
}

TEST_F(PosixAssociationsTest, CodesThatStandForNoFileAreTakenOut) {
  makeProgram("browser");
  xdg_.addApplication("browser", "browser --caption %c %i %k --percent 100%% %F", "text/html;");
  EXPECT_EQ(probe("open .htm"), "browser --caption    --percent 100% %F\n");
}

TEST_F(PosixAssociationsTest, ACommandThatNamesNoPlaceForTheFileGetsItAtItsEnd) {
  makeProgram("browser");
  xdg_.addApplication("browser", "browser", "text/html;");
  xdg_.addApplication("packer", "browser --pack %i", "application/zip;");
  EXPECT_EQ(probe("open .htm"), "browser %f\n");
  EXPECT_EQ(probe("runapp .htm \"my page.htm\" \"\""), "1\n");
  EXPECT_TRUE(recordIs("my page.htm\n"));
  EXPECT_EQ(probe("open .zip"), "browser --pack  %f\n");
}

TEST_F(PosixAssociationsTest, AProgramOfAnyNameIsStartedWithTheFile) {
  const struct {
    std::string name;
    std::string exec;  ///< as it stands in the file, where texts have escapes of their own
  } table[] = {
      {"a\"b", R"(a\\"b)"},           {"a$b", R"(a\\$b)"},        {"a`b", R"(a\\`b)"},
      {"a\\b", R"(a\\\\b)"},          {"a\\\"b", R"(a\\\\\\"b)"}, {"end\\", R"(end\\\\)"},
      {"it's a & b;", "it's a & b;"}, {"\"", R"(\\")"},           {" lead", " lead"},
      {"\xC3\xA4", "\xC3\xA4"},
  };
  for (const auto& row : table) {
    makeProgram(row.name);
    xdg_.addApplication("any", '"' + programs() + row.exec + "\" -x %f -y", "text/html;text/plain;");
    platform::deleteFile(script_.folder().file("record"));
    EXPECT_EQ(probe("runapp .htm \"my page.htm\" last"), "1\n") << row.name;
    EXPECT_TRUE(recordIs("-x\nmy page.htm\n-y\nlast\n")) << row.name;
    EXPECT_EQ(probe("editors"), programs() + row.name + "|-x|-y\n");
  }
}

TEST_F(PosixAssociationsTest, TheAssociationsProgramIsStartedWithTheFile) {
  makeProgram("jar runner");
  xdg_.addApplication("jars", '"' + programs() + "jar runner\" -jar %f -end", "application/x-java-archive;");
  EXPECT_EQ(probe("runapp .jar \"my editor.jar\" \"my log\""), "1\n");
  EXPECT_TRUE(recordIs("-jar\nmy editor.jar\n-end\nmy\nlog\n")) << "the extra argument is given as it stands";
}

TEST_F(PosixAssociationsTest, AJarEditorGetsTheLogThroughItsAssociation) {
  makeProgram("runner");
  xdg_.addApplication("jars", "runner -jar %f", "application/x-java-archive;");
  const std::string log = script_.folder().file("Tarnwick_LOG1.tmp");
  EXPECT_EQ(probe("showlog \"" + script_.folder().path() + "\" 0 0 \"/my tools/edit.jar\""), log + '\n');
  EXPECT_TRUE(recordIs("-jar\n/my tools/edit.jar\n" + log + '\n'));
}

TEST_F(PosixAssociationsTest, AJarEditorGetsTheSourceThroughItsAssociation) {
  makeProgram("runner");
  xdg_.addApplication("jars", "runner -jar %f", "application/x-java-archive;");
  const std::string source = script_.folder().file("my A.java");
  EXPECT_EQ(probe("edit 0 \"" + source + "\" \"/my tools/edit.jar\""), "1 " + currentDirectory() + '\n')
      << "the folder stays, other than with a program";
  EXPECT_TRUE(recordIs("-jar\n/my tools/edit.jar\n" + source + '\n'));
}

TEST_F(PosixAssociationsTest, PlainTextEditorsBeginWithTheUsersDefault) {
  for (const char* name : {"kate", "gedit", "mine"}) makeProgram(name);
  xdg_.addApplication("mine", "mine --new \"two words\" %U -x", "text/plain;");
  xdg_.addApplication("zz", "kate %U", "text/plain;");
  xdg_.setDefaults("text/plain=mine.desktop\n");
  EXPECT_EQ(probe("editors"), "mine|--new|two words|-x\ngedit\nkate\n");
}

TEST_F(PosixAssociationsTest, AnEditorsWordsAreFreeOfCodes) {
  makeProgram("mine");
  xdg_.addApplication("mine", "mine --icon %i --file=%f \"\" 100%% --name=%c %", "text/plain;");
  EXPECT_EQ(probe("editors"), "mine|--icon|--file=||100%|--name=|%\n");
  makeProgram("env");
  xdg_.addApplication("mine", "env \"/opt/a%%f b\" %u", "text/plain;");
  EXPECT_EQ(probe("editors"), "env|/opt/a%f b\n");
}

TEST_F(PosixAssociationsTest, WithoutADefaultTheCommonEditorsAreTaken) {
  makeProgram("vi");
  makeProgram("mousepad");
  xdg_.addApplication("vi", "vi %F", "text/plain;", "Terminal=true\n");
  xdg_.setDefaults("text/plain=vi.desktop\n");
  EXPECT_EQ(probe("editors"), "mousepad\n");
}

TEST_F(PosixAssociationsTest, WithNoEditorAtAllThereIsNone) {
  EXPECT_EQ(probe("editors"), "");
}

TEST_F(PosixAssociationsTest, OurOwnSmallEditorBesideTheProgramComesLast) {
  std::filesystem::copy_file(test::standInFolder() + "launch_probe", programs() + "launch_probe");
  makeProgram("tarnwick-notepad");
  const auto ask = [&](const std::string& arguments) { return test::outputOf(programs() + "launch_probe", arguments); };
  EXPECT_EQ(ask("editors"), programs() + "tarnwick-notepad\n");
  const std::string log = script_.folder().file("Tarnwick_LOG1.tmp");
  EXPECT_EQ(ask("showlog \"" + script_.folder().path() + "\" 0 1"), log + '\n');
  EXPECT_TRUE(recordIs(log + '\n')) << "a machine without any editor shows the log all the same";
  makeProgram("gedit");
  EXPECT_EQ(ask("editors"), "gedit\n" + programs() + "tarnwick-notepad\n");
}

TEST_F(PosixAssociationsTest, NotepadIsTheUsersEditorForPlainText) {
  makeProgram("mine");
  xdg_.addApplication("mine", "mine --wait %f", "text/plain;");
  const std::string log = script_.folder().file("Tarnwick_LOG1.tmp");
  EXPECT_EQ(probe("showlog \"" + script_.folder().path() + "\" 0 1 /other/editor"), log + '\n');
  EXPECT_TRUE(recordIs("--wait\n" + log + '\n'));
}

TEST_F(PosixAssociationsTest, NotepadIsTheNextEditorWhereTheFirstCannotBeStarted) {
  makeProgram("broken");
  makeProgram("gedit");
  xdg_.addApplication("broken", programs() + "broken %f", "text/plain;");
  test::writeFile(programs() + "broken", "no program");
  const std::string log = script_.folder().file("Tarnwick_LOG1.tmp");
  EXPECT_EQ(probe("showlog \"" + script_.folder().path() + "\" 1 1"), log + '\n');
  EXPECT_TRUE(recordIs(log + '\n'));
}

TEST(SplitOpenCommandTest, TheProgramEndsAtTheFirstBlankOrTheClosingQuote) {
  const struct {
    const char* command;
    bool found;
    const char* program;
    const char* arguments;
  } table[] = {
      {"", false, "", ""},
      {"viewer %f", true, "viewer", " %f"},
      {"/usr/bin/viewer --x %f", true, "/usr/bin/viewer", " --x %f"},
      {"viewer", true, "viewer", ""},
      {"\"/opt/my viewer\" %f", true, "\"/opt/my viewer\"", " %f"},
      {"\"/opt/my viewer\"", true, "\"/opt/my viewer\"", ""},
      {"\"/opt/my viewer", false, "", ""},
      {R"("/opt/a\"b \$c\`d\\e\f" %f)", true, R"("/opt/a"b $c`d\e\f")", " %f"},
      {R"("/opt/end\\" %f)", true, R"("/opt/end\")", " %f"},
      {R"("/opt/never closed\" %f)", false, "", ""},
      {R"("/opt/never closed\)", false, "", ""},
      {" viewer", false, "", ""},
  };
  for (const auto& row : table) {
    std::string program;
    std::string arguments;
    EXPECT_EQ(splitOpenCommand(row.command, program, arguments), row.found) << row.command;
    EXPECT_EQ(program, row.program) << row.command;
    EXPECT_EQ(arguments, row.arguments) << row.command;
  }
}

}  // namespace
}  // namespace tarnwick::platform
