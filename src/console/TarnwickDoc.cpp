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
    const int blanks = TarnwickDoc::tabWidth - column % TarnwickDoc::tabWidth;
    expanded.append(static_cast<std::size_t>(blanks), ' ');
    column += blanks;
    text.remove_prefix(tab + 1);
  }
}

}  // namespace

const char TarnwickDoc::brokenMark[] = "[the line goes on] ";
const char TarnwickDoc::cantOpen[] = "\nCan't open output file.";

TarnwickDoc::TarnwickDoc(std::string title) : title_(std::move(title)) {
  newLine();
}

void TarnwickDoc::newLine() {
  if (record_) record(lines_.back());
  lines_.emplace_back();
  if (lineCount() > maxLines) dropFirstLine();
}

void TarnwickDoc::dropFirstLine() {
  lines_.pop_front();
  ++linesGone_;
  linesDropped_ = true;
  if (!breaks_.empty() && breaks_.front() < linesGone_) breaks_.pop_front();
}

ColumnRange TarnwickDoc::write(int column, std::string_view text, int kind, const TextStyle& style) {
  ConsoleLine& line = lines_.back();
  int end = 0;
  if (column >= line.length()) {
    line.append(text, kind, style);
    end = line.length();
  } else {
    end = line.overwrite(column, text, kind, style);
  }
  noteWidth();
  return {column, end};
}

bool TarnwickDoc::isFull(std::size_t bytes) const {
  const ConsoleLine& line = lines_.back();
  return line.length() > 0 && line.weight() + bytes > longestLine;
}

void TarnwickDoc::breakLine() {
  breaks_.push_back(linesGone_ + lines_.size() - 1);
  newLine();
  // Lines of usual lengths have a right to their count. Pieces of such a size have not.
  while (breaks_.size() > maxBrokenLines) dropFirstLine();
  addText(brokenMark, KIND_BANNER);
}

std::optional<ConsoleSegment> TarnwickDoc::takeInput() {
  return lines_.back().takeInput();
}

void TarnwickDoc::giveInput(ConsoleSegment input) {
  lines_.back().append(std::move(input));
  noteWidth();
}

void TarnwickDoc::clear() {
  linesGone_ += lines_.size() - 1;
  lines_.erase(lines_.begin(), lines_.end() - 1);
  breaks_.clear();
  widestLine_ = lastLineLength();
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

void TarnwickDoc::startRecording(const std::string& path) {
  try {
    auto record = std::make_unique<LineRecord>(path);
    const TextGuard guard(textLock_);
    record_ = std::move(record);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    throw Tarnwickfile::FileNotOpenE(failure.message + cantOpen, failure.file);
  }
}

std::string TarnwickDoc::stopRecording() {
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
  return fault;
}

void TarnwickDoc::saveDisplay(const std::string& path) {
  const char* fault = cantOpen;
  try {
    const std::string folder = Filename(path).directory();
    // What is saved lies where the user has seen a folder, never in one that is made for it.
    if (!folder.empty() && !platform::isFolder(folder)) throw Tarnwickfile::FileNotOpenE(std::strerror(ENOENT), path);
    ReplacingFile file(path);
    fault = cantWrite;
    platform::neverWait(file.stream());
    writeAll(file.stream());
    file.commit();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    throw Tarnwickfile::FileNotOpenE(failure.message + fault, failure.file);
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
