#include "tests/device/macho/Command.h"

#include <array>
#include <cstdio>
#include <iterator>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "desktop/Process.h"

namespace phone_tests {

namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

std::string readAll(std::FILE* file) {
  std::rewind(file);
  std::string text;
  std::array<char, 65536> bytes;
  while (const std::size_t got = std::fread(bytes.data(), 1, bytes.size(), file)) {
    text.append(bytes.data(), got);
  }
  return text;
}

}  // namespace

std::string output(const std::vector<std::string>& command) {
  // A file takes any amount, so the command never waits for its reader.
  const File file(std::tmpfile(), std::fclose);
  if (!file) throw std::runtime_error("no temporary file can be made");
  desktop::Process process({.program = "/usr/bin/env",  // finds the program by its name
                            .arguments = command,
                            .input = {},
                            .output = fileno(file.get()),
                            .inherited = {},
                            .environment = {"LC_ALL=C"}});
  if (const int status = process.wait(); status != 0) {
    throw std::runtime_error(command.front() + " ended with " + std::to_string(status) + ": " +
                             readAll(file.get()));
  }
  return readAll(file.get());
}

std::vector<std::string> linesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> wordsOf(const std::string& line) {
  std::istringstream stream(line);
  return {std::istream_iterator<std::string>(stream), {}};
}

}  // namespace phone_tests
