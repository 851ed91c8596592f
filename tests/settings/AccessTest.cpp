#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/settings/Requests.h"

namespace settings_tests {
namespace {

using settings::Access;

class AccessTest : public testing::Test {
 protected:
  bool allows(const settings::Request& request) const { return !access.refusal(request); }

  const Access access{port};
  const std::string cookie = cookiePair(access);
};

TEST_F(AccessTest, PrintsAnAddressWithATokenOf128Bits) {
  EXPECT_THAT(access.address(),
              testing::MatchesRegex("http://127\\.0\\.0\\.1:8080/\\?token=[0-9a-f]{32}"));
}

TEST_F(AccessTest, HasNewSecretsEachTime) {
  const Access other(port);
  EXPECT_NE(access.address(), other.address());
  EXPECT_NE(access.cookie(), other.cookie());
  EXPECT_NE(access.home(), other.home());
}

TEST_F(AccessTest, KnowsWhatLiesBelowItsHome) {
  const std::string home = access.home();
  EXPECT_EQ(access.path(get(home, {})), "/");
  EXPECT_EQ(access.path(get(home + "nodes/kinds.js", {})), "/nodes/kinds.js");
  for (const std::string& target :
       {std::string(), std::string("/"), std::string("*"), home.substr(0, home.size() - 1),
        home.substr(1), '/' + home, "/x" + home.substr(2), "http://127.0.0.1:8080" + home}) {
    EXPECT_EQ(access.path(get(target, {})), std::nullopt) << target;
  }
}

TEST_F(AccessTest, KeepsTheCookieFromScriptsAndOtherSitesAndOtherServers) {
  EXPECT_THAT(access.home(), testing::MatchesRegex("/[0-9a-f]{32}/"));
  EXPECT_THAT(access.cookie(),
              testing::MatchesRegex("quillmere=[0-9a-f]{32}; Path=" + access.home() +
                                    "; HttpOnly; SameSite=Strict"));
  EXPECT_EQ(access.address().find(access.home().substr(1, 32)), std::string::npos);
  EXPECT_EQ(cookie.find(access.home().substr(1, 32)), std::string::npos);
  EXPECT_EQ(access.address().find(cookie.substr(cookie.find('=') + 1)), std::string::npos);
}

TEST_F(AccessTest, AllowsTheInvitationWithoutACookie) {
  EXPECT_TRUE(allows(get(invitationTarget(access), {{"Host", host}})));
}

TEST_F(AccessTest, KnowsTheInvitationExactly) {
  const std::string target = invitationTarget(access);
  EXPECT_TRUE(access.isInvitation(get(target, {})));
  for (const std::string& other :
       {target + "0", target.substr(0, target.size() - 1), target + "&x=1", "/" + target,
        std::string("/?token="), "/x" + target.substr(1), std::string("/")}) {
    EXPECT_FALSE(access.isInvitation(get(other, {}))) << other;
    EXPECT_FALSE(allows(get(other, {{"Host", host}}))) << other;
  }
}

TEST_F(AccessTest, AllowsTheCookie) {
  EXPECT_TRUE(allows(get("/", {{"Host", host}, {"Cookie", cookie}})));
}

TEST_F(AccessTest, AsksEverythingButReadingForItsOrigin) {
  using boost::beast::http::verb;
  for (const verb method : {verb::post, verb::put, verb::delete_, verb::options, verb::unknown}) {
    EXPECT_FALSE(allows(request(method, "/", {{"Host", host}, {"Cookie", cookie}})));
    EXPECT_FALSE(
        allows(request(method, "/", {{"Host", host}, {"Origin", "null"}, {"Cookie", cookie}})));
    EXPECT_TRUE(
        allows(request(method, "/", {{"Host", host}, {"Origin", origin}, {"Cookie", cookie}})));
  }
}

TEST_F(AccessTest, RefusesWhatHasABody) {
  for (const auto& field : std::initializer_list<std::pair<const char*, std::string>>{
           {"Content-Length", "1"},
           {"Content-Length", "x"},
           {"Transfer-Encoding", "chunked"},
           {"Transfer-Encoding", "identity"}}) {
    EXPECT_FALSE(allows(get("/", {{"Host", host}, {"Cookie", cookie}, field}))) << field.second;
  }
  EXPECT_TRUE(allows(get("/", {{"Host", host}, {"Cookie", cookie}, {"Content-Length", "0"}})));
}

TEST_F(AccessTest, FindsTheCookieAmongOthers) {
  for (const std::string& field : {"a=b; " + cookie, cookie + "; a=b", "a=b;" + cookie,
                                   "; ;=; " + cookie, "quillmere=wrong; " + cookie}) {
    EXPECT_TRUE(allows(get("/", {{"Host", host}, {"Cookie", field}}))) << field;
  }
}

TEST_F(AccessTest, RefusesWithoutTheCookie) {
  EXPECT_FALSE(allows(get("/", {{"Host", host}})));
  EXPECT_THAT(access.refusal(get("/", {{"Host", host}})),
              testing::Optional(std::string_view("Open the address that Quillmere Settings "
                                                 "printed.")));
}

TEST_F(AccessTest, RefusesCookiesThatAreAlmostRight) {
  const std::string value = cookie.substr(cookie.find('=') + 1);
  for (const std::string& field :
       {std::string(""), cookie + "0", cookie.substr(0, cookie.size() - 1),
        "quillmere=" + std::string(32, '0'), "quillmere-8081=" + value, "Quillmere=" + value,
        "x" + cookie, "quillmere =" + value, "quillmere=\"" + value + "\"",
        std::string("quillmere"), std::string("quillmere="), "a=" + cookie,
        cookiePair(Access(port)), "quillmere-8080=" + value}) {
    EXPECT_FALSE(allows(get("/", {{"Host", host}, {"Cookie", field}}))) << field;
  }
}

TEST_F(AccessTest, RefusesTwoCookieFields) {
  EXPECT_FALSE(allows(get("/", {{"Host", host}, {"Cookie", cookie}, {"Cookie", cookie}})));
}

TEST_F(AccessTest, RefusesEveryOtherHost) {
  EXPECT_FALSE(allows(get("/", {{"Cookie", cookie}})));
  for (const char* other :
       {"", "127.0.0.1", "127.0.0.1:8081", "localhost:8080", "[::1]:8080", "example.com",
        "127.0.0.1:8080.example.com", "127.1:8080", "127.0.0.1:08080", "user@127.0.0.1:8080"}) {
    EXPECT_THAT(access.refusal(get("/", {{"Host", other}, {"Cookie", cookie}})),
                testing::Optional(std::string_view("There is no such host here.")))
        << other;
    EXPECT_FALSE(allows(get(invitationTarget(access), {{"Host", other}}))) << other;
  }
}

TEST_F(AccessTest, RefusesTwoHosts) {
  EXPECT_FALSE(allows(get("/", {{"Host", host}, {"Host", host}, {"Cookie", cookie}})));
  EXPECT_FALSE(allows(get("/", {{"Host", host}, {"Host", "example.com"}, {"Cookie", cookie}})));
}

TEST_F(AccessTest, AllowsItsOwnOriginOnly) {
  EXPECT_TRUE(allows(get("/", {{"Host", host}, {"Cookie", cookie}, {"Origin", origin}})));
  for (const char* other :
       {"", "null", "http://127.0.0.1:8081", "https://127.0.0.1:8080", "http://localhost:8080",
        "http://127.0.0.1:8080/", "http://example.com"}) {
    EXPECT_THAT(access.refusal(get("/", {{"Host", host}, {"Cookie", cookie}, {"Origin", other}})),
                testing::Optional(std::string_view("Other sites have no access.")))
        << other;
  }
}

TEST_F(AccessTest, RefusesTwoOrigins) {
  EXPECT_FALSE(allows(
      get("/", {{"Host", host}, {"Cookie", cookie}, {"Origin", origin}, {"Origin", origin}})));
}

TEST_F(AccessTest, AsksHandshakesForTheirOrigin) {
  EXPECT_FALSE(
      allows(get("/socket", {{"Host", host}, {"Cookie", cookie}, {"Upgrade", "websocket"}})));
  EXPECT_TRUE(allows(
      get("/socket",
          {{"Host", host}, {"Cookie", cookie}, {"Upgrade", "websocket"}, {"Origin", origin}})));
  EXPECT_FALSE(
      allows(get("/socket", {{"Host", host}, {"Upgrade", "websocket"}, {"Origin", origin}})));
}

TEST_F(AccessTest, GoesByWhereTheBrowserSaysTheRequestIsFrom) {
  for (const char* site : {"same-origin", "none"}) {
    EXPECT_TRUE(allows(get("/", {{"Host", host}, {"Cookie", cookie}, {"Sec-Fetch-Site", site}})));
  }
  for (const char* site : {"same-site", "cross-site", "", "None", "unknown"}) {
    EXPECT_FALSE(allows(get("/", {{"Host", host}, {"Cookie", cookie}, {"Sec-Fetch-Site", site}})))
        << site;
    EXPECT_FALSE(allows(get(invitationTarget(access), {{"Host", host}, {"Sec-Fetch-Site", site}})))
        << site;
  }
}

TEST_F(AccessTest, RefusesTwoStatementsOfWhereTheRequestIsFrom) {
  EXPECT_FALSE(allows(get("/", {{"Host", host},
                                {"Cookie", cookie},
                                {"Sec-Fetch-Site", "none"},
                                {"Sec-Fetch-Site", "cross-site"}})));
}

TEST(AccessOnTheUsualPort, IsNamedWithoutIt) {
  const Access usual(80);
  const auto page = get(
      "/", {{"Host", "127.0.0.1"}, {"Origin", "http://127.0.0.1"}, {"Cookie", cookiePair(usual)}});
  EXPECT_EQ(usual.refusal(page), std::nullopt);
}

}  // namespace
}  // namespace settings_tests
