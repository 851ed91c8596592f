#pragma once

#include <boost/asio/io_context.hpp>

#include "desktop/Phone.h"
#include "settings/Commands.h"
#include "settings/Options.h"

namespace settings {

/// A phone, switched on as the command line says, with the Settings application at the add-on's
/// first page.
class Session {
 public:
  /// Throws `std::runtime_error` with a message for the user.
  Session(const Options& options, boost::asio::io_context& loop);

  desktop::Phone phone;

 private:
  void runCommands(const Options& options);

  Commands commands_;
};

}  // namespace settings
