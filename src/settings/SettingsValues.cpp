#include "settings/SettingsValues.h"

#include "base/TagRow.h"
#include "settings/SettingsResources.h"

namespace tarnwick {

namespace {

TagRow text(const char* tag, std::string& variable, const char* byDefault, int page, int owner, int control) {
  return {tag, &variable, byDefault, 0, page, owner, control};
}

TagRow number(const char* tag, int& variable, int byDefault, int page, int owner, int control) {
  return {tag, &variable, nullptr, byDefault, page, owner, control};
}

TagRow flag(const char* tag, bool& variable, bool byDefault, int page, int owner, int control) {
  return {tag, &variable, nullptr, byDefault, page, owner, control};
}

TagRow value(const char* tag, StringableM& variable, const char* byDefault, int page, int owner, int control) {
  return {tag, &variable, byDefault, 0, page, owner, control};
}

/// A row that came later than the others.
TagRow later(TagRow row) {
  row.isLater = true;
  return row;
}

}  // namespace

SettingsValues::SettingsValues(PlacedWindow* const& mainWindow) : windowPosition(mainWindow) {
  // Tag, variable, default, page, owner, control; in the order of the file. A control number is unique only within its
  // page. Rows without an owner are reset by hand.
  // Deliberate: with these defaults there is no editor yet, while what the tools say does go to Notepad.
  // clang-format off
  tagRows = {
      flag("EDITOR=NOTEPAD", editWithNotepad, false, EDITOR_PAGE, SETTINGS_DIALOG, 1013),
      flag("EDITOR_OPEN_ALL", editorOpenAll, true, EDITOR_PAGE, SETTINGS_DIALOG, 1153),
      value("PANEL_LAYOUT", panelLayout, nullptr, 0, 0, 0),
      text("EDITOR_TARGET", editorTarget, nullptr, EDITOR_PAGE, SETTINGS_DIALOG, 1042),
      flag("DISPLAY=NOTEPAD", displayWithNotepad, true, TOOLS_PAGE, SETTINGS_DIALOG, 1017),
      flag("CP_FROM_ENV_NEVER", classpathFromEnvironmentNever, true, PATHS_PAGE, SETTINGS_DIALOG, 1138),
      flag("CP_FROM_ENV_ALWAYS", classpathFromEnvironmentAlways, false, PATHS_PAGE, SETTINGS_DIALOG, 1139),
      text("CLASSPATH", classpath, nullptr, PATHS_PAGE, SETTINGS_DIALOG, 1029),
      text("SOURCEPATH", sourcepath, nullptr, PATHS_PAGE, SETTINGS_DIALOG, 1039),
      text("BOOTPATH", bootpath, nullptr, PATHS_PAGE, SETTINGS_DIALOG, 1043),
      text("EXTDIRS", extdirs, nullptr, PATHS_PAGE, SETTINGS_DIALOG, 1045),
      flag("JAVAC_DEBUG", javacDebug, true, JAVAC_PAGE, SETTINGS_DIALOG, 1026),
      flag("JAVAC_FASTCODE", javacFastcode, false, JAVAC_PAGE, SETTINGS_DIALOG, 1024),
      flag("JAVAC_VERBOSE", javacVerbose, false, JAVAC_PAGE, SETTINGS_DIALOG, 1027),
      flag("JAVAC_SOUND_ONSUCCESS", javacSoundOnSuccess, true, JAVAC_PAGE, SETTINGS_DIALOG, 1021),
      flag("JAVAC_SOUND_ONERROR", javacSoundOnError, true, JAVAC_PAGE, SETTINGS_DIALOG, 1022),
      text("JAVAC_TARGET_SPEC", javacTargetSpec, nullptr, JAVAC_PAGE, SETTINGS_DIALOG, 1028),
      text("JAVAC_SOURCEOPTION", javacSourceOption, nullptr, JAVAC_PAGE, SETTINGS_DIALOG, 1179),
      text("JAVAC_MY_JDKVERSION", javacMyJdkVersion, "Pre-1.4", JAVAC_PAGE, SETTINGS_DIALOG, 1269),
      value("RECENT_PROJECTS", recentProjects, nullptr, 0, 0, 0),
      flag("JAVAC_DEPRECATION", javacDeprecation, false, JAVAC_PAGE, SETTINGS_DIALOG, 1044),
      flag("JAVAC_NOWARN", javacNowarn, false, JAVAC_PAGE, SETTINGS_DIALOG, 1270),
      flag("JAVAC_XSWITCHCHECK", javacXswitchcheck, true, JAVAC_PAGE, SETTINGS_DIALOG, 1271),
      flag("JAVAC_WARN_CONVERSION", javacWarnConversion, true, JAVAC_PAGE, SETTINGS_DIALOG, 1264),
      flag("JAVAC_WARN_PATH", javacWarnPath, true, JAVAC_PAGE, SETTINGS_DIALOG, 1265),
      flag("JAVAC_WARN_SERIALIZE", javacWarnSerialize, true, JAVAC_PAGE, SETTINGS_DIALOG, 1266),
      flag("JAVAC_WARN_FINALLY", javacWarnFinally, true, JAVAC_PAGE, SETTINGS_DIALOG, 1267),
      flag("JAVAC_WARN_SWITCH", javacWarnSwitch, true, JAVAC_PAGE, SETTINGS_DIALOG, 1268),
      text("JAVAC_DESTINATION", javacDestination, nullptr, JAVAC_PAGE, SETTINGS_DIALOG, 1040),
      text("JAVAC_JOPTION", javacJOption, nullptr, JAVAC_PAGE, SETTINGS_DIALOG, 1117),
      text("JAVA_PATH", javaPath, nullptr, TOOLS_PAGE, SETTINGS_DIALOG, 1041),
      flag("JAVA_VERBOSE", javaVerbose, false, JAVA_PAGE, SETTINGS_DIALOG, 1032),
      flag("JAVA_XFUTURE", javaXfuture, true, JAVA_PAGE, SETTINGS_DIALOG, 1123),
      flag("JAVA_XPROF", javaXprof, false, JAVA_PAGE, SETTINGS_DIALOG, 1124),
      flag("JAVA_JNI_VALIDATE", javaJniValidate, false, JAVA_PAGE, SETTINGS_DIALOG, 1125),
      text("JAVA_ASSERTENABLE", javaAssertEnable, nullptr, JAVA_PAGE, SETTINGS_DIALOG, 1180),
      text("JAVA_ASSERTDISABLE", javaAssertDisable, nullptr, JAVA_PAGE, SETTINGS_DIALOG, 1181),
      flag("JAVA_SYSTEMASSERTENABLE", javaSystemAssertEnable, false, JAVA_PAGE, SETTINGS_DIALOG, 1182),
      flag("JAVA_SYSTEMASSERTDISABLE", javaSystemAssertDisable, false, JAVA_PAGE, SETTINGS_DIALOG, 1183),
      text("JAVA_GARBAGECOLLECTOR", javaGarbageCollector, nullptr, JAVA_PAGE, SETTINGS_DIALOG, 1184),
      flag("JDB_LAUNCH", jdbLaunch, true, JDB_PAGE, SETTINGS_DIALOG, 1125),
      text("JAVA_XRUNHPROF", javaXrunhprof, nullptr, JAVA_PAGE, SETTINGS_DIALOG, 1126),
      text("JAVA_PROPERTY", javaProperty, nullptr, JAVA_PAGE, SETTINGS_DIALOG, 1031),
      text("JAVA_XMS", javaXms, nullptr, JAVA_PAGE, SETTINGS_DIALOG, 1129),
      text("JAVA_XMX", javaXmx, nullptr, JAVA_PAGE, SETTINGS_DIALOG, 1130),
      text("JAVA_XSS", javaXss, nullptr, JAVA_PAGE, SETTINGS_DIALOG, 1131),
      text("APPLETV_J_OPTION", appletviewerJOption, nullptr, APPLETVIEWER_PAGE, SETTINGS_DIALOG, 1033),
      text("APPLETV_ENCODING", appletviewerEncoding, nullptr, APPLETVIEWER_PAGE, SETTINGS_DIALOG, 1034),
      text("LAST_JAR_ARCHIVE", lastJarArchive, nullptr, 0, 0, 0),
      text("LAST_JAR_BASEFOLDER", lastJarBaseFolder, nullptr, 0, 0, 0),
      flag("JAR_OPEN_AS_ZIP", jarOpenAsZip, false, 0, 0, 0),
      text("LAST_PROJECT_FILE", lastProjectFile, nullptr, 0, 0, 0),
      number("FILEVIEW_TAB", fileviewTab, 0, 0, 0, 0),
      value("FILEVIEW_SOURCE", fileviewSource, nullptr, 0, 0, 0),
      value("FILEVIEW_CLASS", fileviewClass, nullptr, 0, 0, 0),
      value("FILEVIEW_HTML", fileviewHtml, nullptr, 0, 0, 0),
      value("FUNCTIONKEYS", functionKeys, FunctionKeys::defaultText, JDB_PAGE, SETTINGS_DIALOG, 1158),
      text("HELPFILE", helpFile, nullptr, 0, 0, 0),
      value("WINDOW_POSITION", windowPosition, nullptr, 0, 0, 0),
      value("PERSONAL_TEMPLATES", personalTemplates, nullptr, 0, 0, 0),
      text("TARNWICK_VERSION", tarnwickVersion, nullptr, 0, 0, 0),
      text("JDOC_OVERVIEW", javadoc.overview, nullptr, 151, JAVADOC_DIALOG, 1057),
      text("JDOC_LOCALE", javadoc.locale, nullptr, 152, JAVADOC_DIALOG, 1060),
      text("JDOC_ENCODING", javadoc.encoding, nullptr, 152, JAVADOC_DIALOG, 1062),
      text("JDOC_JOPTION", javadoc.jOption, nullptr, 152, JAVADOC_DIALOG, 1063),
      flag("JDOC_PUBLIC", javadoc.isPublic, false, 152, JAVADOC_DIALOG, 1052),
      flag("JDOC_PROTECTED", javadoc.isProtected, false, 152, JAVADOC_DIALOG, 1049),
      flag("JDOC_PRIVATE", javadoc.isPrivate, false, 152, JAVADOC_DIALOG, 1050),
      flag("JDOC_PACKAGE", javadoc.package, false, 152, JAVADOC_DIALOG, 1102),
      flag("JDOC_VERBOSE", javadoc.verbose, false, 152, JAVADOC_DIALOG, 1054),
      flag("JDOC_QUIET", javadoc.quiet, false, 152, JAVADOC_DIALOG, 1247),
      text("JDOC_PACKAGELIST", javadoc.packageList, nullptr, 155, JAVADOC_DIALOG, 1101),
      text("JDOC_DOCLETPATH", javadoc.docletPath, nullptr, 151, JAVADOC_DIALOG, 1059),
      text("JDOC_DOCLETFILE", javadoc.docletFile, nullptr, 151, JAVADOC_DIALOG, 1064),
      text("JDOC_DOCLETOPTIONS", javadoc.docletOptions, nullptr, 152, JAVADOC_DIALOG, 1066),
      text("JDOC_DESTINATION", javadoc.destination, nullptr, 153, JAVADOC_DIALOG, 1046),
      text("JDOC_HELPFILE", javadoc.helpFile, nullptr, 153, JAVADOC_DIALOG, 1048),
      text("JDOC_STYLESHEET", javadoc.styleSheet, nullptr, 153, JAVADOC_DIALOG, 1056),
      text("JDOC_SUBPACKAGES", javadoc.subpackages, nullptr, 153, JAVADOC_DIALOG, 1253),
      text("JDOC_EXCLUDE", javadoc.exclude, nullptr, 153, JAVADOC_DIALOG, 1254),
      text("JDOC_EXCLUDESUBDIR", javadoc.excludeSubdir, nullptr, 153, JAVADOC_DIALOG, 1255),
      value("JDOC_TAG", javadoc.tag, nullptr, 153, JAVADOC_DIALOG, 1256),
      value("JDOC_TAGLET", javadoc.taglet, nullptr, 153, JAVADOC_DIALOG, 1258),
      text("JDOC_TAGLETPATH", javadoc.tagletPath, nullptr, 153, JAVADOC_DIALOG, 1257),
      text("JDOC_WINDOWTITLE", javadoc.windowTitle, nullptr, 154, JAVADOC_DIALOG, 1068),
      text("JDOC_DOCTITLE", javadoc.docTitle, nullptr, 154, JAVADOC_DIALOG, 1069),
      text("JDOC_HEADER", javadoc.header, nullptr, 154, JAVADOC_DIALOG, 1070),
      text("JDOC_FOOTER", javadoc.footer, nullptr, 154, JAVADOC_DIALOG, 1071),
      text("JDOC_BOTTOM", javadoc.bottom, nullptr, 154, JAVADOC_DIALOG, 1072),
      text("JDOC_LINK", javadoc.link, nullptr, 154, JAVADOC_DIALOG, 1087),
      text("JDOC_LINKOFFLINE", javadoc.linkOffline, nullptr, 154, JAVADOC_DIALOG, 1088),
      text("JDOC_GROUP", javadoc.group, nullptr, 154, JAVADOC_DIALOG, 1089),
      text("JDOC_DOCENCODING", javadoc.docEncoding, nullptr, 154, JAVADOC_DIALOG, 1090),
      text("JDOC_CHARSET", javadoc.charset, nullptr, 154, JAVADOC_DIALOG, 1102),
      text("JDOC_NOQUALIFIER", javadoc.noQualifier, nullptr, 154, JAVADOC_DIALOG, 1252),
      flag("JDOC_USE", javadoc.use, false, 154, JAVADOC_DIALOG, 1091),
      flag("JDOC_VERSION", javadoc.version, false, 154, JAVADOC_DIALOG, 1092),
      flag("JDOC_AUTHOR", javadoc.author, false, 154, JAVADOC_DIALOG, 1093),
      flag("JDOC_SPLITINDEX", javadoc.splitIndex, false, 154, JAVADOC_DIALOG, 1094),
      flag("JDOC_BREAKITERATOR", javadoc.breakIterator, false, 154, JAVADOC_DIALOG, 1249),
      flag("JDOC_DOCFILESSUBDIRS", javadoc.docFilesSubdirs, false, 154, JAVADOC_DIALOG, 1250),
      flag("JDOC_LINKSOURCE", javadoc.linkSource, false, 154, JAVADOC_DIALOG, 1248),
      flag("JDOC_NOCOMMENT", javadoc.noComment, false, 154, JAVADOC_DIALOG, 1251),
      flag("JDOC_NODEPRECATED", javadoc.noDeprecated, false, 154, JAVADOC_DIALOG, 1095),
      flag("JDOC_NODEPRECATEDLIST", javadoc.noDeprecatedList, false, 154, JAVADOC_DIALOG, 1100),
      flag("JDOC_NOTREE", javadoc.noTree, false, 154, JAVADOC_DIALOG, 1096),
      flag("JDOC_NOSINCE", javadoc.noSince, false, 154, JAVADOC_DIALOG, 1185),
      flag("JDOC_NOINDEX", javadoc.noIndex, false, 154, JAVADOC_DIALOG, 1097),
      flag("JDOC_NOHELP", javadoc.noHelp, false, 154, JAVADOC_DIALOG, 1098),
      flag("JDOC_NONAVBAR", javadoc.noNavbar, false, 154, JAVADOC_DIALOG, 1099),
      flag("JDOC_SERIALWARN", javadoc.serialWarn, false, 154, JAVADOC_DIALOG, 1101),
      later(flag("NEWER_JAVA", newerJava, false, JAVAC_PAGE, SETTINGS_DIALOG, 2101)),
      later(flag("JAVAC_ONE_RUN", javacOneRun, false, JAVAC_PAGE, SETTINGS_DIALOG, 2102)),
      later(text("JAVAC_OPTIONS", javacOptions, nullptr, JAVAC_PAGE, SETTINGS_DIALOG, 2103)),
      later(text("JAVA_OPTIONS", javaOptions, nullptr, JAVA_PAGE, SETTINGS_DIALOG, 2104)),
      later(flag("NEWER_CONSOLE", newerConsole, false, JAVA_PAGE, SETTINGS_DIALOG, 2131)),
      later(text("EDITOR_PLACE", editorPlace, nullptr, EDITOR_PAGE, SETTINGS_DIALOG, 2110)),
      later(flag("DISPLAY_MESSAGES", displayMessages, false, TOOLS_PAGE, SETTINGS_DIALOG, 2111)),
      later(text("MESSAGES_PLACE", messagesPlace, nullptr, 0, 0, 0)),
      later(flag("WATCH_RUNS", watchRuns, false, TOOLS_PAGE, SETTINGS_DIALOG, 2120)),
      later(flag("STATUS_LINE", statusLine, false, TOOLS_PAGE, SETTINGS_DIALOG, 2150)),
      later(flag("TOOLS_WITHOUT_CONSOLE", toolsWithoutConsole, false, TOOLS_PAGE, SETTINGS_DIALOG, 2170)),
      later(value("LAST_SOURCES", lastSources, nullptr, 0, 0, 0)),
      later(value("LAST_CLASSES", lastClasses, nullptr, 0, 0, 0)),
      later(value("LAST_PAGES", lastPages, nullptr, 0, 0, 0)),
      later(flag("JDB_OWN_STREAMS", jdbOwnStreams, false, JDB_PAGE, SETTINGS_DIALOG, 2160)),
      endOfRows,
  };
  // clang-format on
}

SettingsValues::~SettingsValues() = default;

const TagRow* SettingsValues::firstRow() const {
  return tagRows.data();
}

}  // namespace tarnwick
