#include "settings/Server.h"

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/write.hpp>
#include <boost/beast/websocket/rfc6455.hpp>
#include <chrono>
#include <list>
#include <malloc.h>
#include <stdexcept>
#include <string>

#include "desktop/Complaint.h"
#include "settings/Client.h"
#include "settings/Site.h"
#include "settings/Touch.h"

namespace settings {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using asio::use_awaitable;
using asio::ip::tcp;

namespace {

constexpr unsigned maximumConnections = 64;
constexpr std::size_t maximumHeader = 8 * 1024;
constexpr auto headerTime = std::chrono::seconds(5);

tcp::acceptor listenOn(asio::io_context& loop, std::uint16_t port) {
  try {
    return {loop, tcp::endpoint(asio::ip::address_v4::loopback(), port)};
  } catch (const boost::system::system_error& failure) {
    throw std::runtime_error("port " + std::to_string(port) +
                             " cannot be used: " + failure.code().message());
  }
}

bool isHandshake(const Access& access, const Request& request) {
  return beast::websocket::is_upgrade(request) && access.path(request) == socketPath;
}

}  // namespace

/// The connections that are open.
struct Server::Connections {
  unsigned count = 0;
  /// Those that have not been let in yet, the oldest first.
  std::list<beast::tcp_stream*> strangers;

  /// Whether there is room for one more. The stranger that has waited longest gives way: whoever
  /// opens connections and says nothing does not shut out the user.
  bool makeRoom() {
    if (count < maximumConnections) return true;
    if (strangers.empty()) return false;
    strangers.front()->close();
    strangers.pop_front();
    return true;
  }
};

/// A connection's place among the others for as long as it lives.
class Server::Place {
 public:
  Place(std::shared_ptr<Connections> all, beast::tcp_stream& stream)
      : all_(std::move(all)), stream_(stream) {
    all_->strangers.push_back(&stream_);
    ++all_->count;
  }
  Place(const Place&) = delete;
  Place& operator=(const Place&) = delete;
  ~Place() {
    letIn();
    --all_->count;
  }

  /// It is a stranger no more.
  void letIn() { all_->strangers.remove(&stream_); }

 private:
  std::shared_ptr<Connections> all_;
  beast::tcp_stream& stream_;
};

Server::Server(asio::io_context& loop, std::uint16_t port, Application application)
    : application_(std::move(application)),
      acceptor_(listenOn(loop, port)),
      access_(acceptor_.local_endpoint().port()),
      connections_(std::make_shared<Connections>()) {
  asio::co_spawn(loop, accept(), asio::detached);
}

Server::~Server() = default;

asio::awaitable<void> Server::accept() {
  for (;;) {
    boost::system::error_code error;
    tcp::socket socket =
        co_await acceptor_.async_accept(asio::redirect_error(use_awaitable, error));
    if (error) {
      // Out of descriptors, most likely: wait for some to come free.
      asio::steady_timer pause(acceptor_.get_executor(), std::chrono::milliseconds(100));
      co_await pause.async_wait(use_awaitable);
      continue;
    }
    if (!connections_->makeRoom()) continue;
    // Otherwise the end of an answer waits until the browser acknowledges its beginning, which it
    // does after 40 milliseconds.
    socket.set_option(tcp::no_delay(true), error);
    try {
      asio::co_spawn(acceptor_.get_executor(), serve(std::move(socket)), asio::detached);
    } catch (const std::bad_alloc&) {
      desktop::complain("a connection is dropped: out of memory");
    }
  }
}

asio::awaitable<void> Server::serve(tcp::socket socket) {
  beast::tcp_stream stream(std::move(socket));
  Place place(connections_, stream);
  beast::flat_buffer buffer;
  try {
    for (bool open = true; open;) {
      stream.expires_after(headerTime);
      http::request_parser<http::empty_body> parser;
      parser.header_limit(maximumHeader);
      co_await http::async_read(stream, buffer, parser, use_awaitable);
      const Request request = parser.release();

      const bool isWelcome = !access_.refusal(request);
      if (isWelcome) place.letIn();
      if (isWelcome && isHandshake(access_, request)) {
        stream.expires_never();
        const auto client = std::make_shared<Client>(std::move(stream));
        co_await converse(client, request);
        co_return;
      }
      const Response response = answer(access_, request, application_.resource);
      co_await http::async_write(stream, response, use_awaitable);
      open = response.keep_alive();
    }
    beast::error_code ignored;
    stream.socket().shutdown(tcp::socket::shutdown_send, ignored);
  } catch (const boost::system::system_error&) {
    // The browser has gone, was too slow, or sent what is no request: the connection is dropped.
  }
}

asio::awaitable<void> Server::converse(std::shared_ptr<Client> client, Request handshake) {
  try {
    clients_.insert(client);
    Moment now(application_.tree);
    client->show(now);
    co_await client->run(std::move(handshake),
                         [&](std::string_view message) { touched(*client, message); });
  } catch (const boost::system::system_error&) {
    // The page was closed.
  } catch (const std::exception& failure) {
    desktop::complain(std::string("a page is dropped: ") + failure.what());
  }
  clients_.erase(client);
  // Nobody looks any more: what showing took goes back to the system (malloc_trim(3)).
  if (clients_.empty()) malloc_trim(0);
}

void Server::touched(Client& client, std::string_view message) {
  Moment now(application_.tree);
  const Client* answered = nullptr;
  try {
    application_.touch(client.viewport, message);
    client.answer(now);
    answered = &client;
  } catch (const RefusedTouch& refused) {
    client.refuse(refused.what());
  }
  refresh(now, answered);
}

void Server::refresh() {
  Moment now(application_.tree);
  refresh(now, nullptr);
}

void Server::refresh(Moment& now, const Client* inStep) {
  for (const auto& each : clients_) {
    if (each.get() == inStep) continue;
    try {
      each->show(now);
    } catch (const std::exception& failure) {
      desktop::complain(std::string("a page is dropped: ") + failure.what());
      each->drop();
    }
  }
}

}  // namespace settings
