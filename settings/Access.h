#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "settings/Http.h"

namespace settings {

/// Who may talk to the server: a browser on this computer that was given the printed address.
///
/// The address carries a secret token (128 random bits); whoever shows it gets a cookie with
/// another secret and is led to the page's home, a path with a third. Everything else asks for the
/// cookie and lies below the home: since browsers share cookies between the ports of a host, but
/// not between paths, no other server on this computer is ever shown it. Requests that name another
/// host, or that another site's page makes, are refused, cookie or not.
class Access {
 public:
  explicit Access(std::uint16_t port);

  /// The address to print and to open.
  std::string address() const { return origin_ + "/?token=" + token_; }

  /// Whether the request's target is the printed address.
  bool isInvitation(const Request& request) const;

  /// The path that an invitation leads to, with a "/" at its end: the page. All that belongs to it
  /// is below.
  std::string home() const { return home_ + '/'; }

  /// The request's target below the home, with a "/" at its start; none when it is elsewhere.
  std::optional<std::string_view> path(const Request& request) const;

  /// The value of the `Set-Cookie` field that an invitation is answered with.
  std::string cookie() const;

  /// Why the request is refused, as a sentence for the person who sees it; none when it is
  /// allowed. An invitation needs no cookie.
  std::optional<std::string_view> refusal(const Request& request) const;

 private:
  bool showsCookie(const Request& request) const;

  std::string host_;
  std::string origin_;
  std::string token_;
  std::string home_;
  std::string cookie_;
};

}  // namespace settings
