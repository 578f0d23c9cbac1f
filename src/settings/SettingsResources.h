#pragma once

namespace tarnwick {

/// Resource numbers of the dialogs that own rows, and of the pages that show them.
enum SettingsResource {
  SETTINGS_DIALOG = 148,
  JAVADOC_DIALOG = 150,
  TOOLS_PAGE = 144,
  JAVAC_PAGE = 145,
  JAVA_PAGE = 146,
  JDB_PAGE = 173,
  APPLETVIEWER_PAGE = 147,
  EDITOR_PAGE = 143,
  PATHS_PAGE = 184,
};

}  // namespace tarnwick
