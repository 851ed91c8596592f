#pragma once

#include <string_view>

namespace desktop {

/// Says a line on standard error, behind the program's name. What nobody reads is dropped: waiting
/// for a pipe that is full would keep everything else waiting.
void complain(std::string_view line);

}  // namespace desktop
