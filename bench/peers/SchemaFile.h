#pragma once

#include <cstddef>
#include <filesystem>

namespace bench {

/// What GSettings' schema of the settings and their place are called.
inline constexpr const char* schemaName = "bench.settings";
inline constexpr const char* schemaPath = "/bench/settings/";

/// Writes and compiles a schema of `count` settings (`forEachSetting`) in the folder. Throws
/// `Unavailable` without `glib-compile-schemas`.
void writeSchema(std::size_t count, const std::filesystem::path& folder);

}  // namespace bench
