#include "settings/Commands.h"

#include <boost/asio/posix/stream_descriptor.hpp>
#include <cerrno>
#include <iostream>
#include <memory>
#include <sys/mman.h>
#include <system_error>
#include <unistd.h>

#include "desktop/Process.h"

namespace settings {

using desktop::Descriptor;
using desktop::Process;

namespace {

void complain(const std::string& command, const std::string& reason) {
  std::cerr << "quillmere-settings: the command \"" << command << "\" " << reason << std::endl;
}

std::system_error failure(const char* what) { return {errno, std::generic_category(), what}; }

/// A file without a name that holds `text`, to be read from its beginning.
Descriptor fileWith(std::string_view text) {
  Descriptor file(memfd_create("input", MFD_CLOEXEC));
  if (file.number() < 0) throw failure("memfd_create");
  while (!text.empty()) {
    const ssize_t written = ::write(file.number(), text.data(), text.size());
    if (written < 0) throw failure("write");
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  if (lseek(file.number(), 0, SEEK_SET) != 0) throw failure("lseek");
  return file;
}

Process start(const std::string& command, const Commands::Input& input) {
  const Descriptor text = fileWith(input.text);
  Process::Command shell{"/bin/sh", {"-c", command, "sh"}, text.number(), STDERR_FILENO, {}, {}};
  shell.arguments.insert(shell.arguments.end(), input.arguments.begin(), input.arguments.end());
  return Process(shell);
}

}  // namespace

void Commands::run(const std::string& command, const Input& input) {
  if (command.empty()) return;
  try {
    const auto process = std::make_shared<Process>(start(command, input));
    // The descriptor belongs to the process, so the watch on it gets one of its own.
    const auto ended =
        std::make_shared<boost::asio::posix::stream_descriptor>(loop_, dup(process->pidfd()));
    ended->async_wait(boost::asio::posix::stream_descriptor::wait_read,
                      [process, ended, command](boost::system::error_code error) {
                        if (error) return;
                        const int status = process->wait();
                        if (status != 0) {
                          complain(command, "ended with status " + std::to_string(status));
                        }
                      });
  } catch (const std::system_error& reason) {
    complain(command, std::string("cannot be run: ") + reason.what());
  }
}

}  // namespace settings
