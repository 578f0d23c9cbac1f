#include "app/LookMemory.h"

#include "base/ProgramInfo.h"
#include "base/ReplacingFile.h"
#include "base/TagRow.h"
#include "base/TagTable.h"

#include <string>

namespace tarnwick {

const char lookFileName[] = "Tarnwickconsole.CFG";

namespace {

/// The look with its rows.
class LookTable {
 public:
  explicit LookTable(const ProgramInfo& program)
      : file_(Filename(program.configDirectory(), lookFileName).fullName()),
        table_(rows_, program.version, [](const std::string&) {}) {}

  TextLook read() {
    try {
      Tarnwickfile file = Tarnwickfile::unopened(file_, FileMode::Read);
      const bool good = (table_.read(file) & READ_FAILURE_MASK) == 0;
      const bool sized = look_.letters >= smallestLetters && look_.letters <= largestLetters;
      if (good && (sized || look_.letters == 0)) return look_;
    } catch (const FileNotOpenE&) {
      // There is none yet, or nobody may read it.
    }
    return {};
  }

  void write(const TextLook& look) {
    look_ = look;
    try {
      ReplacingFile fresh(file_);
      table_.write(fresh);
      fresh.commit();
    } catch (const FileNotOpenE&) {
      // It is no more than a convenience.
    }
  }

 private:
  std::string file_;
  TextLook look_;
  TagRow rows_[3] = {{"CONSOLE_LETTERS", &look_.letters, nullptr, 0, 0, 0, 0, true},
                     {"CONSOLE_WRAP", &look_.wrapLines, nullptr, 0, 0, 0, 0, true},
                     endOfRows};
  TagTable table_;
};

}  // namespace

TextLook rememberedLook(const ProgramInfo& program) {
  return LookTable(program).read();
}

void rememberLook(const ProgramInfo& program, const TextLook& look) {
  LookTable(program).write(look);
}

void rememberChange(const ProgramInfo& program, const TextLook& before, const TextLook& now) {
  TextLook look = rememberedLook(program);
  if (now.letters != before.letters) look.letters = now.letters;
  if (now.wrapLines != before.wrapLines) look.wrapLines = now.wrapLines;
  rememberLook(program, look);
}

}  // namespace tarnwick
