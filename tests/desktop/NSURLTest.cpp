#include <gtest/gtest.h>

#include "desktop/Body.h"
#include "platform/Foundation/NSURL.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using platform::NSString;
using platform::NSURL;

class NSURLTest : public PhoneTest {};

TEST_F(NSURLTest, KeepsAnAddressAsItIs) {
  for (const char* text :
       {"prefs:root=Quillmere", "https://example.com/a%20b?c=d&e#f", "http://[::1]:8080/", "a/b:c",
        "mailto:jo@example.com", "#", "//host", "a+b-c.1:x", "%C3%A9"}) {
    const NSURL url = NSURL::URLWithString(text);
    ASSERT_TRUE(url) << text;
    EXPECT_EQ(desktop::description(url), text);
  }
}

TEST_F(NSURLTest, IsNoneForWhatIsNoAddress) {
  for (const char* text :
       {"",    " ",   "a b",         "prefs:root=a b", "é",  "a\nb", "<a>", "a\"b", "%",
        "%4",  "%zz", "a#b#c",       "1a:b",           ":a", "a[b]", "a|b", "a\\b", "a^b",
        "a`b", "{a}", "http://h/[x]"}) {
    EXPECT_FALSE(NSURL::URLWithString(text)) << text;
  }
  EXPECT_FALSE(NSURL::URLWithString(NSString()));
}

TEST_F(NSURLTest, EqualsTheSameAddress) {
  EXPECT_TRUE(NSURL::URLWithString("a:b").isEqual(NSURL::URLWithString("a:b")));
  EXPECT_FALSE(NSURL::URLWithString("a:b").isEqual(NSURL::URLWithString("a:c")));
  EXPECT_FALSE(NSURL::URLWithString("a:b").isEqual(NSString("a:b")));
}

}  // namespace
}  // namespace desktop_tests
