// The layouts of the settings dialog's pages that build command lines, name the editor and hold the paths.
#pragma once

namespace tarnwick {

struct DialogLayout;

/// The marks beside options that the JDK no longer knows.
struct Mark {
  enum Control {
    SWITCHCHECK = 2111,
    SOURCE = 2112,
    TARGET = 2113,
    XFUTURE = 2114,
    XPROF = 2115,
    XRUNHPROF = 2116,
    COLLECTOR = 2117,
    APPLETVIEWER = 2118,
    BOOTPATH = 2119,
    EXTDIRS = 2120,
  };
};

/// 145: the page "javac".
const DialogLayout& javacPageLayout();
/// 146: the page "java".
const DialogLayout& javaPageLayout();
/// 173: the page "jdb".
const DialogLayout& jdbPageLayout();
/// 147: the page "appletviewer".
const DialogLayout& appletviewerPageLayout();
/// 143: the page "Sourcecode editor".
const DialogLayout& editorPageLayout();
/// 184: the page "Paths".
const DialogLayout& pathsPageLayout();

}  // namespace tarnwick
