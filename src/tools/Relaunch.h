#pragma once

#include <string>
#include <vector>

namespace tarnwick {

class FileForSubprocess;
class Settings;

/// The path of a JDK tool by the settings; `tool` is its plain name, such as "java".
std::string jdkToolPath(const Settings& settings, const std::string& tool);

/// True if the tool can be opened. Asks for the tools' folder where it is unknown, and shows why the tool can't be
/// used.
bool jdkToolReady(Settings& settings, const std::string& tool);

/// The same for a tool that the second copy runs: true if, besides, it can be told where tool and configuration lie.
bool relaunchReady(Settings& settings, const std::string& tool);

/// A switch of the second copy's command line.
std::string switchText(const std::string& name, const std::string& value);
/// The switch behind which the child's command line stands.
extern const char runSwitch[];
/// What the second copy reads its settings from: the open project, or else the default configuration.
std::string relaunchConfiguration(const Settings& settings);
/// Throws Tarnwickexception for a path that would end a switch in its middle.
void refuseSwitchMark(const std::string& path);

/// What the second copy of the program is started with, up to the mark behind which the child's command line stands.
/// Every value travels between marks, so that it may hold blanks.
std::vector<std::string> relaunchSwitches(const Settings& settings, const FileForSubprocess& file,
                                          const std::string& tool, bool debugging);

}  // namespace tarnwick
