// What the program's own dialogs stand on, in a folder of the test's own.
#pragma once

#include "settings/Settings.h"
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
  SettingsContext context{desktop(), program, log};
  Settings settings{context};
};

}  // namespace tarnwick::test
