#pragma once

#include "base/StringableM.h"
#include "dialogbase/Desktop.h"
#include "source/JavaSourcefile.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick {

/// The sources of a project, all in the folder of its file. As text: their names with ";" between them and "]" before
/// a character that stands for itself. What the text names outside that folder is no source; it is kept as it stands.
class ProjectSourceList : public StringableM {
 public:
  /// `projectFile` outlives the list.
  ProjectSourceList(Desktop& desktop, const Tarnwickfile& projectFile) : desktop_(desktop), projectFile_(projectFile) {}

  std::string toString() override;
  /// Sources that can't be opened are left out, and their count is told; those outside the project's folder are told by
  /// name. Malformed text is told and leaves an empty list; nothing is thrown.
  void fromString(const std::string& text) override;

  /// Appends the source of that name in the project's folder. Throws Tarnwickfile::FileNotOpenE if it is not there.
  void add(const std::string& name);
  /// Takes all sources out. What lies outside the project's folder is still kept.
  void clear() { sources_.clear(); }
  /// Exchanges the sources alone; what lies outside stays where it is.
  void swap(ProjectSourceList& other) { sources_.swap(other.sources_); }
  bool empty() const { return sources_.empty(); }
  std::size_t size() const { return sources_.size(); }
  JavaSourcefile& operator[](std::size_t index) const { return *sources_[index]; }
  /// True if a source has this name with its extension.
  bool holds(const std::string& name) const;

 private:
  /// A name outside the project's folder, and how many sources stand before it in the text.
  struct Outside {
    std::string name;
    std::size_t sourcesBefore;
  };

  void take(const std::vector<std::string>& names);
  void tellOutside() const;

  Desktop& desktop_;
  const Tarnwickfile& projectFile_;
  std::vector<std::unique_ptr<JavaSourcefile>> sources_;
  std::vector<Outside> outside_;
};

}  // namespace tarnwick
