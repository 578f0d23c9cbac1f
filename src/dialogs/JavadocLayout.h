// The layouts of the dialog "javadoc" and of its five pages. The controls of the pages that show a setting bear the
// number of its row.
#pragma once

#include "resources/StandardControls.h"

namespace tarnwick {

struct DialogLayout;

/// "javadoc".
const DialogLayout& javadocLayout();
/// "source files".
const DialogLayout& javadocSourcesLayout();
/// "javadoc files and paths".
const DialogLayout& javadocPathsLayout();
/// "javadoc options".
const DialogLayout& javadocOptionsLayout();
/// "doclet files and paths".
const DialogLayout& docletPathsLayout();
/// "doclet options".
const DialogLayout& docletOptionsLayout();

/// Resource numbers of the pages.
enum JavadocResource {
  JAVADOC_PATHS_PAGE = 151,
  JAVADOC_OPTIONS_PAGE = 152,
  DOCLET_PATHS_PAGE = 153,
  DOCLET_OPTIONS_PAGE = 154,
  JAVADOC_SOURCES_PAGE = 155,
};

/// The dialog's own controls.
struct Javadoc {
  enum Control { RUN = IDOK_CONTROL, CANCEL = IDCANCEL_CONTROL, TABS = 4101, HELP = 4102 };
};

/// The controls of "source files".
struct JavadocSources {
  enum Control { FILES = 4111, ADD_FILES = 4112, CLEAR_FILES = 4113, PACKAGES = 1101 };
};

/// The controls of "javadoc files and paths".
struct JavadocPaths {
  enum Control {
    SOURCEPATH = 4121,
    ADD_TO_SOURCEPATH = 4122,
    CLEAR_SOURCEPATH = 4123,
    CLASSPATH = 4124,
    ADD_TO_CLASSPATH = 4125,
    CLEAR_CLASSPATH = 4126,
    BOOTCLASSPATH = 4127,
    ADD_TO_BOOTCLASSPATH = 4128,
    CLEAR_BOOTCLASSPATH = 4129,
    EXTDIRS = 4130,
    ADD_TO_EXTDIRS = 4131,
    CLEAR_EXTDIRS = 4132,
    OVERVIEW = 1057,
    BROWSE_OVERVIEW = 4133,
    DOCLET_PATH = 1059,
    BROWSE_DOCLET_PATH = 4134,
    DOCLET_FILE = 1064,
    BROWSE_DOCLET_FILE = 4135,
    BOOTCLASSPATH_MARK = 4136,
    EXTDIRS_MARK = 4137,
  };
};

/// The controls of "javadoc options".
struct JavadocOptions {
  enum Control {
    DOCLET_OPTIONS = 1066,
    LOCALE = 1060,
    ENCODING = 1062,
    J_FLAGS = 1063,
    PUBLIC = 1052,
    PROTECTED = 1049,
    PRIVATE = 1050,
    PACKAGE = 1102,
    VERBOSE = 1054,
    QUIET = 1247,
  };
};

/// The controls of "doclet files and paths".
struct DocletPaths {
  enum Control {
    DESTINATION = 1046,
    BROWSE_DESTINATION = 4141,
    HELP_FILE = 1048,
    BROWSE_HELP_FILE = 4142,
    STYLE_SHEET = 1056,
    BROWSE_STYLE_SHEET = 4143,
    SUBPACKAGES = 1253,
    EXCLUDE = 1254,
    EXCLUDE_SUBDIR = 1255,
    TAG = 1256,
    TAGLET = 1258,
    ADD_TAGLET = 4144,
    CLEAR_TAGLET = 4145,
    TAGLET_PATH = 1257,
    ADD_TO_TAGLET_PATH = 4146,
    CLEAR_TAGLET_PATH = 4147,
  };
};

/// The controls of "doclet options".
struct DocletOptions {
  enum Control {
    WINDOW_TITLE = 1068,
    DOC_TITLE = 1069,
    HEADER = 1070,
    FOOTER = 1071,
    FOOTER_MARK = 4151,
    BOTTOM = 1072,
    LINK = 1087,
    LINK_OFFLINE = 1088,
    GROUP = 1089,
    DOC_ENCODING = 1090,
    CHARSET = 1102,
    NO_QUALIFIER = 1252,
    USE = 1091,
    VERSION = 1092,
    AUTHOR = 1093,
    SPLIT_INDEX = 1094,
    NO_DEPRECATED = 1095,
    NO_TREE = 1096,
    NO_INDEX = 1097,
    NO_HELP = 1098,
    NO_NAVBAR = 1099,
    NO_DEPRECATED_LIST = 1100,
    SERIAL_WARN = 1101,
    NO_SINCE = 1185,
    LINK_SOURCE = 1248,
    BREAK_ITERATOR = 1249,
    DOC_FILES_SUBDIRS = 1250,
    NO_COMMENT = 1251,
  };
};

}  // namespace tarnwick
