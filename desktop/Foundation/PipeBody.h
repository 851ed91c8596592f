#pragma once

#include <string>

#include "desktop/Body.h"
#include "desktop/Descriptor.h"

namespace desktop {

/// A pipe (pipe(7)) whose writing end goes to another program.
class PipeBody : public Body {
 public:
  /// Throws `std::system_error` when no more files can be open.
  PipeBody();

  std::string_view className() const override { return "NSPipe"; }

  /// All that comes until nobody can write any more. Throws `std::system_error`.
  std::string readToEnd();

  /// Closes this program's own writing end, which would keep the pipe from ending.
  void leaveWriting() { writing_ = Descriptor(-1); }

  int writing() const { return writing_.number(); }

 private:
  Descriptor reading_{-1};
  Descriptor writing_{-1};
};

}  // namespace desktop
