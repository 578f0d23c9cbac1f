#include "source/SourceText.h"

#include "base/Tarnwickfile.h"
#include "platform/FileSystem.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace tarnwick {

std::string sourceText(const std::string& path) {
  const auto fileSize = platform::fileSize(path).value_or(0);
  refuseLarge(fileSize, path);
  const auto size = static_cast<std::size_t>(fileSize);
  refuseLineEnd(path);
  refuseSpecial(path);
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(platform::openFile(path, "rb"), &std::fclose);
  if (!stream) throw Tarnwickfile::FileNotOpenE(std::strerror(errno), path);
  std::setvbuf(stream.get(), nullptr, _IONBF, 0);
  // One byte more finds the end at once; a file may grow while it is read.
  std::string text(size + 1, '\0');
  std::size_t count = 0;
  while (const std::size_t more = std::fread(text.data() + count, 1, text.size() - count, stream.get())) {
    count += more;
    refuseLarge(count, path);
    if (count == text.size()) text.resize(2 * count);
  }
  text.resize(count);
  return text;
}

}  // namespace tarnwick
