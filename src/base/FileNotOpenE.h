#pragma once

#include "base/Tarnwickexception.h"

#include <string>
#include <utility>

namespace tarnwick {

/// A file could not be opened or saved; the message is mostly the system's own.
struct FileNotOpenE : Tarnwickexception {
  FileNotOpenE(std::string text, std::string fileName)
      : Tarnwickexception(std::move(text)), file(std::move(fileName)) {}
  std::string file;  ///< the file's name, without quotes
};

}  // namespace tarnwick
