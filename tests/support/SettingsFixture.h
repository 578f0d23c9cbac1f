#pragma once

#include "base/ProgramInfo.h"
#include "base/Tarnwickfile.h"
#include "base/TempFile.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "process/ToolLog.h"
#include "settings/JdkDiscovery.h"
#include "settings/OpenProject.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "settingsdialog/SettingsOnDesktop.h"
#include "support/ScriptedDesktop.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace tarnwick::test {

/// Settings in a configuration folder of the test's own, on a scripted desktop.
class SettingsFixture : public testing::Test {
 protected:
  SettingsFixture() : environment_("TARNWICK_CFGDIR", configFolder()) {
    platform::makeFolders(configFolder());
    platform::makeFolders(programFolder());
    platform::makeFolders(userFolder());
    program_.programDirectory = programFolder();
    program_.programPath = programFolder() + "tarnwick";
    // Only what a test's own environment names, not what this machine happens to have.
    context_.installedJdks = [] { return findJdks({}); };
  }

  std::string configFolder() const { return scratch_.file("con fig") + platform::folderSeparator; }
  std::string programFolder() const { return scratch_.file("pro gram") + platform::folderSeparator; }
  /// Where the user's own files lie.
  std::string userFolder() const { return scratch_.file("us er") + platform::folderSeparator; }
  std::string configFile() const { return configFolder() + defaultConfigurationName; }

  /// The bytes of a text on disk, where its lines end as the system's do.
  static std::string onDisk(const std::string& text) {
    std::string bytes;
    for (const char c : text) bytes += c == '\n' ? platform::lineEnd : std::string(1, c);
    return bytes;
  }

  Settings& settings() {
    if (!settings_) settings_ = std::make_unique<Settings>(context_);
    return *settings_;
  }
  /// A second object, as another run would have it.
  std::unique_ptr<Settings> freshSettings() { return std::make_unique<Settings>(context_); }

  /// The folder of the stand-in tools as the JDK's.
  void useStandIns() { settings().javaPath = standInFolder(); }

  ScratchFolder scratch_;
  ScopedEnvironment environment_;
  ScriptedDesktop desktop_;
  ProgramInfo program_;
  ToolLog log_{configFolder()};
  SettingsContext context_ = settingsOnDesktop(desktop_, program_, log_);

 private:
  std::unique_ptr<Settings> settings_;
};

}  // namespace tarnwick::test
