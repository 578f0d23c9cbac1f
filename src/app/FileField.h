#pragma once

#include <string>

namespace tarnwick {

class DialogWindow;
class FileForSubprocess;
class TokenString;

/// A field in which the user types a file, which may be followed by arguments for the tool, or chooses one of the last.
/// Without a window it leaves the file as it is.
class FileField {
 public:
  /// File and list outlive the object.
  FileField(FileForSubprocess& file, TokenString& last) : file_(file), last_(last) {}

  /// Ties the object to a field (or to none, with null) without reading it.
  void bind(DialogWindow* window, int control);
  /// Takes name and arguments from the field.
  void read();
  /// Puts the file's name into the field, quoted if it holds a blank.
  void write();
  /// Puts this text into the field; the file stays as it is.
  void write(const std::string& text);
  /// Lets the user choose among the last files, as the list has them now.
  void offer();
  /// The file was used: it is the first of the last ones.
  void remember();
  /// Takes the file that the user has chosen, as it takes one that was browsed for.
  void takeChosen();

  FileForSubprocess& file() const { return file_; }

 private:
  FileForSubprocess& file_;
  TokenString& last_;
  DialogWindow* window_ = nullptr;
  int control_ = 0;
};

}  // namespace tarnwick
