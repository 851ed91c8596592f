#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "tests/promises/server/Times.h"
#include "tests/support/program/Connection.h"

namespace promises {

/// Connections that take the server's time and give nothing for it, always as many: one that the
/// server drops comes again, a moment later.
class SlowCrowd {
 public:
  /// What such a connection sends at once, and then a byte a second of.
  struct Kind {
    std::string first;
    std::string slowly;
  };

  /// As many connections in turn of each kind, none of which reads anything.
  SlowCrowd(std::uint16_t port, std::vector<Kind> kinds, std::size_t size);
  SlowCrowd(const SlowCrowd&) = delete;
  SlowCrowd& operator=(const SlowCrowd&) = delete;
  ~SlowCrowd();

  /// How many have come so far, those that came again among them.
  std::size_t come() const { return come_; }

 private:
  struct Member {
    const Kind* kind;
    program_tests::Connection connection;
    std::size_t dripped = 0;
    Clock::time_point next = Clock::now() + std::chrono::seconds(1);
  };
  Member made(const Kind& kind);
  void drip(Member& member) const;
  void run(const std::stop_token& stop);

  const std::uint16_t port_;
  const std::vector<Kind> kinds_;
  std::vector<Member> members_;
  std::atomic<std::size_t> come_ = 0;
  std::jthread thread_;
};

}  // namespace promises
