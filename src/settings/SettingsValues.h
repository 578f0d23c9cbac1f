#pragma once

#include "base/TagTable.h"
#include "base/TokenString.h"
#include "process/FileForSubprocess.h"
#include "settings/FunctionKeys.h"
#include "settings/LayoutValue.h"
#include "settings/WindowPosition.h"

#include <string>
#include <vector>

namespace tarnwick {

/// The variables behind the rows of the javadoc dialog.
struct JavadocValues {
  std::string overview, locale, encoding, jOption;
  int isPublic = 0, isProtected = 0, isPrivate = 0, package = 0, verbose = 0, quiet = 0;
  std::string packageList, docletPath, docletFile, docletOptions, destination, helpFile, styleSheet, subpackages,
      exclude, excludeSubdir;
  TokenString tag, taglet;
  std::string tagletPath, windowTitle, docTitle, header, footer, bottom, link, linkOffline, group, docEncoding, charset,
      noQualifier;
  int use = 0, version = 0, author = 0, splitIndex = 0, breakIterator = 0, docFilesSubdirs = 0, linkSource = 0,
      noComment = 0, noDeprecated = 0, noDeprecatedList = 0, noTree = 0, noSince = 0, noIndex = 0, noHelp = 0,
      noNavbar = 0, serialWarn = 0;
};

/// The variables behind the rows of the configuration, and the rows themselves. The rows point into this object.
struct SettingsValues {
  explicit SettingsValues(DialogWindow* const& mainWindow);
  SettingsValues(const SettingsValues&) = delete;
  SettingsValues& operator=(const SettingsValues&) = delete;

  // JDK tools
  std::string javaPath;
  int displayWithNotepad = 0;

  // javac
  int javacDebug = 0, javacFastcode = 0, javacDeprecation = 0, javacVerbose = 0, javacSoundOnSuccess = 0,
      javacSoundOnError = 0;
  std::string javacMyJdkVersion;
  int javacNowarn = 0, javacXswitchcheck = 0, javacWarnConversion = 0, javacWarnPath = 0, javacWarnSerialize = 0,
      javacWarnFinally = 0, javacWarnSwitch = 0;
  std::string javacSourceOption, javacTargetSpec, javacDestination, javacJOption;

  // java and jdb
  int javaVerbose = 0, javaXfuture = 0, javaXprof = 0, javaJniValidate = 0;
  std::string javaXms, javaXmx, javaXss, javaXrunhprof, javaGarbageCollector, javaProperty, javaAssertEnable,
      javaAssertDisable;
  int javaSystemAssertEnable = 0, javaSystemAssertDisable = 0, jdbLaunch = 0;
  FunctionKeys functionKeys;

  // appletviewer, editor, paths
  std::string appletviewerJOption, appletviewerEncoding;
  int editWithNotepad = 0, editorOpenAll = 0;
  std::string editorTarget;
  int classpathFromEnvironmentNever = 0, classpathFromEnvironmentAlways = 0;
  std::string classpath, sourcepath, bootpath, extdirs;

  // On no page
  LayoutValue panelLayout;
  TokenString recentProjects, personalTemplates;
  std::string lastJarArchive, lastJarBaseFolder, lastProjectFile;
  int jarOpenAsZip = 0, fileviewTab = 0;
  FileForSubprocess fileviewSource, fileviewClass, fileviewHtml;
  std::string helpFile, tarnwickVersion;
  WindowPosition windowPosition;

  JavadocValues javadoc;

  /// All rows in the order of the file, closed by the end row.
  std::vector<TagRow> tagRows;
};

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
