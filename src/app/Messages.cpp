#include "app/Messages.h"

#include "app/LookMemory.h"
#include "console/TarnwickView.h"
#include "platform/FileSystem.h"
#include "platform/Process.h"
#include "settings/SettingsContext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace tarnwick {

namespace {

std::string withSystemLineEnds(std::string text) {
  if (std::string_view(platform::lineEnd) == "\r\n") return text;
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  return text;
}

}  // namespace

Messages::Messages(Settings& settings, ConsoleFrameHost& host, OpenEditor openEditor)
    : settings_(settings),
      host_(host),
      openEditor_(std::move(openEditor)),
      view_([this] { return window_ && window_->isDark(); }, [this](const ToolMessage& message) { open(message); }) {}

void Messages::show(bool said) {
  ToolLog& log = settings_.context().log;
  const bool isOpen = window_ && window_->isOpen();
  if (!said && (!isOpen || log.runs() == shownRuns_)) return;
  MessagesText text = said ? textOfLog(log) : MessagesText();
  const std::string sum = messagesSummary(text, log.elapsed(), log.end());
  shownRuns_ = log.runs();
  const int before = shownRuns_ - static_cast<int>(log.parts().size());
  // A log that goes on, or is asked for again, is still the same.
  if (shownLog_ == before)
    history_.showAnew(std::move(text), sum);
  else
    history_.add(std::move(text), sum);
  shownLog_ = before;
  view_.setText(history_.text());
  if (!window_) window_ = host_.makeMessagesWindow(*this);
  if (!window_) return;
  if (!window_->isOpen()) useRememberedLetters();
  window_->setSummary(sum);
  window_->show();
}

void Messages::bringForward() {
  const bool showsIt = window_ && window_->isOpen() && shownLog_ && settings_.context().log.runs() == shownRuns_;
  // Shown anew, a log would begin again with its first message.
  if (!showsIt) show(true);
  if (window_) window_->bringForward();
}

void Messages::useRememberedLetters() {
  const ProgramInfo& program = settings_.context().program;
  view_.useLetters(rememberedLook(program).letters, [&program](int letters) {
    TextLook look = rememberedLook(program);
    look.letters = letters;
    rememberLook(program, look);
  });
}

void Messages::close() {
  if (window_) window_->close();
}

void Messages::onCommand(MessagesCommand command) {
  switch (command) {
    case MessagesCommand::Next:
    case MessagesCommand::Previous:
      step(command == MessagesCommand::Next);
      break;
    case MessagesCommand::Copy:
      copy();
      break;
    case MessagesCommand::SelectAll:
      view_.selectAll();
      break;
    case MessagesCommand::Clear:
      clear();
      break;
    case MessagesCommand::LargerLetters:
    case MessagesCommand::SmallerLetters:
      view_.stepLetters(command == MessagesCommand::LargerLetters ? 1 : -1);
      break;
    case MessagesCommand::UsualLetters:
      view_.useUsualLetters();
      break;
  }
}

void Messages::step(bool forward) {
  if (const ToolMessage* const message = view_.step(forward))
    open(*message);
  else
    settings_.context().desktop.alert(AlertSound::Beep);
}

void Messages::open(const ToolMessage& message) {
  openEditor_(message.place->file, {message.place->line, message.place->column});
}

void Messages::copy() {
  const std::string text = view_.selectedText();
  if (text.empty()) return;
  Desktop& desktop = settings_.context().desktop;
  if (desktop.setClipboardText(withSystemLineEnds(text))) return;
  desktop.message(clipboardFailure(platform::lastSystemError("").reason));
}

void Messages::clear() {
  history_.clear();
  shownLog_.reset();
  view_.setText({});
  if (window_) window_->setSummary("No messages");
}

std::optional<Rect> Messages::place() const {
  return placeOf(settings_.messagesPlace);
}

void Messages::onClosed(const std::optional<Rect>& place) {
  if (!place || placeOf(settings_.messagesPlace) == place) return;
  settings_.messagesPlace = placeText(*place);
  settings_.saveCurrent();
}

std::optional<Rect> placeOf(const std::string& text) {
  std::array<int, 4> numbers{};
  const char* at = text.data();
  const char* const end = at + text.size();
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const auto [behind, fault] = std::from_chars(at, end, numbers[i]);
    const bool last = i + 1 == numbers.size();
    if (fault != std::errc() || (last ? behind != end : behind == end || *behind != ';')) return std::nullopt;
    at = behind + (last ? 0 : 1);
  }
  constexpr int most = 100000;
  const auto [left, top, width, height] = numbers;
  if (std::abs(left) > most || std::abs(top) > most || width < 1 || height < 1 || width > most || height > most)
    return std::nullopt;
  return Rect{left, top, left + width, top + height};
}

std::string placeText(const Rect& place) {
  return std::to_string(place.left) + ';' + std::to_string(place.top) + ';' + std::to_string(place.width()) + ';' +
         std::to_string(place.height());
}

}  // namespace tarnwick
