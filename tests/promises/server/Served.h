#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
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

/// A page that has the whole screen; it leads to the Clock page, whose rows are named below.
WebSocket openClockPage(const program_tests::Pass& pass);

inline const nlohmann::json openClock{{"kind", "tap"}, {"id", "page1.group0.row1"}};

/// The number that the preferences hold; none when there is no such key.
std::optional<double> numberIn(const std::filesystem::path& preferences, const char* key);

/// The program, and what it takes of the machine.
class Served : public program_tests::RunningProgram {
 protected:
  /// A page that has the whole screen.
  WebSocket page() const;
  WebSocket clockPage() const { return openClockPage(pass); }

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
