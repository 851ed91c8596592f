#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "tests/program/HostileRequests.h"
#include "tests/support/Figures.h"
#include "tests/support/program/RunningProgram.h"
#include "tests/support/program/SubCommands.h"
#include "tests/support/program/WebSocket.h"

namespace program_tests {
namespace {

/// Everything that whoever is refused is told.
const std::set<std::string, std::less<>> refusals{
    "",
    "There is no such host here.\n",
    "There is no such file here.\n",
    "Nothing is taken here.\n",
    "Only GET and HEAD are allowed.\n",
    "Open the address that Quillmere Settings printed.\n",
    "Other sites have no access.\n",
};

/// Whether the connection was dropped, or the one answer is a refusal and holds nothing else.
void expectRefused(const std::string& response) {
  if (response.empty()) return;
  EXPECT_TRUE((std::set{400, 403, 404, 405}.contains(statusOf(response)))) << response;
  EXPECT_EQ(fieldOf(response, "Set-Cookie"), "");
  EXPECT_EQ(fieldOf(response, "Content-Type"), "text/plain; charset=utf-8");
  const std::size_t body = response.find("\r\n\r\n");
  ASSERT_NE(body, std::string::npos) << response;
  EXPECT_TRUE(refusals.contains(response.substr(body + 4))) << response;
}

class HostileRequest : public RunningProgram {
 protected:
  HostileRequest() {
    const WebSocket page = openPage();
    page.message();
    page.touch({{"kind", "tap"}, {"id", "page1.group0.row1"}});
    page.message();
    page.touch({{"kind", "toggle"}, {"id", "page2.group0.row0"}, {"on", false}});
    EXPECT_EQ(page.message()["nodes"]["page2.group0.row0"]["on"], false);
  }

  WebSocket openPage() const { return WebSocket(pass); }

  std::string answer(const std::string& bytes) const {
    const Connection connection(port);
    connection.send(filled(bytes));
    connection.finish();
    return connection.receiveAll();
  }
};

TEST_F(HostileRequest, GetsNothingAndHarmsNothing) {
  const auto screen = openPage().message();
  const auto stored = contents(preferences());
  ASSERT_TRUE(stored);
  for (const std::string& request : faultlessRequests()) {
    EXPECT_EQ(statusOf(answer(request)), 200) << request;
  }
  const std::vector<std::string> requests = hostileRequests(invitation);
  const std::set<std::string> distinct(requests.begin(), requests.end());
  for (const std::string& request : distinct) {
    SCOPED_TRACE(testing::PrintToString(request.substr(0, 300)));
    expectRefused(answer(request));
  }
  EXPECT_EQ(openPage().message(), screen);
  EXPECT_EQ(contents(preferences()), stored);
  EXPECT_GE(distinct.size(), 400U);
  support::note(support::grouped(distinct.size()) + " distinct hostile requests",
                HasFailure() ? "not all are refused" : "all refused, 0 changes, 0 bytes read",
                "all refused, 0 changes, 0 bytes read");
}

/// What follows a body of which it is not sure where it ends is no request.
TEST_F(HostileRequest, CarriesNoSecondRequest) {
  const std::string second =
      "GET {HOME}/app.js HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\nConnection: close\r\n\r\n";
  for (const char* fields :
       {"Content-Length: 4\r\nTransfer-Encoding: chunked\r\n",
        "Content-Length: 0\r\nContent-Length: 4\r\n", "Content-Length: 300\r\n",
        "Transfer-Encoding: xchunked\r\n", "Transfer-Encoding: chunked, identity\r\n",
        "Content-Length: 1\r\n", "Content-Length: +0\r\n"}) {
    for (const char* method : {"GET", "HEAD", "POST"}) {
      SCOPED_TRACE(std::string(method) + ", " + fields);
      expectRefused(answer(std::string(method) +
                           " {HOME}/ HTTP/1.1\r\nHost: {HOST}\r\nCookie: {COOKIE}\r\n" + fields +
                           "\r\n0\r\n\r\n" + second));
    }
  }
}

}  // namespace
}  // namespace program_tests
