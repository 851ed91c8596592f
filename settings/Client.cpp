#include "settings/Client.h"

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core/flat_buffer.hpp>

namespace settings {

namespace asio = boost::asio;
namespace beast = boost::beast;
using asio::use_awaitable;

namespace {

/// The longest message that a page may send, in bytes.
constexpr std::size_t maximumMessage = 64 * 1024;

/// How many bytes wait at most for a page that does not read; then it is dropped, and gets the
/// whole screen when it comes back. One message may be longer.
constexpr std::size_t maximumQueue = 256 * 1024;

}  // namespace

asio::awaitable<void> Client::run(Request handshake,
                                  std::function<void(std::string_view)> onMessage) {
  socket_.read_message_max(maximumMessage);
  socket_.set_option(beast::websocket::stream_base::timeout::suggested(beast::role_type::server));
  co_await socket_.async_accept(handshake, use_awaitable);
  socket_.text(true);
  socket_.auto_fragment(false);
  if (!outgoing_.empty()) startWriting();
  for (beast::flat_buffer buffer;; buffer.clear()) {
    co_await socket_.async_read(buffer, use_awaitable);
    onMessage({static_cast<const char*>(buffer.data().data()), buffer.size()});
  }
}

void Client::show(Moment& moment) {
  const Shown now = moment.shown(viewport);
  if (Message change = moment.change(shown_, now)) send(std::move(change));
  shown_ = now;
}

void Client::answer(Moment& moment) {
  const Shown now = moment.shown(viewport);
  Message change = moment.change(shown_, now);
  send(change ? std::move(change) : message(updateMessage({}, {})));
  shown_ = now;
}

void Client::refuse(const std::string& reason) { send(message(refusedMessage(reason))); }

void Client::drop() { beast::get_lowest_layer(socket_).close(); }

void Client::send(Message message) {
  if (!outgoing_.empty() && waiting_ + message->size() > maximumQueue) {
    return drop();
  }
  waiting_ += message->size();
  outgoing_.push_back(std::move(message));
  // What is sent before the handshake is done waits for it.
  if (outgoing_.size() == 1 && socket_.is_open()) startWriting();
}

void Client::startWriting() {
  asio::co_spawn(socket_.get_executor(), write(shared_from_this()), asio::detached);
}

asio::awaitable<void> Client::write(std::shared_ptr<Client> self) {
  try {
    for (auto& outgoing = self->outgoing_; !outgoing.empty(); outgoing.pop_front()) {
      co_await self->socket_.async_write(asio::buffer(*outgoing.front()), use_awaitable);
      self->waiting_ -= outgoing.front()->size();
    }
  } catch (const boost::system::system_error&) {
    // The page has gone; reading ends as well, and with it the client.
  }
}

}  // namespace settings
