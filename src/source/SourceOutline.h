#pragma once

#include "source/SourceReader.h"
#include "source/SourceType.h"
#include "source/Tokens.h"

namespace tarnwick {

class JavaSourcefile;

/// One walk over a source that enters what it finds into the model.
class SourceOutline {
 public:
  SourceOutline(JavaSourcefile& file, SourceReader& reader) : file_(file), reader_(reader) {}

  /// Throws SourceReader::BadDataE and Compiler::CannotCompileE; what was found before has been entered.
  void run();

 private:
  void walkStatement(Cursor statement);
  void takePackage(Cursor& cursor);
  void takeClass(Cursor& cursor, bool isPublic);
  void takeInterface(Cursor& cursor, bool isPublic);
  void walkClassBody(SourceClass& record);
  void skipBody();
  SourceReader::BadDataE missingBrace() const;

  JavaSourcefile& file_;
  SourceReader& reader_;
};

}  // namespace tarnwick
