#pragma once

#include "base/Tarnwickexception.h"

#include <string>
#include <utility>

namespace tarnwick {

/// A source can't be compiled as it is, or there is nothing to compile it with.
struct CannotCompileE : Tarnwickexception {
  using Tarnwickexception::Tarnwickexception;
};

/// The classic way of reading refuses the source.
struct RefusedE : CannotCompileE {
  RefusedE(const CannotCompileE& reason, std::string path) : CannotCompileE(reason), source(std::move(path)) {}
  std::string source;  ///< its path
};

/// The user would rather correct a source than have it split.
struct DontWantToSplitE {};

}  // namespace tarnwick
