#pragma once

#include "base/StringableM.h"
#include "base/Tarnwickfile.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {

/// What a row's variable is.
enum TagKind { TAG_STRING = 0, TAG_INT = 1, TAG_BOOL = 2, TAG_STRINGABLE = 3, TAG_END = 4 };

/// Bits of what a read met.
enum ReadStatus {
  READ_UNKNOWN_TAG = 1,  ///< a line's tag is in no row
  READ_BAD_VALUE = 2,    ///< a number or switch could not be understood
  READ_NO_VALUE = 4,     ///< a number or switch has no value
  READ_FILE_LOST = 8,    ///< the file could not be opened again for a long line
  READ_BAD_ROW = 16,     ///< a row of the table has an unknown kind
  /// What callers judge by. Unknown tags and missing values are deliberately no failures: that lets one file hold
  /// the tags of two tables, and an old file be read by a new version.
  READ_FAILURE_MASK = 26
};

/// Ties a tag of the file to a variable.
struct TagRow {
  const char* tag;
  int kind;
  /// std::string, int, int used as a switch, or StringableM, by kind; a pointer to a class derived from StringableM is
  /// converted to StringableM* first.
  void* variable;
  /// Default of a text; null for the empty text.
  const char* defaultText;
  /// Default of a number or switch.
  int defaultNumber;
  int page;     ///< the settings page that shows the row; 0 for none
  int owner;    ///< the dialog whose reset touches the row; 0 for none
  int control;  ///< the control on that page
};

/// The reader and writer of the tagged text files: one tag and one value a line.
class TagTable {
 public:
  using MessageShower = std::function<void(const std::string&)>;

  /// A value holds a line end, so what follows it would be a line of its own, with any tag. Whoever fills a variable
  /// keeps that out; this is the last line of defence.
  struct LineEndE : Tarnwickfile::FileNotOpenE {
    LineEndE(const std::string& tag, std::string fileName)
        : FileNotOpenE("The value of " + tag + " holds a line end", std::move(fileName)) {}
  };

  /// `rows` end with a TAG_END row and outlive the table. `version` goes into the header of what is written.
  /// `showMessage` tells of a fault in the table itself.
  TagTable(const TagRow* rows, std::string version, MessageShower showMessage);
  virtual ~TagTable() = default;

  /// Sets each row with this owner to its default, in table order.
  virtual void resetToDefaults(int owner);
  /// Reads the file from its beginning and leaves it open. Gives ReadStatus bits. Throws FileNotOpenE as
  /// Tarnwickfile::openContent does.
  virtual int read(Tarnwickfile& file);
  /// Writes the header and all rows to an open file, and leaves it open. Values go there as they are. Throws
  /// FileNotOpenE, and LineEndE before anything is written.
  virtual void write(Tarnwickfile& file);

  /// The first row.
  const TagRow* rows() const { return rows_; }

 private:
  int readLine(const std::string& line);

  const TagRow* rows_;
  std::string version_;
  MessageShower showMessage_;
};

}  // namespace tarnwick
