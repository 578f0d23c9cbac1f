#include "base/FileForSubprocess.h"

#include "base/Text.h"
#include "base/TokenString.h"

#include <algorithm>

namespace tarnwick {

FileForSubprocess::FileForSubprocess(const std::string& name) {
  setName(name);
}

FileForSubprocess::FileForSubprocess(const std::string& folder, const std::string& name) {
  setName(folder, name);
}

void FileForSubprocess::setName(const std::string& text) {
  take(Filename(text));
}

void FileForSubprocess::setName(const std::string& folder, const std::string& name) {
  take(Filename(folder, name));
}

void FileForSubprocess::take(const Filename& newName) {
  if (!isEmpty_) previousName_ = name_.fullName();
  name_ = newName;
  isEmpty_ = newName.fullName().empty();
}

void FileForSubprocess::reset(bool keepArgs) {
  if (!keepArgs) args_.clear();
  name_ = Filename();
  isEmpty_ = true;
}

void FileForSubprocess::takeTyped(const std::string& typed) {
  const std::string before = name().fullName();
  reset(false);
  if (!before.empty()) previousName_ = before;

  const std::string text = trim(onOneLine(typed));
  if (text.empty()) return;
  const bool quoted = text.front() == '"';
  const std::size_t begin = quoted ? 1 : 0;
  const auto end = std::min(text.find(quoted ? '"' : ' ', begin), text.size());
  setName(text.substr(begin, end - begin));
  // The whole tail is one argument, which reaches the tool's command line as it was typed.
  const std::string tail = end < text.size() ? trimLeft(text.substr(end + 1)) : "";
  if (!tail.empty()) args_.push_back(tail);
}

std::string& FileForSubprocess::arg(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= args_.size()) throw NoMoreArgsE{index};
  return args_[static_cast<std::size_t>(index)];
}

std::string FileForSubprocess::toString() {
  const Filename source = isEmpty_ ? Filename(previousName_) : name();
  TokenString list;
  list.add(name().fullName());
  list.add(lastFolder_.empty() ? source.directory() : lastFolder_);
  return list.toString();
}

void FileForSubprocess::fromString(const std::string& text) {
  reset(false);
  try {
    TokenString list;
    list.fromString(text);
    lastFolder_ = list.element(1);
    setName(list.element(0));
  } catch (const TokenString::OutOfBoundsE&) {
    // A short text leaves the entry as far as it got, and so does a malformed one.
  } catch (const StringableM::InvalidDataE&) {
  }
}

}  // namespace tarnwick
