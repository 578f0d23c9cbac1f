#pragma once

#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "process/ShortcutMaker.h"
#include "support/TestProgram.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick::test {

/// What a test tells the fakes of the system's shortcuts, and what they have heard.
struct FakeShortcuts {
  struct Written {
    platform::Shortcut shortcut;
    std::string file;
  };

  std::string desktop;
  std::string startMenu;
  /// What the system keeps of the arguments; all of them if nothing.
  std::optional<std::string> kept;
  /// Why nothing can be written; of files whose path ends so.
  std::optional<std::string> refusal;
  std::string refused;
  /// Why there is no shell at all.
  std::optional<std::string> noShell;
  bool knowsFolders = true;

  std::vector<Written> written;
  int opened = 0;
  int alive = 0;

  std::vector<std::string> files() const {
    std::vector<std::string> paths;
    for (const auto& one : written) paths.push_back(one.file);
    return paths;
  }
  platform::ShortcutShells shells();
};

/// Writes the shortcut's name into its file.
class FakeShortcutShell : public platform::ShortcutShell {
 public:
  explicit FakeShortcutShell(FakeShortcuts& told) : told_(told) {
    ++told_.opened;
    ++told_.alive;
  }
  ~FakeShortcutShell() override { --told_.alive; }
  FakeShortcutShell(const FakeShortcutShell&) = delete;
  FakeShortcutShell& operator=(const FakeShortcutShell&) = delete;

  std::string extension() const override { return ".shortcut"; }
  std::string desktopFolder() override { return known(told_.desktop, 0); }
  std::string startMenuFolder() override { return known(told_.startMenu, 11); }
  std::string write(const platform::Shortcut& shortcut, const std::string& file) override {
    if (told_.refusal && file.ends_with(told_.refused)) throw platform::ShortcutFailure{*told_.refusal};
    told_.written.push_back({shortcut, file});
    writeFile(file, shortcut.name);
    return told_.kept.value_or(shortcut.arguments);
  }

 private:
  std::string known(const std::string& folder, int number) const {
    if (told_.knowsFolders) return folder;
    throw platform::ShortcutFailure{"SHGetSpecialFolderLocation(" + std::to_string(number) + ") error "};
  }

  FakeShortcuts& told_;
};

inline platform::ShortcutShells FakeShortcuts::shells() {
  return [this]() -> std::unique_ptr<platform::ShortcutShell> {
    if (noShell) throw platform::ShortcutFailure{*noShell};
    return std::make_unique<FakeShortcutShell>(*this);
  };
}

}  // namespace tarnwick::test
