#include <gtest/gtest.h>

#include "device/Native.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSNumber.h"
#include "platform/Foundation/NSTask.h"
#include "platform/Foundation/NSURL.h"

/// What no page does, and the projection promises all the same; over Foundation itself.
namespace {

using platform::NSArray;
using platform::NSNumber;
using platform::NSString;
using platform::Object;

class Values : public testing::Test {
 protected:
  Values() : pool_([NSAutoreleasePool new]) {}
  ~Values() override { [pool_ release]; }

 private:
  NSAutoreleasePool* pool_;
};

TEST_F(Values, NoneAnswersNothing) {
  EXPECT_EQ(NSArray().count(), 0u);
  EXPECT_FALSE(NSArray().objectAtIndex(3));
  EXPECT_EQ(NSString().UTF8String(), "");
  EXPECT_FALSE(NSNumber().boolValue());
  EXPECT_FALSE(Object().isEqual(Object()));
  EXPECT_FALSE(NSString::isKind(Object()));
}

TEST_F(Values, ObjectWithoutATruthIsNotTrue) {
  EXPECT_FALSE(NSArray::arrayWithObjects({NSString("YES")}).as<NSNumber>().boolValue());
  EXPECT_TRUE(NSString("YES").as<NSNumber>().boolValue());
}

TEST_F(Values, FormatTakesItsArgumentsInOrder) {
  EXPECT_EQ(NSString::stringWithFormat("%@, %@ (%@)", {NSString("a"), Object(), NSString("c")})
                .UTF8String(),
            "a, (null) (c)");
}

TEST_F(Values, TextThatIsNotUtf8IsNone) { EXPECT_FALSE(NSString("\xff\xfe")); }

TEST_F(Values, CopiesShareTheObjectAndLetGoOfIt) {
  NSString text = "a text";
  const NSUInteger before = [device::native(text) retainCount];
  {
    const NSString copy = text;
    EXPECT_EQ([device::native(text) retainCount], before + 1);
    const NSString moved = std::move(text);
    EXPECT_EQ([device::native(moved) retainCount], before + 1);
    text = moved;
  }
  EXPECT_EQ([device::native(text) retainCount], before);
}

/// How often an object is retained by others than the handle.
NSUInteger retains(const Object& object) { return [device::object(object) retainCount] - 1; }

TEST_F(Values, MadeForTheCallerAreTheCallersAlone) {
  const auto array = NSArray::arrayWithObjects({NSString("a"), NSString("b")});
  EXPECT_EQ(retains(platform::NSMutableArray::initWithArray(array)), 0u);
  EXPECT_EQ(retains(array.mutableCopy()), 0u);
  EXPECT_EQ(retains(array.mutableCopy().copy()), 0u);
  EXPECT_EQ(retains(platform::NSMutableDictionary::init()), 0u);
  EXPECT_EQ(retains(platform::NSTask::init()), 0u);
  EXPECT_EQ(retains(NSString("a text that is made anew")), 0u);
}

TEST_F(Values, RaisesPastTheEnd) {
  ::NSString* raised = nil;
  @try {
    NSArray::arrayWithObjects({}).objectAtIndex(0);
  } @catch (NSException* exception) {
    raised = [exception name];
  }
  EXPECT_TRUE([raised isEqualToString:NSRangeException]);
}

}  // namespace
