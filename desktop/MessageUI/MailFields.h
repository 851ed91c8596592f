#pragma once

#include <string>

#include "desktop/MessageUI/MimeMessage.h"

namespace desktop {

/// A mail as a binary property list, as it goes from one program to another: texts as the bytes
/// that they are, well-formed or not. Throws `std::bad_alloc`.
std::string packed(const MimeMessage& message);

/// The mail in what `packed` made. Throws `std::runtime_error` for anything else.
MimeMessage unpacked(std::string bytes);

}  // namespace desktop
