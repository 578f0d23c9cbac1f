// One run of the program that does nothing but save its configuration.
#pragma once

#include "base/ProgramInfo.h"
#include "base/TagRow.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "process/ToolLog.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "settingsdialog/SettingsOnDesktop.h"
#include "support/QuietDesktop.h"

#include <iostream>
#include <memory>
#include <string>

namespace tarnwick::test {

/// Saves one of two configurations, "a" or "b", into a folder. Every text of the one is a row of a's, of the other a
/// shorter row of b's, so that a mixture of the two shows. Messages to the user go to standard output.
class SavingRun {
 public:
  explicit SavingRun(const std::string& folder) {
    platform::setEnvironment("TARNWICK_CFGDIR=" + folder);
    program_.programDirectory = folder + platform::folderSeparator + "program" + platform::folderSeparator;
    context_ = std::make_unique<SettingsContext>(settingsOnDesktop(desktop_, program_, log_));
    settings_ = std::make_unique<Settings>(*context_);
  }

  void save(char letter) {
    const std::string value(letter == 'a' ? 200 : 100, letter);
    for (const auto& row : settings_->tagRows) {
      const std::string tag = row.tag;
      if (row.kind() == TAG_STRING && tag != "HELPFILE") *std::get<std::string*>(row.variable) = value;
    }
    settings_->saveDefaultConfiguration();
    for (const auto& message : desktop_.messages) std::cout << "message: " << message << std::endl;
    desktop_.messages.clear();
  }

 private:
  QuietDesktop desktop_;
  ProgramInfo program_;
  ToolLog log_{""};
  std::unique_ptr<SettingsContext> context_;
  std::unique_ptr<Settings> settings_;
};

}  // namespace tarnwick::test
