#include "platform/FileSystem.h"
#include "ui/posix/RunNotepad.h"

int main(int argc, char** argv) {
  tarnwick::platform::prepareProcess();
  return tarnwick::ui::runNotepad(argc, argv);
}
