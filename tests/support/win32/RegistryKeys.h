#pragma once

#include <windows.h>

#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {

/// A text in the registry that goes with the test, and with it every key that had to be made for it.
class ScopedRegistryText {
 public:
  /// `view` is KEY_WOW64_64KEY, KEY_WOW64_32KEY, or 0 for the process's own.
  ScopedRegistryText(HKEY root, const std::string& path, const char* name, const std::string& text, REGSAM view = 0)
      : root_(root), view_(view), made_(firstMissing(path)) {
    if (made_.empty()) {
      ADD_FAILURE() << path << " is there already, and belongs to somebody else";
      return;
    }
    HKEY key = nullptr;
    if (RegCreateKeyExA(root, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS | view, nullptr, &key, nullptr) !=
        ERROR_SUCCESS) {
      made_.clear();
      return;
    }
    written_ = RegSetValueExA(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                              static_cast<DWORD>(text.size() + 1)) == ERROR_SUCCESS;
    RegCloseKey(key);
  }
  ~ScopedRegistryText() {
    if (made_.empty()) return;
    HKEY above = root_;
    const auto end = made_.rfind('\\');
    const std::string parent = end == std::string::npos ? "" : made_.substr(0, end);
    const std::string name = end == std::string::npos ? made_ : made_.substr(end + 1);
    if (RegOpenKeyExA(root_, parent.c_str(), 0, KEY_ALL_ACCESS | view_, &above) != ERROR_SUCCESS) return;
    EXPECT_EQ(RegDeleteTreeA(above, name.c_str()), ERROR_SUCCESS) << made_;
    RegCloseKey(above);
  }
  ScopedRegistryText(const ScopedRegistryText&) = delete;
  ScopedRegistryText& operator=(const ScopedRegistryText&) = delete;

  /// False where this user may not write there.
  bool written() const { return written_; }

 private:
  /// The uppermost key of the path that is not there; empty if all are.
  std::string firstMissing(const std::string& path) const {
    for (std::size_t end = 0; end != std::string::npos;) {
      end = path.find('\\', end + 1);
      HKEY key = nullptr;
      const std::string upper = path.substr(0, end);
      if (RegOpenKeyExA(root_, upper.c_str(), 0, KEY_READ | view_, &key) != ERROR_SUCCESS) return upper;
      RegCloseKey(key);
    }
    return "";
  }

  HKEY root_;
  REGSAM view_;
  std::string made_;
  bool written_ = false;
};

}  // namespace tarnwick::test
