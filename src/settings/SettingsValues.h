#pragma once

#include "base/FileForSubprocess.h"
#include "base/TokenString.h"
#include "settings/FunctionKeys.h"
#include "settings/LayoutValue.h"
#include "settings/WindowPosition.h"

#include <string>
#include <vector>

namespace tarnwick {

class PlacedWindow;
struct TagRow;

/// The variables behind the rows of the javadoc dialog.
struct JavadocValues {
  std::string overview, locale, encoding, jOption;
  bool isPublic = false, isProtected = false, isPrivate = false, package = false, verbose = false, quiet = false;
  std::string packageList, docletPath, docletFile, docletOptions, destination, helpFile, styleSheet, subpackages,
      exclude, excludeSubdir;
  TokenString tag, taglet;
  std::string tagletPath, windowTitle, docTitle, header, footer, bottom, link, linkOffline, group, docEncoding, charset,
      noQualifier;
  bool use = false, version = false, author = false, splitIndex = false, breakIterator = false, docFilesSubdirs = false,
       linkSource = false, noComment = false, noDeprecated = false, noDeprecatedList = false, noTree = false,
       noSince = false, noIndex = false, noHelp = false, noNavbar = false, serialWarn = false;
};

/// The variables behind the rows of the configuration, and the rows themselves. The rows point into this object.
struct SettingsValues {
  explicit SettingsValues(PlacedWindow* const& mainWindow);
  ~SettingsValues();
  SettingsValues(const SettingsValues&) = delete;
  SettingsValues& operator=(const SettingsValues&) = delete;

  // JDK tools
  std::string javaPath;
  bool displayWithNotepad = false, displayMessages = false, watchRuns = false, statusLine = false;
  bool toolsWithoutConsole = false;
  std::string messagesPlace;

  // javac
  bool javacDebug = false, javacFastcode = false, javacDeprecation = false, javacVerbose = false,
       javacSoundOnSuccess = false, javacSoundOnError = false;
  std::string javacMyJdkVersion;
  bool javacNowarn = false, javacXswitchcheck = false, javacWarnConversion = false, javacWarnPath = false,
       javacWarnSerialize = false, javacWarnFinally = false, javacWarnSwitch = false;
  std::string javacSourceOption, javacTargetSpec, javacDestination, javacJOption;
  bool newerJava = false, javacOneRun = false;
  std::string javacOptions;

  // java and jdb
  bool javaVerbose = false, javaXfuture = false, javaXprof = false, javaJniValidate = false;
  std::string javaXms, javaXmx, javaXss, javaXrunhprof, javaGarbageCollector, javaProperty, javaAssertEnable,
      javaAssertDisable, javaOptions;
  bool newerConsole = false;
  bool javaSystemAssertEnable = false, javaSystemAssertDisable = false, jdbLaunch = false;
  bool jdbOwnStreams = false;
  FunctionKeys functionKeys;

  // appletviewer, editor, paths
  std::string appletviewerJOption, appletviewerEncoding;
  bool editWithNotepad = false, editorOpenAll = false;
  std::string editorTarget, editorPlace;
  bool classpathFromEnvironmentNever = false, classpathFromEnvironmentAlways = false;
  std::string classpath, sourcepath, bootpath, extdirs;

  // On no page
  LayoutValue panelLayout;
  TokenString recentProjects, personalTemplates;
  std::string lastJarArchive, lastJarBaseFolder, lastProjectFile;
  bool jarOpenAsZip = false;
  int fileviewTab = 0;
  FileForSubprocess fileviewSource, fileviewClass, fileviewHtml;
  /// What stood in these three when it was used, the last one first.
  TokenString lastSources, lastClasses, lastPages;
  std::string helpFile, tarnwickVersion;
  WindowPosition windowPosition;

  JavadocValues javadoc;

  /// All rows in the order of the file, closed by the end row.
  std::vector<TagRow> tagRows;
  const TagRow* firstRow() const;
};

}  // namespace tarnwick
