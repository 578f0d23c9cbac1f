#include "console/LineRecord.h"

#include "base/Tarnwickfile.h"
#include "platform/FileSystem.h"
#include "platform/OutputFile.h"

#include <cerrno>
#include <cstring>
#include <utility>

namespace tarnwick {

bool writeLine(std::FILE* stream, const ConsoleLine& line) {
  for (const auto& segment : line.segments()) {
    if (std::fwrite(segment.text.data(), 1, segment.text.size(), stream) != segment.text.size()) return false;
  }
  return std::fputc('\n', stream) != EOF;
}

LineRecord::LineRecord(std::string path) : path_(std::move(path)) {
  std::FILE* const emptied = platform::openFile(path_, "w");
  if (!emptied) fail(errno);
  // At the end, wherever that is by then: two consoles may record to one file.
  stream_ = platform::openFile(path_, "a");
  const int reason = errno;
  std::fclose(emptied);
  if (!stream_) fail(reason);
  platform::neverWait(stream_);
}

LineRecord::~LineRecord() {
  if (stream_) std::fclose(stream_);
}

void LineRecord::add(const ConsoleLine& line) {
  if (!platform::isStillThere(stream_)) fail(ENOENT);
  if (!writeLine(stream_, line) || std::fflush(stream_) != 0) fail(errno);
}

void LineRecord::close() {
  if (std::fclose(std::exchange(stream_, nullptr)) != 0) fail(errno);
}

void LineRecord::fail(int reason) const {
  throw Tarnwickfile::FileNotOpenE(std::strerror(reason), path_);
}

}  // namespace tarnwick
