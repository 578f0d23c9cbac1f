#pragma once

#include "base/FileNotOpenE.h"
#include "base/Filename.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

namespace tarnwick {

/// The most that is read of one file, in bytes.
inline constexpr std::size_t largestContent = std::size_t{64} * 1024 * 1024;

/// How a Tarnwickfile is opened. As an argument of `open`, `Undefined` keeps the stored mode.
enum class FileMode { Read = 0, Write = 1, Append = 2, Undefined = 3 };

/// A text file with a name, a stream that may be open, and a mode.
class Tarnwickfile {
 public:
  using FileNotOpenE = tarnwick::FileNotOpenE;

  /// No name, mode `Undefined`, not open.
  Tarnwickfile() = default;
  /// Opens the file at once. Throws FileNotOpenE.
  Tarnwickfile(const std::string& path, FileMode mode);
  /// Opens folder + name at once. Throws FileNotOpenE.
  Tarnwickfile(const std::string& folder, const std::string& name, FileMode mode);
  virtual ~Tarnwickfile();

  Tarnwickfile(const Tarnwickfile&) = delete;
  /// Moves the open state: name and mode are copied, this stream is forgotten (closed); unless its mode is `Undefined`
  /// the source is closed and this file opened. Throws FileNotOpenE.
  Tarnwickfile& operator=(Tarnwickfile& source);

  /// A file that is prepared now and opened later.
  static Tarnwickfile unopened(const std::string& path, FileMode mode);
  static Tarnwickfile unopened(const Filename& name, FileMode mode) { return Tarnwickfile(name, mode); }

  /// Opens from the beginning, in a new mode or in the stored one. Throws FileNotOpenE, also for a name with a line
  /// end, and for devices and pipes that were to be read.
  void open(FileMode mode);
  /// Does the same for a file whose content is wanted. Throws FileNotOpenE for one that is larger than
  /// `largestContent`, too.
  void openContent(FileMode mode);
  /// Closes the stream if there is one.
  void close();
  /// The open stream, for all reading and writing. Throws FileNotOpenE if the file is not open.
  std::FILE* stream() const;
  bool isOpen() const { return stream_ != nullptr; }

  const Filename& name() const { return name_; }
  FileMode mode() const { return mode_; }

 protected:
  Tarnwickfile(const Filename& name, FileMode mode) : name_(name), mode_(mode) {}
  /// Closes what is open and takes another name and mode.
  void setFile(const Filename& name, FileMode mode);
  /// Takes over a stream that was opened elsewhere.
  void setStream(std::FILE* stream);

 private:
  Filename name_;
  std::FILE* stream_ = nullptr;
  FileMode mode_ = FileMode::Undefined;
};

/// True if the file can be opened for reading; this is how the system tests that a file exists. White space around the
/// path and double quotes do not count.
bool canBeRead(const std::string& path);

/// Throws FileNotOpenE if the file's whole path holds a line end: such a name would break the files that remember it.
void refuseLineEnd(const std::string& path);
/// Throws FileNotOpenE for what can't be read to its end: a device, a pipe.
void refuseSpecial(const std::string& path);
/// Throws FileNotOpenE if that many bytes are more than is read of one file.
void refuseLarge(std::uintmax_t size, const std::string& path);

}  // namespace tarnwick
