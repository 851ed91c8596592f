#include "tests/program/HostileRequests.h"

#include <algorithm>
#include <cctype>

#include "tests/program/HostileLines.h"

namespace program_tests {

namespace {

using Texts = std::vector<std::string>;

/// The parts of a request, all of them right.
struct Asked {
  std::string start = "GET {HOME}/ HTTP/1.1";
  std::string host = "Host: {HOST}\r\n";
  std::string cookie = "Cookie: {COOKIE}\r\n";
  std::string more = "";
  std::string body = "";

  std::string bytes() const {
    return start + "\r\n" + host + cookie + more + "Connection: close\r\n\r\n" + body;
  }
};

const Texts targets{"{HOME}/", "{HOME}/app.js", "{HOME}/style.css", "{HOME}/favicon.svg",
                    "{HOME}/nodes/kinds.js"};

const std::string handshake =
    "Upgrade: websocket\r\nSec-WebSocket-Version: 13\r\n"
    "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n";

/// What else may stand in the place of the field, each alone enough to be refused.
const Texts hosts{"",
                  "Host:\r\n",
                  "Host: {HOST}\r\nHost: {HOST}\r\n",
                  "Host: {HOST}\r\nHost: example.com\r\n",
                  "Host: {HOST}, {HOST}\r\n",
                  "Host: example.com\r\n",
                  "Host: localhost\r\n",
                  "Host: 127.0.0.1\r\n",
                  "Host: 127.0.0.1:1\r\n",
                  "Host: user@{HOST}\r\n",
                  "Host: {HOST}@example.com\r\n",
                  "Host: {HOST}.example.com\r\n",
                  "Host: {HOST}/\r\n",
                  "Host: http://{HOST}\r\n",
                  "Host: [::1]\r\n",
                  "Host: 2130706433\r\n",
                  "Host: {HOST}\r\n x\r\n",
                  "X-Forwarded-Host: {HOST}\r\n"};
const Texts cookies{"",
                    "Cookie:\r\n",
                    "Cookie: {COOKIE}\r\nCookie: {COOKIE}\r\n",
                    "Cookie: {COOKIE}0\r\n",
                    "Cookie: x{COOKIE}\r\n",
                    "Cookie: X-{COOKIE}\r\n",
                    "Cookie: {COOKIE},{COOKIE}\r\n",
                    "Cookie: x={COOKIE}\r\n",
                    "Cookie: quillmere=0123456789abcdef0123456789abcdef\r\n",
                    "Cookie: quillmere=\r\n",
                    "Cookie: =\r\n",
                    "Cookie: ;;;\r\n",
                    "Cookie: $Version=1; \"{COOKIE}\"\r\n",
                    "Cookie2: {COOKIE}\r\n",
                    "Set-Cookie: {COOKIE}\r\n",
                    "Authorization: {COOKIE}\r\n"};
const Texts origins{"Origin:\r\n",
                    "Origin: null\r\n",
                    "Origin: {ORIGIN}\r\nOrigin: {ORIGIN}\r\n",
                    "Origin: {ORIGIN} {ORIGIN}\r\n",
                    "Origin: http://example.com\r\n",
                    "Origin: http://localhost\r\n",
                    "Origin: http://127.0.0.1\r\n",
                    "Origin: http://127.0.0.1:1\r\n",
                    "Origin: https://{HOST}\r\n",
                    "Origin: HTTP://{HOST}\r\n",
                    "Origin: {HOST}\r\n",
                    "Origin: {ORIGIN}/\r\n",
                    "Origin: {ORIGIN}0\r\n",
                    "Origin: {ORIGIN}.example.com\r\n",
                    "Origin: http://user@{HOST}\r\n",
                    "Origin: file://\r\n"};
const Texts sites{"Sec-Fetch-Site: cross-site\r\n",
                  "Sec-Fetch-Site: same-site\r\n",
                  "Sec-Fetch-Site:\r\n",
                  "Sec-Fetch-Site: SAME-ORIGIN\r\n",
                  "Sec-Fetch-Site: same-origin, none\r\n",
                  "Sec-Fetch-Site: none\r\nSec-Fetch-Site: cross-site\r\n"};
const Texts methods{"POST",  "PUT",      "PATCH", "DELETE", "OPTIONS",
                    "TRACE", "PROPFIND", "LINK",  "FLY",    "get"};

/// Fields that announce something behind the header, and what comes there.
const std::pair<std::string, std::string> bodies[] = {
    {"Content-Length: 5\r\n", "hello"},
    {"Content-Length: -1\r\n", ""},
    {"Content-Length: +5\r\n", "hello"},
    {"Content-Length: 0x5\r\n", "hello"},
    {"Content-Length: 5, 5\r\n", "hello"},
    {"Content-Length: 18446744073709551615\r\n", "hello"},
    {"Content-Length: 99999999999999999999999\r\n", "hello"},
    {"Content-Length: 0\r\nContent-Length: 5\r\n", "hello"},
    {"Content-Length: 5\r\nTransfer-Encoding: chunked\r\n", "0\r\n\r\n"},
    {"Transfer-Encoding: chunked\r\nContent-Length: 5\r\n", "0\r\n\r\n"},
    {"Transfer-Encoding: chunked\r\n", "5\r\nhello\r\n0\r\n\r\n"},
    {"Transfer-Encoding: chunked\r\n", "0\r\n\r\n"},
    {"Transfer-Encoding: chunked\r\n", "zz\r\n"},
    {"Transfer-Encoding: chunked\r\n", "ffffffffffffffffff\r\n"},
    {"Transfer-Encoding: gzip\r\n", "\x1f\x8b"},
    {"Transfer-Encoding: gzip, chunked\r\n", "0\r\n\r\n"},
    {"Transfer-Encoding: chunked, identity\r\n", "0\r\n\r\n"},
    {"Transfer-Encoding: identity\r\n", ""},
    {"Transfer-Encoding:\r\n chunked\r\n", "0\r\n\r\n"},
    {"Transfer-Encoding: xchunked\r\n", "0\r\n\r\n"}};

/// Tokens that are not the one: without the cookie, nothing else lets anybody in.
Texts wrongInvitations(const std::string& invitation) {
  const std::string token = invitation.substr(invitation.find('=') + 1);
  std::string upper = token;
  std::ranges::transform(upper, upper.begin(), [](unsigned char c) { return std::toupper(c); });
  return {"/?token=",
          "/?token",
          "/?token=%00",
          "/?token=x",
          "/?token=" + upper,
          "/?token=" + token.substr(1),
          invitation + "0",
          "/?token=" + token.substr(0, token.size() - 1),
          invitation + "&x",
          "/?x&token=" + token,
          invitation + "#x",
          "/#token=" + token,
          invitation + "%20",
          "/?token=%" + token,
          "/" + invitation,
          "/?TOKEN=" + token,
          "/" + token,
          "/index.html?token=" + token,
          "/app.js?token=" + token,
          "/socket?token=" + token,
          "{HOME}/" + invitation.substr(1),
          "{HOME}/?token=" + token + "0",
          "http://{HOST}" + invitation,
          "/?token=" + std::string(token.size(), '0')};
}

}  // namespace

std::vector<std::string> faultlessRequests() {
  Texts all;
  for (const std::string& target : targets) {
    all.push_back(Asked{.start = "GET " + target + " HTTP/1.1"}.bytes());
  }
  return all;
}

std::vector<std::string> hostileRequests(const std::string& invitation) {
  Texts all = noRequests();
  const auto add = [&](const Asked& asked) { all.push_back(asked.bytes()); };
  for (const std::string& target : targets) {
    const std::string start = "GET " + target + " HTTP/1.1";
    for (const auto& host : hosts) add({.start = start, .host = host});
    for (const auto& cookie : cookies) add({.start = start, .cookie = cookie});
    for (const auto& origin : origins) add({.start = start, .more = origin});
    for (const auto& site : sites) add({.start = start, .more = site});
    for (const auto& [more, body] : bodies) add({.start = start, .more = more, .body = body});
    for (const auto& method : methods) {
      add({.start = method + ' ' + target + " HTTP/1.1"});
      add({.start = method + ' ' + target + " HTTP/1.1", .more = "Origin: {ORIGIN}\r\n"});
    }
  }
  const std::string socket = "GET {HOME}/socket HTTP/1.1";
  const std::string welcome = handshake + "Origin: {ORIGIN}\r\n";
  for (const auto& host : hosts) add({.start = socket, .host = host, .more = welcome});
  for (const auto& cookie : cookies) add({.start = socket, .cookie = cookie, .more = welcome});
  for (const auto& origin : origins) add({.start = socket, .more = handshake + origin});
  for (const auto& site : sites) add({.start = socket, .more = welcome + site});
  for (const auto& [more, body] : bodies) {
    add({.start = socket, .more = welcome + more, .body = body});
  }
  for (const auto& method : methods) {
    add({.start = method + " {HOME}/socket HTTP/1.1", .more = welcome});
  }
  for (const auto& line : hostileFirstLines()) add({.start = line});
  for (const auto& field : hostileFields()) add({.more = field});
  for (const auto& wrong : wrongInvitations(invitation)) {
    add({.start = "GET " + wrong + " HTTP/1.1", .cookie = ""});
  }
  return all;
}

}  // namespace program_tests
