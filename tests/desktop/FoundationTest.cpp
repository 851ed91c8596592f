#include <gtest/gtest.h>

#include "desktop/Exception.h"
#include "desktop/Foundation/Values.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSNumber.h"
#include "platform/Foundation/NSString.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using platform::NSArray;
using platform::NSMutableArray;
using platform::NSNumber;
using platform::NSString;
using platform::Object;

std::string formatted(const char* format, std::initializer_list<Object> arguments) {
  return NSString::stringWithFormat(format, arguments).UTF8String();
}

TEST(StringWithFormat, PutsTheArgumentsInOrder) {
  EXPECT_EQ(formatted("%@-%@", {NSString("a"), NSNumber::numberWithInt(-3)}), "a--3");
  EXPECT_EQ(formatted("/User/%@.plist", {NSString("x")}), "/User/x.plist");
}

TEST(StringWithFormat, ShowsNoneAsNull) {
  EXPECT_EQ(formatted("/Library/%@.plist", {Object()}), "/Library/(null).plist");
}

TEST(StringWithFormat, ShowsNullForArgumentsThatAreMissing) {
  EXPECT_EQ(formatted("%@%@", {NSString("a")}), "a(null)");
}

TEST(StringWithFormat, DoesNotFormatItsArgumentsAgain) {
  EXPECT_EQ(formatted("%@", {NSString("%@ 100%")}), "%@ 100%");
}

TEST(StringWithFormat, ShowsBooleansAsNumbers) {
  EXPECT_EQ(formatted("%@", {NSNumber::numberWithBool(true)}), "1");
}

TEST(StringWithFormat, LeavesTextWithoutPlaceholders) {
  EXPECT_EQ(formatted("", {}), "");
  EXPECT_EQ(formatted("100%", {NSString("a")}), "100%");
}

TEST(NSStringTest, TheEmptyTextIsAnObject) {
  EXPECT_TRUE(NSString(""));
  EXPECT_FALSE(NSString());
  EXPECT_EQ(NSString().UTF8String(), "");
}

class NSArrayTest : public PhoneTest {
 protected:
  const NSArray two = NSArray::arrayWithObjects({NSString("a"), NSString("b")});
};

TEST_F(NSArrayTest, HoldsTheVeryObjects) {
  const NSString object("a");
  EXPECT_TRUE(NSArray::arrayWithObjects({object, object}).objectAtIndex(1) == object);
}

TEST_F(NSArrayTest, RaisesOnAnObjectThatIsNone) {
  EXPECT_THROW(NSArray::arrayWithObjects({NSString("a"), Object()}), desktop::Exception);
  EXPECT_THROW(two.mutableCopy().addObject(Object()), desktop::Exception);
  EXPECT_THROW(two.mutableCopy().insertObject(Object(), 0), desktop::Exception);
}

TEST_F(NSArrayTest, RaisesPastTheEnd) {
  EXPECT_THROW(two.objectAtIndex(2), desktop::Exception);
  EXPECT_THROW(two.mutableCopy().insertObject(NSString("c"), 3), desktop::Exception);
  EXPECT_THROW(NSMutableArray::array().objectAtIndex(0), desktop::Exception);
}

TEST_F(NSArrayTest, InsertsBeforeAnIndexAndAtTheEnd) {
  NSMutableArray array = two.mutableCopy();
  array.insertObject(NSString("first"), 0);
  array.insertObject(NSString("last"), 3);
  EXPECT_EQ(desktop::description(array), R"(("first", "a", "b", "last"))");
}

TEST_F(NSArrayTest, AMutableCopyIsApartFromItsOrigin) {
  NSMutableArray copy = two.mutableCopy();
  copy.addObject(NSString("c"));
  EXPECT_EQ(two.count(), 2U);
  EXPECT_EQ(copy.count(), 3U);
}

TEST_F(NSArrayTest, ACopyNeverChanges) {
  NSMutableArray array = two.mutableCopy();
  const NSArray copy = array.copy();
  array.addObject(NSString("c"));
  EXPECT_EQ(copy.count(), 2U);
}

TEST_F(NSArrayTest, AHandleSharesItsObject) {
  NSMutableArray array = NSMutableArray::array();
  NSMutableArray other = array;
  other.addObject(NSString("a"));
  EXPECT_EQ(array.count(), 1U);
  EXPECT_TRUE(array == other);
}

TEST_F(NSArrayTest, NoneDoesNothingAndAnswersNothing) {
  NSMutableArray none;
  none.addObject(NSString("a"));
  none.addObject(Object());
  none.insertObject(NSString("a"), 7);
  EXPECT_EQ(none.count(), 0U);
  EXPECT_FALSE(none.objectAtIndex(7));
  EXPECT_FALSE(none.copy());
  EXPECT_FALSE(none.mutableCopy());
}

TEST_F(NSArrayTest, AMessageToAnObjectOfAnotherClassRaises) {
  EXPECT_THROW(NSString("text").as<NSArray>().count(), desktop::Exception);
}

}  // namespace
}  // namespace desktop_tests
