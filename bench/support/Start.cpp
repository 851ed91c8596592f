#include "bench/support/Start.h"

#include <memory>

#include "bench/support/Server.h"

namespace bench {

Trial startOf(std::vector<std::string> command) {
  const auto running = std::make_shared<std::unique_ptr<Server>>();
  return {[running] { running->reset(); },
          [running, command] { *running = std::make_unique<Server>(command); }};
}

}  // namespace bench
