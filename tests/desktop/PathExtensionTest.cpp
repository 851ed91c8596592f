#include <gtest/gtest.h>

#include "desktop/Exception.h"
#include "platform/Foundation/NSNumber.h"
#include "platform/Foundation/NSString.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using platform::NSString;

struct Path {
  const char* whole;
  const char* withoutExtension;
};

void PrintTo(const Path& path, std::ostream* out) { *out << '"' << path.whole << '"'; }

class PathExtension : public PhoneTest, public testing::WithParamInterface<Path> {};

TEST_P(PathExtension, IsDeletedWithItsDot) {
  EXPECT_EQ(NSString(GetParam().whole).stringByDeletingPathExtension().UTF8String(),
            GetParam().withoutExtension);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, PathExtension,
    testing::Values(Path{"a.b.lottie", "a.b"}, Path{".lottie", ".lottie"}, Path{"Clock", "Clock"},
                    Path{"Clock.", "Clock"}, Path{"", ""}, Path{"/", "/"}, Path{"//", "/"},
                    Path{"a..lottie", "a."}, Path{".a.lottie", ".a"},
                    Path{"/tmp/scratch.tiff", "/tmp/scratch"}, Path{"/tmp/", "/tmp"},
                    Path{"scratch.bundle/", "scratch"}, Path{"scratch.bundle//", "scratch"},
                    Path{"/a.b/c", "/a.b/c"}, Path{"/a.b/.c", "/a.b/.c"}, Path{"Ünï.cödé", "Ünï"},
                    Path{"Nice Buttons.lottie", "Nice Buttons"}));

TEST_F(PhoneTest, OnlyStringsHaveAPathExtension) {
  EXPECT_FALSE(NSString().stringByDeletingPathExtension());
  EXPECT_THROW(platform::NSNumber::numberWithInt(1).as<NSString>().stringByDeletingPathExtension(),
               desktop::Exception);
}

}  // namespace
}  // namespace desktop_tests
