#pragma once

#include <string>

namespace tarnwick {

struct ProgramInfo;

/// The whole path of a file that comes with the program, such as the user's guide: beside the program if it stands
/// there (a checkout, an unpacked archive), else in "../share/tarnwick" seen from it, where a package puts it. Where it
/// stands in neither place, the one beside the program.
std::string dataFile(const ProgramInfo& program, const std::string& name);

}  // namespace tarnwick
