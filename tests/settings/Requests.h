#pragma once

#include <boost/beast/http/verb.hpp>
#include <initializer_list>
#include <string>
#include <utility>

#include "settings/Access.h"
#include "settings/Http.h"

namespace settings_tests {

using Fields = std::initializer_list<std::pair<const char*, std::string>>;

inline constexpr std::uint16_t port = 8080;
inline constexpr const char* host = "127.0.0.1:8080";
inline constexpr const char* origin = "http://127.0.0.1:8080";

inline settings::Request request(boost::beast::http::verb method, const std::string& target,
                                 Fields fields) {
  settings::Request made(method, target, 11);
  for (const auto& [name, value] : fields) made.insert(name, value);
  return made;
}

inline settings::Request get(const std::string& target, Fields fields) {
  return request(boost::beast::http::verb::get, target, fields);
}

/// "NAME=SECRET", as the browser gives the cookie back.
inline std::string cookiePair(const settings::Access& access) {
  return access.cookie().substr(0, access.cookie().find(';'));
}

/// "/?token=…".
inline std::string invitationTarget(const settings::Access& access) {
  return access.address().substr(access.address().find("/?"));
}

}  // namespace settings_tests
