#pragma once

#include "settings/Access.h"
#include "settings/Http.h"

namespace settings {

/// The path at which the page opens its WebSocket.
inline constexpr const char* socketPath = "/socket";

/// The answer to a request for anything but the WebSocket: a file of the page, the redirection
/// that an invitation gets, or a refusal.
Response answer(const Access& access, const Request& request);

}  // namespace settings
