#pragma once

#include "console/TarnwickDoc.h"

#include <optional>
#include <string>

namespace tarnwick {

/// The place of a source that a stack trace, or a debugger's list of calls, names.
struct TraceLink {
  std::string file;     ///< the source's name without a folder, as in "Main.java"
  int line = 0;         ///< counted from 1
  std::string package;  ///< of the class that was running, as in "org.x"; empty for the unnamed one
  ColumnRange columns;  ///< of "Main.java:5" in its line
  bool operator==(const TraceLink&) const = default;
};

/// The place that stands in a line of text at this column, in the form "(Main.java:5)"; what stands before it tells the
/// package, whatever module or class loader is named as well.
std::optional<TraceLink> traceLinkAt(const ConsoleLine& line, int column);

}  // namespace tarnwick
