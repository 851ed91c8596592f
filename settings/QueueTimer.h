#pragma once

#include <boost/asio/io_context.hpp>
#include <boost/asio/steady_timer.hpp>
#include <functional>
#include <optional>
#include <utility>

#include "desktop/MainQueue.h"

namespace settings {

/// Lets the phone's main queue run on the event loop, which has work as long as something waits.
class QueueTimer {
 public:
  /// `run` lets the queue do what is due. Nothing may wait in the queue yet.
  QueueTimer(boost::asio::io_context& loop, desktop::MainQueue& queue, std::function<void()> run)
      : loop_(loop), queue_(queue), run_(std::move(run)) {
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
    if (!timer_) timer_.emplace(loop_);
    timer_->expires_at(*due);
    timer_->async_wait([this](boost::system::error_code error) {
      if (error) return;
      run_();
      arm();
    });
  }

  boost::asio::io_context& loop_;
  /// Made for what is put off first: the loop asks the system for all that it waits by only then,
  /// and most commands wait for nothing.
  std::optional<boost::asio::steady_timer> timer_;
  desktop::MainQueue& queue_;
  std::function<void()> run_;
};

}  // namespace settings
