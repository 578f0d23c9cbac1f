#pragma once

#include "process/EditorForms.h"

#include <string>

namespace tarnwick {

class Settings;

/// Starts the user's editor on a file, at a place in it if one is given, or on none with the empty text. A user who has
/// not chosen one is asked to. False when no editor could be chosen or started, which is told.
bool openUserEditor(Settings& settings, const std::string& name, const EditorPlace& place = {});

}  // namespace tarnwick
