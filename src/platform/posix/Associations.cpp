#include "platform/Associations.h"

#include "platform/FileSystem.h"
#include "platform/Path.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>

namespace tarnwick::platform {
namespace {

struct Releaser {
  void operator()(char* text) const { g_free(text); }
  void operator()(GAppInfo* app) const { g_object_unref(app); }
};
using Text = std::unique_ptr<char, Releaser>;
using App = std::unique_ptr<GAppInfo, Releaser>;

/// A program for the terminal would start where nobody sees it.
bool opensWindow(GAppInfo* app) {
  return !G_IS_DESKTOP_APP_INFO(app) || !g_desktop_app_info_get_boolean(G_DESKTOP_APP_INFO(app), "Terminal");
}

/// The user's default for the type, or the next that shows a window; its command text, empty for none.
std::string commandFor(const char* contentType) {
  const App preferred(g_app_info_get_default_for_type(contentType, FALSE));
  std::string command;
  const auto take = [&command](GAppInfo* app) {
    const char* text = g_app_info_get_commandline(app);
    if (command.empty() && text != nullptr && opensWindow(app)) command = text;
  };
  if (preferred) take(preferred.get());
  GList* others = g_app_info_get_recommended_for_type(contentType);
  for (GList* other = others; other != nullptr; other = other->next) take(G_APP_INFO(other->data));
  g_list_free_full(others, g_object_unref);
  return command;
}

/// True for a character after "%" that stands for the file.
bool standsForFile(char code) {
  return std::string_view("fFuU").find(code) != std::string_view::npos;
}

/// The text with the field codes taken out that stand for something else than the file (icon, caption, ...). A command
/// that names no place for the file gets it at its end.
std::string withFileCodesOnly(const std::string& command) {
  std::string kept;
  bool hasFile = command.empty();
  for (std::size_t i = 0; i < command.size(); ++i) {
    if (command[i] != '%' || i + 1 == command.size()) {
      kept += command[i];
      continue;
    }
    const char code = command[++i];
    if (code == '%') kept += '%';
    if (!standsForFile(code)) continue;
    kept += {'%', code};
    hasFile = true;
  }
  return hasFile ? kept : kept + " %f";
}

/// A command's words without the place of the file, nor anything else that a field code stands for; a word that was
/// nothing but such a code goes altogether.
std::vector<std::string> wordsWithoutFile(const std::string& command) {
  std::vector<std::string> words;
  int count = 0;
  char** split = nullptr;
  if (!g_shell_parse_argv(command.c_str(), &count, &split, nullptr)) return words;
  for (int i = 0; i < count; ++i) {
    std::string word;
    for (const char* c = split[i]; *c != '\0'; ++c) {
      if (*c != '%' || c[1] == '\0')
        word += *c;
      else if (*++c == '%')
        word += '%';
    }
    if (!word.empty() || *split[i] == '\0') words.push_back(word);
  }
  g_strfreev(split);
  return words;
}

/// Where the double quote stands that closes the text's first word, which begins with one.
std::size_t closingQuote(const std::string& text) {
  std::size_t at = 1;
  while (at < text.size() && text[at] != '"') at += text[at] == '\\' ? 2 : 1;
  return at < text.size() ? at : std::string::npos;
}

/// The text without the backslashes that a quoted word has before signs which would mean something there.
std::string unescaped(const std::string& text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == '\\' && i + 1 < text.size() &&
                        std::string_view("\"`$\\").find(text[i + 1]) != std::string_view::npos;
    plain += text[escape ? ++i : i];
  }
  return plain;
}

const char* const commonEditors[] = {
    "gnome-text-editor", "gedit", "kate",  "kwrite", "mousepad", "pluma",    "xed",       "featherpad", "leafpad",
    "l3afpad",           "geany", "medit", "tea",    "scite",    "nedit-ng", "emacs-gtk", "xedit"};

}  // namespace

std::string openCommand(const std::string& extension) {
  const std::string name = "file" + extension;
  const Text type(g_content_type_guess(name.c_str(), nullptr, 0, nullptr));
  if (!type || g_content_type_is_unknown(type.get())) return "";
  return withFileCodesOnly(commandFor(type.get()));
}

bool splitOpenCommand(const std::string& commandText, std::string& program, std::string& arguments) {
  if (commandText.empty() || commandText.front() == ' ') return false;
  const bool quoted = commandText.front() == '"';
  const auto mark = quoted ? closingQuote(commandText) : commandText.find(' ');
  if (quoted && mark == std::string::npos) return false;
  const auto end = std::min(quoted ? mark + 1 : mark, commandText.size());
  program = quoted ? unescaped(commandText.substr(0, end)) : commandText.substr(0, end);
  arguments = commandText.substr(end);
  return true;
}

std::vector<std::vector<std::string>> plainTextEditors() {
  std::vector<std::vector<std::string>> editors;
  auto preferred = wordsWithoutFile(commandFor("text/plain"));
  if (!preferred.empty()) editors.push_back(std::move(preferred));
  for (const char* name : commonEditors) {
    if (Text(g_find_program_in_path(name))) editors.push_back({name});
  }
  // Our own small one, where nothing else can be had.
  const auto program = splitPath(executablePath());
  const std::string own = program.folder + "tarnwick-notepad";
  if (isFile(own)) editors.push_back({own});
  return editors;
}

}  // namespace tarnwick::platform
