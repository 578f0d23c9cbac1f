// What the program's own dialogs stand on, in a folder of the test's own.
#pragma once

#include "base/ProgramInfo.h"
#include "process/ToolLog.h"
#include "settings/JdkDiscovery.h"
#include "settings/OpenProject.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"
#include "settingsdialog/SettingsOnDesktop.h"
#include "support/TestProgram.h"
#include "ui/WindowTest.h"

namespace tarnwick::test {

struct ProgramWorld {
  ProgramWorld() : environment("TARNWICK_CFGDIR", scratch.path()) {
    program.programDirectory = scratch.path();
    context.installedJdks = [] { return std::vector<Jdk>(); };
  }

  ScratchFolder scratch;
  ScopedEnvironment environment;
  ProgramInfo program;
  ToolLog log{scratch.path()};
  SettingsContext context = settingsOnDesktop(desktop(), program, log);
  Settings settings{context};
};

}  // namespace tarnwick::test
