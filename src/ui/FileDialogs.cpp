#include "ui/FileDialogs.h"

#include "platform/FileNames.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "ui/MessageBoxes.h"
#include "ui/NativeLoop.h"
#include "ui/Text.h"

#include <wx/dirdlg.h>
#include <wx/filedlg.h>

#include <vector>

namespace tarnwick::ui {

namespace {

std::vector<std::string> filterFields(const std::string& filter) {
  std::vector<std::string> fields;
  std::size_t start = 0;
  while (start < filter.size()) {
    const auto end = std::min(filter.find('|', start), filter.size());
    if (end == start) break;  // "||" ends the list
    fields.push_back(filter.substr(start, end - start));
    start = end + 1;
  }
  return fields;
}

std::string presetOf(const FileRequest& request) {
  const bool pattern = request.name.find_first_of("*?") != std::string::npos;
  return pattern && !presetMayBePattern ? std::string() : request.name;
}

void cancel(wxDialog& dialog) {
  if (dialog.IsModal()) dialog.EndModal(wxID_CANCEL);
}

/// False after telling that the program can't use what was chosen: the dialogs know more names than it does.
bool isUsable(WindowStack& stack, const std::string& path) {
  const std::string reason = platform::whyNoFile(path);
  if (reason.empty()) return true;
  showMessage(stack, "Can't use " + path + "\n" + reason, MessageKind::Fault);
  return false;
}

std::vector<std::string> usableOf(WindowStack& stack, const wxArrayString& chosen) {
  std::vector<std::string> paths;
  for (const auto& one : chosen) {
    const std::string path = fromWx(one);
    if (isUsable(stack, path)) paths.push_back(path);
  }
  return paths;
}

std::vector<std::string> runForSeveral(WindowStack& stack, const FileRequest& request, const char* title, long style) {
  const std::string folder = platform::isFolder(request.startFolder) ? request.startFolder : std::string();
  const std::string filter = toolkitFilter(request.filter);
  wxFileDialog dialog(stack.parent(), title, toWx(folder), toWx(presetOf(request)),
                      filter.empty() ? wxString(wxFileSelectorDefaultWildcardStr) : toWx(filter), style);
  const WindowStack::Place place(stack, nullptr, [&dialog] { cancel(dialog); });
  const NativeLoop posted;
  const bool confirmed = dialog.ShowModal() == wxID_OK;
  stack.goOn();
  if (!confirmed) return {};
  wxArrayString chosen;
  if ((style & wxFD_MULTIPLE) != 0)
    dialog.GetPaths(chosen);
  else
    chosen.Add(dialog.GetPath());
  return usableOf(stack, chosen);
}

std::optional<std::string> run(WindowStack& stack, const FileRequest& request, const char* title, long style) {
  const auto chosen = runForSeveral(stack, request, title, style);
  return chosen.empty() ? std::nullopt : std::optional(chosen.front());
}

long openStyle(const FileRequest& request) {
  return wxFD_OPEN | (request.mustExist ? wxFD_FILE_MUST_EXIST : 0);
}

}  // namespace

std::string toolkitFilter(const std::string& filter) {
  const auto fields = filterFields(filter);
  std::string result;
  for (std::size_t i = 0; i + 1 < fields.size(); i += 2) {
    if (!result.empty()) result += '|';
    result += fields[i] + '|' + patternsIgnoringCase(fields[i + 1]);
  }
  return result;
}

std::string withExtension(const std::string& path, const std::string& extension) {
  if (extension.empty() || !platform::splitPath(path).extension.empty()) return path;
  return path + extension;
}

std::optional<std::string> openFileDialog(WindowStack& stack, const FileRequest& request) {
  return run(stack, request, "Open", openStyle(request));
}

std::vector<std::string> openFilesDialog(WindowStack& stack, const FileRequest& request) {
  return runForSeveral(stack, request, "Open", openStyle(request) | wxFD_MULTIPLE);
}

std::optional<std::string> saveFileDialog(WindowStack& stack, const FileRequest& request) {
  const long style = wxFD_SAVE | (request.confirmOverwrite ? wxFD_OVERWRITE_PROMPT : 0);
  for (;;) {
    const auto chosen = run(stack, request, "Save as", style);
    if (!chosen) return std::nullopt;
    const auto path = withExtension(*chosen, request.extension);
    // The dialog has asked about the name as it was typed, not about the one with the extension.
    const bool unasked = request.confirmOverwrite && path != *chosen && platform::isFile(path);
    if (!unasked || showMessage(stack, path + " already exists.\nDo you want to replace it?", MessageKind::YesNo)) {
      return path;
    }
  }
}

std::optional<std::string> folderDialog(WindowStack& stack, const std::string& root) {
  // Where systems have a home folder the browser begins there, and not among what happened to be used lately.
  const wxString start = toWx(platform::isFolder(root) ? root : platform::startFolder(""));
  wxDirDialog dialog(stack.parent(), "Choose a folder", start, wxDD_DEFAULT_STYLE | wxDD_DIR_MUST_EXIST);
  const WindowStack::Place place(stack, nullptr, [&dialog] { cancel(dialog); });
  const NativeLoop posted;
  const bool chosen = dialog.ShowModal() == wxID_OK;
  stack.goOn();
  if (!chosen) return std::nullopt;
  const std::string path = fromWx(dialog.GetPath());
  return isUsable(stack, path) ? std::optional(path) : std::nullopt;
}

}  // namespace tarnwick::ui
