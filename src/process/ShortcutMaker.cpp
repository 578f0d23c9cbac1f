#include "process/ShortcutMaker.h"

#include "base/Filename.h"
#include "base/ProgramInfo.h"
#include "base/Tarnwickfile.h"
#include "base/Text.h"
#include "platform/FileSystem.h"
#include "resources/SystemWords.h"

namespace tarnwick {

std::string truncatedArguments() {
  return inSystemWords("Warning: Windows may have truncated shortcut arguments!");
}

namespace {

/// Without the blanks that mean nothing.
std::string normalised(const std::string& arguments) {
  std::string text;
  for (const char c : trim(arguments))
    if (c != ' ' || !text.ends_with(' ')) text += c;
  return text;
}

/// The failure's text is a whole message.
template <typename Ask>
std::string folderBy(const Ask& ask) {
  try {
    return ask();
  } catch (const platform::ShortcutFailure& failure) {
    throw Tarnwickexception(failure.reason);
  }
}

}  // namespace

ShortcutMaker::ShortcutMaker(const platform::ShortcutShells& shells, const platform::Shortcut& shortcut)
    : shortcut_(shortcut) {
  shortcut_.name = cleanedPath(shortcut.name);
  shortcut_.arguments = trim(shortcut.arguments);
  try {
    shell_ = shells();
  } catch (const platform::ShortcutFailure& failure) {
    fail("", failure);
  }
}

ShortcutResult ShortcutMaker::makeOnDesktop(const OverwriteQuestion& mayOverwrite) {
  return makeIn(folderBy([this] { return shell_->desktopFolder(); }), mayOverwrite);
}

ShortcutResult ShortcutMaker::makeInStartMenu(const std::string& folder, const OverwriteQuestion& mayOverwrite) {
  const std::string below = cleanedPath(folder);
  if (!below.empty() && platform::absolutePath(below) == below) return makeIn(below, mayOverwrite);
  const std::string menu = folderBy([this] { return shell_->startMenuFolder(); });
  const std::string whole = Filename(menu, below).fullName();
  platform::makeFolders(whole);
  return makeIn(whole, mayOverwrite);
}

ShortcutResult ShortcutMaker::makeIn(const std::string& folder, const OverwriteQuestion& mayOverwrite) {
  const std::string file = Filename(folder, shortcut_.name + shell_->extension()).fullName();
  if (canBeRead(file) && !mayOverwrite("Shortcut " + shortcut_.name + " already exists. Overwrite?"))
    return ShortcutResult::Kept;
  try {
    const std::string kept = shell_->write(shortcut_, file);
    return normalised(kept) == normalised(shortcut_.arguments) ? ShortcutResult::Made : ShortcutResult::Truncated;
  } catch (const platform::ShortcutFailure& failure) {
    fail(file, failure);
  }
}

void ShortcutMaker::fail(const std::string& file, const platform::ShortcutFailure& failure) const {
  const std::string reason = failure.reason.empty() ? "" : '\n' + failure.reason;
  throw Tarnwickexception("Can't create shortcut to " + shortcut_.target + " in " + quotedIfBlank(file) + reason);
}

std::string startMenuFolder(const platform::ShortcutShells& shells) {
  try {
    return shells()->startMenuFolder();
  } catch (const platform::ShortcutFailure&) {
    return "";
  }
}

platform::Shortcut shortcutToProgram(const ProgramInfo& program) {
  platform::Shortcut shortcut;
  shortcut.name = "Tarnwick";
  shortcut.target = program.programPath;
  shortcut.description = "Tarnwick";
  shortcut.picture = program.programPath;
  return shortcut;
}

}  // namespace tarnwick
