#pragma once

#include <span>
#include <string_view>

/// The desktop Settings app: a local server and the page that it serves.
namespace settings {

/// A file that is part of the program.
struct Asset {
  std::string_view path;
  std::string_view bytes;
};

/// The page's own files, by the path of their address. Nothing else is served.
std::span<const Asset> webAssets();

/// The bundle's files, by their path on the phone.
std::span<const Asset> bundleFiles();

/// The animations that a new phone folder starts with, by their path on the phone.
std::span<const Asset> sampleAnimations();

}  // namespace settings
