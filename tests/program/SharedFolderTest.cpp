#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <thread>

#include "desktop/PhoneFolder.h"
#include "plist/Document.h"
#include "tests/support/program/RunningProgram.h"
#include "tests/support/program/WebSocket.h"

namespace program_tests {
namespace {

using nlohmann::json;

/// Another program runs over the same folder.
class SharedFolder : public RunningProgram {
 protected:
  static WebSocket pageOf(const Pass& pass) {
    WebSocket socket(pass);
    EXPECT_EQ(socket.status(), 101);
    socket.message();
    return socket;
  }

  Program other{{arguments}};
  const Pass otherPass = letIn(other);
  const json openClock{{"kind", "tap"}, {"id", "page1.group0.row1"}};
};

TEST_F(SharedFolder, HasCookiesThatAreNoGoodToTheOtherProgram) {
  Pass mixed = pass;
  mixed.cookie = otherPass.cookie;
  EXPECT_EQ(WebSocket(mixed).status(), 403);
  mixed.cookie = pass.cookie + "; " + otherPass.cookie;
  EXPECT_EQ(WebSocket(mixed).status(), 101);
}

/// Another server on this computer may get hold of a cookie, and of more, but not of the path.
TEST_F(SharedFolder, HasAHomeThatIsNoGoodToTheOtherProgram) {
  for (const std::string& home : {otherPass.home, std::string(), pass.home.substr(1),
                                  pass.home.substr(0, pass.home.size() - 1), pass.home + '0'}) {
    Pass mixed = pass;
    mixed.home = home;
    EXPECT_NE(WebSocket(mixed).status(), 101) << home;
  }
}

TEST_F(SharedFolder, ShowsWhatTheOtherProgramStored) {
  const WebSocket first = pageOf(pass);
  const WebSocket second = pageOf(otherPass);
  first.touch(openClock);
  first.message();
  first.touch({{"kind", "toggle"}, {"id", "page2.group0.row0"}, {"on", false}});
  first.message();
  second.touch(openClock);
  EXPECT_EQ(second.message()["nodes"]["page2.group0.row0"]["on"], false);
}

TEST_F(SharedFolder, KeepsTheChangesOfBoth) {
  const WebSocket first = pageOf(pass);
  const WebSocket second = pageOf(otherPass);
  for (const WebSocket* page : {&first, &second}) {
    page->touch(openClock);
    page->message();
  }
  for (int round = 0; round < 50; ++round) {
    first.touch({{"kind", "slide"}, {"id", "page2.group2.row0"}, {"value", 10 + round}});
    first.message();
    second.touch({{"kind", "slide"}, {"id", "page2.group3.row0"}, {"value", round}});
    second.message();
  }
  first.touch({{"kind", "tap"}, {"id", "page2.back"}});
  first.message();
  first.touch(openClock);
  const json shown = first.message()["nodes"];
  EXPECT_EQ(shown["page3.group2.row0"]["value"], 59.0);
  EXPECT_EQ(shown["page3.group3.row0"]["value"], 49.0);
}

/// Slides a row of the Clock page and looks at the file each time that the program says it is done.
void slideAndLook(const WebSocket& page, const char* row, const std::string& key,
                  const std::filesystem::path& file) {
  for (int round = 0; round < 200; ++round) {
    const int value = 1 + round % 90;
    json answer;
    do {  // Refused is said, and so is not lost.
      page.touch({{"kind", "slide"}, {"id", row}, {"value", value}});
      answer = page.message();
    } while (answer["kind"] == "refused");
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(stream)), {});
    const auto dictionary = plist::read(bytes).root;
    const plist::Value* stored = dictionary.dictionary()->find(key);
    ASSERT_TRUE(stored) << key << " is lost";
    ASSERT_EQ(stored->real().value_or(-1), value) << key << " is that of an earlier change";
  }
}

TEST_F(SharedFolder, KeepsTheChangesThatBothMakeAtOnce) {
  const WebSocket first = pageOf(pass);
  const WebSocket second = pageOf(otherPass);
  for (const WebSocket* page : {&first, &second}) {
    page->touch(openClock);
    page->message();
  }
  std::thread meanwhile(
      [&] { slideAndLook(second, "page2.group3.row0", "clockVerticalAlignment", preferences()); });
  slideAndLook(first, "page2.group2.row0", "clockDigitSize", preferences());
  meanwhile.join();
}

TEST_F(SharedFolder, RefusesATouchWhileAnotherProgramIsBusyWithIt) {
  const WebSocket page = pageOf(pass);
  {
    const desktop::PhoneFolder busy(folder.path);
    const desktop::Descriptor held = busy.hold(std::chrono::seconds(10));
    page.touch(openClock);
    const json refused = page.message();
    EXPECT_EQ(refused["kind"], "refused");
    EXPECT_EQ(refused["reason"], "another program is busy with this phone's folder");
  }
  page.touch(openClock);
  EXPECT_EQ(page.message()["kind"], "update");
}

TEST_F(SharedFolder, IsLeftAloneByACommandWhileAnotherProgramIsBusyWithIt) {
  const desktop::PhoneFolder busy(folder.path);
  const desktop::Descriptor held = busy.hold(std::chrono::seconds(10));
  Program command{{{"set", "clockDigitSize", "80", "--root", folder.path.string()}}};
  const End end = command.end();
  EXPECT_EQ(end.exitCode, 1);
  EXPECT_EQ(end.err, "quillmere-settings: another program is busy with this phone's folder\n");
  EXPECT_FALSE(std::filesystem::exists(preferences()));
}

}  // namespace
}  // namespace program_tests
