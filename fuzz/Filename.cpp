// Paths: what a path is cleaned to, how it is taken apart, quoted and joined. A line feed cuts the input into a folder
// and a file.
#include "base/Filename.h"

#include "Property.h"

#include <string_view>

namespace tarnwick::fuzz {
namespace {

constexpr std::string_view whiteSpace = " \t\n\v\f\r";

std::string cleaned(std::string_view text) {
  const auto first = text.find_first_not_of(whiteSpace);
  if (first == std::string_view::npos) return "";
  text = text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
  if (text.front() != '"') return std::string(text);
  text.remove_prefix(1);
  if (!text.empty()) text.remove_suffix(1);
  return std::string(text);
}

bool hasLaterBlank(const std::string& text) {
  return !text.empty() && std::string_view(text).substr(1).find(' ') != std::string_view::npos;
}

std::string quotedByRule(const std::string& text) {
  std::string quotes = hasLaterBlank(text) ? "\"" : "";
  return quotes + text + quotes;
}

void requireParts(const Filename& name) {
  const std::string folder = name.directory();
  const std::string file = name.nameWithExtension();
  requireSame(folder + file, name.fullName(), "folder and name make the path");
  requireSame(name.baseName() + name.extension(), file, "base name and extension make the name");
  require(folder.empty() || folder.back() == '/', "a folder ends in its separator");
  require(file.find('/') == std::string::npos, "no separator stands in a name");
  const std::string extension = name.extension();
  require(extension.empty() ? file.find('.') == std::string::npos : extension.rfind('.') == 0,
          "the extension begins at the last dot of the name");
  const std::string bare = name.directoryNoSlash();
  requireSame(folder.size() > 1 ? bare + '/' : bare, folder, "the folder loses one separator, but for the root");
}

void requireQuotes(const Filename& name) {
  requireSame(name.quoted(), quotedByRule(name.fullName()), "the path is quoted by its blanks");
  requireSame(name.quotedDirectory(), quotedByRule(name.directory()), "the folder is quoted by its blanks");
  requireSame(name.quotedDirectoryNoSlash(), quotedByRule(name.directoryNoSlash()), "so is the bare folder");
  requireSame(name.quotedNameWithExtension(), quotedByRule(name.nameWithExtension()), "so is the name");
  requireSame(name.quotedBaseName(), quotedByRule(name.baseName()), "so is the base name");
  requireSame(name.alwaysQuotedName(), '"' + name.nameWithExtension() + '"', "this one is always quoted");
}

void requirePath(const std::string& text) {
  const Filename name(text);
  requireSame(name.fullName(), cleaned(text), "the path is cleaned");
  requireParts(name);
  requireQuotes(name);
  // A quoted path names the same file. Without quotes it does if cleaning has nothing more to take off.
  if (hasLaterBlank(name.fullName()) || cleaned(name.fullName()) == name.fullName())
    requireSame(Filename(name.quoted()).fullName(), name.fullName(), "a path survives its quotes");
}

void requireJoined(const std::string& folder, const std::string& file) {
  std::string path = cleaned(folder);
  if (!path.empty() && path.back() != '/') path += '/';
  path = cleaned(path + cleaned(file));
  const Filename joined(folder, file);
  requireSame(joined.fullName(), path, "folder and file are cleaned and joined");
  requireParts(joined);
}

}  // namespace
}  // namespace tarnwick::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick::fuzz;
  const std::string text = textOf(data, size);
  requirePath(text);
  const auto cut = text.find('\n');
  if (cut != std::string::npos) requireJoined(text.substr(0, cut), text.substr(cut + 1));
  return 0;
}
