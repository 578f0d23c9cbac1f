// How editors are told the line at which they are to open a file.
#pragma once

#include <string>
#include <vector>

namespace tarnwick {

/// Where in a file an editor is to open it, both counted from 1. Line 0: nowhere in particular. Column 0: not known,
/// so at the line's beginning.
struct EditorPlace {
  int line = 0;
  int column = 0;
};

/// The arguments that open a file at a place in this editor: by the user's pattern for it, or if that is empty in the
/// form that an editor of this executable's name is known to have. An unknown one gets the file alone: it might take a
/// line for a file of that name. In a pattern blanks separate arguments, double quotes hold them together, and %f, %l
/// and %c stand for file, line and column; a file that it does not name comes last.
std::vector<std::string> editorArguments(const std::string& executable, const std::string& pattern,
                                         const std::string& file, const EditorPlace& place);

}  // namespace tarnwick
