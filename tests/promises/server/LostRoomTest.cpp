#include <csignal>
#include <gtest/gtest.h>

#include "tests/promises/server/Mount.h"
#include "tests/promises/server/Served.h"
#include "tests/support/Figures.h"

namespace promises {
namespace {

namespace fs = std::filesystem;
using program_tests::End;
using program_tests::Program;

/// What the program works on goes away under it. It complains, and goes on.
class LostRoom : public Served {
 protected:
  void TearDown() override {
    EXPECT_EQ(program_tests::statusOf(get("/")), 200);
    program.signal(SIGTERM);
    const End end = program.end();
    EXPECT_EQ(end.exitCode, 0) << end.err;
    EXPECT_NE(end.err.find(complaint), std::string::npos) << end.err;
  }

  std::string slideTo(int value) const {
    user.send(frame(Opcode::Text, slide(sizeRow, value)));
    return user.receive().payload;
  }

  void expectDone(int value) const {
    const std::string answer = slideTo(value);
    EXPECT_NE(answer.find(shownValue(value)), std::string::npos) << answer;
    EXPECT_EQ(answer.find(R"("kind":"banner")"), std::string::npos) << answer;
    EXPECT_EQ(numberIn(preferences(), "clockDigitSize"), value);
  }

  /// The page says that it is not stored.
  void expectNotStored(int value) const {
    const std::string answer = slideTo(value);
    EXPECT_NE(answer.find(R"("kind":"banner")"), std::string::npos) << answer;
    EXPECT_NE(answer.find("was not stored"), std::string::npos) << answer;
    user.touch({{"kind", "tap"}, {"id", "banner"}});
    EXPECT_EQ(user.message()["kind"], "update");
  }

  const WebSocket user = clockPage();
  std::string complaint = "clockDigitSize was not stored";
};

TEST_F(LostRoom, OnAFullDiskIsToldAndAChangeIsMadeOnceThereIsRoom) {
  constexpr const char* what = "a full disk under the program";
  const Mount disk(preferences().parent_path(), 64 * 1024);
  if (!disk) {
    support::note(what, "not shown: this machine allows no mounts", "0 lost");
    slideTo(50);
    GTEST_SKIP() << "this machine allows no mounts";
  }
  expectDone(50);
  disk.fill();
  for (int value = 60; value < 70; ++value) {
    expectNotStored(value);
    EXPECT_EQ(numberIn(preferences(), "clockDigitSize"), 50);
  }
  disk.empty();
  slideTo(69);  // The very change that there was no room for.
  EXPECT_EQ(numberIn(preferences(), "clockDigitSize"), 69);
  expectDone(80);
  support::note(what, std::string(HasFailure() ? "some" : "0") + " lost, told each time",
                "0 lost, told");
}

TEST_F(LostRoom, ByAPreferencesFolderThatIsDeletedIsToldAndAChangeIsMadeOnceItIsBack) {
  expectDone(50);
  fs::remove_all(preferences().parent_path());
  expectNotStored(60);
  fs::create_directory(preferences().parent_path());
  expectDone(70);
}

TEST_F(LostRoom, ByAPhoneFolderThatIsMovedIsNone) {
  const fs::path elsewhere = folder.path.string() + "-moved";
  fs::rename(folder.path, elsewhere);
  EXPECT_NE(slideTo(50).find(shownValue(50)), std::string::npos);
  fs::rename(elsewhere, folder.path);
  EXPECT_EQ(numberIn(preferences(), "clockDigitSize"), 50);
  expectDone(60);
  complaint = "";
}

TEST_F(LostRoom, ByAPhoneFolderThatIsDeletedIsTold) {
  expectDone(50);
  fs::remove_all(folder.path);
  expectNotStored(60);
  EXPECT_FALSE(fs::exists(folder.path));
  // Another start makes a new phone in its place.
  Program anew{{arguments}};
  const WebSocket page = openClockPage(program_tests::letIn(anew));
  page.send(frame(Opcode::Text, slide(sizeRow, 70)));
  EXPECT_NE(page.receive().payload.find(shownValue(70)), std::string::npos);
  EXPECT_EQ(numberIn(preferences(), "clockDigitSize"), 70);
  support::note("the phone's folder deleted under the program", "told, and it stays up",
                "told, and it stays up");
}

}  // namespace
}  // namespace promises
