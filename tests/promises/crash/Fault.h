#pragma once

#include <cerrno>
#include <ostream>

namespace crash_tests {

/// What happens to the program at one system call, or at one allocation.
enum class Blow {
  None,
  KilledBefore,  ///< SIGKILL, and the call is not carried out.
  KilledAfter,   ///< SIGKILL once the call is carried out, before the program goes on.
  Refused,       ///< The call is not carried out and gives an error.
  Halved,        ///< A write of more than one byte writes the first half, and says so.
  NoMemory,      ///< An allocation gives null.
};

struct Fault {
  const char* name;
  Blow blow;
  int error = 0;  ///< Of a call that is refused; from <cerrno>.
};

/// For what tests print of their parameters.
inline std::ostream& operator<<(std::ostream& stream, const Fault& fault) {
  return stream << fault.name;
}

constexpr Fault noFault{"none", Blow::None};

/// At the system calls of a change.
constexpr Fault callFaults[] = {
    {"KilledBefore", Blow::KilledBefore}, {"KilledAfter", Blow::KilledAfter},
    {"EIO", Blow::Refused, EIO},          {"ENOSPC", Blow::Refused, ENOSPC},
    {"EMFILE", Blow::Refused, EMFILE},    {"EINTR", Blow::Refused, EINTR},
    {"EROFS", Blow::Refused, EROFS},      {"EACCES", Blow::Refused, EACCES},
    {"ShortWrite", Blow::Halved},
};

}  // namespace crash_tests
