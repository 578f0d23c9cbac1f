// The layouts of the dialogs about archives.
#pragma once

#include "resources/StandardControls.h"

namespace tarnwick {

struct DialogLayout;

/// "jar".
const DialogLayout& jarLayout();
/// "Select folder".
const DialogLayout& selectSubdirectoryLayout();

/// The controls of the dialog "jar".
struct Jar {
  enum Control {
    RUN = IDOK_CONTROL,
    CANCEL = IDCANCEL_CONTROL,
    CREATE_ARCHIVE = 4001,
    UPDATE_ARCHIVE = 4002,
    ARCHIVE = 4003,
    BASE_FOLDER = 4004,
    BROWSE_BASE_FOLDER = 4005,
    ALL_FILES = 4006,
    INDIVIDUAL_FILES = 4007,
    SELECT_FILES = 4008,
    CLEAR_FILES = 4009,
    SUBFOLDERS = 4010,
    ADD_ALL_SUBFOLDERS = 4011,
    SELECT_SUBFOLDERS = 4012,
    CLEAR_SUBFOLDERS = 4013,
    NO_MANIFEST = 4014,
    MANIFEST_FILE = 4015,
    BROWSE_MANIFEST = 4016,
    MAIN_CLASS = 4017,
    CLASS_PATH = 4018,
    ADD_TO_CLASS_PATH = 4019,
    CLEAR_CLASS_PATH = 4020,
    VERBOSE = 4021,
    NO_COMPRESSION = 4022,
    OPEN_AS_ZIP = 4023,
    CREATE_INDEX = 4024,
    HELP = 4025,
  };
};

/// The controls of the dialog "Select folder".
struct SelectSubdirectory {
  enum Control { OK = IDOK_CONTROL, CANCEL = IDCANCEL_CONTROL, FOLDERS = 4031 };
};

}  // namespace tarnwick
