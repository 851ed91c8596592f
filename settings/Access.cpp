#include "settings/Access.h"

#include <algorithm>
#include <array>
#include <boost/beast/http/field.hpp>
#include <cerrno>
#include <cstdio>
#include <sys/random.h>
#include <system_error>

namespace settings {

namespace http = boost::beast::http;

namespace {

constexpr std::string_view cookieName = "quillmere";

std::string secret() {
  std::array<unsigned char, 16> bytes;
  if (getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) {
    throw std::system_error(errno, std::generic_category(), "getrandom");
  }
  std::string text;
  for (const unsigned char byte : bytes) {
    std::array<char, 3> digits;
    std::snprintf(digits.data(), digits.size(), "%02x", byte);
    text += digits.data();
  }
  return text;
}

/// In a time that does not tell how much of the text was right.
bool equalSecrets(std::string_view given, std::string_view expected) {
  if (given.size() != expected.size()) return false;
  int difference = 0;
  for (std::size_t i = 0; i < expected.size(); ++i) difference |= given[i] ^ expected[i];
  return difference == 0;
}

std::string_view view(boost::beast::string_view text) { return {text.data(), text.size()}; }

/// The field's value when it stands in the request once; none when it is absent or repeated.
std::optional<std::string_view> single(const Request& request, boost::beast::string_view name) {
  if (request.count(name) != 1) return std::nullopt;
  return view(request.find(name)->value());
}

/// Whether the request says that something follows its header, however it is to be read.
bool hasBody(const Request& request) {
  return request.count("Transfer-Encoding") > 0 ||
         (request.count("Content-Length") > 0 && single(request, "Content-Length") != "0");
}

}  // namespace

Access::Access(std::uint16_t port)
    // Browsers leave the usual port out wherever they name the host.
    : host_(port == 80 ? "127.0.0.1" : "127.0.0.1:" + std::to_string(port)),
      origin_("http://" + host_),
      token_(secret()),
      home_('/' + secret()),
      cookie_(secret()) {}

bool Access::isInvitation(const Request& request) const {
  constexpr std::string_view prefix = "/?token=";
  const std::string_view target = view(request.target());
  return target.starts_with(prefix) && equalSecrets(target.substr(prefix.size()), token_);
}

std::optional<std::string_view> Access::path(const Request& request) const {
  const std::string_view target = view(request.target());
  const std::string_view rest = target.substr(std::min(home_.size(), target.size()));
  if (!rest.starts_with('/') || !equalSecrets(target.substr(0, home_.size()), home_)) {
    return std::nullopt;
  }
  return rest;
}

std::string Access::cookie() const {
  return std::string(cookieName) + '=' + cookie_ + "; Path=" + home() +
         "; HttpOnly; SameSite=Strict";
}

std::optional<std::string_view> Access::refusal(const Request& request) const {
  if (single(request, "Host") != host_) return "There is no such host here.";
  if (hasBody(request)) return "Nothing is taken here.";
  const bool onlyReads =
      request.method() == http::verb::get || request.method() == http::verb::head;
  if (!onlyReads || request.count("Upgrade") > 0 || request.count("Origin") > 0) {
    if (single(request, "Origin") != origin_) return "Other sites have no access.";
  }
  if (request.count("Sec-Fetch-Site") > 0) {
    const auto site = single(request, "Sec-Fetch-Site");
    if (site != "same-origin" && site != "none") return "Other sites have no access.";
  }
  if (isInvitation(request) || showsCookie(request)) return std::nullopt;
  return "Open the address that Quillmere Settings printed.";
}

bool Access::showsCookie(const Request& request) const {
  const auto field = single(request, "Cookie");
  if (!field) return false;
  for (std::string_view rest = *field; !rest.empty();) {
    const std::size_t end = rest.find(';');
    std::string_view pair = rest.substr(0, end);
    while (pair.starts_with(' ')) pair.remove_prefix(1);
    const std::size_t equals = pair.find('=');
    if (equals != std::string_view::npos && pair.substr(0, equals) == cookieName &&
        equalSecrets(pair.substr(equals + 1), cookie_)) {
      return true;
    }
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return false;
}

}  // namespace settings
