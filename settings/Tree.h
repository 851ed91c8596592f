#pragma once

#include <map>
#include <nlohmann/json.hpp>
#include <string>

namespace settings {

/// What the screen shows: nodes by id. A node is an object with its `kind`, its properties and the
/// ids of its `children`; the root's id is "window".
using Tree = std::map<std::string, nlohmann::json>;

/// The message that brings a page showing nothing to `tree`.
nlohmann::json screenMessage(const Tree& tree);

/// The message that brings a page showing `before` to `after`.
nlohmann::json updateMessage(const Tree& before, const Tree& after);

/// The message that a touch was refused, and why.
nlohmann::json refusedMessage(const std::string& reason);

}  // namespace settings
