#pragma once

#include <vector>

#include "bench/support/Picture.h"

namespace bench {

/// To be called before anything else of libvips; `program` is its path. Throws
/// `std::runtime_error`.
void startVips(const char* program);

/// The pixels of the picture scaled to `scaledSide`, four bytes each in the order of the surface's,
/// by Lanczos' filter of three lobes. Throws `std::runtime_error`.
std::vector<unsigned char> rescaleByVips(cairo_surface_t& picture);

}  // namespace bench
