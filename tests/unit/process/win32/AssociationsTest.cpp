#include "platform/Associations.h"
#include "process/WinApp.h"
#include "support/Children.h"
#include "support/ScriptedDesktop.h"
#include "support/Shown.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

const char extension[] = ".tarnwick-test";
const char className[] = "Tarnwick.Test";

/// Keys among the classes that go with the test.
class WindowsAssociationsTest : public testing::Test {
 protected:
  void SetUp() override {
    remove();
    HKEY handle = nullptr;
    if (RegCreateKeyExA(HKEY_CLASSES_ROOT, extension, 0, nullptr, 0, KEY_WRITE, nullptr, &handle, nullptr) !=
        ERROR_SUCCESS) {
      GTEST_SKIP() << "this user may not write among the system's classes";
    }
    RegCloseKey(handle);
    remove();
  }
  void TearDown() override { remove(); }

  static void set(const std::string& key, const std::string& value, DWORD type = REG_SZ) {
    HKEY handle = nullptr;
    ASSERT_EQ(RegCreateKeyExA(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &handle, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExA(handle, nullptr, 0, type, reinterpret_cast<const BYTE*>(value.c_str()),
                             static_cast<DWORD>(value.size() + 1)),
              ERROR_SUCCESS);
    RegCloseKey(handle);
  }

  static void remove() {
    for (const char* below : {"\\shell\\open\\command", "\\shell\\open", "\\shell", ""}) {
      RegDeleteKeyA(HKEY_CLASSES_ROOT, (className + std::string(below)).c_str());
    }
    RegDeleteKeyA(HKEY_CLASSES_ROOT, extension);
  }

  static void setCommand(const std::string& command, DWORD type = REG_SZ) {
    set(extension, className);
    set(className + std::string("\\shell\\open\\command"), command, type);
  }
};

TEST_F(WindowsAssociationsTest, TheCommandOfTheExtensionsClassIsGiven) {
  setCommand(R"("C:\j\javaw.exe" -jar "%1" %*)");
  EXPECT_EQ(openCommand(extension), R"("C:\j\javaw.exe" -jar "%1" %*)");
}

TEST_F(WindowsAssociationsTest, VariablesInACommandAreReplaced) {
  const test::ScopedEnvironment variable("TARNWICK_TEST_FOLDER", "C:\\j");
  setCommand(R"("%TARNWICK_TEST_FOLDER%\javaw.exe" -jar "%1" %*)", REG_EXPAND_SZ);
  EXPECT_EQ(openCommand(extension), R"("C:\j\javaw.exe" -jar "%1" %*)");
}

TEST_F(WindowsAssociationsTest, AnUnknownExtensionHasNoCommand) {
  EXPECT_EQ(openCommand(extension), "");
}

TEST_F(WindowsAssociationsTest, AnExtensionWithoutAClassHasNoCommand) {
  set(extension, "");
  EXPECT_EQ(openCommand(extension), "");
}

TEST_F(WindowsAssociationsTest, WhereTheClassHasNoCommandItsNameStaysAndNothingStarts) {
  set(extension, className);
  EXPECT_EQ(openCommand(extension), className);
  test::ScriptedDesktop desktop;
  EXPECT_FALSE(test::shown(desktop, WinApp(extension).runApp("x", nullptr, 0)));
}

TEST_F(WindowsAssociationsTest, TheAssociationsProgramIsStartedWithTheFile) {
  const test::StandInScript script("");
  setCommand('"' + test::StandInScript::tool("java") + "\" -jar \"%1\" %*");
  test::ScriptedDesktop desktop;
  EXPECT_TRUE(test::shown(desktop, WinApp(extension).runApp("my editor.jar", "\"my log\"", 0)));
  EXPECT_TRUE(
      test::waitUntil([&] { return script.hasRecord() && script.record() == "-jar\nmy editor.jar\n%*\nmy log\n"; }));
}

TEST(SplitOpenCommandTest, TheProgramEndsAtExe) {
  const struct {
    const char* command;
    bool found;
    const char* program;
    const char* arguments;
  } table[] = {
      {"", false, "", ""},
      {"viewer.exe %1", false, "", ""},
      {R"(C:\v\viewer.exe %1)", true, R"(C:\v\viewer.exe)", "%1"},
      {R"(C:\v\VIEWER.EXE  /x %1)", true, R"(C:\v\VIEWER.EXE)", " /x %1"},
      {R"("C:\v\viewer.exe" "%1")", true, R"("C:\v\viewer.exe")", R"("%1")"},
      {R"("C:\v\VIEWER.EXE" "%1")", false, "", ""},
      {R"(C:\my v\my viewer.exe %1)", true, R"(C:\my v\my viewer.exe)", "%1"},
      {R"(C:\v\viewer.exe)", false, "", ""},
      {R"(C:\v\viewer.com %1)", false, "", ""},
      {R"(C:\v\viewer.exe C:\x %1)", false, "", ""},
  };
  for (const auto& row : table) {
    std::string program;
    std::string arguments;
    EXPECT_EQ(splitOpenCommand(row.command, program, arguments), row.found) << row.command;
    EXPECT_EQ(program, row.program) << row.command;
    EXPECT_EQ(arguments, row.arguments) << row.command;
  }
}

TEST(PlainTextEditorsTest, IsNotepad) {
  EXPECT_EQ(plainTextEditors(), (std::vector<std::vector<std::string>>{{"Notepad"}}));
}

}  // namespace
}  // namespace tarnwick::platform
