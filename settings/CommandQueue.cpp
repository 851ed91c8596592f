#include "settings/CommandQueue.h"

#include <boost/asio/error.hpp>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "desktop/Complaint.h"
#include "desktop/MemoryFile.h"

namespace settings {

using desktop::Descriptor;
using desktop::Process;

namespace {

Process processFor(const std::string& command, const CommandQueue::Input& input) {
  const Descriptor text = desktop::memoryFile(input.text);
  Process::Command shell{"/bin/sh", {"-c", command, "sh"}, text.number(), STDERR_FILENO, {}, {}};
  shell.arguments.insert(shell.arguments.end(), input.arguments.begin(), input.arguments.end());
  return Process(shell);
}

}  // namespace

CommandQueue::Current::Current(boost::asio::io_context& loop, Process started)
    : process(std::move(started)), ended(loop, process.pidfd()) {}

CommandQueue::CommandQueue(boost::asio::io_context& loop, std::string command)
    : loop_(loop), command_(std::move(command)) {}

CommandQueue::~CommandQueue() {
  if (!waiting_.empty()) {
    complain("did not get to " + std::to_string(waiting_.size()) +
             " of its runs before the program ended");
  }
}

void CommandQueue::run(const Input& input) {
  if (waiting_.size() == mostWaiting) {
    complain("was not run: " + std::to_string(mostWaiting) + " runs of it wait already");
    return;
  }
  waiting_.push_back(input);
  startNext();
}

void CommandQueue::start(const Input& input) {
  current_.emplace(loop_, processFor(command_, input));
  current_->ended.async_wait(boost::asio::posix::stream_descriptor::wait_read,
                             [this](boost::system::error_code error) {
                               if (error != boost::asio::error::operation_aborted) finish();
                             });
}

void CommandQueue::startNext() {
  // One that cannot be started has ended already.
  while (!current_ && !waiting_.empty()) {
    const Input input = std::move(waiting_.front());
    waiting_.pop_front();
    try {
      start(input);
    } catch (const std::runtime_error& reason) {
      complain(std::string("failed: ") + reason.what());
    }
  }
}

void CommandQueue::finish() {
  const auto status = current_->process.status();
  current_.reset();
  if (status && *status != 0) complain("ended with status " + std::to_string(*status));
  startNext();
}

void CommandQueue::complain(const std::string& reason) const {
  desktop::complain("the command \"" + command_ + "\" " + reason);
}

}  // namespace settings
