#include "settings/Pictures.h"

#include "desktop/UIKit/ImageBody.h"

namespace settings {

namespace {

/// More than a page and its successor show.
constexpr std::size_t maximumFiles = 16;

std::string addressOf(unsigned number) { return "/pictures/" + std::to_string(number) + ".png"; }

}  // namespace

std::string Pictures::address(const platform::UIImage& image) {
  const auto& body = *desktop::bodyAs<desktop::ImageBody>(image);
  if (!files_.contains(body.number)) {
    files_[body.number] = body.png();
    if (files_.size() > maximumFiles) files_.erase(files_.begin());
  }
  return addressOf(body.number);
}

const std::string* Pictures::file(std::string_view address) const {
  for (const auto& [number, file] : files_) {
    if (addressOf(number) == address) return &file;
  }
  return nullptr;
}

}  // namespace settings
