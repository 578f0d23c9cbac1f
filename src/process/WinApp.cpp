#include "process/WinApp.h"

#include "base/Filename.h"
#include "base/Text.h"
#include "platform/Associations.h"
#include "platform/Process.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr std::size_t maximumArguments = 10;

std::string withoutLeadingBlanks(const std::string& text) {
  return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

/// Takes the word up to the next blank off the text, with the blanks behind it.
std::string takeWord(std::string& text) {
  const auto end = std::min(text.find(' '), text.size());
  std::string word = text.substr(0, end);
  text = withoutLeadingBlanks(text.substr(end));
  return word;
}

}  // namespace

WinApp::WinApp(const std::string& extension) : commandText_(platform::openCommand(extension)) {}

WinApp WinApp::withCommand(const std::string& commandText) {
  WinApp app;
  app.commandText_ = commandText;
  return app;
}

LaunchResult WinApp::runApp(const char* file, const char* extraArgument, int checkOnly) const {
  LaunchResult result;
  const auto command = takenApart(file, extraArgument, result);
  if (!command) return result;
  if (checkOnly == 1)
    result.started = true;
  else
    start(*command, result);
  return result;
}

std::optional<WinApp::Command> WinApp::takenApart(const char* file, const char* extraArgument,
                                                  LaunchResult& result) const {
  Command command;
  std::string rest;
  if (commandText_.empty() || !platform::splitOpenCommand(commandText_, command.program, rest)) return std::nullopt;
  rest = withoutLeadingBlanks(rest);
  if (rest.empty()) return std::nullopt;
  std::replace(rest.begin(), rest.end(), '"', ' ');
  rest = trim(rest);

  auto& arguments = command.arguments;
  const auto addWord = [&](const std::string& word, int faultNumber) {
    if (arguments.size() < maximumArguments) {
      arguments.push_back(word);
      return true;
    }
    result.failures.push_back("Internal error " + std::to_string(faultNumber) + " in WinApp::runApp");
    return false;
  };
  if (rest.empty() || rest.front() != '%') {
    do {
      if (!addWord(takeWord(rest), 1)) return std::nullopt;
    } while (!rest.empty() && rest.front() != '%');
  }
  if (!addWord(file == nullptr ? "" : platform::commandWord(Filename(file).fullName()), 2)) return std::nullopt;
  // Only the first "%" word is the file's place; those behind it are words like any other.
  takeWord(rest);
  while (!rest.empty()) {
    if (!addWord(takeWord(rest), 3)) return std::nullopt;
  }
  const bool hasExtra = extraArgument != nullptr && *extraArgument != '\0';
  if (hasExtra && !addWord(extraArgument, 4)) return std::nullopt;
  return command;
}

void WinApp::start(const Command& command, LaunchResult& result) {
  const Filename program(command.program);
  std::string line = platform::commandWord(program.nameWithExtension());
  for (const auto& argument : command.arguments) line += ' ' + argument;
  try {
    platform::startCommandLine(program.fullName(), line);
    result.started = true;
  } catch (const platform::SystemError& error) {
    result.failures.push_back("Can't start " + line + '\n' + error.text());
  }
}

}  // namespace tarnwick
