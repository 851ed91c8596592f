#include "settings/Pictures.h"

#include <system_error>

#include "desktop/UIKit/ImageBody.h"

namespace settings {

namespace {

constexpr const char* pngType = "image/png";

const desktop::ImageBody& bodyOf(const platform::UIImage& image) {
  return *desktop::bodyAs<desktop::ImageBody>(image);
}

std::string addressOf(const platform::UIImage& image) {
  return "pictures/" + std::to_string(bodyOf(image).number) + ".png";
}

}  // namespace

std::string Pictures::address(const platform::UIImage& image) {
  std::erase(shown_, image);
  shown_.push_back(image);
  if (shown_.size() > maximum) shown_.pop_front();
  return addressOf(image);
}

std::optional<Resource> Pictures::file(std::string_view address) const {
  for (const platform::UIImage& image : shown_) {
    if (addressOf(image) == address) return Resource{pngType, bodyOf(image).png()};
  }
  return std::nullopt;
}

std::optional<Resource> bundlePicture(const desktop::Phone& phone, std::string_view address) {
  constexpr std::string_view folder = "bundle/";
  if (!address.starts_with(folder) || !address.ends_with(".png")) return std::nullopt;
  const std::string_view name = address.substr(folder.size());
  if (name.starts_with('.') || name.find('/') != std::string_view::npos) return std::nullopt;
  try {
    auto bytes = phone.folder.read(phone.bundle + '/' + std::string(name));
    if (bytes) return Resource{pngType, *std::move(bytes)};
  } catch (const std::system_error&) {
    // What cannot be read is not offered.
  }
  return std::nullopt;
}

}  // namespace settings
