// Stands in for a JDK's tool. It appends its arguments, one a line, to the file that the variable STANDIN_RECORD names,
// and plays the script that STANDIN_SCRIPT names, one command a line:
//
//   out TEXT, err TEXT   writes the text and a line end
//   outraw HEX           writes these bytes, given as pairs of hexadecimal digits
//   flood BYTES          writes so many bytes to standard output, in lines of 80
//   name, folder         writes the name that it was started under, its working folder
//   environment NAME     writes the variable's value
//   sleep MS             waits
//   readline             reads a line and writes "got: " and the line, or "end of input"
//   grandchild MS        starts a copy of itself that keeps the standard streams and waits so long; its process number
//                        is added, on a line of its own, to the file STANDIN_RECORD + ".pids"
//   ignoreterm           ignores the signal TERM, as what it starts does
//   exit CODE, signal N  ends
#include "StandInSystem.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>

namespace {

const std::string sleepArgument = "--stand-in-sleep=";

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

void sleepFor(const std::string& milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(std::atol(milliseconds.c_str())));
}

void write(std::FILE* stream, const std::string& bytes) {
  std::fwrite(bytes.data(), 1, bytes.size(), stream);
  std::fflush(stream);
}

void writeHex(const std::string& digits) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
    bytes += static_cast<char>(std::strtol(digits.substr(i, 2).c_str(), nullptr, 16));
  }
  write(stdout, bytes);
}

void flood(long bytes) {
  const std::string line = std::string(79, 'x') + '\n';
  for (; bytes > 0; bytes -= static_cast<long>(line.size())) {
    std::fwrite(line.data(), 1, static_cast<std::size_t>(std::min<long>(bytes, static_cast<long>(line.size()))),
                stdout);
  }
  std::fflush(stdout);
}

void echoLine() {
  std::string line;
  write(stdout, std::getline(std::cin, line) ? "got: " + line + '\n' : "end of input\n");
}

void startGrandchild(const std::string& milliseconds) {
  const int process = tarnwick::test::startCopy(sleepArgument + milliseconds);
  if (process == 0) std::exit(99);
  std::ofstream(variable("STANDIN_RECORD") + ".pids", std::ios::app) << process << std::endl;
}

void play(const std::string& command, const std::string& rest, const char* name) {
  if (command == "out") write(stdout, rest + '\n');
  if (command == "err") write(stderr, rest + '\n');
  if (command == "outraw") writeHex(rest);
  if (command == "flood") flood(std::atol(rest.c_str()));
  if (command == "name") write(stdout, std::string(name) + '\n');
  if (command == "folder") write(stdout, tarnwick::test::workingFolder() + '\n');
  if (command == "environment") write(stdout, variable(rest.c_str()) + '\n');
  if (command == "sleep") sleepFor(rest);
  if (command == "readline") echoLine();
  if (command == "grandchild") startGrandchild(rest);
  if (command == "ignoreterm") std::signal(SIGTERM, SIG_IGN);
  if (command == "exit") std::exit(std::atoi(rest.c_str()));
  if (command == "signal") std::raise(std::atoi(rest.c_str()));
}

}  // namespace

int main(int argc, char** argv) {
  tarnwick::test::useBinaryStreams();
  const std::string first = argc > 1 ? argv[1] : "";
  if (first.rfind(sleepArgument, 0) == 0) {
    sleepFor(first.substr(sleepArgument.size()));
    return 0;
  }
  if (const auto path = variable("STANDIN_RECORD"); !path.empty()) {
    std::ofstream record(path, std::ios::app | std::ios::binary);
    for (int i = 1; i < argc; ++i) record << argv[i] << '\n';
  }
  std::ifstream script(variable("STANDIN_SCRIPT"));
  for (std::string line; std::getline(script, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const auto blank = line.find(' ');
    play(line.substr(0, blank), blank == std::string::npos ? "" : line.substr(blank + 1), argv[0]);
  }
  return 0;
}
