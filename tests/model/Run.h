#pragma once

#include <functional>
#include <optional>

#include "tests/model/Operation.h"

namespace model {

/// What came of a list of operations on a new phone.
struct Run {
  Operations operations;  ///< Those that were done, up to the one that failed.
  Names trace;            ///< What each of them did.
  std::string failure;    ///< Empty when the phone was as it should be all the time.
};

/// Does an operation, tells that it is done, and notes what came of it.
void step(
    World& world, const Operation& operation, Run& run, const std::function<void()>& done = [] {});

/// That many random operations.
Run runRandom(unsigned seed, std::size_t count);

/// The operations in their order, without those that do not apply.
Run replay(const Operations& operations);

/// The shortest list found with which the run still fails, by leaving out ever smaller parts.
Operations shrink(Operations operations, const std::function<bool(const Operations&)>& fails);

}  // namespace model
