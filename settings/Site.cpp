#include "settings/Site.h"

#include <algorithm>
#include <boost/beast/http/verb.hpp>

#include "settings/Asset.h"

namespace settings {

namespace http = boost::beast::http;

namespace {

/// What every answer says: the page runs its own files only, is framed by nobody, tells nobody
/// where it is, and is not kept.
constexpr std::pair<const char*, const char*> commonFields[] = {
    {"Content-Security-Policy",
     "default-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'; "
     "object-src 'none'"},
    {"Cross-Origin-Opener-Policy", "same-origin"},
    {"Cross-Origin-Resource-Policy", "same-origin"},
    {"Referrer-Policy", "no-referrer"},
    {"X-Content-Type-Options", "nosniff"},
    {"Cache-Control", "no-store"},
};

constexpr std::pair<std::string_view, const char*> contentTypes[] = {
    {".css", "text/css; charset=utf-8"}, {".js", "text/javascript; charset=utf-8"},
    {".json", "application/json"},       {".png", "image/png"},
    {".svg", "image/svg+xml"},
};

const char* contentType(std::string_view path) {
  for (const auto& [ending, type] : contentTypes) {
    if (path.ends_with(ending)) return type;
  }
  return "text/html; charset=utf-8";
}

Response bare(const Request& request, http::status status) {
  Response response{status, request.version()};
  for (const auto& [name, value] : commonFields) response.set(name, value);
  response.keep_alive(request.keep_alive());
  return response;
}

Response finished(Response response, const Request& request) {
  response.prepare_payload();
  if (request.method() == http::verb::head) response.body().clear();
  return response;
}

Response redirection(const Access& access, const Request& request) {
  Response response = bare(request, http::status::see_other);
  response.set(http::field::location, access.home());
  response.set(http::field::set_cookie, access.cookie());
  return finished(std::move(response), request);
}

Response file(const Asset& asset, const Request& request) {
  Response response = bare(request, http::status::ok);
  response.set(http::field::content_type, contentType(asset.path));
  response.body() = asset.bytes;
  return finished(std::move(response), request);
}

/// The types that a browser may show, and what it is told of them.
constexpr std::pair<std::string_view, const char*> shownTypes[] = {
    {"image/png", "image/png"},
    {"text/plain", "text/plain; charset=utf-8"},
};

/// What is not for the browser to show is saved, since it may be a page of its own.
Response resource(const Resource& offered, const Request& request) {
  Response response = bare(request, http::status::ok);
  const auto* shown =
      std::ranges::find(shownTypes, offered.type, &std::pair<std::string_view, const char*>::first);
  const bool isShown = shown != std::end(shownTypes);
  response.set(http::field::content_type, isShown ? shown->second : "application/octet-stream");
  if (!isShown) response.set(http::field::content_disposition, "attachment");
  response.body() = offered.bytes;
  return finished(std::move(response), request);
}

Response plainAnswer(const Request& request, http::status status, std::string_view text) {
  Response response = bare(request, status);
  response.set(http::field::content_type, "text/plain; charset=utf-8");
  response.body() = std::string(text) + '\n';
  return finished(std::move(response), request);
}

}  // namespace

Response answer(const Access& access, const Request& request, const Resources& resources) {
  if (const auto refusal = access.refusal(request)) {
    return plainAnswer(request, http::status::forbidden, *refusal);
  }
  if (request.method() != http::verb::get && request.method() != http::verb::head) {
    Response response =
        plainAnswer(request, http::status::method_not_allowed, "Only GET and HEAD are allowed.");
    response.set(http::field::allow, "GET, HEAD");
    return response;
  }
  if (access.isInvitation(request)) return redirection(access, request);
  if (const auto path = access.path(request)) {
    const auto assets = webAssets();
    const auto found = std::ranges::find(assets, *path, &Asset::path);
    if (found != assets.end()) return file(*found, request);
    if (const auto offered = resources(path->substr(1))) return resource(*offered, request);
  }
  return plainAnswer(request, http::status::not_found, "There is no such file here.");
}

}  // namespace settings
