#pragma once

#include "base/Tarnwickfile.h"
#include "source/CompileFailures.h"
#include "source/SourcePass.h"
#include "source/SplitPieces.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {

/// Makes a source fit for `javac`, which takes one public type in a file and only under that type's name. A source with
/// several is split into one temporary file for each type, beside it; these live as long as this object.
class SourceSplitter {
 public:
  using CannotCompileE = tarnwick::CannotCompileE;
  using DontWantToSplitE = tarnwick::DontWantToSplitE;

  /// `maySplit` is asked before a source is split.
  SourceSplitter(const Filename& source, std::function<bool()> maySplit);

  /// Reads the source twice: to look for what is wrong with it, then to collect the files and write the pieces. Throws
  /// CannotCompileE and DontWantToSplitE.
  void run();

  /// What the compiler is to be given, without folder. Empty for a source without public types: it goes as it is.
  const std::vector<std::string>& fileNames() const { return fileNames_; }

 private:
  void runPasses();
  void check();
  void judge(const SourcePass& pass);
  void collect();
  void throwComplaints() const;

  Tarnwickfile source_;
  std::function<bool()> maySplit_;
  SplitPieces pieces_;
  std::string complaints_;
  bool split_ = false;
  std::vector<std::string> fileNames_;
};

}  // namespace tarnwick
