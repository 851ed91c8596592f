#include <gtest/gtest.h>

#include "device/Native.h"
#include "device/Paths.h"

namespace {

/// The phone's path under this program's layout, the one below "/var/jb".
std::string resolved(const char* path) {
  @autoreleasepool {
    return [device::resolved(platform::NSString(path)) UTF8String];
  }
}

TEST(Paths, LieBelowThePrefix) {
  EXPECT_EQ(resolved("/Library/Lotties/Quillmere"), "/var/jb/Library/Lotties/Quillmere");
  EXPECT_EQ(resolved("/bin/sh"), "/var/jb/bin/sh");
  EXPECT_EQ(resolved("/var/mobile/Library/Preferences/a.plist"),
            "/var/jb/var/mobile/Library/Preferences/a.plist");
}

TEST(Paths, OfTheUserLieInTheUsersFolder) {
  EXPECT_EQ(resolved("/User/Library/Preferences/a.plist"),
            "/var/jb/var/mobile/Library/Preferences/a.plist");
  EXPECT_EQ(resolved("/User"), "/var/jb/var/mobile");
  EXPECT_EQ(resolved("/Users/someone"), "/var/jb/Users/someone");
}

TEST(Paths, OfTheSystemAreLeft) {
  EXPECT_EQ(resolved("/System/Library/PrivateFrameworks/OnBoardingKit.framework/OnBoardingKit"),
            "/System/Library/PrivateFrameworks/OnBoardingKit.framework/OnBoardingKit");
  EXPECT_EQ(resolved("/Systems"), "/var/jb/Systems");
}

TEST(Paths, ThatWereMovedBeforeAreLeft) {
  EXPECT_EQ(resolved("/var/jb/Library"), "/var/jb/Library");
}

TEST(Paths, OfNoneAreNil) { EXPECT_EQ(device::resolved(platform::NSString()), nil); }

}  // namespace
