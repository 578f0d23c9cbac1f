#include "process/EditorForms.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/FileArgument.h"
#include "platform/Process.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace tarnwick {

namespace {

/// Executables, without what a system adds to their names, and the pattern that they all understand.
struct EditorForm {
  std::vector<std::string> names;
  std::string pattern;
};

const std::vector<EditorForm>& editorForms() {
  static const std::vector<EditorForm> forms = {
      {{"tarnwick-notepad", "gedit", "xed", "emacs", "emacs-gtk", "emacsclient"}, "+%l:%c %f"},
      {{"pluma", "featherpad", "nvim-qt"}, "+%l %f"},
      {{"mousepad", "kate", "kwrite", "notepadqq"}, "-l %l -c %c %f"},
      {{"geany"}, "-l %l --column %c %f"},
      {{"scite"}, "%f -goto:%l,%c"},
      {{"notepad++"}, "-n%l -c%c %f"},
      {{"notepad4", "notepad3", "notepad2"}, "/g %l,%c %f"},
      {{"code", "code-insiders", "codium", "cursor"}, "-g %f:%l:%c"},
      {{"subl", "sublime_text", "zed", "atom"}, "%f:%l:%c"},
      {{"idea", "idea64", "studio", "studio64"}, "--line %l --column %c %f"},
      {{"gvim", "vim", "mvim"}, "\"+call cursor(%l,%c)\" %f"},
      {{"jedit"}, "%f +line:%l"},
  };
  return forms;
}

std::string foldedName(const std::string& executable) {
  const std::string name = lowerCase(Filename(executable).nameWithExtension());
  for (const char* ending : {".exe", ".cmd", ".bat", ".com", ".sh", ".jar"}) {
    if (name.ends_with(ending)) return name.substr(0, name.rfind('.'));
  }
  return name;
}

std::string knownPattern(const std::string& executable) {
  const std::string name = foldedName(executable);
  const auto& forms = editorForms();
  const auto found = std::find_if(forms.begin(), forms.end(), [&name](const EditorForm& form) {
    return std::find(form.names.begin(), form.names.end(), name) != form.names.end();
  });
  return found == forms.end() ? "" : found->pattern;
}

/// What stands for the two characters at this place of a pattern; empty if they are two like any others.
std::string meaningAt(const std::string& word, std::size_t at, const std::string& file, const EditorPlace& place) {
  if (word.compare(at, 2, "%f") == 0) return platform::fileArgument(file);
  if (word.compare(at, 2, "%l") == 0) return std::to_string(place.line);
  if (word.compare(at, 2, "%c") == 0) return std::to_string(std::max(place.column, 1));
  return word.compare(at, 2, "%%") == 0 ? "%" : "";
}

std::string filledIn(const std::string& word, const std::string& file, const EditorPlace& place) {
  std::string filled;
  for (std::size_t at = 0; at < word.size(); ++at) {
    const std::string meaning = meaningAt(word, at, file, place);
    filled += meaning.empty() ? std::string(1, word[at]) : meaning;
    if (!meaning.empty()) ++at;
  }
  return filled;
}

/// True if the file stands somewhere in the pattern; "%%f" is a percent sign and a letter.
bool namesFile(const std::string& pattern) {
  for (std::size_t at = pattern.find('%'); at < pattern.size(); at = pattern.find('%', at + 2))
    if (pattern.compare(at, 2, "%f") == 0) return true;
  return false;
}

}  // namespace

std::vector<std::string> editorArguments(const std::string& executable, const std::string& pattern,
                                         const std::string& file, const EditorPlace& place) {
  const std::string used = trim(pattern).empty() ? knownPattern(executable) : pattern;
  std::vector<std::string> arguments;
  // Without a line there is nothing to tell, and an empty name stands for no file.
  if (place.line > 0 && !file.empty()) {
    for (const auto& word : platform::splitCommandText(used)) arguments.push_back(filledIn(word, file, place));
  }
  if (arguments.empty() || !namesFile(used)) arguments.push_back(platform::fileArgument(file));
  return arguments;
}

}  // namespace tarnwick
