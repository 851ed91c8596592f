#include <algorithm>
#include <boost/beast/http/field.hpp>
#include <gtest/gtest.h>

#include "settings/Asset.h"
#include "settings/Site.h"
#include "tests/settings/Requests.h"

namespace settings_tests {
namespace {

namespace http = boost::beast::http;
using http::status;
using http::verb;

class SiteTest : public testing::Test {
 protected:
  settings::Response ask(verb method, const std::string& target) const {
    return answer(
        request(method, target, {{"Host", host}, {"Origin", origin}, {"Cookie", cookie}}));
  }
  settings::Response ask(const std::string& path) const { return ask(verb::get, home + path); }
  settings::Response answer(const settings::Request& asked) const {
    return settings::answer(access, asked, [](std::string_view) { return std::nullopt; });
  }

  const settings::Access access{port};
  const std::string cookie = cookiePair(access);
  const std::string home = access.home().substr(0, access.home().size() - 1);
};

std::string field(const settings::Response& response, const std::string& name) {
  const auto found = response.find(name);
  return found == response.end() ? "" : std::string(found->value());
}

/// Every answer says all of these, whatever it is.
void expectCommonFields(const settings::Response& response) {
  const std::string policy = field(response, "Content-Security-Policy");
  for (const char* part : {"default-src 'self'", "base-uri 'none'", "form-action 'none'",
                           "frame-ancestors 'none'", "object-src 'none'"}) {
    EXPECT_NE(policy.find(part), std::string::npos) << policy;
  }
  EXPECT_EQ(policy.find("unsafe"), std::string::npos) << policy;
  EXPECT_EQ(field(response, "Cross-Origin-Opener-Policy"), "same-origin");
  EXPECT_EQ(field(response, "Cross-Origin-Resource-Policy"), "same-origin");
  EXPECT_EQ(field(response, "Referrer-Policy"), "no-referrer");
  EXPECT_EQ(field(response, "X-Content-Type-Options"), "nosniff");
  EXPECT_EQ(field(response, "Cache-Control"), "no-store");
  EXPECT_EQ(response.count("Access-Control-Allow-Origin"), 0U);
}

TEST_F(SiteTest, ServesEveryFileOfThePageWhole) {
  ASSERT_FALSE(settings::webAssets().empty());
  for (const settings::Asset& asset : settings::webAssets()) {
    const auto response = ask(std::string(asset.path));
    EXPECT_EQ(response.result(), status::ok) << asset.path;
    EXPECT_EQ(response.body(), asset.bytes) << asset.path;
    EXPECT_EQ(field(response, "Content-Length"), std::to_string(asset.bytes.size()));
    expectCommonFields(response);
  }
}

TEST_F(SiteTest, NamesTheTypeOfEachFile) {
  EXPECT_EQ(field(ask("/"), "Content-Type"), "text/html; charset=utf-8");
  EXPECT_EQ(field(ask("/app.js"), "Content-Type"), "text/javascript; charset=utf-8");
  EXPECT_EQ(field(ask("/style.css"), "Content-Type"), "text/css; charset=utf-8");
  EXPECT_EQ(field(ask("/favicon.svg"), "Content-Type"), "image/svg+xml");
}

TEST_F(SiteTest, AnswersHeadAsGetWithoutABody) {
  const auto head = ask(verb::head, home + "/app.js");
  EXPECT_EQ(head.result(), status::ok);
  EXPECT_EQ(head.body(), "");
  EXPECT_EQ(field(head, "Content-Length"), field(ask("/app.js"), "Content-Length"));
  EXPECT_EQ(field(head, "Content-Type"), field(ask("/app.js"), "Content-Type"));
  expectCommonFields(head);
}

TEST_F(SiteTest, RefusesEveryOtherMethod) {
  for (const verb method : {verb::post, verb::put, verb::delete_, verb::options, verb::trace,
                            verb::connect, verb::patch, verb::unknown}) {
    const auto response = ask(method, home + "/");
    EXPECT_EQ(response.result(), status::method_not_allowed) << http::to_string(method);
    EXPECT_EQ(field(response, "Allow"), "GET, HEAD");
    expectCommonFields(response);
  }
}

TEST_F(SiteTest, FindsNothingElse) {
  for (const char* target :
       {"/missing", "", "//", "/../etc/passwd", "/app.js/", "/app.js?x", "/APP.JS", "/%61pp.js",
        "/..%2fapp.js", "/ui/../app.js", "/./app.js", "http://127.0.0.1:8080/app.js", "*",
        "/socket", "/index.html", "\\app.js",
        "/var/mobile/Library/Preferences/com.orvalen.quillmere.plist"}) {
    for (const auto& response : {ask(target), ask(verb::get, target)}) {
      EXPECT_EQ(response.result(), status::not_found) << target;
      EXPECT_EQ(field(response, "Content-Type"), "text/plain; charset=utf-8");
      expectCommonFields(response);
    }
  }
}

/// A browser shows the cookie below the home only; whoever knows the cookie alone learns nothing.
TEST_F(SiteTest, HasNothingOutsideItsHome) {
  const std::string other = settings::Access(port).home();
  for (const std::string& target :
       {std::string("/"), std::string("/app.js"), home, home.substr(1), home + "0/",
        home.substr(0, home.size() - 1) + "/app.js", '/' + home + "/", other, other + "app.js"}) {
    EXPECT_EQ(ask(verb::get, target).result(), status::not_found) << target;
  }
}

TEST_F(SiteTest, TurnsAnInvitationIntoACookie) {
  const auto response = answer(get(invitationTarget(access), {{"Host", host}}));
  EXPECT_EQ(response.result(), status::see_other);
  EXPECT_EQ(field(response, "Location"), access.home());
  EXPECT_EQ(field(response, "Set-Cookie"), access.cookie());
  EXPECT_EQ(response.body(), "");
  expectCommonFields(response);
}

TEST_F(SiteTest, GivesTheCookieToInvitationsOnly) {
  EXPECT_EQ(ask("/").count(http::field::set_cookie), 0U);
  const auto posted =
      answer(request(verb::post, invitationTarget(access), {{"Host", host}, {"Origin", origin}}));
  EXPECT_EQ(posted.result(), status::method_not_allowed);
  EXPECT_EQ(posted.count(http::field::set_cookie), 0U);
}

TEST_F(SiteTest, SaysNothingOfItsFilesToStrangers) {
  for (const std::string& target : {std::string("/"), std::string("/missing"), home + "/",
                                    home + "/app.js", home + "/missing"}) {
    for (const verb method : {verb::get, verb::post}) {
      const auto response = answer(request(method, target, {{"Host", host}}));
      EXPECT_EQ(response.result(), status::forbidden) << target;
      EXPECT_EQ(response.count(http::field::set_cookie), 0U);
      expectCommonFields(response);
    }
  }
}

TEST_F(SiteTest, KeepsTheConnectionAsTheRequestWantsIt) {
  auto page = get(home + "/", {{"Host", host}, {"Cookie", cookie}});
  EXPECT_TRUE(answer(page).keep_alive());
  page.keep_alive(false);
  EXPECT_FALSE(answer(page).keep_alive());
}

}  // namespace
}  // namespace settings_tests
