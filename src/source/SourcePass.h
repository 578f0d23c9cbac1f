#pragma once

#include "source/SourceReader.h"
#include "source/SplitPieces.h"
#include "source/Tokens.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// One walk over a source on the way to its compilation: counts the types at the top level, collects complaints, and
/// tells which files the compiler is to be given.
class SourcePass {
 public:
  enum class Purpose {
    Check,         ///< looks only
    CollectNames,  ///< finds the file of the public type
    Split          ///< writes each type to a piece of its own
  };

  /// Opens the source. Adds to `complaints`. Throws Tarnwickfile::FileNotOpenE.
  SourcePass(Tarnwickfile& source, Purpose purpose, SplitPieces& pieces, std::string& complaints);

  /// Walks to the end. Throws SourceReader::BadDataE for what is wrong at the top level, Tarnwickfile::FileNotOpenE and
  /// SplitPieces::CannotWriteE.
  void run();

  int types() const { return types_; }
  int publicTypes() const { return publicTypes_; }
  /// The types of the source's own name.
  int publicOfSameName() const { return publicOfSameName_; }
  int othersOfSameName() const { return othersOfSameName_; }
  /// The files for the compiler, without folder.
  const std::vector<std::string>& fileNames() const { return fileNames_; }

 private:
  void copyFromBody();
  void readTopLevel();
  void takeStatement(std::string_view code, std::string_view raw);
  bool findType(std::string_view code, std::string_view raw);
  void enterType(const std::string& name, bool isPublic, std::string_view raw);
  void beginPiece(const std::string& name, const std::string& fileName, std::string_view raw);
  void complain(std::string_view code, std::string_view raw);
  void complainOfBrace(std::string_view raw);
  void readToEnd();

  const std::string sourceName_;
  const Purpose purpose_;
  SplitPieces& pieces_;
  std::string& complaints_;
  SourceReader reader_;
  std::string packageText_;
  std::string importText_;
  std::vector<std::string> fileNames_;
  int types_ = 0;
  int publicTypes_ = 0;
  int publicOfSameName_ = 0;
  int othersOfSameName_ = 0;
  bool inBody_ = false;
};

}  // namespace tarnwick
