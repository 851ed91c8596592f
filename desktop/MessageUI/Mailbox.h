#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace desktop {

/// Somebody whom mail reaches.
struct Mailbox {
  /// Empty where only the address is known.
  std::string name;
  /// "local@domain" in ASCII.
  std::string address;
};

/// The mailboxes of a list, "Jo <jo@example.com>, al@example.com" (RFC 5322, 3.4, without groups,
/// comments and what that calls obsolete). None when one of them is not well-formed, or there is
/// none.
std::optional<std::vector<Mailbox>> mailboxesIn(std::string_view list);

}  // namespace desktop
