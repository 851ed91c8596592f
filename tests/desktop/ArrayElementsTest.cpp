#include <gtest/gtest.h>

#include "desktop/Foundation/Values.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSNumber.h"
#include "platform/Foundation/NSPredicate.h"
#include "platform/Foundation/NSString.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using platform::NSArray;
using platform::NSMutableArray;
using platform::NSNumber;
using platform::NSString;
using platform::Object;

/// Arrays that came from a property list, which are kept as they came, and what becomes of them.
class ArrayElementsTest : public PhoneTest {
 protected:
  static NSMutableArray stored(std::initializer_list<plist::Value> values) {
    plist::Array array;
    for (const plist::Value& value : values) array.append(value);
    return desktop::box(plist::Value(array)).as<NSArray>().mutableCopy();
  }

  const plist::Value a = plist::Value::string("a");
  const plist::Value b = plist::Value::string("b");
  const plist::Value one = plist::Value::integer(1);
};

TEST_F(ArrayElementsTest, AreObjectsOfEveryKind) {
  plist::Dictionary dictionary;
  dictionary.set("key", a);
  const NSMutableArray array =
      stored({a, one, plist::Value(plist::Array()), plist::Value(dictionary)});
  EXPECT_EQ(desktop::description(array), R"(("a", 1, (), {key = "a"}))");
  EXPECT_TRUE(NSString::isKind(array.objectAtIndex(0)));
  EXPECT_TRUE(NSArray::isKind(array.objectAtIndex(2)));
}

TEST_F(ArrayElementsTest, TakeStringsAndNumbersAmongThem) {
  NSMutableArray array = stored({a, b});
  array.insertObject(NSString("first"), 0);
  array.addObject(NSNumber::numberWithInt(2));
  array.replaceObjectAtIndex(1, NSString("A"));
  EXPECT_EQ(desktop::description(array), R"(("first", "A", "b", 2))");
}

TEST_F(ArrayElementsTest, TakeWhatNoPropertyListHolds) {
  for (const bool inserts : {true, false}) {
    NSMutableArray array = stored({a, b});
    const Object manager = platform::NSPredicate::predicateWithFormat("self ENDSWITH 'x'");
    if (inserts) {
      array.insertObject(manager, 1);
      array.removeObject(NSString("b"));
    } else {
      array.replaceObjectAtIndex(1, manager);
    }
    EXPECT_TRUE(array.objectAtIndex(1) == manager);
    EXPECT_TRUE(array.objectAtIndex(0).isEqual(NSString("a")));
    EXPECT_EQ(array.count(), 2U);
    EXPECT_ANY_THROW(desktop::unbox(array));
  }
}

TEST_F(ArrayElementsTest, HoldAnArrayThatChangesLater) {
  NSMutableArray array = stored({a});
  NSMutableArray inner = NSMutableArray::array();
  array.addObject(inner);
  inner.addObject(NSString("late"));
  EXPECT_EQ(desktop::description(array), R"(("a", ("late")))");
}

TEST_F(ArrayElementsTest, ChangeInOneArrayOnly) {
  NSMutableArray array = stored({a, b, a});
  const NSMutableArray copy = array.mutableCopy();
  const NSArray filtered = array.filteredArrayUsingPredicate(
      platform::NSPredicate::predicateWithFormat("self ENDSWITH ''"));
  array.removeObject(NSString("a"));
  EXPECT_EQ(desktop::description(array), R"(("b"))");
  EXPECT_EQ(desktop::description(copy), R"(("a", "b", "a"))");
  EXPECT_EQ(desktop::description(filtered), R"(("a", "b", "a"))");
}

TEST_F(ArrayElementsTest, AreRemovedWhicheverWayTheyAreKept) {
  const auto removed = [](NSMutableArray from, const NSArray& what) {
    from.removeObjectsInArray(what);
    return desktop::description(from);
  };
  const NSArray objects = NSArray::arrayWithObjects(
      {NSString("a"), NSNumber::numberWithBool(true), stored({a}), NSString("a")});
  const plist::Value inner = desktop::unbox(stored({a}));
  EXPECT_EQ(removed(stored({a, b, one, inner}), objects), R"(("b"))");
  EXPECT_EQ(removed(objects.mutableCopy(), stored({a, one})), R"((("a")))");
  EXPECT_EQ(removed(stored({a, b}), NSMutableArray::array()), R"(("a", "b"))");
  EXPECT_EQ(removed(stored({}), objects), "()");
}

TEST_F(ArrayElementsTest, AreEqualWhicheverWayTheyAreKept) {
  const NSArray objects =
      NSArray::arrayWithObjects({NSString("a"), NSNumber::numberWithBool(true)});
  EXPECT_TRUE(stored({a, one}).isEqual(objects));
  EXPECT_TRUE(objects.isEqual(stored({a, one})));
  EXPECT_FALSE(stored({a}).isEqual(objects));
  EXPECT_FALSE(stored({a, b}).isEqual(objects));
  EXPECT_EQ(desktop::unbox(objects.mutableCopy()).array()->size(), 2U);
}

}  // namespace
}  // namespace desktop_tests
