#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "desktop/Phone.h"
#include "platform/UIKit/UIImage.h"
#include "settings/Resource.h"

namespace settings {

/// The pictures that were on the screen of late, as files for the browser.
class Pictures {
 public:
  /// How many are kept; more than a page and its successor show.
  static constexpr std::size_t maximum = 16;

  /// Where the browser finds the picture: "pictures/12.png".
  std::string address(const platform::UIImage& image);

  /// The PNG file at such an address; none when there is none.
  std::optional<Resource> file(std::string_view address) const;

 private:
  /// The one that was shown last stands last.
  std::deque<platform::UIImage> shown_;
};

/// The picture file of the bundle at an address such as "bundle/Face.png"; none for anything else.
std::optional<Resource> bundlePicture(const desktop::Phone& phone, std::string_view address);

}  // namespace settings
