#pragma once

#include "dialogbase/Desktop.h"
#include "ui/WindowStack.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick::ui {

std::optional<std::string> openFileDialog(WindowStack& stack, const FileRequest& request);
std::vector<std::string> openFilesDialog(WindowStack& stack, const FileRequest& request);
std::optional<std::string> saveFileDialog(WindowStack& stack, const FileRequest& request);
std::optional<std::string> folderDialog(WindowStack& stack, const std::string& root);

/// A filter such as "Java files|*.JAVA||" as the toolkit's file dialogs take it on this platform.
std::string toolkitFilter(const std::string& filter);

/// The patterns of one filter entry, as in "*.jar;*.zip", so that they ignore case in this platform's dialogs.
std::string patternsIgnoringCase(const std::string& patterns);

/// Whether a preset name that holds "*" or "?" means something to this platform's dialogs.
extern const bool presetMayBePattern;

/// The path with the extension at its end where its file name has none.
std::string withExtension(const std::string& path, const std::string& extension);

}  // namespace tarnwick::ui
