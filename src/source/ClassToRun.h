#pragma once

#include <string>

namespace tarnwick {

class Filename;
class Settings;

/// The path of the class file in which a program of this source begins, by the newer way of reading; the file need not
/// be there. Of several such classes it is the one that bears the source's name, else the first. Empty if there is
/// none, or if the source can't be read.
std::string classToRun(const Settings& settings, const Filename& source);

}  // namespace tarnwick
