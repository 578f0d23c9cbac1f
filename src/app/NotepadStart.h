#pragma once

#include <string>
#include <vector>

namespace tarnwick {

/// What our own small editor begins with.
struct NotepadStart {
  std::string path;  ///< empty for a text without a name
  int line = 0;      ///< from 1; 0 for the text's beginning
  int column = 0;    ///< likewise, in that line
};

/// The editor's arguments, without its own name: a file, before which a line may stand as in "+12", or as in "+12:5"
/// with a column. Nothing else is taken for a line: files may bear such names.
NotepadStart notepadStart(const std::vector<std::string>& arguments);

}  // namespace tarnwick
