#pragma once

#include "platform/Foundation/NSURL.h"

namespace platform {

/// Restarts the process that owns the screen.
class HBRespringController {
 public:
  /// Restarts it, which ends this application as well, and then opens `url`, a page of the
  /// Settings application.
  static void respringAndReturnTo(const NSURL& url);
};

}  // namespace platform
