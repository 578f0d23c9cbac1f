#include "platform/UrlPath.h"

#include <windows.h>

#include <algorithm>

namespace tarnwick::platform {

namespace {

std::wstring wide(const std::string& text) {
  const int length = static_cast<int>(text.size());
  std::wstring result(text.size(), L'\0');
  result.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), length, result.data(), length)));
  return result;
}

std::string utf8(const std::wstring& text) {
  constexpr std::size_t mostBytes = 3;
  std::string result(text.size() * mostBytes, '\0');
  result.resize(
      static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                                   result.data(), static_cast<int>(result.size()), nullptr, nullptr)));
  return result;
}

}  // namespace

std::string urlPath(const std::string& path) {
  // In two-byte sets a backslash may be half a character, so they are exchanged among whole ones.
  std::wstring text = wide(path);
  std::replace(text.begin(), text.end(), L'\\', L'/');
  const std::string bytes = utf8(text);
  const bool hasDrive = bytes.size() > 1 && bytes[1] == ':';
  return hasDrive ? '/' + bytes.substr(0, 2) + percentEncoded(bytes.substr(2)) : percentEncoded(bytes);
}

}  // namespace tarnwick::platform
