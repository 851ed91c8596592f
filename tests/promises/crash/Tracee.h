#pragma once

#include <optional>
#include <sys/types.h>
#include <sys/user.h>

#include "tests/promises/crash/Fault.h"
#include "tests/promises/crash/Trace.h"

namespace crash_tests {

/// A child that asked to be traced and then became the program. It stops at the beginning and at
/// the end of each of its system calls. Only the thread that forked it may use this.
class Tracee {
 public:
  /// Waits until it is the program.
  explicit Tracee(pid_t process);

  bool isOver() const;
  /// 128 and the signal's number when a signal ended it.
  int exitCode() const;

  /// Goes on to the next stop at a call, or to its end.
  void goOn();
  /// Is traced no longer, and runs to its end.
  void leave();

  /// The call that begins here; none where one ends.
  std::optional<SystemCall> beginning() const;

  /// Does to the call that begins here what the fault says; goes on to its end, or the program's.
  void strike(const Fault& fault);

 private:
  void wait();
  void kill();
  void refuse(int error);
  void halve();
  user_regs_struct registers() const;
  void set(const user_regs_struct& registers) const;

  pid_t process_;
  int status_ = 0;
};

}  // namespace crash_tests
