// Where JDKs are looked for on Windows: real keys of the registry, and folders.
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "settings/JdkDiscovery.h"
#include "support/TestProgram.h"
#include "support/win32/RegistryKeys.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class JdkPlacesTest : public testing::Test {
 protected:
  /// The whole path of a JDK's own folder.
  std::string home(const std::string& name) const { return platform::absolutePath(scratch_.file(name)); }

  /// Makes a JDK of empty files. Gives the folder of its tools.
  std::string makeJdk(const std::string& name) const {
    const std::string tools = home(name) + "\\bin\\";
    platform::makeFolders(tools);
    writeFile(tools + "javac.exe", "");
    writeFile(home(name) + "\\release", "JAVA_VERSION=\"99.0.1\"\n");
    const std::string real = platform::resolvedPath(tools + "javac.exe");
    return real.substr(0, real.size() - std::string("javac.exe").size());
  }

  static int timesFound(const std::string& tools) {
    const auto jdks = installedJdks();
    return static_cast<int>(std::count_if(jdks.begin(), jdks.end(), [&](const Jdk& jdk) {
      return platform::sameFileName(jdk.toolsFolder, tools) && jdk.version == "99.0.1";
    }));
  }

  ScratchFolder scratch_;
  ScopedEnvironment javaHome_{"JAVA_HOME", ""};
  ScopedEnvironment path_{"PATH", scratch_.file("no such folder")};
};

TEST_F(JdkPlacesTest, TheKeysOfEveryVendorAreRead) {
  const struct {
    const char* key;
    const char* value;
  } table[] = {
      {"JavaSoft\\JDK\\99.0.1", "JavaHome"},
      {"JavaSoft\\Java Development Kit\\1.8.0_999", "JavaHome"},
      {"Eclipse Adoptium\\JDK\\99.0.1.7\\hotspot\\MSI", "Path"},
      {"Eclipse Foundation\\JDK\\99.0.1.7\\hotspot\\MSI", "Path"},
      {"AdoptOpenJDK\\JDK\\99.0.1.7\\hotspot\\MSI", "Path"},
      {"Microsoft\\JDK\\99.0.1.7\\hotspot\\MSI", "Path"},
      {"Semeru\\JDK\\99.0.1.7\\openj9\\MSI", "Path"},
      {"Azul Systems\\Zulu\\zulu-99", "InstallationPath"},
      {"BellSoft\\Liberica\\99.0.1", "InstallationPath"},
      {"Amazon Corretto\\99.0.1", "Path"},
  };
  const std::string tools = makeJdk("jdk of a vendor");
  ASSERT_EQ(timesFound(tools), 0);
  for (const auto& row : table) {
    const std::string key = std::string("SOFTWARE\\") + row.key;
    {
      // Some installers write the folder with its last separator.
      const ScopedRegistryText entry(HKEY_CURRENT_USER, key, row.value, home("jdk of a vendor") + "\\");
      ASSERT_TRUE(entry.written()) << key;
      EXPECT_EQ(timesFound(tools), 1) << key;
    }
    EXPECT_EQ(timesFound(tools), 0) << key << " is gone again";
  }
}

TEST_F(JdkPlacesTest, BothViewsOfTheMachinesKeysAreRead) {
  const std::string tools = makeJdk("jdk");
  for (const REGSAM view : {KEY_WOW64_64KEY, KEY_WOW64_32KEY}) {
    const ScopedRegistryText entry(HKEY_LOCAL_MACHINE, "SOFTWARE\\JavaSoft\\JDK\\99", "JavaHome", home("jdk"), view);
    if (!entry.written()) GTEST_SKIP() << "this user may not write keys of the machine";
    EXPECT_EQ(timesFound(tools), 1) << view;
  }
  EXPECT_EQ(timesFound(tools), 0);
}

TEST_F(JdkPlacesTest, AKeyThatNamesNoJdkIsPassedOver) {
  platform::makeFolders(home("runtime") + "\\bin");
  writeFile(home("runtime") + "\\bin\\java.exe", "");
  const std::size_t before = installedJdks().size();
  const ScopedRegistryText runtime(HKEY_CURRENT_USER, "SOFTWARE\\JavaSoft\\JDK\\98", "JavaHome", home("runtime"));
  EXPECT_EQ(installedJdks().size(), before);
  const ScopedRegistryText gone(HKEY_CURRENT_USER, "SOFTWARE\\JavaSoft\\JDK\\97", "JavaHome", home("gone"));
  EXPECT_EQ(installedJdks().size(), before);
  const ScopedRegistryText empty(HKEY_CURRENT_USER, "SOFTWARE\\JavaSoft\\JDK\\96", "JavaHome", "");
  EXPECT_EQ(installedJdks().size(), before);
  const ScopedRegistryText longer(HKEY_CURRENT_USER, "SOFTWARE\\JavaSoft\\JDK\\95", "JavaHome", std::string(2000, 'x'));
  EXPECT_EQ(installedJdks().size(), before);
}

TEST_F(JdkPlacesTest, AJdkThatSeveralEntriesNameIsListedOnce) {
  const std::string tools = makeJdk("jdk");
  std::string shouted = home("jdk");
  std::transform(shouted.begin(), shouted.end(), shouted.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  const ScopedRegistryText one(HKEY_CURRENT_USER, "SOFTWARE\\JavaSoft\\JDK\\99", "JavaHome", home("jdk"));
  const ScopedRegistryText two(HKEY_CURRENT_USER, "SOFTWARE\\Azul Systems\\Zulu\\zulu-99", "InstallationPath", shouted);
  const ScopedEnvironment javaHome("JAVA_HOME", home("jdk"));
  EXPECT_EQ(timesFound(tools), 1);
}

TEST_F(JdkPlacesTest, TheFoldersOfProgramsAreSearched) {
  for (const char* variable : {"ProgramFiles", "ProgramW6432", "ProgramFiles(x86)"}) {
    const std::string programs = std::string("programs of ") + variable;
    const ScopedEnvironment folder(variable, home(programs));
    for (const char* vendor : {"Java\\jdk-99", "Eclipse Adoptium\\jdk-99.0.1.7-hotspot", "Microsoft\\jdk-99.0.1.7",
                               "Semeru\\jdk-99", "Zulu\\zulu-99", "BellSoft\\LibericaJDK-99", "Amazon Corretto\\jdk99",
                               "RedHat\\java-99-openjdk", "AdoptOpenJDK\\jdk-99", "OpenJDK\\jdk-99"}) {
      EXPECT_EQ(timesFound(makeJdk(programs + "\\" + vendor)), 1) << variable << " " << vendor;
    }
  }
}

TEST_F(JdkPlacesTest, VersionManagersInTheHomeFolderAreKnown) {
  const ScopedEnvironment profile("USERPROFILE", home("home"));
  for (const char* folder : {".jdks\\corretto-99", ".sdkman\\candidates\\java\\99-tem", ".jabba\\jdk\\openjdk@1.99.0",
                             ".gradle\\jdks\\jdk-99", ".gradle\\jdks\\eclipse_adoptium-99-amd64-windows\\jdk-99.0.1+7",
                             ".jbang\\cache\\jdks\\99", "AppData\\Local\\mise\\installs\\java\\openjdk-99"}) {
    EXPECT_EQ(timesFound(makeJdk(std::string("home\\") + folder)), 1) << folder;
  }
}

}  // namespace
}  // namespace tarnwick::test
