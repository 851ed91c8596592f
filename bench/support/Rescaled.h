#pragma once

#include <filesystem>

#include "bench/support/Picture.h"
#include "platform/UIKit/UIImage.h"

namespace bench {

/// The picture of that side, opened by the phone that is on; `folder` is its file system.
platform::UIImage openPicture(int side, const std::filesystem::path& folder);

/// The picture as the bundle rescales it, with its pixels made.
Surface rescaled(const platform::UIImage& picture);

}  // namespace bench
