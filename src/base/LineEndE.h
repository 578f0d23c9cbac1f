#pragma once

#include "base/FileNotOpenE.h"
#include "base/TagTable.h"

#include <string>
#include <utility>

namespace tarnwick {

struct TagTable::LineEndE : FileNotOpenE {
  LineEndE(const std::string& tag, std::string fileName)
      : FileNotOpenE("The value of " + tag + " holds a line end", std::move(fileName)) {}
};

}  // namespace tarnwick
