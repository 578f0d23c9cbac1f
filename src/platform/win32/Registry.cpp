#include "platform/win32/Registry.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace tarnwick::platform {
namespace {

constexpr DWORD longestText = 1024;

struct Trace {
  HKEY root;
  RegistryPath path;
  const char* key;
};

/// The text with the variables of the environment in it replaced.
std::string expanded(const std::string& text) {
  char buffer[longestText];
  const DWORD size = ExpandEnvironmentStringsA(text.c_str(), buffer, sizeof buffer);
  return size > 0 && size <= sizeof buffer ? std::string(buffer) : text;
}

/// A value that is a text; nothing if it is none, is not there, or does not fit into so many bytes.
std::optional<std::string> textValue(HKEY key, const char* name, DWORD room) {
  std::string buffer(room, '\0');
  DWORD type = 0;
  if (RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()), &room) != ERROR_SUCCESS ||
      (type != REG_SZ && type != REG_EXPAND_SZ)) {
    return std::nullopt;
  }
  const std::string text = buffer.substr(0, std::min<std::size_t>(buffer.find('\0'), room));
  return type == REG_EXPAND_SZ ? expanded(text) : text;
}

}  // namespace

RegistryKey::RegistryKey(HKEY above, const std::string& name, REGSAM view) {
  if (RegOpenKeyExA(above, name.c_str(), 0, KEY_READ | view, &key_) != ERROR_SUCCESS) key_ = nullptr;
}

RegistryKey::~RegistryKey() {
  if (key_ != nullptr) RegCloseKey(key_);
}

std::string RegistryKey::text(const char* name) const {
  return textValue(key_, name, longestText).value_or("");
}

std::vector<std::string> RegistryKey::subkeys() const {
  std::vector<std::string> names;
  char buffer[256];
  for (DWORD index = 0;; ++index) {
    DWORD size = sizeof buffer;
    if (RegEnumKeyExA(key_, index, buffer, &size, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
    names.emplace_back(buffer, size);
  }
  return names;
}

HKEY openKeyPath(HKEY root, const RegistryPath& path) {
  std::string message = "Couldn't find registry subkey ";
  HKEY key = root;
  for (const auto& name : path) {
    message += '\\' + name;
    HKEY next = nullptr;
    const LONG result = RegOpenKeyExA(key, name.c_str(), 0, KEY_READ, &next);
    if (key != root) RegCloseKey(key);
    if (result != ERROR_SUCCESS) throw NoSuchRegistryEntryE{message};
    key = next;
  }
  return key;
}

bool readDefaultValue(HKEY root, const RegistryPath& path, std::string& text) {
  HKEY key = nullptr;
  try {
    key = openKeyPath(root, path);
  } catch (const NoSuchRegistryEntryE&) {
    return false;
  }
  const auto value = textValue(key, nullptr, longestText);
  if (key != root) RegCloseKey(key);
  if (value) text = *value;
  return value.has_value();
}

void deleteKeyTree(HKEY parent, const std::string& name) {
  HKEY key = nullptr;
  try {
    key = openKeyPath(parent, {name});
  } catch (const NoSuchRegistryEntryE&) {
    return;
  }
  char subkey[256];
  // Deliberate: the index goes up although subkeys disappear, so that every second one is passed over. The keys that
  // this is for have one level and few entries.
  for (DWORD index = 0;; ++index) {
    DWORD size = sizeof subkey;
    if (RegEnumKeyExA(key, index, subkey, &size, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
    deleteKeyTree(key, subkey);
  }
  RegDeleteKeyA(parent, name.c_str());
}

void removeFileTypeTraces() {
  const Trace traces[] = {
      {HKEY_CLASSES_ROOT, {}, ".twp"},
      {HKEY_CLASSES_ROOT, {}, "Tarnwick.Project"},
      {HKEY_CLASSES_ROOT, {}, "twp_auto_file"},
      {HKEY_CURRENT_USER, {"SOFTWARE", "Microsoft", "Windows", "CurrentVersion", "Explorer", "FileExts"}, ".twp"},
  };
  for (const auto& trace : traces) {
    try {
      const HKEY parent = openKeyPath(trace.root, trace.path);
      deleteKeyTree(parent, trace.key);
      RegFlushKey(parent);
    } catch (const NoSuchRegistryEntryE&) {
      // Nothing to remove in this row.
    }
  }
}

bool writeDefaultValue(HKEY root, const std::string& path, const std::string& value) {
  HKEY key = nullptr;
  if (RegCreateKeyExA(root, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr) != ERROR_SUCCESS) {
    return false;
  }
  const LONG result = RegSetValueExA(key, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                                     static_cast<DWORD>(value.size() + 1));
  RegCloseKey(key);
  return result == ERROR_SUCCESS;
}

bool tellsOfWindows98(HKEY root, const RegistryPath& path) {
  try {
    const HKEY key = openKeyPath(root, path);
    constexpr DWORD room = 99;
    return textValue(key, "ProductName", room) == "Microsoft Windows 98" ||
           textValue(key, "Version", room) == "Windows 98";
  } catch (const NoSuchRegistryEntryE&) {
    return false;
  }
}

}  // namespace tarnwick::platform
