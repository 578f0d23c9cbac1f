#pragma once

namespace tarnwick {

class FileForSubprocess;
class Settings;
class Subprocess;

/// What a tool that had nothing to say means to a window of messages that is open.
enum class Silence { Shown, Kept };

/// Runs a tool and shows what has failed and what it said; a user who has left the program meanwhile wants neither
/// editor nor window. `file` may be null.
void runForUser(const Settings& settings, Subprocess& tool, const FileForSubprocess* file = nullptr,
                Silence silence = Silence::Shown);

/// Shows the log of a tool that had something to say, and lets the window of messages know of one that had not.
void showRun(const Settings& settings, bool said, Silence silence = Silence::Shown);

}  // namespace tarnwick
