#include <algorithm>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/websocket/rfc6455.hpp>

#include "fuzz/Input.h"
#include "fuzz/Packets.h"
#include "fuzz/Require.h"
#include "settings/Asset.h"
#include "settings/Site.h"

namespace {

using fuzz::require;
using settings::Request;
using settings::Response;
namespace http = boost::beast::http;

constexpr std::size_t maximumHeader = 8 * 1024;
constexpr std::string_view host = "127.0.0.1:8080";
constexpr std::string_view resourceAddress = "pictures/1.png";
constexpr std::string_view resourceBytes = "the picture of the phone";

std::string_view view(boost::beast::string_view text) { return {text.data(), text.size()}; }

/// What only the invited know.
struct Secrets {
  explicit Secrets(const settings::Access& access)
      : invitation(access.address().substr(access.address().find("/?"))),
        cookie(access.cookie().substr(0, access.cookie().find(';'))),
        home(access.home().substr(0, access.home().size() - 1)) {}

  /// The input with what the words in braces stand for: random inputs would never come upon it.
  std::string spliced(std::string text) const {
    const std::pair<std::string_view, std::string_view> words[] = {{"{HOST}", host},
                                                                   {"{ORIGIN}", origin},
                                                                   {"{COOKIE}", cookie},
                                                                   {"{HOME}", home},
                                                                   {"{TOKEN}", token()}};
    for (const auto& [word, meaning] : words) {
      for (std::size_t at = 0; (at = text.find(word, at)) != std::string::npos;) {
        text.replace(at, word.size(), meaning);
        at += meaning.size();
      }
    }
    return text;
  }

  std::string_view token() const {
    return std::string_view(invitation).substr(invitation.find('=') + 1);
  }

  const std::string origin = "http://" + std::string(host);
  const std::string invitation;
  const std::string cookie;
  const std::string home;
};

/// Whether the field stands there once, as `value`.
bool says(const Request& request, const char* field, std::string_view value) {
  return request.count(field) == 1 && view(request[field]) == value;
}

/// Whether the cookie is anywhere in the request; what it takes to be let in is more.
bool mentionsCookie(const Request& request, const Secrets& secrets) {
  return std::ranges::any_of(request, [&](const auto& field) {
    return view(field.value()).find(secrets.cookie) != std::string_view::npos;
  });
}

/// Whether it may be let in, by conditions that are simpler than the product's and hold for all
/// that it lets in.
bool mayEnter(const Request& request, const Secrets& secrets) {
  if (!says(request, "Host", host)) return false;
  if (request.count("Origin") > 0 && !says(request, "Origin", secrets.origin)) return false;
  if (request.count("Sec-Fetch-Site") > 0 && !says(request, "Sec-Fetch-Site", "same-origin") &&
      !says(request, "Sec-Fetch-Site", "none")) {
    return false;
  }
  return view(request.target()) == secrets.invitation || mentionsCookie(request, secrets);
}

void requireFile(const Request& request, const Response& response, const Secrets& secrets) {
  if (request.method() == http::verb::head) {
    require(response.body().empty(), "a body for HEAD");
    return;
  }
  require(request.method() == http::verb::get, "a file for another method");
  std::string_view path = view(request.target());
  require(path.starts_with(secrets.home + '/'), "a file outside the page's home");
  path.remove_prefix(secrets.home.size());
  const auto assets = settings::webAssets();
  const auto asset = std::ranges::find(assets, path, &settings::Asset::path);
  const bool isResource = path.substr(1) == resourceAddress;
  require(isResource || asset != assets.end(), "a file that there is not");
  require(response.body() == (isResource ? resourceBytes : asset->bytes), "another file");
}

void requireSense(const Request& request, const Response& response, const Secrets& secrets) {
  const bool isInvited = view(request.target()) == secrets.invitation;
  require(mayEnter(request, secrets) || response.result() == http::status::forbidden,
          "a stranger is let in");
  require(response.count(http::field::set_cookie) == (response.result() == http::status::see_other),
          "a cookie for another answer than the invitation's");
  require(response.keep_alive() == request.keep_alive(), "the connection is not kept as asked");
  switch (response.result()) {
    case http::status::ok:
      require(mentionsCookie(request, secrets), "a file without the cookie");
      return requireFile(request, response, secrets);
    case http::status::see_other:
      return require(isInvited && response.body().empty(), "a cookie without the token");
    case http::status::forbidden:
    case http::status::not_found:
    case http::status::method_not_allowed:
      return require(response.body().size() < 100, "a refusal says more than a sentence");
    default:
      require(false, "an answer that there is not");
  }
}

/// A handshake of the page's WebSocket is the page's own, or a stranger's that is refused.
void requireOwnPage(const settings::Access& access, const Request& request,
                    const Secrets& secrets) {
  if (access.refusal(request)) return;
  require(view(request.target()) == secrets.home + settings::socketPath &&
              says(request, "Host", host) && says(request, "Origin", secrets.origin) &&
              mentionsCookie(request, secrets),
          "a stranger gets the WebSocket");
}

std::optional<settings::Resource> resourceAt(std::string_view address) {
  if (address != resourceAddress) return std::nullopt;
  return settings::Resource{"image/png", std::string(resourceBytes)};
}

}  // namespace

/// What one connection sends, packet by packet ("{CUT}" begins another), through all that the
/// server does until it answers or drops the connection.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const settings::Access access(8080);
  static const Secrets secrets(access);
  fuzz::Packets connection(secrets.spliced(std::string(fuzz::view(bytes, size))), "{CUT}");
  boost::beast::flat_buffer buffer;
  for (bool open = true; open;) {
    http::request_parser<http::empty_body> parser;
    parser.header_limit(maximumHeader);
    boost::system::error_code error;
    http::read(connection, buffer, parser, error);
    if (error) break;
    const Request request = parser.release();
    if (boost::beast::websocket::is_upgrade(request) &&
        access.path(request) == settings::socketPath) {
      requireOwnPage(access, request, secrets);
    }
    const Response response = settings::answer(access, request, &resourceAt);
    requireSense(request, response, secrets);
    open = response.keep_alive();
  }
  return 0;
}
