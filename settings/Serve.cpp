#include "settings/Serve.h"

#include <boost/asio/signal_set.hpp>
#include <csignal>
#include <iostream>

#include "settings/Browser.h"
#include "settings/Pictures.h"
#include "settings/QueueTimer.h"
#include "settings/Screen.h"
#include "settings/Server.h"
#include "settings/Session.h"
#include "settings/Touch.h"

namespace settings {

namespace {

/// Carries out a touch while no other program changes anything.
void touchAlone(Session& session, Viewport& viewport, std::string_view message) {
  try {
    const desktop::Descriptor held = session.alone();
    touch(session.phone.springBoard, viewport, message);
  } catch (const Busy& reason) {
    throw RefusedTouch(reason.what());
  }
}

}  // namespace

void serve(const Options& options) {
  boost::asio::io_context loop(1);
  Session session(options, loop);
  desktop::SpringBoard& board = session.phone.springBoard;
  const Screen screen(board);
  Pictures pictures;

  Server server(loop, options.port,
                {[&](const Viewport& viewport) { return screen.tree(viewport, pictures); },
                 [&](Viewport& viewport, std::string_view message) {
                   touchAlone(session, viewport, message);
                 },
                 [&](std::string_view address) { return screen.file(address, pictures); }});
  const QueueTimer timer(loop, session.phone.mainQueue, [&] {
    session.runQueue();
    server.refresh();
  });

  boost::asio::signal_set signals(loop, SIGINT, SIGTERM);
  signals.async_wait([&](auto, auto) { loop.stop(); });
  std::cout << "Quillmere Settings: " << server.address() << std::endl;
  if (options.open && hasDisplay()) openBrowser(server.address());
  loop.run();
}

}  // namespace settings
