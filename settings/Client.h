#pragma once

#include <boost/asio/awaitable.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/websocket/stream.hpp>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "settings/Http.h"
#include "settings/Moment.h"
#include "settings/Viewport.h"

namespace settings {

/// One open page, at the other end of a WebSocket.
class Client : public std::enable_shared_from_this<Client> {
 public:
  explicit Client(boost::beast::tcp_stream stream) : socket_(std::move(stream)) {}

  /// Accepts the handshake, then hands on each message until the page goes away.
  boost::asio::awaitable<void> run(Request handshake,
                                   std::function<void(std::string_view)> onMessage);

  /// Brings the page to that moment: whole at first, then by what has changed, if anything has.
  void show(Moment& moment);

  /// As `show`, in answer to a touch: also when nothing has changed, so that the page stops
  /// showing what the finger did and shows the tree.
  void answer(Moment& moment);

  /// Closes the connection; the page comes back by itself and gets the whole screen.
  void drop();

  /// What the page has in view.
  Viewport viewport;

  /// Tells the page that its last touch was refused, and why.
  void refuse(const std::string& reason);

 private:
  void send(Message message);
  void startWriting();
  static boost::asio::awaitable<void> write(std::shared_ptr<Client> self);

  boost::beast::websocket::stream<boost::beast::tcp_stream> socket_;
  Shown shown_;
  std::deque<Message> outgoing_;
  /// The bytes in it.
  std::size_t waiting_ = 0;
};

}  // namespace settings
