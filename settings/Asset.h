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

/// What a new phone folder starts with, by its path on the phone: what the phone says of itself,
/// and some animations.
std::span<const Asset> sampleFiles();

}  // namespace settings
