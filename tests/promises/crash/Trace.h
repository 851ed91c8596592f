#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "tests/promises/crash/Fault.h"

namespace crash_tests {

/// A system call's number, as in <asm/unistd.h>.
using SystemCall = long;

/// How a run of the program went.
struct Run {
  int exitCode = 0;               ///< 128 and the signal's number when a signal ended it.
  std::vector<SystemCall> calls;  ///< In order, up to the fault.
  std::string said;               ///< On both streams, as far as nobody read it meanwhile.

  /// The name of the call that was struck, if one was.
  std::string lastCall() const;
};

/// The program, and what it finds in its environment.
struct Executable {
  const char* file = QUILLMERE_PROGRAM;
  std::vector<std::string> environment{};  ///< NAME=VALUE, besides what there is.
};

/// How the program is started.
struct Command {
  std::vector<std::string> arguments;
  Executable executable{};
  /// Called in a thread of its own while the program runs, with a descriptor that gives what it
  /// says. The program is killed when this returns. With none, the program runs to its end.
  std::function<void(int output)> meanwhile{};
};

/// No call of a run.
constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

/// Runs the program, with the fault at its nth system call (from 0). Calls before its main
/// count too, those of other processes do not. A program that takes longer than 10 seconds is ended
/// by SIGALRM.
Run run(const Command& command, const Fault& fault = noFault, std::size_t nth = 0);

/// Runs the program without a fault, and tells all its calls.
Run record(const Command& command);

}  // namespace crash_tests
