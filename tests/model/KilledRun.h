#pragma once

#include <cstddef>
#include <string>

namespace model {

/// What came of random operations on a phone whose program was killed again and again.
struct KilledRun {
  std::size_t operations = 0;
  std::size_t kills = 0;
  std::size_t inTheMiddle = 0;  ///< Of them, those in the middle of an operation or of the start.
  std::size_t halfDone = 0;     ///< Of those, the ones that left some of its steps done.
  std::string failure;          ///< Empty when the phone was as it should be all the time.
};

/// That many random operations, with a kill about every 50 of them and a new start on the same
/// folder after each. The seed tells the operations, and when they are killed.
///
/// What is allowed after a kill: an operation that was done has left all that the model says. One
/// that was being done has left what was there before it or what is there after one of its writes,
/// in their order: each write replaces a file as a whole, and no two files are replaced at once.
/// More than one write takes, for instance, a row's change with changes kept beside the file: they
/// are merged, then forgotten, then the row is stored.
KilledRun runKilled(unsigned seed, std::size_t count);

}  // namespace model
