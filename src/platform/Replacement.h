// Files that are written beside another and then take its place, so that a save that is cut short costs nothing.
#pragma once

#include <cstdio>
#include <string>

namespace tarnwick::platform {

/// Opens an empty file for writing, with "w" as text, with "wb" as bytes. As long as the stream is open no other
/// process gets the file in this way; a file that a killed process has left is used again. `ownerOnly` keeps its
/// content from other users, where the system can. Null on failure, with the reason in `errno`: EBUSY if another
/// process has it, EACCES if it is a file with a second name or another user's, which no process of ours has left.
std::FILE* openReplacement(const std::string& path, const char* mode, bool ownerOnly);

/// False with `errno` if the file refuses to be written. A program that holds it for a moment is waited for.
bool isWritable(const std::string& path);

/// Puts the open file at `path`, which was flushed, in the place of `target` in one step, with owner and permissions of
/// what stood there. Where `target` cannot be replaced, because a program holds it open or it belongs to somebody else,
/// its content is replaced instead, one process at a time, what is new at its end first: a full disk is met before
/// anything is lost. Nothing is left at `path`. False with `errno` on failure, with `target` as it was.
bool putInPlace(std::FILE* replacement, const std::string& path, const std::string& target);

/// Removes the open file at `path`. The stream stays to be closed.
void discardReplacement(std::FILE* replacement, const std::string& path);

/// The folder for temporary files, with its last separator.
std::string temporaryFolder();

}  // namespace tarnwick::platform
