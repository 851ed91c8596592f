#include "settings/Serve.h"

#include <boost/asio/signal_set.hpp>
#include <csignal>
#include <iostream>

#include "settings/Browser.h"
#include "settings/Overlay.h"
#include "settings/Pictures.h"
#include "settings/QueueTimer.h"
#include "settings/Screen.h"
#include "settings/Server.h"
#include "settings/Session.h"
#include "settings/Touch.h"

namespace settings {

namespace {

/// The picture file of the bundle at an address such as "/bundle/Face.png"; none for anything else.
std::optional<Resource> bundlePicture(const desktop::Phone& phone, std::string_view address) {
  constexpr std::string_view prefix = "/bundle/";
  if (!address.starts_with(prefix) || !address.ends_with(".png")) return std::nullopt;
  const std::string_view name = address.substr(prefix.size());
  if (name.find('/') != std::string_view::npos) return std::nullopt;
  try {
    auto bytes = phone.folder.read(phone.bundle + '/' + std::string(name));
    if (bytes) return Resource{"image/png", *std::move(bytes)};
  } catch (const std::system_error&) {
    // What cannot be read is not offered.
  }
  return std::nullopt;
}

}  // namespace

void serve(const Options& options) {
  boost::asio::io_context loop(1);
  Session session(options, loop);
  desktop::SpringBoard& board = session.phone.springBoard;
  const Screen screen(board);
  Pictures pictures;

  const auto resource = [&](std::string_view address) -> std::optional<Resource> {
    if (const std::string* file = pictures.file(address)) return Resource{"image/png", *file};
    if (auto* pages = board.navigation()) {
      if (auto file = attachment(*pages, address)) return file;
    }
    return bundlePicture(session.phone, address);
  };
  Server server(
      loop, options.port,
      {[&](const Viewport& viewport) { return screen.tree(viewport, pictures); },
       [&](Viewport& viewport, std::string_view message) { touch(board, viewport, message); },
       resource});
  const QueueTimer timer(loop, session.phone.mainQueue, [&] { server.refresh(); });

  boost::asio::signal_set signals(loop, SIGINT, SIGTERM);
  signals.async_wait([&](auto, auto) { loop.stop(); });
  std::cout << "Quillmere Settings: " << server.address() << std::endl;
  if (options.open && hasDisplay()) openBrowser(server.address());
  loop.run();
}

}  // namespace settings
