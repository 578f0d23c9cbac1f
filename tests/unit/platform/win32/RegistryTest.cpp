#include "platform/Associations.h"
#include "platform/ProjectType.h"
#include "platform/SystemVersion.h"
#include "platform/win32/Registry.h"

#include <gtest/gtest.h>

namespace tarnwick::platform {
namespace {

const char testKey[] = "Tarnwick test";

bool exists(HKEY root, const std::string& path) {
  HKEY key = nullptr;
  if (RegOpenKeyExA(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
  RegCloseKey(key);
  return true;
}

std::string defaultValue(HKEY root, const std::string& path) {
  char buffer[1024] = "";
  LONG size = sizeof buffer;
  return RegQueryValueA(root, path.c_str(), buffer, &size) == ERROR_SUCCESS ? buffer : "(none)";
}

void removeWhole(HKEY root, const std::string& path) {
  RegDeleteTreeA(root, path.c_str());
}

void setValue(HKEY root, const std::string& path, const char* name, const std::string& value) {
  HKEY key = nullptr;
  ASSERT_EQ(RegCreateKeyExA(root, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr), ERROR_SUCCESS);
  RegSetValueExA(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                 static_cast<DWORD>(value.size() + 1));
  RegCloseKey(key);
}

/// Keys of the user that go with the test.
class RegistryTest : public testing::Test {
 protected:
  void SetUp() override { removeWhole(HKEY_CURRENT_USER, testKey); }
  void TearDown() override { removeWhole(HKEY_CURRENT_USER, testKey); }

  static std::string below(const std::string& path) { return testKey + ("\\" + path); }
  static void make(const std::string& path) { ASSERT_TRUE(writeDefaultValue(HKEY_CURRENT_USER, below(path), "")); }
};

TEST_F(RegistryTest, AnEmptyPathIsTheRoot) {
  EXPECT_EQ(openKeyPath(HKEY_CURRENT_USER, {}), HKEY_CURRENT_USER);
}

TEST_F(RegistryTest, APathIsWalkedLevelByLevel) {
  make("a\\b c");
  const HKEY key = openKeyPath(HKEY_CURRENT_USER, {testKey, "a", "b c"});
  ASSERT_NE(key, nullptr);
  EXPECT_NE(key, HKEY_CURRENT_USER);
  RegCloseKey(key);
}

TEST_F(RegistryTest, TheMessageNamesThePathUpToTheMissingKey) {
  make("a");
  try {
    openKeyPath(HKEY_CURRENT_USER, {testKey, "a", "missing", "never"});
    FAIL() << "found what is not there";
  } catch (const NoSuchRegistryEntryE& failure) {
    EXPECT_EQ(failure.message, "Couldn't find registry subkey \\Tarnwick test\\a\\missing");
  }
}

TEST_F(RegistryTest, TheUnnamedTextOfAKeyIsTaken) {
  std::string text = "kept";
  const auto read = [&](const RegistryPath& path) { return readDefaultValue(HKEY_CURRENT_USER, path, text); };
  EXPECT_FALSE(read({testKey})) << "no such key";
  setValue(HKEY_CURRENT_USER, testKey, "named", "x");
  EXPECT_FALSE(read({testKey})) << "no such value";
  setValue(HKEY_CURRENT_USER, below("a"), nullptr, std::string(1024, 'x'));
  EXPECT_FALSE(read({testKey, "a"})) << "with its end it is too long";
  EXPECT_EQ(text, "kept");
  setValue(HKEY_CURRENT_USER, below("a"), nullptr, std::string(1023, 'x'));
  EXPECT_TRUE(read({testKey, "a"}));
  EXPECT_EQ(text, std::string(1023, 'x'));
}

TEST_F(RegistryTest, AKeyGoesWithTheOneBelowIt) {
  make("x\\one");
  const HKEY parent = openKeyPath(HKEY_CURRENT_USER, {testKey});
  deleteKeyTree(parent, "x");
  EXPECT_FALSE(exists(parent, "x"));
  deleteKeyTree(parent, "x");  // nothing there: nothing happens
  RegCloseKey(parent);
}

TEST_F(RegistryTest, EverySecondSubkeyIsPassedOverAndTheKeyThenStays) {
  for (const char* name : {"x\\1", "x\\2", "x\\3"}) make(name);
  const HKEY parent = openKeyPath(HKEY_CURRENT_USER, {testKey});
  deleteKeyTree(parent, "x");
  EXPECT_TRUE(exists(parent, "x"));
  EXPECT_FALSE(exists(parent, "x\\1"));
  EXPECT_TRUE(exists(parent, "x\\2"));
  EXPECT_FALSE(exists(parent, "x\\3"));
  deleteKeyTree(parent, "x");
  EXPECT_FALSE(exists(parent, "x"));
  RegCloseKey(parent);
}

TEST_F(RegistryTest, ASystemTellsByEitherValueThatItIsWindows98) {
  const RegistryPath path = {testKey};
  EXPECT_FALSE(tellsOfWindows98(HKEY_CURRENT_USER, path)) << "no such key";
  setValue(HKEY_CURRENT_USER, testKey, "ProductName", "Microsoft Windows NT");
  EXPECT_FALSE(tellsOfWindows98(HKEY_CURRENT_USER, path));
  setValue(HKEY_CURRENT_USER, testKey, "Version", "Windows 98");
  EXPECT_TRUE(tellsOfWindows98(HKEY_CURRENT_USER, path));
  setValue(HKEY_CURRENT_USER, testKey, "Version", "Windows 98 SE");
  EXPECT_FALSE(tellsOfWindows98(HKEY_CURRENT_USER, path));
  setValue(HKEY_CURRENT_USER, testKey, "ProductName", "Microsoft Windows 98");
  EXPECT_TRUE(tellsOfWindows98(HKEY_CURRENT_USER, path));
  setValue(HKEY_CURRENT_USER, testKey, "ProductName", std::string(200, 'x'));
  EXPECT_FALSE(tellsOfWindows98(HKEY_CURRENT_USER, path)) << "a text that does not fit counts as none";
}

TEST_F(RegistryTest, ThisIsNoWindows98) {
  EXPECT_FALSE(isWindows98());
}

/// Our own file type, which no other program of the test's machine uses.
class ProjectTypeTest : public testing::Test {
 protected:
  void SetUp() override { clear(); }
  void TearDown() override { clear(); }

  static void clear() {
    for (const char* name : {".twp", "Tarnwick.Project", "twp_auto_file"}) {
      removeWhole(HKEY_CLASSES_ROOT, name);
      removeWhole(HKEY_CURRENT_USER, std::string("Software\\Classes\\") + name);
    }
    removeWhole(HKEY_CURRENT_USER, choice);
  }

  static constexpr char choice[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.twp";
};

TEST_F(ProjectTypeTest, RemovingTracesWithNoneOfTheKeysDoesNothing) {
  EXPECT_NO_THROW(removeFileTypeTraces());
}

TEST_F(ProjectTypeTest, TracesOfOtherProgramsAreRemoved) {
  if (!writeDefaultValue(HKEY_CLASSES_ROOT, ".twp", "twp_auto_file")) GTEST_SKIP() << "no right to write classes";
  writeDefaultValue(HKEY_CLASSES_ROOT, "twp_auto_file\\shell\\open\\command", "other.exe %1");
  writeDefaultValue(HKEY_CURRENT_USER, choice + std::string("\\OpenWithList"), "");
  removeFileTypeTraces();
  EXPECT_FALSE(exists(HKEY_CLASSES_ROOT, ".twp"));
  EXPECT_FALSE(exists(HKEY_CLASSES_ROOT, "twp_auto_file"));
  EXPECT_FALSE(exists(HKEY_CURRENT_USER, choice));
}

TEST_F(ProjectTypeTest, TheProgramBecomesTheOpenerOfProjectFiles) {
  writeDefaultValue(HKEY_CLASSES_ROOT, ".twp", "twp_auto_file");
  registerProjectType("C:\\my tools\\Tarnwick.exe");
  EXPECT_EQ(openCommand(".twp"), "\"C:\\my tools\\Tarnwick.exe\" \"%1\"");
  EXPECT_EQ(defaultValue(HKEY_CLASSES_ROOT, ".twp"), "Tarnwick.Project");
  EXPECT_EQ(defaultValue(HKEY_CLASSES_ROOT, "Tarnwick.Project"), "Java Development Project");
  EXPECT_EQ(defaultValue(HKEY_CLASSES_ROOT, "Tarnwick.Project\\DefaultIcon"), "C:\\my tools\\Tarnwick.exe,0");
}

}  // namespace
}  // namespace tarnwick::platform
