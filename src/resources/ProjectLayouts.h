// The layouts of the dialogs about projects.
#pragma once

namespace tarnwick {

struct DialogLayout;

/// "Select existing project".
const DialogLayout& selectProjectLayout();
/// "Define which files belong to the project".
const DialogLayout& projectFilesLayout();
/// "Select class with main()".
const DialogLayout& mainClassLayout();

enum SelectProjectControl { RECENT_LIST = 3001, BROWSE_PROJECT = 3002, REGISTER_TYPE = 3003 };

enum ProjectFilesControl {
  PROJECT_FILES = 3011,
  OTHER_FILES = 3012,
  ADD_FILES = 3013,
  REMOVE_FILES = 3014,
  SELECT_ALL_FILES = 3015,
  SELECT_NO_FILES = 3016,
  CREATE_FILE = 3017,
  ALLOW_MULTIPLE_MAIN = 3018,
  PROJECT_FILES_HELP = 3019,
  FILES_FILTER = 3022,
  PROJECT_FILES_COUNT = 3023,
  OTHER_FILES_COUNT = 3024,
  ADD_ALL_FILES = 3025,
};

enum MainClassControl { CLASS_LIST = 3021 };

}  // namespace tarnwick
