// What tells our own files from those of other people, and moves that overwrite nothing. Links are not followed here.
#pragma once

#include <string>
#include <vector>

namespace tarnwick::platform {

/// True if anything at all bears the name, a link that leads nowhere too.
bool isTaken(const std::string& path);

/// True for a plain file itself, not for a link that leads to one.
bool isPlainFile(const std::string& path);

/// True for a plain file that has no second name and, where files have users, belongs to ours.
bool isOwnFile(const std::string& path);

/// True for a folder itself, not for a link to one, that belongs to our user where folders have users.
bool isOwnFolder(const std::string& path);

/// Makes a folder that was not there, for us alone where the system can. False with `errno`, EEXIST if the name is
/// taken.
bool makeOwnFolder(const std::string& path);

/// Removes an empty folder. False with `errno`.
bool removeFolder(const std::string& path);

/// The names of all that lies in a folder, in no order; none if it can't be read.
std::vector<std::string> namesIn(const std::string& folder);

/// Moves whatever is at `from`, a link itself and not what it leads to, on the same disk. False with `errno`, EEXIST if
/// `to` is taken.
bool moveToFreeName(const std::string& from, const std::string& to);

/// The same in the place of the file at `to`, in one step.
bool moveOver(const std::string& from, const std::string& to);

}  // namespace tarnwick::platform
