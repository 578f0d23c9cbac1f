#pragma once

#include "source/Compiler.h"
#include "source/PortabilityWarningDlg.h"

namespace tarnwick::test {

/// A compiler as a view makes it for a single source.
inline Compiler askingCompiler(Settings& settings) {
  return Compiler(settings, compilerClasspath(settings), [&settings] { return maySplit(settings); });
}

}  // namespace tarnwick::test
