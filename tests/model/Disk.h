#pragma once

#include <filesystem>
#include <string>

#include "tests/model/Store.h"

namespace model {

/// What is kept, as lines of text that can be compared.
std::string textOf(const Kept& kept);

/// The same of the phone in that folder, read past the phone's own code.
std::string textOnDisk(const std::filesystem::path& phone);

/// Below that folder, the files of writing aside that did not end.
Names leftAside(const std::filesystem::path& phone);

/// The phone's animations, in their folder's own order.
Names animationsIn(const std::filesystem::path& phone);

}  // namespace model
