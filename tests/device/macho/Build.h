#pragma once

#include <filesystem>
#include <string>

/// What ./build-device has made.
namespace phone_tests {

/// The project's own folder.
std::filesystem::path project();

/// The folder of the packages.
std::filesystem::path packages();

/// The bundle's executable for "rootful" or "rootless".
std::filesystem::path executable(const std::string& layout);

/// All bytes of the file. Throws std::runtime_error when it cannot be read.
std::string contents(const std::filesystem::path& file);

}  // namespace phone_tests
