#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/UIKit/UIImage.h"

namespace settings {

/// The pictures that were on the screen of late, as files for the browser.
class Pictures {
 public:
  /// Where the browser finds the picture: "/pictures/12.png".
  std::string address(const platform::UIImage& image);

  /// The PNG file at such an address; null when there is none.
  const std::string* file(std::string_view address) const;

 private:
  /// By the pictures' numbers, the oldest first.
  std::map<unsigned, std::string> files_;
};

}  // namespace settings
