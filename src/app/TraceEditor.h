#pragma once

#include "app/TraceSources.h"

#include <string>

namespace tarnwick {

/// Opens the places of a console's stack traces in the user's editor.
class TraceEditor {
 public:
  /// For a program that begins in the current folder. `settings` outlive it.
  TraceEditor(Settings& settings, const std::string& configFile, const std::string& runArguments);

  /// Opens the place. Where several sources may be meant the user is asked; what can't be done is told.
  void open(const TraceLink& trace) const;

 private:
  Settings& settings_;
  TraceFolders folders_;
};

}  // namespace tarnwick
