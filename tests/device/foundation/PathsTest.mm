#include <gtest/gtest.h>

#include "device/Native.h"
#include "device/Paths.h"

namespace {

/// The phone's path under this program's layout, which keeps everything below a folder.
std::string resolved(const char* path) {
  @autoreleasepool {
    return [device::resolved(platform::NSString(path)) UTF8String];
  }
}

TEST(Paths, LieBelowThePrefix) {
  EXPECT_EQ(resolved("/Library/Lotties/Quillmere"), QUILLMERE_PREFIX "/Library/Lotties/Quillmere");
  EXPECT_EQ(resolved("/bin/sh"), QUILLMERE_PREFIX "/bin/sh");
  EXPECT_EQ(resolved("/var/mobile/Library/Preferences/a.plist"),
            QUILLMERE_PREFIX "/var/mobile/Library/Preferences/a.plist");
}

TEST(Paths, OfTheUserLieInTheUsersFolder) {
  EXPECT_EQ(resolved("/User/Library/Preferences/a.plist"),
            QUILLMERE_PREFIX "/var/mobile/Library/Preferences/a.plist");
  EXPECT_EQ(resolved("/User"), QUILLMERE_PREFIX "/var/mobile");
  EXPECT_EQ(resolved("/Users/someone"), QUILLMERE_PREFIX "/Users/someone");
}

TEST(Paths, OfTheSystemAreLeft) {
  EXPECT_EQ(resolved("/System/Library/PrivateFrameworks/OnBoardingKit.framework/OnBoardingKit"),
            "/System/Library/PrivateFrameworks/OnBoardingKit.framework/OnBoardingKit");
  EXPECT_EQ(resolved("/Systems"), QUILLMERE_PREFIX "/Systems");
}

TEST(Paths, ThatWereMovedBeforeAreLeft) {
  EXPECT_EQ(resolved(QUILLMERE_PREFIX "/Library"), QUILLMERE_PREFIX "/Library");
}

TEST(Paths, OfNoneAreNil) { EXPECT_EQ(device::resolved(platform::NSString()), nil); }

}  // namespace
