#pragma once

#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/model/Screen.h"
#include "tests/support/Driver.h"

namespace model {

/// One thing that the user, time or somebody else does. Its numbers mean what its rule makes of
/// them wherever it comes, so that a list of operations stays one when some are taken out.
struct Operation {
  std::size_t rule;
  unsigned first;
  unsigned second;
};
using Operations = std::vector<Operation>;

/// A phone and what should be seen of it. What the phone keeps in `folder`, `kept` has to tell.
struct World {
  explicit World(const std::filesystem::path& itsFolder, Kept kept = {});

  std::filesystem::path folder;
  support::Driver phone{folder};
  Screen screen;
};

/// What is left to do of an operation once the model has done it.
struct Deed {
  std::string what;  ///< More of it than its rule's name; may be empty.
  std::function<void(support::Driver& phone)> onPhone;
};

/// A kind of operation.
struct Rule {
  const char* name;
  unsigned weight;  ///< How often it comes, compared with the others.
  /// Whether it can be done now; if not, it is passed over.
  bool (*applies)(const Screen& screen);
  /// Does it to the model, and says what to do to the phone.
  Deed (*act)(Screen& screen, unsigned first, unsigned second);
};

std::vector<Rule> pageRules();
std::vector<Rule> listRules();
std::vector<Rule> rootRules();
std::vector<Rule> outsideRules();

/// All rules; an operation's number counts among them.
const std::vector<Rule>& rules();

/// An operation that applies now.
Operation randomOperation(const Screen& screen, std::mt19937& random);

/// Where the phone is not as it should be; empty when it is. `step` picks the key that the
/// preferences service is asked for.
std::string difference(World& world, std::size_t step);

}  // namespace model
