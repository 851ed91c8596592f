#pragma once

#include <cairo.h>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>

namespace bench {

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

/// What pictures are scaled to: 120 points of three pixels each.
inline constexpr int points = 120;
inline constexpr int pixelsToAPoint = 3;
inline constexpr int scaledSide = points * pixelsToAPoint;

/// A surface of premultiplied ARGB. Throws `std::runtime_error` when it cannot be made.
Surface makeSurface(int side);

/// A picture as people have them: smooth shades, round edges, bars, and a transparent corner.
Surface drawPicture(int side);

/// The same in a PNG file.
void writePicture(int side, const std::filesystem::path& file);

}  // namespace bench
