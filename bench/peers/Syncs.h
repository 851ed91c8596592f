#pragma once

#include <cstddef>
#include <filesystem>

#include "bench/support/Contestant.h"

namespace bench {

/// From now on this program's `fsync` and `fdatasync`, those of its libraries included, succeed
/// without doing anything.
void ignoreSyncs();

/// A case's `prepare` without any waiting for the disk: what the library itself takes.
template <Trial (*prepare)(std::size_t, const std::filesystem::path&)>
Trial unsynced(std::size_t size, const std::filesystem::path& folder) {
  ignoreSyncs();
  return prepare(size, folder);
}

}  // namespace bench
