#pragma once

#include <functional>
#include <string>

namespace tarnwick {

class Tarnwickfile;
struct TagRow;

/// Bits of what a read met.
enum ReadStatus {
  READ_UNKNOWN_TAG = 1,  ///< a line's tag is in no row
  READ_BAD_VALUE = 2,    ///< a number or switch could not be understood
  READ_NO_VALUE = 4,     ///< a number or switch has no value
  READ_FILE_LOST = 8,    ///< the file could not be opened again for a long line
  READ_BAD_ROW = 16,     ///< a row of the table has no variable
  /// What callers judge by. Unknown tags and missing values are deliberately no failures: that lets one file hold
  /// the tags of two tables, and an old file be read by a new version.
  READ_FAILURE_MASK = 26
};

/// The reader and writer of the tagged text files: one tag and one value a line.
class TagTable {
 public:
  using MessageShower = std::function<void(const std::string&)>;

  /// A value holds a line end, so what follows it would be a line of its own, with any tag. Whoever fills a variable
  /// keeps that out; this is the last line of defence.
  struct LineEndE;

  /// `rows` end with a row without a tag and outlive the table. `version` goes into the header of what is written.
  /// `showMessage` tells of a fault in the table itself.
  TagTable(const TagRow* rows, std::string version, MessageShower showMessage);
  virtual ~TagTable() = default;

  /// Sets each row with this owner to its default, in table order.
  virtual void resetToDefaults(int owner);
  /// Reads the file from its beginning and leaves it open. Rows that came later have their defaults where it lacks
  /// them; all others keep what they hold. Gives ReadStatus bits. Throws FileNotOpenE as
  /// Tarnwickfile::openContent does.
  virtual int read(Tarnwickfile& file);
  /// Writes the header and all rows to an open file, and leaves it open. Values go there as they are. Throws
  /// FileNotOpenE, and LineEndE before anything is written.
  virtual void write(Tarnwickfile& file);
  /// All rows as they would be written now; tells whether a value has changed.
  std::string content() const;

  /// The first row.
  const TagRow* rows() const { return rows_; }

 private:
  void resetLaterRows();
  int readLine(const std::string& line);

  const TagRow* rows_;
  std::string version_;
  MessageShower showMessage_;
};

}  // namespace tarnwick
