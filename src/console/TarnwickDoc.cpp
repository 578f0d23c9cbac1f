#include "console/TarnwickDoc.h"

#include "base/Filename.h"
#include "console/TextCells.h"
#include "platform/Characters.h"
#include "platform/FileSystem.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace tarnwick {
namespace {

constexpr int tabWidth = 8;
const char cantOpen[] = "\nCan't open output file.";

/// The text with blanks in place of its tabs, as it stands from this column on.
std::string withoutTabs(std::string_view text, int column) {
  std::string expanded;
  for (;;) {
    const std::size_t tab = text.find('\t');
    const std::string_view run = text.substr(0, tab);
    expanded += run;
    if (tab == std::string_view::npos) return expanded;
    column += static_cast<int>(platform::columnsOf(run));
    const int blanks = tabWidth - column % tabWidth;
    expanded.append(static_cast<std::size_t>(blanks), ' ');
    column += blanks;
    text.remove_prefix(tab + 1);
  }
}

}  // namespace

TarnwickDoc::TarnwickDoc(Desktop& desktop, std::string title) : desktop_(desktop), title_(std::move(title)) {
  newLine();
}

void TarnwickDoc::newLine() {
  if (recordStream_) {
    writeLine(recordStream_, lines_.back());
    // The line is in the file now: for whoever follows the record, and even if nobody gets to close it.
    std::fflush(recordStream_.get());
  }
  lines_.emplace_back();
  if (lineCount() <= maxLines) return;
  lines_.pop_front();
  linesDropped_ = true;
}

ColumnRange TarnwickDoc::addText(std::string_view text, int kind) {
  if (text == "\n") {
    newLine();
    return {0, 0};
  }
  if (text == "\b") return takeBack(kind);
  const int startColumn = lastLineLength();
  if (text.find('\t') == std::string_view::npos) {
    lines_.back().append(text, kind);
  } else {
    lines_.back().append(withoutTabs(text, startColumn), kind);
  }
  noteWidth();
  return {startColumn, lines_.back().length()};
}

ColumnRange TarnwickDoc::takeBack(int kind) {
  const int endColumn = lastLineLength();
  int lastKind = KIND_NONE;
  const std::string* last = lastSegment(lastKind);
  if (kind != KIND_INPUT || lastKind != KIND_INPUT || last->empty()) return {endColumn, endColumn};
  lines_.back().replaceLast(last->substr(0, previousCharacter(*last, last->size())));
  return {lines_.back().length(), endColumn};
}

ColumnRange TarnwickDoc::replaceInput(std::string_view text) {
  ConsoleLine& line = lines_.back();
  if (line.currentKind() != KIND_INPUT || line.length() == 0) return addText(text, KIND_INPUT);
  const int startColumn = line.length() - line.segments().back().columns;
  line.replaceLast(text);
  noteWidth();
  return {startColumn, line.length()};
}

void TarnwickDoc::noteWidth() {
  widestLine_ = std::max(widestLine_, lines_.back().length());
}

void TarnwickDoc::writeLine(const Stream& stream, const ConsoleLine& line) {
  for (const auto& segment : line.segments()) std::fwrite(segment.text.data(), 1, segment.text.size(), stream.get());
  std::fputc('\n', stream.get());
}

TarnwickDoc::Stream TarnwickDoc::openChosenFile() {
  stopRecording();
  FileRequest request;
  request.startFolder = Filename(recordFileName_).directory();
  request.confirmOverwrite = true;
  const auto chosen = desktop_.saveFile(request);
  if (!chosen) {
    // Meant: a dialog that was cancelled says so too.
    desktop_.message(cantOpen);
    return nullptr;
  }
  recordFileName_ = *chosen;
  Stream stream(platform::openFile(recordFileName_, "w"));
  if (!stream) desktop_.message(std::strerror(errno) + std::string(cantOpen));
  return stream;
}

bool TarnwickDoc::startRecording() {
  Stream stream = openChosenFile();
  const TextGuard guard(textLock_);
  recordStream_ = std::move(stream);
  return recording();
}

void TarnwickDoc::stopRecording() {
  const TextGuard guard(textLock_);
  recordStream_.reset();
}

void TarnwickDoc::saveDisplay() {
  const Stream stream = openChosenFile();
  if (!stream) return;
  const TextGuard guard(textLock_);
  for (const auto& line : lines_) writeLine(stream, line);
}

}  // namespace tarnwick
