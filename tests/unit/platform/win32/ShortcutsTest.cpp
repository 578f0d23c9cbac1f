// Shortcuts by the shell's own objects.
#include "platform/FileSystem.h"
#include "platform/Shortcuts.h"
#include "platform/win32/Handle.h"
#include "support/Children.h"

#include <shlobj.h>
#include <windows.h>

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace tarnwick::platform {
namespace {

using std::chrono::milliseconds;
using Names = std::vector<std::string>;

/// What the shell tells of a shortcut.
struct Told {
  std::string target;
  std::string arguments;
  std::string description;
  std::string workingFolder;
  std::string icon;
  int iconIndex = -1;
  bool resolved = false;
};

std::wstring wide(const std::string& text) {
  std::wstring result(text.size() + 1, L'\0');
  const int length = MultiByteToWideChar(CP_ACP, 0, text.c_str(), -1, result.data(), static_cast<int>(result.size()));
  result.resize(length > 0 ? static_cast<std::size_t>(length) - 1 : 0);
  return result;
}

Told tellOf(const std::string& file) {
  Told told;
  CoInitialize(nullptr);
  IShellLinkA* link = nullptr;
  IPersistFile* saved = nullptr;
  if (SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                                 reinterpret_cast<void**>(&link))) &&
      SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&saved))) &&
      SUCCEEDED(saved->Load(wide(file).c_str(), STGM_READ))) {
    told.resolved = link->Resolve(nullptr, SLR_NO_UI) == S_OK;
    std::vector<char> text(100000);
    const auto size = static_cast<int>(text.size());
    const auto taken = [&text](HRESULT result) { return SUCCEEDED(result) ? std::string(text.data()) : "(failed)"; };
    told.target = taken(link->GetPath(text.data(), size, nullptr, 0));
    told.arguments = taken(link->GetArguments(text.data(), size));
    told.description = taken(link->GetDescription(text.data(), size));
    told.workingFolder = taken(link->GetWorkingDirectory(text.data(), size));
    told.icon = taken(link->GetIconLocation(text.data(), size, &told.iconIndex));
  }
  if (saved) saved->Release();
  if (link) link->Release();
  CoUninitialize();
  return told;
}

class WindowsShortcutsTest : public testing::Test {
 protected:
  WindowsShortcutsTest() {
    shortcut_.name = "My App";
    shortcut_.target = absolutePath(test::StandInScript::tool("java"));
    shortcut_.picture = shortcut_.target;
    makeFolders(folder());
  }

  std::string folder() const { return scratch_.file("fol der\\"); }
  std::string file() const { return folder() + "My App.lnk"; }
  /// The arguments that come back, or why it could not be written.
  std::string write() {
    try {
      return openShortcutShell()->write(shortcut_, file());
    } catch (const ShortcutFailure& failure) {
      return "(refused) " + failure.reason;
    }
  }
  bool isRefused() { return write().starts_with("(refused)"); }

  test::ScratchFolder scratch_;
  Shortcut shortcut_;
};

TEST_F(WindowsShortcutsTest, TheShellReadsBackWhatWasWritten) {
  shortcut_.arguments = "-classpath \".;a b\" App \"two words\" %PATH% 100%";
  shortcut_.description =
      "Gr\xFC\xDF"
      "e";
  shortcut_.workingFolder = folder();
  EXPECT_EQ(write(), shortcut_.arguments);
  const Told told = tellOf(file());
  EXPECT_TRUE(told.resolved);
  EXPECT_EQ(told.target, shortcut_.target);
  EXPECT_EQ(told.arguments, shortcut_.arguments);
  EXPECT_EQ(told.description, shortcut_.description);
  EXPECT_EQ(told.workingFolder, folder());
  EXPECT_EQ(told.icon, shortcut_.picture);
  EXPECT_EQ(told.iconIndex, 0);
  EXPECT_EQ(filesIn(folder()), Names{"My App.lnk"});
  EXPECT_EQ(openShortcutShell()->extension(), ".lnk");
}

TEST_F(WindowsShortcutsTest, AQuotedTargetIsTheSameFile) {
  const std::string plain = shortcut_.target;
  shortcut_.target = '"' + plain + '"';
  write();
  EXPECT_EQ(tellOf(file()).target, plain);
}

TEST_F(WindowsShortcutsTest, LongArgumentsComeBackWhole) {
  // Around the steps by which the buffer grows.
  for (const std::size_t length : {253U, 254U, 255U, 256U, 257U, 510U, 511U, 512U, 5000U}) {
    shortcut_.arguments = std::string(length, 'x');
    EXPECT_EQ(write(), shortcut_.arguments) << length;
  }
}

TEST_F(WindowsShortcutsTest, TheSystemsFoldersAreKnown) {
  const auto shell = openShortcutShell();
  for (const std::string& place : {shell->desktopFolder(), shell->startMenuFolder()}) {
    EXPECT_TRUE(isFolder(place)) << place;
    const std::string link = place + "\\Tarnwick test.lnk";
    shell->write(shortcut_, link);
    EXPECT_EQ(tellOf(link).target, shortcut_.target);
    EXPECT_TRUE(deleteFile(link));
  }
}

TEST_F(WindowsShortcutsTest, AnotherShortcutIsReplaced) {
  test::writeFile(file(), std::string(5000, 'x'));
  write();
  EXPECT_EQ(tellOf(file()).target, shortcut_.target);
  EXPECT_EQ(filesIn(folder()), Names{"My App.lnk"});
}

TEST_F(WindowsShortcutsTest, AFileThatIsHeldForAMomentIsWaitedFor) {
  write();
  Handle held(CreateFileA(file().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(held);
  std::jthread holder([&held, place = folder()](const std::stop_token& over) {
    while (filesIn(place).size() == 1 && !over.stop_requested()) std::this_thread::sleep_for(milliseconds(5));
    std::this_thread::sleep_for(milliseconds(50));  // by now it has been refused
    held.close();
  });
  shortcut_.arguments = "a second time";
  EXPECT_EQ(write(), shortcut_.arguments);
  EXPECT_EQ(filesIn(folder()), Names{"My App.lnk"});
}

TEST_F(WindowsShortcutsTest, WhatCannotBeWrittenIsToldAndNothingIsLeft) {
  makeFolders(file());
  EXPECT_TRUE(isRefused());
  EXPECT_EQ(filesIn(folder()), Names{}) << "nothing beside the folder of that name";
}

TEST_F(WindowsShortcutsTest, AMissingFolderIsTold) {
  const std::string there = folder();
  RemoveDirectoryA(there.c_str());
  EXPECT_TRUE(isRefused());
}

}  // namespace
}  // namespace tarnwick::platform
