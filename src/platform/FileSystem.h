// Files, folders and the environment, with names as bytes in the platform's character set.
#pragma once

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick::platform {

/// Opens a file in text mode as `fopen` does: with "r", a carriage return directly before a line feed is dropped on
/// every system. A "b" in the mode leaves the bytes alone. A folder is refused in every mode, so is a pipe to write
/// to that nobody reads; one to read that nobody writes to is empty. No child inherits the stream. Null on failure,
/// with the reason in `errno`.
std::FILE* openFile(const std::string& path, const char* mode);

/// Lets a stream that was opened in text mode write bytes as they are from here on.
void leaveBytesAlone(std::FILE* stream);

/// How a line of a text ends on disk.
extern const char lineEnd[];

/// Makes an empty file where there is none. False with `errno` on failure, EEXIST if the name is taken.
bool claimFile(const std::string& path);

/// Time of the last change in seconds since 1970; nothing if it cannot be had.
std::optional<std::time_t> lastChange(const std::string& path);

/// False if the file could not be deleted.
bool deleteFile(const std::string& path);

/// The names of the plain files in a folder, links to such included, in no order; none if it can't be read.
std::vector<std::string> filesIn(const std::string& folder);

/// The number of bytes in a file; nothing if it can't be had.
std::optional<std::uintmax_t> fileSize(const std::string& path);

/// True for what bears a name but is neither folder nor stored file: devices, pipes, and what the system makes up when
/// it is read. Reading such a thing may never end. What links lead to counts.
bool isSpecial(const std::string& path);

/// True for what links lead to, too.
bool isFile(const std::string& path);
bool isFolder(const std::string& path);

/// Makes a folder and those above it. False if it is not there afterwards.
bool makeFolders(const std::string& path);

/// Sends what was written to `stream` to the disk. False with `errno` on failure.
bool flushToDisk(std::FILE* stream);

/// The path with links resolved and made absolute; the path itself where that is not possible. A link to what does not
/// exist gives the path that it names.
std::string resolvedPath(const std::string& path);

/// The path from the root on, as the current folder completes it; the path itself if it is whole already, or empty.
/// Links stay as they are.
std::string absolutePath(const std::string& path);

/// Makes `folder` the current one. False if it can't be entered; for the empty text, too.
bool changeDirectory(const std::string& folder);
/// The current folder's whole path; empty if it has gone.
std::string currentDirectory();

/// A variable of the process's environment; nothing if it is not set.
std::optional<std::string> environment(const std::string& name);

/// Sets "NAME=value" for this process and its children; "NAME=" removes the variable. False on failure.
bool setEnvironment(const std::string& definition);

/// The running executable's full path.
std::string executablePath();

/// Where the configuration is kept when no variable tells, with its last separator:
/// the program's own folder on Windows, the user's configuration folder on Linux.
std::string defaultConfigDirectory(const std::string& programDirectory);

/// The user's home folder.
std::string homeFolder();

/// The process's own number.
int processId();

/// Brings locale and environment into the state that the program and its children need. Call once, first.
void prepareProcess();

}  // namespace tarnwick::platform
