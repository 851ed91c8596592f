#include "tests/program/HostileLines.h"

namespace program_tests {

using namespace std::string_literals;
using Texts = std::vector<std::string>;

Texts hostileFirstLines() {
  Texts lines{"GET {HOME}/ HTTP/2.0",    "GET {HOME}/ HTTP/0.9",
              "GET {HOME}/ HTTP/1.",     "GET {HOME}/ HTTP/11",
              "GET {HOME}/ http/1.1",    "GET {HOME}/ HTTP /1.1",
              "GET {HOME}/ FTP/1.1",     "GET {HOME}/",
              "GET  HTTP/1.1",           "GET",
              " GET {HOME}/ HTTP/1.1",   "GET\t{HOME}/\tHTTP/1.1",
              "\0GET {HOME}/ HTTP/1.1"s, "CONNECT example.com:80 HTTP/1.1",
              "OPTIONS * HTTP/1.1"};
  for (const std::string& method : {"GET"s, "HEAD"s}) {
    for (const std::string& target :
         {"//"s,
          "/."s,
          "/.."s,
          "/./"s,
          "/../app.js"s,
          "/./app.js"s,
          "/nodes/../app.js"s,
          "/%2e%2e/%2e%2e/etc/passwd"s,
          "/%2E%2E%2Fetc/passwd"s,
          "/..%2f..%2fetc%2fpasswd"s,
          "/..%c0%afetc/passwd"s,
          "/%252e%252e/etc/passwd"s,
          "/..\\..\\etc\\passwd"s,
          "/..;/etc/passwd"s,
          "/etc/passwd"s,
          "//etc/passwd"s,
          "/app.js%00"s,
          "/app.js%00.css"s,
          "/app.js/"s,
          "/app.js?x"s,
          "/app.js#x"s,
          "/APP.JS"s,
          "/%61pp.js"s,
          "/nodes"s,
          "/index.html"s,
          "app.js"s,
          "*"s,
          "?"s,
          "http://{HOST}/"s,
          "http://example.com/"s,
          "HTTP://{HOST}/app.js"s,
          "file:///etc/passwd"s,
          "/\0app.js"s,
          "/a b"s,
          "/a\tb"s,
          "/a\x01"s,
          "/a\x7f"s,
          "/\xe4pp.js"s,
          "/\xff\xfe"s,
          "/" + std::string(7'000, 'x'),
          "/" + std::string(9'000, 'x'),
          "/socket"s,
          "/var/mobile/Library/Preferences/com.orvalen.quillmere.plist"s,
          "/proc/self/environ"s,
          "/Library/PreferenceBundles/Quillmere.bundle/Root.plist"s,
          "/.git/config"s}) {
      lines.push_back(method + ' ' + target + " HTTP/1.1");
      if (target.starts_with('/')) lines.push_back(method + " {HOME}" + target + " HTTP/1.1");
    }
  }
  return lines;
}

Texts hostileFields() {
  std::string many;
  for (int i = 0; i < 10'000; ++i) many += "X: y\r\n";
  return {many,
          "X: " + std::string(8 * 1024 + 1, 'x') + "\r\n",
          std::string(100'000, 'x') + ": y\r\n",
          "X : y\r\n",
          "X\r\n",
          ": y\r\n",
          "X(: y\r\n",
          "X: a\0b\r\n"s,
          "X: a\x01\r\n",
          "X: y\n\n",
          "X: y\r\r\n",
          "\r: y\r\n",
          "\xe4: y\r\n"};
}

Texts noRequests() {
  return {"GET {HOME}/\r\n\r\n",
          "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n",
          "hello\r\n\r\n",
          "\r\n\r\n",
          std::string(2000, '\n'),
          std::string(2000, '\0'),
          "\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03"s + std::string(500, '\7'),
          "\x80\x2e\x01\x00\x02"s,
          "SSH-2.0-OpenSSH_9.2\r\n",
          "EHLO example.com\r\nMAIL FROM:<x@example.com>\r\n",
          "*1\r\n$4\r\nINFO\r\n",
          "GET {HOME}/ HTTP/1.1\nHost: {HOST}\nCookie: {COOKIE}\n\n",
          "GET {HOME}/ HTTP/1.1\rHost: {HOST}\rCookie: {COOKIE}\r\r",
          "HTTP/1.1 200 OK\r\n\r\n"};
}

}  // namespace program_tests
