// The smallest server with a page that shows what it counts: `minimal FILE PAGE...` prints its
// address, serves the pages by their names, and counts what comes over each WebSocket. A count is
// durable as a setting is: FILE is replaced by its own bytes, synced, before it is told. Below
// "/apart" the same pages ask the browser for a process of their own, as a page must that shares
// its host with other servers.
#include <array>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using asio::use_awaitable;
using asio::ip::tcp;

std::string contents(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

int check(int result) {
  if (result < 0) throw std::system_error(errno, std::generic_category());
  return result;
}

void sync(const std::filesystem::path& path) {
  const int opened = check(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  check(fsync(opened));
  check(close(opened));
}

/// A file that is replaced by its own bytes.
class Store {
 public:
  explicit Store(std::filesystem::path file) : file_(std::move(file)), bytes_(contents(file_)) {}

  void replace() const {
    const std::filesystem::path aside = file_.native() + ".aside";
    std::ofstream(aside, std::ios::binary) << bytes_;
    sync(aside);
    std::filesystem::rename(aside, file_);
    sync(file_.parent_path());
  }

 private:
  std::filesystem::path file_;
  std::string bytes_;
};

/// The pages by their addresses: "/" and the file's name.
using Pages = std::map<std::string, std::string>;

http::response<http::string_body> answer(const Pages& pages,
                                         const http::request<http::empty_body>& request) {
  constexpr std::string_view apart = "/apart";
  std::string_view target(request.target().data(), request.target().size());
  const bool isApart = target.starts_with(apart);
  if (isApart) target.remove_prefix(apart.size());
  const auto page = pages.find(std::string(target));
  const bool isThere = page != pages.end();
  http::response<http::string_body> response(isThere ? http::status::ok : http::status::not_found,
                                             request.version());
  response.set(http::field::content_type, "text/html; charset=utf-8");
  response.set(http::field::cache_control, "no-store");
  if (isApart) response.set("Cross-Origin-Opener-Policy", "same-origin");
  response.keep_alive(request.keep_alive());
  if (isThere) response.body() = page->second;
  response.prepare_payload();
  return response;
}

asio::awaitable<void> count(beast::websocket::stream<beast::tcp_stream> socket,
                            http::request<http::empty_body> handshake, const Store& store) {
  co_await socket.async_accept(handshake, use_awaitable);
  beast::flat_buffer buffer;
  for (long counted = 0;; ++counted, store.replace()) {
    co_await socket.async_write(asio::buffer(std::to_string(counted)), use_awaitable);
    co_await socket.async_read(buffer, use_awaitable);
    buffer.clear();
  }
}

asio::awaitable<void> serve(beast::tcp_stream stream, const Pages& pages, const Store& store) {
  beast::flat_buffer buffer;
  try {
    for (;;) {
      http::request<http::empty_body> request;
      co_await http::async_read(stream, buffer, request, use_awaitable);
      if (beast::websocket::is_upgrade(request)) {
        co_await count(beast::websocket::stream<beast::tcp_stream>(std::move(stream)),
                       std::move(request), store);
        co_return;
      }
      const auto response = answer(pages, request);
      co_await http::async_write(stream, response, use_awaitable);
    }
  } catch (const boost::system::system_error&) {
    // The browser has gone.
  }
}

asio::awaitable<void> accept(tcp::acceptor& acceptor, const Pages& pages, const Store& store) {
  for (;;) {
    tcp::socket socket = co_await acceptor.async_accept(use_awaitable);
    socket.set_option(tcp::no_delay(true));
    asio::co_spawn(acceptor.get_executor(),
                   serve(beast::tcp_stream(std::move(socket)), pages, store), asio::detached);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: minimal FILE PAGE...\n";
    return 2;
  }
  const Store store(argv[1]);
  Pages pages;
  for (int i = 2; i < argc; ++i) {
    const std::filesystem::path page(argv[i]);
    pages["/" + page.stem().string()] = contents(page);
  }
  asio::io_context loop(1);
  tcp::acceptor acceptor(loop, tcp::endpoint(asio::ip::address_v4::loopback(), 0));
  std::cout << "http://127.0.0.1:" << acceptor.local_endpoint().port() << std::endl;
  asio::co_spawn(loop, accept(acceptor, pages, store), asio::detached);
  loop.run();
}
