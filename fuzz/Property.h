// What all fuzz targets share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tarnwick::fuzz {

/// The bytes of an input as a string.
std::string textOf(const std::uint8_t* data, std::size_t size);

/// Ends the run, which keeps the input, if what must hold for every input does not hold for this one.
void require(bool holds, const char* rule);

/// The same for two texts; shows both.
void requireSame(const std::string& found, const std::string& expected, const char* rule);

}  // namespace tarnwick::fuzz
