#pragma once

#include "settings/Settings.h"

#include <string>
#include <vector>

namespace tarnwick {

class Desktop;

/// The templates for new sources: five that are built in, and the user's own, which the setting PERSONAL_TEMPLATES
/// keeps as a list of pairs of description and path.
class TemplateList {
 public:
  /// From this kind on, a template's text stands in a file of the user's.
  static constexpr int USER_DEFINED = 5;
  static constexpr std::size_t mostTemplates = 32;

  struct Row {
    std::string label;
    int kind;            ///< 0 to 4 for the built-in ones in their order, USER_DEFINED for the user's
    std::string option;  ///< the template's text, or the path of its file
  };

  /// `settings` are the live ones. The list is kept through settings of its own, read from the default configuration,
  /// so that it can be saved without touching what the rest of the program holds.
  explicit TemplateList(Settings& settings);

  /// Builds the rows anew, asks about each template whose file has gone, and saves what is left. A template that was
  /// refused or removed goes from the setting for good.
  void build();
  /// Adds a template of the user's to the setting, and builds the rows anew.
  void addPersonal(const std::string& description, const std::string& path);

  const std::vector<Row>& rows() const { return rows_; }
  std::vector<std::string> labels() const;
  /// The first row that bears what the row of this label holds; null for an unknown label.
  const Row* rowOf(const std::string& label) const;

 private:
  void addStored();
  void add(const std::string& description, const std::string& path);
  bool keepsMissing(const std::string& description, const std::string& path);
  void store();

  Settings& live_;
  Settings stored_;
  Desktop& desktop_;
  std::vector<Row> rows_;
};

}  // namespace tarnwick
