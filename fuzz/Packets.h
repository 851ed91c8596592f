#pragma once

#include <algorithm>
#include <boost/asio/buffer.hpp>
#include <boost/asio/error.hpp>
#include <string>
#include <string_view>

namespace fuzz {

/// A connection on which `text` arrives, a new packet after each `mark`, and then the end (a
/// SyncReadStream of Asio's).
class Packets {
 public:
  Packets(std::string text, std::string_view mark) : text_(std::move(text)), mark_(mark) {}

  template <class Buffers>
  std::size_t read_some(const Buffers& buffers, boost::system::error_code& error) {
    while (rest().starts_with(mark_)) at_ += mark_.size();
    if (rest().empty()) {
      error = boost::asio::error::eof;
      return 0;
    }
    error = {};
    const std::string_view packet = rest().substr(0, rest().find(mark_));
    const std::size_t taken = boost::asio::buffer_copy(buffers, boost::asio::buffer(packet));
    at_ += taken;
    return taken;
  }
  template <class Buffers>
  std::size_t read_some(const Buffers& buffers) {
    boost::system::error_code error;
    const std::size_t taken = read_some(buffers, error);
    if (error) throw boost::system::system_error(error);
    return taken;
  }

 private:
  std::string_view rest() const { return std::string_view(text_).substr(at_); }

  const std::string text_;
  const std::string_view mark_;
  std::size_t at_ = 0;
};

}  // namespace fuzz
