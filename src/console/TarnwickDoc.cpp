#include "console/TarnwickDoc.h"

#include "base/Filename.h"
#include "base/ReplacingFile.h"
#include "console/TextCells.h"
#include "platform/Characters.h"
#include "platform/FileSystem.h"
#include "platform/OutputFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace tarnwick {
namespace {

constexpr int tabWidth = 8;
const char cantOpen[] = "\nCan't open output file.";
const char cantWrite[] = "\nCan't write output file.";
const char recordEnds[] = "\nThe recording has ended.";

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
  if (record_) record(lines_.back());
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

void TarnwickDoc::record(const ConsoleLine& line) {
  try {
    record_->add(line);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    recordFailure_ = failure.message + cantWrite + recordEnds;
    record_.reset();
  }
}

std::string TarnwickDoc::takeRecordFailure() {
  return std::exchange(recordFailure_, {});
}

bool TarnwickDoc::recording() const {
  const TextGuard guard(textLock_);
  return record_ != nullptr;
}

std::optional<std::string> TarnwickDoc::chosenFile() {
  stopRecording();
  FileRequest request;
  request.startFolder = Filename(recordFileName_).directory();
  request.confirmOverwrite = true;
  auto chosen = desktop_.saveFile(request);
  if (chosen) {
    recordFileName_ = *chosen;
  } else {
    // Deliberate: a dialog that was cancelled says so too.
    desktop_.message(cantOpen);
  }
  return chosen;
}

bool TarnwickDoc::startRecording() {
  const auto chosen = chosenFile();
  if (!chosen) return false;
  try {
    auto record = std::make_unique<LineRecord>(*chosen);
    const TextGuard guard(textLock_);
    record_ = std::move(record);
    return true;
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message + cantOpen);
    return false;
  }
}

void TarnwickDoc::stopRecording() {
  std::unique_ptr<LineRecord> ended;
  std::string fault;
  {
    const TextGuard guard(textLock_);
    ended = std::move(record_);
    fault = takeRecordFailure();
  }
  try {
    if (ended) ended->close();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    fault = failure.message + cantWrite;
  }
  if (!fault.empty()) desktop_.message(fault);
}

void TarnwickDoc::saveDisplay() {
  const auto chosen = chosenFile();
  if (!chosen) return;
  const char* fault = cantOpen;
  try {
    const std::string folder = Filename(*chosen).directory();
    // What is saved lies where the user has seen a folder, never in one that is made for it.
    if (!folder.empty() && !platform::isFolder(folder))
      throw Tarnwickfile::FileNotOpenE(std::strerror(ENOENT), *chosen);
    ReplacingFile file(*chosen);
    fault = cantWrite;
    platform::neverWait(file.stream());
    writeAll(file.stream());
    file.commit();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message(failure.message + fault);
  }
}

void TarnwickDoc::writeAll(std::FILE* stream) {
  const TextGuard guard(textLock_);
  for (const auto& line : lines_) {
    // The stream keeps in mind that it has failed.
    if (!writeLine(stream, line)) return;
  }
}

}  // namespace tarnwick
