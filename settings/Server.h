#pragma once

#include <boost/asio/awaitable.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string_view>

#include "settings/Access.h"
#include "settings/Http.h"
#include "settings/Moment.h"
#include "settings/Resource.h"
#include "settings/Viewport.h"

namespace settings {

class Client;

/// The local server: it serves the page, and keeps every open page in step with the screen.
class Server {
 public:
  /// What the server needs to know of the application.
  struct Application {
    /// What the screen shows now to a page with that in view.
    std::function<Tree(const Viewport&)> tree;
    /// Carries out a touch of the page that has that in view. Throws `RefusedTouch`.
    std::function<void(Viewport&, std::string_view message)> touch;
    /// A file that the screen offers at that address; none when there is none.
    std::function<std::optional<Resource>(std::string_view address)> resource;
  };

  /// Listens on the loopback address only; port 0 takes a free one. Throws `std::runtime_error`
  /// with a message for the user.
  Server(boost::asio::io_context& loop, std::uint16_t port, Application application);
  ~Server();

  /// Brings every open page to what the screen shows now.
  void refresh();

  /// The address to open in a browser.
  std::string address() const { return access_.address(); }

 private:
  boost::asio::awaitable<void> accept();
  boost::asio::awaitable<void> serve(boost::asio::ip::tcp::socket socket);
  boost::asio::awaitable<void> converse(std::shared_ptr<Client> client, Request handshake);
  void touched(Client& client, std::string_view message);
  void refresh(Moment& now, const Client* inStep);

  struct Connections;
  class Place;

  Application application_;
  boost::asio::ip::tcp::acceptor acceptor_;
  Access access_;
  std::set<std::shared_ptr<Client>> clients_;
  /// Shared with the connections, since they may outlive the server.
  std::shared_ptr<Connections> connections_;
};

}  // namespace settings
