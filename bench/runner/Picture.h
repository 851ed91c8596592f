#pragma once

#include <filesystem>
#include <span>

#include "bench/runner/Result.h"

namespace bench {

/// Draws how time grows with size, as an SVG file: a panel for each race that was run over several
/// sizes, with both axes logarithmic and a line for each contestant. Throws `std::runtime_error`
/// when the file cannot be written.
void draw(std::span<const Result> results, const std::filesystem::path& file);

}  // namespace bench
