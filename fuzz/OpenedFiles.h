#pragma once

#include <filesystem>

#include "desktop/Descriptor.h"

namespace fuzz {

/// Whether anything in a folder is opened from now on (inotify(7)); to list the folder opens none
/// of its entries.
class OpenedFiles {
 public:
  explicit OpenedFiles(const std::filesystem::path& folder);

  bool any();

 private:
  desktop::Descriptor events_;
};

}  // namespace fuzz
