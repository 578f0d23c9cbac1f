#include "console/ConsoleFiles.h"

#include "base/Filename.h"
#include "base/Tarnwickfile.h"
#include "dialogbase/Desktop.h"

namespace tarnwick {

std::optional<std::string> ConsoleFiles::chosenFile() {
  stopRecording();
  FileRequest request;
  request.startFolder = Filename(lastFile_).directory();
  request.confirmOverwrite = true;
  auto chosen = desktop_.saveFile(request);
  if (chosen) {
    lastFile_ = *chosen;
  } else {
    // Deliberate: a dialog that was cancelled says so too.
    desktop_.message(TarnwickDoc::cantOpen);
  }
  return chosen;
}

bool ConsoleFiles::shows(const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message);
    return false;
  }
}

bool ConsoleFiles::startRecording() {
  const auto chosen = chosenFile();
  return chosen && shows([&] { document_.startRecording(*chosen); });
}

void ConsoleFiles::stopRecording() {
  const std::string fault = document_.stopRecording();
  if (!fault.empty()) desktop_.message(fault);
}

void ConsoleFiles::saveDisplay() {
  if (const auto chosen = chosenFile()) shows([&] { document_.saveDisplay(*chosen); });
}

}  // namespace tarnwick
