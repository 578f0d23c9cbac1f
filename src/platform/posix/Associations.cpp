#include "platform/Associations.h"

#include "platform/FileSystem.h"
#include "platform/Path.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

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

/// The text with the field codes taken out that stand for something else than the file (icon, caption, ...).
std::string withFileCodesOnly(const std::string& command) {
  std::string kept;
  for (std::size_t i = 0; i < command.size(); ++i) {
    if (command[i] != '%' || i + 1 == command.size()) {
      kept += command[i];
      continue;
    }
    const char code = command[++i];
    if (code == '%') kept += '%';
    if (standsForFile(code)) kept += {'%', code};
  }
  return kept;
}

/// A command's words without the place of the file; a word that was nothing else goes altogether.
std::vector<std::string> wordsWithoutFile(const std::string& command) {
  std::vector<std::string> words;
  int count = 0;
  char** split = nullptr;
  if (!g_shell_parse_argv(command.c_str(), &count, &split, nullptr)) return words;
  for (int i = 0; i < count; ++i) {
    std::string word = split[i];
    const auto code = word.find('%');
    const bool hasFile = code != std::string::npos && code + 1 < word.size() && standsForFile(word[code + 1]);
    if (hasFile) word.erase(code, 2);
    if (!hasFile || !word.empty()) words.push_back(word);
  }
  g_strfreev(split);
  return words;
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
  const auto mark = commandText.find(quoted ? '"' : ' ', 1);
  if (quoted && mark == std::string::npos) return false;
  const auto end = mark == std::string::npos ? commandText.size() : mark + (quoted ? 1 : 0);
  program = commandText.substr(0, end);
  arguments = commandText.substr(end);
  return true;
}

std::vector<std::vector<std::string>> plainTextEditors() {
  std::vector<std::vector<std::string>> editors;
  auto preferred = wordsWithoutFile(withFileCodesOnly(commandFor("text/plain")));
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
