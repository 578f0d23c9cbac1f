// The program's drawings, as they stand in the folder "drawings", within the program.
#pragma once

#include <string>

namespace tarnwick {

/// A drawing by its file's name without ".svg", for example "tarnwick" or "toolbar/run"; empty if there is none.
std::string drawing(const std::string& name);

/// The same drawing for a dark ground: each of the toolbar's colours in the shade that stands out there.
std::string onDarkGround(std::string drawing);

}  // namespace tarnwick
