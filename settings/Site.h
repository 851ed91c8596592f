#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "settings/Access.h"
#include "settings/Http.h"
#include "settings/Resource.h"

namespace settings {

/// The path below the home at which the page opens its WebSocket.
inline constexpr const char* socketPath = "/socket";

/// A file that is not part of the page itself, by its address, which is relative to the page's;
/// none when there is none.
using Resources = std::function<std::optional<Resource>(std::string_view address)>;

/// The answer to a request for anything but the WebSocket: a file of the page, a resource, the
/// redirection that an invitation gets, or a refusal.
Response answer(const Access& access, const Request& request, const Resources& resources);

}  // namespace settings
