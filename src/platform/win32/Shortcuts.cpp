#include "platform/Shortcuts.h"

#include "platform/win32/Insist.h"

#include <shlobj.h>
#include <windows.h>

#include <vector>

namespace tarnwick::platform {

namespace {

/// The longest text that the system has for a failure.
constexpr DWORD longestReason = 512;
/// By so much the buffer for the arguments grows.
constexpr std::size_t bufferStep = 256;

[[noreturn]] void fail(DWORD code) {
  char text[longestReason] = "";
  const DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                                      MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), text, sizeof text, nullptr);
  throw ShortcutFailure{std::string(text, length)};
}

void check(HRESULT result) {
  if (FAILED(result)) fail(static_cast<DWORD>(result));
}

/// An object of the shell's, released at the end of its life.
template <typename Interface>
class Object {
 public:
  Object() = default;
  ~Object() {
    if (object_) object_->Release();
  }
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  Interface* operator->() const { return object_; }
  void** place() { return reinterpret_cast<void**>(&object_); }

 private:
  Interface* object_ = nullptr;
};
using Link = Object<IShellLinkA>;
using LinkFile = Object<IPersistFile>;

void make(Link& link) {
  check(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA, link.place()));
}

/// The number of the picture that a fresh shortcut has.
int usualPicture() {
  Link link;
  make(link);
  char path[1] = "";
  int index = 0;
  check(link->GetIconLocation(path, sizeof path, &index));
  return index;
}

std::wstring wide(const std::string& path) {
  std::wstring text(path.size() + 1, L'\0');
  const int length = MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, text.data(), static_cast<int>(text.size()));
  if (length == 0) fail(GetLastError());
  text.resize(static_cast<std::size_t>(length) - 1);
  return text;
}

void save(const Shortcut& shortcut, const std::string& file) {
  const int index = usualPicture();
  Link link;
  make(link);
  check(link->SetPath(shortcut.target.c_str()));
  check(link->SetDescription(shortcut.description.c_str()));
  check(link->SetWorkingDirectory(shortcut.workingFolder.c_str()));
  check(link->SetArguments(shortcut.arguments.c_str()));
  check(link->SetIconLocation(shortcut.picture.c_str(), index));
  LinkFile saved;
  check(link->QueryInterface(IID_IPersistFile, saved.place()));
  check(saved->Save(wide(file).c_str(), TRUE));
}

std::string argumentsOf(const Link& link) {
  for (std::vector<char> buffer(bufferStep);; buffer.resize(buffer.size() + bufferStep)) {
    check(link->GetArguments(buffer.data(), static_cast<int>(buffer.size())));
    const std::string text = buffer.data();
    if (text.size() < buffer.size() - 2) return text;
  }
}

std::string readBack(const std::string& file) {
  Link link;
  make(link);
  LinkFile saved;
  check(link->QueryInterface(IID_IPersistFile, saved.place()));
  const std::wstring path = wide(file);
  HRESULT loaded = S_OK;
  insist(isHeldOpen, [&] {
    loaded = saved->Load(path.c_str(), STGM_READ);
    SetLastError(HRESULT_CODE(loaded));
    return SUCCEEDED(loaded);
  });
  check(loaded);
  check(link->Resolve(nullptr, SLR_ANY_MATCH));
  return argumentsOf(link);
}

std::string specialFolder(int number) {
  PIDLIST_ABSOLUTE place = nullptr;
  char path[MAX_PATH] = "";
  const bool found =
      SUCCEEDED(SHGetSpecialFolderLocation(nullptr, number, &place)) && SHGetPathFromIDListA(place, path) != FALSE;
  CoTaskMemFree(place);
  if (!found) throw ShortcutFailure{"SHGetSpecialFolderLocation(" + std::to_string(number) + ") error "};
  return path;
}

class ShellLinks : public ShortcutShell {
 public:
  ShellLinks() { check(CoInitialize(nullptr)); }
  ~ShellLinks() override { CoUninitialize(); }
  ShellLinks(const ShellLinks&) = delete;
  ShellLinks& operator=(const ShellLinks&) = delete;

  std::string extension() const override { return ".lnk"; }
  std::string desktopFolder() override { return specialFolder(CSIDL_DESKTOP); }
  std::string startMenuFolder() override { return specialFolder(CSIDL_STARTMENU); }

  std::string write(const Shortcut& shortcut, const std::string& file) override {
    const std::string fresh = file + ".tarnwick-" + std::to_string(GetCurrentProcessId()) + ".tmp";
    try {
      save(shortcut, fresh);
      constexpr DWORD inItsPlace = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
      if (!insist(maybeHeldOpen, [&] { return MoveFileExA(fresh.c_str(), file.c_str(), inItsPlace) != 0; }))
        fail(GetLastError());
    } catch (const ShortcutFailure&) {
      DeleteFileA(fresh.c_str());
      throw;
    }
    return readBack(file);
  }
};

}  // namespace

std::unique_ptr<ShortcutShell> openShortcutShell() {
  return std::make_unique<ShellLinks>();
}

}  // namespace tarnwick::platform
