#pragma once

#include "base/StringableM.h"
#include "source/JavaSourcefile.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick {

class Settings;

/// The sources of a project. The classic way takes those in the folder of its file, the newer one those below it, too:
/// then a name begins there, with "/" between its folders on every system. As text: the names with ";" between them and
/// "]" before a character that stands for itself. What the text names elsewhere is no source; it is kept as it stands.
class ProjectSourceList : public StringableM {
 public:
  /// `settings` and `projectFile` outlive the list.
  ProjectSourceList(const Settings& settings, const Tarnwickfile& projectFile)
      : settings_(settings), projectFile_(projectFile) {}

  std::string toString() override;
  /// Sources that can't be opened are left out, and their count is told; those outside the project's folder are told by
  /// name. Malformed text is told and leaves an empty list; nothing is thrown.
  void fromString(const std::string& text) override;

  /// Reads the names anew if the way of reading sources has changed since.
  void followSettings();

  /// Appends the source of that name. Throws Tarnwickfile::FileNotOpenE if it is not there.
  void add(const std::string& name);
  /// Takes all sources out. What lies outside the project's folder is still kept.
  void clear() { sources_.clear(); }
  /// Exchanges the sources alone; what lies outside stays where it is.
  void swap(ProjectSourceList& other) { sources_.swap(other.sources_); }
  bool empty() const { return sources_.empty(); }
  std::size_t size() const { return sources_.size(); }
  JavaSourcefile& operator[](std::size_t index) const { return *sources_[index].file; }
  /// The name as the text has it.
  const std::string& nameOf(std::size_t index) const { return sources_[index].name; }
  /// True if a source has this name with its extension.
  bool holds(const std::string& name) const;

 private:
  struct Source {
    std::string name;
    std::unique_ptr<JavaSourcefile> file;
  };

  /// A name outside the project's folder, and how many sources stand before it in the text.
  struct Outside {
    std::string name;
    std::size_t sourcesBefore;
  };

  void take(const std::vector<std::string>& names);
  void tellOutside() const;

  const Settings& settings_;
  const Tarnwickfile& projectFile_;
  bool takesFolders_ = false;  ///< at the last reading
  std::vector<Source> sources_;
  std::vector<Outside> outside_;
};

}  // namespace tarnwick
