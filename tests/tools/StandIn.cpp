// Stands in for a JDK's tool. It appends its arguments, one a line, to the file that the variable STANDIN_RECORD names,
// and plays the script that STANDIN_SCRIPT names, one command a line:
//
//   out TEXT, err TEXT   writes the text and a line end
//   outraw HEX           writes these bytes, given as pairs of hexadecimal digits
//   flood BYTES          writes so many bytes to standard output, in lines of 80
//   floodboth BYTES      writes so many bytes to either output, by turns: counters of eight letters, in capitals to
//                        standard output and in small letters to standard error
//   name, folder         writes the name that it was started under, its working folder
//   console              writes whether it has a console window
//   environment NAME     writes the variable's value
//   keep FILE            adds the file's name and its bytes to the file STANDIN_RECORD + ".kept"
//   sleep MS             waits
//   given WORD           ends unless one of its arguments holds the word
//   await WORD FILE      waits until the file holds the word, ten minutes at most
//   readline             reads a line and writes "got: " and the line, or "end of input"
//   grandchild MS        starts a copy of itself that keeps the standard streams and waits so long; its process number
//                        is added, on a line of its own, to the file STANDIN_RECORD + ".pids"
//   murmurer N MS        the same, but it first writes N lines "murmur" to standard output, one each MS, and then waits
//                        for 15 seconds
//   orphan MS            the same in a session of its own, where there are such, and with nobody between left alive
//   lastwork MS          from here on, a request to end (TERM, or what a console tells the programs in it) is met by so
//                        much work; then the file STANDIN_RECORD + ".last" is written, and it ends
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
#include <sstream>
#include <string>
#include <thread>

namespace {

const std::string sleepArgument = "--stand-in-sleep=";
const std::string murmurArgument = "--stand-in-murmur=";

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

/// Also where a sanitizer would rather report the signal.
void endBy(int signal) {
  std::signal(signal, SIG_DFL);
  std::raise(signal);
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

/// Eight letters that count: "aaaaaaaa", "aaaaaaab", ...
std::string counter(long number, char first) {
  std::string letters(8, first);
  for (auto letter = letters.rbegin(); number > 0; ++letter, number /= 16)
    *letter = static_cast<char>(first + number % 16);
  return letters;
}

void floodBoth(long bytes) {
  constexpr long blockSize = 4096;
  for (long written = 0; written < bytes; written += blockSize) {
    std::string out;
    std::string err;
    for (long at = written; at < std::min(written + blockSize, bytes); at += 8) {
      out += counter(at / 8, 'A');
      err += counter(at / 8, 'a');
    }
    write(stdout, out);
    write(stderr, err);
  }
}

void echoLine() {
  std::string line;
  write(stdout, std::getline(std::cin, line) ? "got: " + line + '\n' : "end of input\n");
}

/// `what` is a count and, behind a comma, a time.
void murmur(const std::string& what) {
  for (long left = std::atol(what.c_str()); left > 0; --left) {
    sleepFor(what.substr(what.find(',') + 1));
    write(stdout, "murmur\n");
  }
  sleepFor("15000");
}

void startGrandchild(const std::string& argument) {
  const int process = tarnwick::test::startCopy(argument);
  if (process == 0) std::exit(99);
  std::ofstream(variable("STANDIN_RECORD") + ".pids", std::ios::app) << process << std::endl;
}

void startOrphan(const std::string& milliseconds) {
  const int process = tarnwick::test::startOrphan(sleepArgument + milliseconds);
  if (process == 0) std::exit(99);
  std::ofstream(variable("STANDIN_RECORD") + ".pids", std::ios::app) << process << std::endl;
}

std::string lastWorkTime;

void doLastWork() {
  sleepFor(lastWorkTime);
  std::ofstream(variable("STANDIN_RECORD") + ".last") << "done" << std::endl;
}

void keep(const std::string& file) {
  std::ofstream kept(variable("STANDIN_RECORD") + ".kept", std::ios::app | std::ios::binary);
  std::ifstream content(file, std::ios::binary);
  kept << file << ":" << content.rdbuf() << '\n';
}

/// `what` is a word and, behind a blank, a file.
void await(const std::string& what) {
  const auto blank = what.find(' ');
  for (int tries = 0; tries < 60000; ++tries) {
    std::ostringstream content;
    content << std::ifstream(what.substr(blank + 1), std::ios::binary).rdbuf();
    if (content.str().find(what.substr(0, blank)) != std::string::npos) return;
    sleepFor("10");
  }
}

std::string allArguments;

void play(const std::string& command, const std::string& rest, const char* name) {
  if (command == "out") write(stdout, rest + '\n');
  if (command == "err") write(stderr, rest + '\n');
  if (command == "outraw") writeHex(rest);
  if (command == "flood") flood(std::atol(rest.c_str()));
  if (command == "floodboth") floodBoth(std::atol(rest.c_str()));
  if (command == "name") write(stdout, std::string(name) + '\n');
  if (command == "folder") write(stdout, tarnwick::test::workingFolder() + '\n');
  if (command == "console") write(stdout, tarnwick::test::hasConsoleWindow() ? "a console\n" : "no console\n");
  if (command == "environment") write(stdout, variable(rest.c_str()) + '\n');
  if (command == "keep") keep(rest);
  if (command == "sleep") sleepFor(rest);
  if (command == "await") await(rest);
  if (command == "given" && allArguments.find(rest) == std::string::npos) std::exit(0);
  if (command == "readline") echoLine();
  if (command == "grandchild") startGrandchild(sleepArgument + rest);
  if (command == "murmurer")
    startGrandchild(murmurArgument + rest.substr(0, rest.find(' ')) + ',' + rest.substr(rest.find(' ') + 1));
  if (command == "orphan") startOrphan(rest);
  if (command == "lastwork") {
    lastWorkTime = rest;
    tarnwick::test::onRequestToEnd(doLastWork);
  }
  if (command == "ignoreterm") std::signal(SIGTERM, SIG_IGN);
  if (command == "exit") std::exit(std::atoi(rest.c_str()));
  if (command == "signal") endBy(std::atoi(rest.c_str()));
}

}  // namespace

int main(int argc, char** argv) {
  tarnwick::test::useBinaryStreams();
  const std::string first = argc > 1 ? argv[1] : "";
  if (first.rfind(sleepArgument, 0) == 0) {
    sleepFor(first.substr(sleepArgument.size()));
    return 0;
  }
  if (first.rfind(murmurArgument, 0) == 0) {
    murmur(first.substr(murmurArgument.size()));
    return 0;
  }
  for (int i = 1; i < argc; ++i) allArguments += std::string(argv[i]) + '\n';
  if (const auto path = variable("STANDIN_RECORD"); !path.empty()) {
    std::ofstream record(path, std::ios::app | std::ios::binary);
    record << allArguments;
  }
  std::ifstream script(variable("STANDIN_SCRIPT"));
  for (std::string line; std::getline(script, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const auto blank = line.find(' ');
    play(line.substr(0, blank), blank == std::string::npos ? "" : line.substr(blank + 1), argv[0]);
  }
  return 0;
}
