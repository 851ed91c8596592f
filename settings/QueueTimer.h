#pragma once

#include <boost/asio/io_context.hpp>
#include <boost/asio/steady_timer.hpp>
#include <functional>
#include <utility>

#include "desktop/MainQueue.h"

namespace settings {

/// Lets the phone's main queue run on the event loop, which has work as long as something waits.
class QueueTimer {
 public:
  /// `ran` is told whenever the queue has run. Nothing may wait in the queue yet.
  QueueTimer(
      boost::asio::io_context& loop, desktop::MainQueue& queue, std::function<void()> ran = [] {})
      : timer_(loop), queue_(queue), ran_(std::move(ran)) {
    queue_.added = [this] { arm(); };
  }
  QueueTimer(const QueueTimer&) = delete;
  QueueTimer& operator=(const QueueTimer&) = delete;
  ~QueueTimer() { queue_.added = nullptr; }

 private:
  /// Waits for what is due next.
  void arm() {
    const auto due = queue_.due();
    if (!due) return;
    timer_.expires_at(*due);
    timer_.async_wait([this](boost::system::error_code error) {
      if (error) return;
      queue_.run();
      ran_();
      arm();
    });
  }

  boost::asio::steady_timer timer_;
  desktop::MainQueue& queue_;
  std::function<void()> ran_;
};

}  // namespace settings
