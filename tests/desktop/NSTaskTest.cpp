#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>

#include "desktop/Exception.h"
#include "desktop/Foundation/Values.h"
#include "platform/Foundation/NSNumber.h"
#include "platform/Foundation/NSTask.h"
#include "tests/desktop/Children.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

namespace fs = std::filesystem;
using platform::NSArray;
using platform::NSData;
using platform::NSPipe;
using platform::NSString;
using platform::NSTask;

class NSTaskTest : public PhoneTest {
 protected:
  ~NSTaskTest() override { EXPECT_FALSE(hasChildren()); }

  static NSTask shell(const char* script) {
    NSTask task = NSTask::init();
    task.setLaunchPath("/bin/sh");
    task.setArguments(NSArray::arrayWithObjects({NSString("-c"), NSString(script)}));
    task.setStandardOutput(NSPipe::pipe());
    return task;
  }
  static std::string output(const NSTask& task) {
    const NSData data = task.standardOutput().fileHandleForReading().readDataToEndOfFile();
    return std::string(desktop::unbox(data).data().value());
  }
  static std::string outputOf(const char* script) {
    NSTask task = shell(script);
    task.launch();
    return output(task);
  }
  /// A database of one package.
  void putDatabase(const char* databasePath, const std::string& package) {
    fs::create_directories(host(databasePath));
    writeBytes(host(databasePath) / "status",
               "Package: " + package +
                   "\nStatus: install ok installed\nMaintainer: Jo <jo@example.com>\n"
                   "Architecture: iphoneos-arm\nVersion: 1.2.3\nDescription: a package\n\n");
  }
};

TEST_F(NSTaskTest, OutputIsReadToItsEnd) {
  EXPECT_EQ(outputOf("echo one; sleep 0.1; echo two"), "one\ntwo\n");
  EXPECT_EQ(outputOf("head -c 1000000 /dev/zero | tr '\\0' x"), std::string(1'000'000, 'x'));
  EXPECT_EQ(outputOf("printf 'a\\0\\377b'"), std::string("a\0\377b", 4));
}

TEST_F(NSTaskTest, OutputOfNothingIsEmptyData) {
  EXPECT_EQ(outputOf("exit 3"), "");
  EXPECT_EQ(outputOf("no-such-command-anywhere 2>/dev/null"), "");
  EXPECT_TRUE(reports.empty());
}

TEST_F(NSTaskTest, OutputIsEmptyWhenTheProgramCannotBeStarted) {
  NSTask task = shell("");
  task.setLaunchPath("/no/such/program");
  task.launch();
  EXPECT_EQ(output(task), "");
  EXPECT_TRUE(reported("/no/such/program could not be started: No such file"));
}

TEST_F(NSTaskTest, OutputIsEmptyWhenNothingWasLaunched) {
  NSTask task = shell("echo late");
  EXPECT_EQ(output(task), "");
  task.launch();
  EXPECT_FALSE(reports.empty());
}

TEST_F(NSTaskTest, IsGivenUpWhenTheProgramIsToldToEnd) {
  // Like the event loop's: heard only by what runs when the wait is over.
  const auto wait = [] {
    std::signal(SIGTERM, [](int) {});
    outputOf("while kill -TERM $PPID; do sleep 0.1; done 2>/dev/null");
  };
  EXPECT_EXIT(wait(), testing::KilledBySignal(SIGTERM), "");
}

TEST_F(NSTaskTest, InputIsEmpty) { EXPECT_EQ(outputOf("cat; echo end"), "end\n"); }

TEST_F(NSTaskTest, LeavesNoDescriptorOpen) {
  putDatabase("/var/lib/dpkg", "phone-package");
  outputOf("exit 0");
  const auto before = openDescriptors();
  for (int times = 0; times < 5; ++times) outputOf("echo text");
  EXPECT_EQ(openDescriptors(), before);
}

TEST_F(NSTaskTest, RaisesWhatThePlatformDoes) {
  NSTask task = shell("exit 0");
  EXPECT_THROW(task.setArguments(NSArray::arrayWithObjects({platform::NSNumber::numberWithInt(1)})),
               desktop::Exception);
  task.launch();
  EXPECT_THROW(task.launch(), desktop::Exception);
}

TEST_F(NSTaskTest, NoneDoesNothing) {
  NSTask none;
  none.setLaunchPath("/bin/sh");
  none.setArguments(NSArray());
  none.setStandardOutput(NSPipe());
  none.launch();
  EXPECT_FALSE(none.standardOutput().fileHandleForReading().readDataToEndOfFile());
}

TEST_F(NSTaskTest, StandsInTheJournalWithoutTheBytes) {
  phone->journal.start();
  outputOf("echo text");
  const std::vector<std::string> expected = {
      R"(NSTask init)",
      R"(NSTask setLaunchPath:"/bin/sh")",
      R"(NSPipe pipe)",
      R"(NSTask setStandardOutput:<NSPipe>)",
      R"(NSTask launch)",
      R"(NSTask standardOutput)",
      R"(NSPipe fileHandleForReading)",
      R"(NSFileHandle readDataToEndOfFile)",
  };
  std::vector<std::string> lines = phone->journal.lines();
  std::erase(lines, R"(NSTask setArguments:("-c", "echo text"))");
  EXPECT_EQ(lines, expected);
  EXPECT_EQ(desktop::debugDescription(desktop::box(plist::Value::data("abc"))),
            "<NSData of 3 bytes>");
}

class PackageList : public NSTaskTest, public testing::WithParamInterface<const char*> {};

TEST_P(PackageList, IsThePhonesOwn) {
  putDatabase(GetParam(), "phone-package");
  const std::string before = portrait(host(GetParam())) + portrait(host(GetParam()) / "status");
  const std::string list = outputOf("dpkg -l");
  EXPECT_NE(list.find("phone-package"), std::string::npos) << list;
  EXPECT_NE(list.find("1.2.3"), std::string::npos) << list;
  EXPECT_EQ(list.find("dpkg "), std::string::npos) << "this computer's packages: " << list;
  EXPECT_EQ(portrait(host(GetParam())) + portrait(host(GetParam()) / "status"), before);
}

INSTANTIATE_TEST_SUITE_P(Databases, PackageList,
                         testing::Values("/var/lib/dpkg", "/Library/dpkg", "/var/jb/var/lib/dpkg",
                                         "/var/jb/Library/dpkg"),
                         [](const auto& test) { return std::to_string(test.index); });

TEST_F(PackageList, IsFoundBehindALinkThatLeadsThereOnThePhone) {
  putDatabase("/private/packages", "phone-package");
  fs::create_directories(host("/Library"));
  fs::create_symlink("/private/packages", host("/Library/dpkg"));
  EXPECT_NE(outputOf("dpkg -l").find("phone-package"), std::string::npos);
}

TEST_F(PackageList, IsTheFirstThatHoldsAStatusFile) {
  fs::create_directories(host("/var/lib/dpkg"));
  putDatabase("/Library/dpkg", "first");
  putDatabase("/var/jb/Library/dpkg", "second");
  const std::string list = outputOf("dpkg -l");
  EXPECT_NE(list.find("first"), std::string::npos) << list;
  EXPECT_EQ(list.find("second"), std::string::npos) << list;
}

TEST_F(PackageList, IsThisComputersWhenThePhoneHasNone) {
  EXPECT_EQ(outputOf("echo \"$DPKG_ADMINDIR\""), "\n");
  EXPECT_NE(outputOf("dpkg -l").find("libc6"), std::string::npos);
}

TEST_F(PackageList, IsEmptyWithoutAPackageManager) {
  EXPECT_EQ(outputOf("PATH=/no/such/folder; dpkg -l 2>/dev/null"), "");
}

}  // namespace
}  // namespace desktop_tests
