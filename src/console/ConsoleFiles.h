#pragma once

#include "console/TarnwickDoc.h"

#include <functional>
#include <optional>
#include <string>

namespace tarnwick {

class Desktop;

/// The user's side of a document's files: asks for them, and shows what goes wrong.
class ConsoleFiles {
 public:
  /// Both outlive the object.
  ConsoleFiles(TarnwickDoc& document, Desktop& desktop) : document_(document), desktop_(desktop) {}

  /// Asks for a file and records to it. True if the file is open.
  bool startRecording();
  void stopRecording();
  /// Asks for a file and saves what is there. Ends a recording.
  void saveDisplay();

 private:
  /// Ends a recording and asks for a file; nothing after the message.
  std::optional<std::string> chosenFile();
  /// False after the message of a failure.
  bool shows(const std::function<void()>& work);

  TarnwickDoc& document_;
  Desktop& desktop_;
  std::string lastFile_;
};

}  // namespace tarnwick
