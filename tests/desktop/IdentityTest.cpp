#include <gtest/gtest.h>

#include "desktop/Body.h"
#include "desktop/Identity.h"
#include "platform/Foundation/NSProcessInfo.h"
#include "platform/MobileGestalt/MGCopyAnswer.h"
#include "platform/dlfcn/dlopen.h"
#include "tests/desktop/BadFiles.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

namespace fs = std::filesystem;
using platform::MGCopyAnswer;
using platform::NSProcessInfo;

class IdentityTest : public PhoneTest {
 protected:
  IdentityTest() { fs::create_directories(versionFile.parent_path()); }

  void store(std::initializer_list<std::pair<const char*, plist::Value>> entries) {
    plist::Dictionary dictionary;
    for (const auto& [key, value] : entries) dictionary.set(key, value);
    writeBytes(versionFile, plist::write(plist::Value(dictionary), plist::Form::Xml).value());
    restart();
  }
  bool isAtLeast(long major, long minor, long patch) const {
    return NSProcessInfo::processInfo().isOperatingSystemAtLeastVersion({major, minor, patch});
  }

  const fs::path versionFile = host("/System/Library/CoreServices/SystemVersion.plist");
};

TEST_F(IdentityTest, IsWhatThePhonesFileSays) {
  store({{"ProductType", plist::Value::string("iPhone10,6")},
         {"ProductVersion", plist::Value::string("14.8.1")},
         {"ProductBuildVersion", plist::Value::string("18H107")}});
  EXPECT_EQ(MGCopyAnswer("ProductType").UTF8String(), "iPhone10,6");
  EXPECT_EQ(MGCopyAnswer("ProductVersion").UTF8String(), "14.8.1");
  EXPECT_EQ(MGCopyAnswer("BuildVersion").UTF8String(), "18H107");
}

TEST_F(IdentityTest, AnswersNoneToWhatItDoesNotKnow) {
  store({{"ProductVersion", plist::Value::integer(14)}});
  for (const char* each : {"ProductType", "ProductVersion", "BuildVersion", "SerialNumber", ""}) {
    EXPECT_FALSE(MGCopyAnswer(each)) << each;
  }
  EXPECT_FALSE(MGCopyAnswer(platform::NSString()));
}

TEST_F(IdentityTest, IsUnknownWithoutAReadableFile) {
  EXPECT_FALSE(desktop::readIdentity(phone->folder).productVersion);
  for (const BadFile& bad : badFiles()) {
    fs::remove_all(versionFile);
    bad.make(versionFile);
    EXPECT_FALSE(desktop::readIdentity(phone->folder).productVersion) << bad.name;
  }
}

TEST_F(IdentityTest, ComparesVersionsByTheirNumbers) {
  phone->identity.productVersion = "14.8.1";
  EXPECT_TRUE(isAtLeast(14, 8, 1));
  EXPECT_TRUE(isAtLeast(14, 8, 0));
  EXPECT_TRUE(isAtLeast(13, 9, 9));
  EXPECT_FALSE(isAtLeast(14, 8, 2));
  EXPECT_FALSE(isAtLeast(14, 10, 0));
  EXPECT_FALSE(isAtLeast(15, 0, 0));
}

TEST_F(IdentityTest, TakesPartsThatAreLeftOutAsZero) {
  phone->identity.productVersion = "15";
  EXPECT_TRUE(isAtLeast(15, 0, 0));
  EXPECT_FALSE(isAtLeast(15, 0, 1));
  phone->identity.productVersion = "15.2";
  EXPECT_TRUE(isAtLeast(15, 2, 0));
  EXPECT_FALSE(isAtLeast(15, 2, 1));
}

TEST_F(IdentityTest, CountsAnUnknownVersionAsTheNewest) {
  for (const char* each :
       {"", "x", "15.", ".1", "15.2b", "-1", "1.2.3.4", " 15", "99999999999999999999"}) {
    phone->identity.productVersion = each;
    EXPECT_TRUE(isAtLeast(99, 0, 0)) << each;
  }
  phone->identity.productVersion.reset();
  EXPECT_TRUE(isAtLeast(99, 0, 0));
  EXPECT_FALSE(NSProcessInfo().isOperatingSystemAtLeastVersion({1, 0, 0}));
}

TEST_F(IdentityTest, StandsInTheJournal) {
  phone->journal.start();
  isAtLeast(14, 0, 0);
  MGCopyAnswer("ProductType");
  platform::dlopen("/Library/Frameworks/Missing.framework/Missing", platform::DlopenMode::Global);
  const std::vector<std::string> expected = {
      "NSProcessInfo processInfo",
      "NSProcessInfo isOperatingSystemAtLeastVersion:14.0.0",
      "MobileGestalt MGCopyAnswer:\"ProductType\"",
      "dlfcn dlopen:\"/Library/Frameworks/Missing.framework/Missing\" mode:8",
  };
  EXPECT_EQ(phone->journal.lines(), expected);
  EXPECT_TRUE(reports.empty());
}

}  // namespace
}  // namespace desktop_tests
