#pragma once

#include "source/SourceType.h"

#include <ctime>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarnwick {

class JavaSourcefile;

/// A type and the source that defines it.
struct ClassRef {
  const SourceType& type;
  const JavaSourcefile& source;
};

/// All types of a project by `JavaSourcefile::indexedName`, for one run over its sources. Owns nothing of what it
/// refers to, and must not outlive it. It asks for the time of each source once.
class TypeIndex {
 public:
  /// Tells when a file was changed last; nothing if that cannot be had.
  using Clock = std::function<std::optional<std::time_t>(const std::string& path)>;

  explicit TypeIndex(std::vector<ClassRef> entries);
  TypeIndex(std::vector<ClassRef> entries, Clock clock);

  const std::vector<ClassRef>& entries() const { return entries_; }
  /// The first entry of that name; null if there is none.
  const ClassRef* first(std::string_view name) const;
  /// The last entry of that name; null if there is none.
  const ClassRef* last(std::string_view name) const;

  /// The time of the last change of a source; nothing if it cannot be had.
  std::optional<std::time_t> timeOf(const JavaSourcefile& source) const;
  /// The same of a class file, asked anew each time: compiling one source may have renewed the classes of others.
  std::optional<std::time_t> timeOfClass(const std::string& path) const { return clock_(path); }

  /// True if a class of the time `classTime` is newer than the source of what `user` calls `supertype`, and than those
  /// of all that this is built on. Names that are not in the index do not count; circular inheritance is never older.
  bool isOlder(const JavaSourcefile& user, const std::string& supertype, std::optional<std::time_t> classTime) const;

 private:
  struct Places {
    std::size_t first;
    std::size_t last;
  };

  /// What stands behind a name: all that it is built on, itself included.
  struct Ancestry {
    enum class State { Fresh, Open, Done };
    State state = State::Fresh;
    bool endless = false;    ///< a circle is reached
    bool timesKnown = true;  ///< the times of all sources are to be had
    std::size_t height = 0;  ///< the steps to the farthest name, known or not
    std::time_t newest = 0;  ///< of all sources
  };

  /// A name on the way of the walk: its record's supertypes, and how many of them have been looked at.
  struct Step {
    std::size_t entry;
    const SourceType* record;
    std::size_t looked;
  };

  using Records = std::unordered_map<std::string_view, const SourceType*>;

  /// What a source means by the name; null if it is not in the index.
  const Places* find(const JavaSourcefile& user, const std::string& supertype) const;
  const Ancestry& ancestryOf(std::size_t entry) const;
  void look(std::vector<Step>& way) const;
  Step begin(std::size_t entry) const;
  const SourceType* recordIn(const JavaSourcefile& source, const std::string& name) const;

  std::vector<ClassRef> entries_;
  Clock clock_;
  std::deque<std::string> names_;  ///< those below that stand nowhere else
  std::unordered_map<std::string_view, Places> places_;
  // What has been found out in this run.
  mutable std::unordered_map<const JavaSourcefile*, std::optional<std::time_t>> times_;
  mutable std::unordered_map<const JavaSourcefile*, Records> records_;
  mutable std::vector<Ancestry> ancestries_;
};

}  // namespace tarnwick
