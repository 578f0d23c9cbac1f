// The layouts of the settings dialog's pages that build command lines, name the editor and hold the paths.
#pragma once

#include "resources/DialogLayout.h"

namespace tarnwick {

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
