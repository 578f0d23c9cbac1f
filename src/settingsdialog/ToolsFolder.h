#pragma once

namespace tarnwick {

class Settings;

/// Asks for the tools' folder where it is unknown: runs the settings dialog, opened on its first page.
void askForToolsFolder(Settings& settings);

}  // namespace tarnwick
