#pragma once

#include <cstddef>
#include <string>

#include "tests/support/program/RunningProgram.h"
#include "tests/support/program/WebSocket.h"

namespace promises {

using program_tests::Opcode;
using program_tests::WebSocket;

/// What a process takes of the machine.
struct Use {
  std::size_t memory;       ///< Resident, in KiB (VmRSS of proc(5)).
  std::size_t descriptors;  ///< Open files, sockets among them.
};

/// The program, and what it takes of the machine.
class Served : public program_tests::RunningProgram {
 protected:
  /// A page that has the whole screen.
  WebSocket page() const;
  /// As `page`, and leads to the Clock page, whose rows are named below.
  WebSocket clockPage() const;
  const nlohmann::json openClock{{"kind", "tap"}, {"id", "page1.group0.row1"}};

  Use use() const;
  /// Waits, 10 seconds at most, until the program has no more than that many files open; how many
  /// it has.
  std::size_t descriptorsDownTo(std::size_t count) const;
};

/// @name Rows of the Clock page that is opened first
/// @{
inline constexpr const char* loopRow = "page2.group1.row0";
inline constexpr const char* sizeRow = "page2.group2.row0";
inline constexpr const char* alignmentRow = "page2.group3.row0";
/// @}

/// A touch that slides a row, and what is in the answer once it is done.
std::string slide(const std::string& row, int value);
std::string shownValue(int value);

/// "12,000 KiB, grown by 1.5 %, 9 descriptors" and, if they are others, "of 8".
std::string growth(const Use& before, const Use& after);

/// By how much of it the memory has grown, in percent.
double grownPercent(const Use& before, const Use& after);

}  // namespace promises
