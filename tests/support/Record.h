#pragma once

#include <string>
#include <vector>

namespace support {

/// Keeps journal lines under the name of the running test, for comparing what the same scenario
/// asked of another implementation of the platform: appended to a file in the folder that the
/// environment's QUILLMERE_JOURNALS names. Without it nothing is kept.
void record(const std::vector<std::string>& lines);

}  // namespace support
