#pragma once

#include <string>

namespace tarnwick {

class DialogWindow;
class FileForSubprocess;

/// A field in which the user types a file, which may be followed by arguments for the tool. Without a window it leaves
/// the file as it is.
class FileField {
 public:
  /// The file outlives the object.
  explicit FileField(FileForSubprocess& file) : file_(file) {}

  /// Ties the object to a field (or to none, with null) without reading it.
  void bind(DialogWindow* window, int control);
  /// Takes name and arguments from the field.
  void read();
  /// Puts the file's name into the field, quoted if it holds a blank.
  void write();
  /// Puts this text into the field; the file stays as it is.
  void write(const std::string& text);

  FileForSubprocess& file() const { return file_; }

 private:
  FileForSubprocess& file_;
  DialogWindow* window_ = nullptr;
  int control_ = 0;
};

}  // namespace tarnwick
