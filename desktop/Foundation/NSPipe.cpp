#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

#include "desktop/Foundation/PipeBody.h"
#include "desktop/Foundation/ValueBody.h"
#include "desktop/Message.h"
#include "platform/Foundation/NSTask.h"

namespace desktop {

PipeBody::PipeBody() {
  std::array<int, 2> ends;
  if (pipe2(ends.data(), O_CLOEXEC) < 0) {
    throw std::system_error(errno, std::generic_category(), "pipe");
  }
  reading_ = Descriptor(ends[0]);
  writing_ = Descriptor(ends[1]);
}

namespace {

/// Lets Ctrl-C and SIGTERM end the program at once for as long as it lives: while the only thread
/// waits here, nobody else hears of them.
class EndedBySignals {
 public:
  EndedBySignals() {
    struct sigaction ends {};
    ends.sa_handler = SIG_DFL;
    for (std::size_t i = 0; i < signals.size(); ++i) sigaction(signals[i], &ends, &before_[i]);
  }
  EndedBySignals(const EndedBySignals&) = delete;
  EndedBySignals& operator=(const EndedBySignals&) = delete;
  ~EndedBySignals() {
    for (std::size_t i = 0; i < signals.size(); ++i) sigaction(signals[i], &before_[i], nullptr);
  }

 private:
  static constexpr std::array signals{SIGINT, SIGTERM};
  std::array<struct sigaction, signals.size()> before_;
};

}  // namespace

std::string PipeBody::readToEnd() {
  const EndedBySignals endedBySignals;
  leaveWriting();
  std::string bytes;
  std::array<char, 1 << 16> piece;
  for (;;) {
    const ssize_t got = ::read(reading_.number(), piece.data(), piece.size());
    if (got == 0) return bytes;
    if (got > 0) {
      bytes.append(piece.data(), static_cast<std::size_t>(got));
    } else if (errno != EINTR) {
      throw std::system_error(errno, std::generic_category(), "pipe");
    }
  }
}

}  // namespace desktop

namespace platform {

using desktop::PipeBody;
using desktop::send;

namespace {

class FileHandleBody : public desktop::Body {
 public:
  explicit FileHandleBody(const NSPipe& whole) : pipe(whole) {}
  std::string_view className() const override { return "NSFileHandle"; }

  const NSPipe pipe;
};

}  // namespace

NSPipe NSPipe::pipe() {
  return desktop::sendClass("NSPipe", "pipe", {}, [] { return desktop::make<NSPipe, PipeBody>(); });
}

NSFileHandle NSPipe::fileHandleForReading() const {
  return send<PipeBody>(*this, "fileHandleForReading", {}, [&](PipeBody&) {
    return desktop::make<NSFileHandle, FileHandleBody>(*this);
  });
}

NSData NSFileHandle::readDataToEndOfFile() const {
  return send<FileHandleBody>(*this, "readDataToEndOfFile", {}, [](FileHandleBody& self) {
    const std::string bytes = desktop::bodyAs<PipeBody>(self.pipe)->readToEnd();
    return desktop::make<NSData, desktop::ValueBody>(plist::Value::data(bytes));
  });
}

}  // namespace platform
