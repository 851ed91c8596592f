#pragma once

#include <string>
#include <string_view>

#include "desktop/Descriptor.h"

namespace desktop {

/// A file without a name that holds `bytes` and stands at its beginning (memfd_create(2)): what
/// another program reads or writes, without anybody waiting for a pipe. Throws `std::system_error`.
Descriptor memoryFile(std::string_view bytes = {});

/// All that it holds. Throws `std::system_error`.
std::string contentsOf(const Descriptor& memoryFile);

}  // namespace desktop
