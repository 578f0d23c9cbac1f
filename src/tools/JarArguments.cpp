#include "tools/JarArguments.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/FileArgument.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"

namespace tarnwick {

namespace {

std::string optionLetters(const JarRun& run) {
  std::string letters = run.operation == JarOperation::Create ? "cf" : "uf";
  if (!run.manifest.empty()) letters += 'm';
  if (run.verbose) letters += 'v';
  if (run.noCompression) letters += '0';
  if (run.noManifest) letters += 'M';
  return letters;
}

/// True for a double quote that no backslash turns into a letter like others.
bool isQuote(const std::string& text, std::size_t at) {
  if (text[at] != '"') return false;
  std::size_t backslashes = 0;
  while (backslashes < at && text[at - backslashes - 1] == '\\') ++backslashes;
  return backslashes % 2 == 0;
}

/// Where the last name of the text begins, which does not end in a blank: with its double quote, or behind the last
/// blank.
std::size_t beginOfLastName(const std::string& text) {
  if (isQuote(text, text.size() - 1)) {
    for (std::size_t at = text.size() - 1; at-- > 0;)
      if (isQuote(text, at)) return at;
  }
  const auto blank = text.find_last_of(" \t");
  return blank == std::string::npos ? 0 : blank + 1;
}

/// The names, the last one first, each behind the folder that it is to be taken from.
std::string takenFrom(const std::string& folder, const std::string& names) {
  std::string result;
  for (std::string rest = trimRight(names); !rest.empty(); rest = trimRight(rest)) {
    const auto begin = beginOfLastName(rest);
    result += " -C " + folder + " " + rest.substr(begin);
    rest.resize(begin);
  }
  return result;
}

std::string withSeparator(const std::string& folder) {
  return platform::endsInSeparator(folder) ? folder : folder + platform::folderSeparator;
}

std::string resolvedFolder(const std::string& folder) {
  return withSeparator(platform::resolvedPath(platform::absolutePath(cleanedPath(folder))));
}

}  // namespace

std::vector<std::string> jarArguments(const JarRun& run) {
  const std::string archive = platform::fileWord(cleanedPath(run.archive));
  if (run.operation == JarOperation::CreateIndex) return {"jar", "-i", archive};
  std::vector<std::string> arguments = {"jar", optionLetters(run), archive};
  const auto addText = [&arguments](const std::string& text) {
    if (!text.empty()) arguments.push_back(text);
  };
  addText(run.manifest);
  if (run.allFiles) {
    arguments.emplace_back("*");
    return arguments;
  }
  addText(run.subfolders);
  addText(run.lastFilesFolder.empty() ? run.individualFiles : takenFrom(run.lastFilesFolder, run.individualFiles));
  return arguments;
}

std::string manifestLines(const std::string& mainClass, const std::string& classPath) {
  std::string lines;
  if (!mainClass.empty()) lines += "Main-Class: " + mainClass + '\n';
  if (!classPath.empty()) lines += "Class-Path: " + classPath + '\n';
  return lines;
}

std::string archiveForRun(const JarRun& run, const std::string& baseFolder) {
  if (baseFolder.empty() || run.operation == JarOperation::CreateIndex) return run.archive;
  const Filename archive(platform::absolutePath(cleanedPath(run.archive)));
  const std::string base = resolvedFolder(baseFolder);
  const bool fromElsewhere = !run.individualFiles.empty() && !run.lastFilesFolder.empty() && run.subfolders.empty() &&
                             !platform::sameFileName(resolvedFolder(run.lastFilesFolder), base);
  const std::string path = resolvedFolder(archive.directory()) + archive.nameWithExtension();
  if (fromElsewhere || !platform::sameFileName(path.substr(0, base.size()), base)) return run.archive;
  return path.substr(base.size());
}

}  // namespace tarnwick
