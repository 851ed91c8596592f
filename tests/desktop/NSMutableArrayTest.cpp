#include <gtest/gtest.h>

#include "desktop/Exception.h"
#include "desktop/Foundation/Values.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSNumber.h"
#include "platform/Foundation/NSPredicate.h"
#include "platform/Foundation/NSString.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using platform::NSArray;
using platform::NSMutableArray;
using platform::NSNumber;
using platform::NSPredicate;
using platform::NSString;
using platform::Object;

class NSMutableArrayTest : public PhoneTest {
 protected:
  static NSMutableArray of(std::initializer_list<Object> objects) {
    return NSArray::arrayWithObjects(objects).mutableCopy();
  }
  /// The names from `first` on, each in an object of its own.
  static NSMutableArray names(int first, int count) {
    plist::Array array;
    for (int number = first; number < first + count; ++number) {
      array.append(plist::Value::string("name " + std::to_string(number)));
    }
    return desktop::box(plist::Value(array)).as<NSArray>().mutableCopy();
  }

  const NSMutableArray abc = of({NSString("a"), NSString("b"), NSString("c")});
};

TEST_F(NSMutableArrayTest, BeginsWithTheObjectsOfAnother) {
  NSMutableArray array = NSMutableArray::initWithArray(abc);
  array.addObject(NSString("d"));
  EXPECT_EQ(array.count(), 4U);
  EXPECT_EQ(abc.count(), 3U);
  EXPECT_EQ(NSMutableArray::initWithArray(NSArray()).count(), 0U);
  EXPECT_THROW(NSMutableArray::initWithArray(NSString("a").as<NSArray>()), desktop::Exception);
}

TEST_F(NSMutableArrayTest, ReplacesAnObjectInItsPlace) {
  NSMutableArray array = abc;
  array.replaceObjectAtIndex(1, NSString("B"));
  EXPECT_EQ(desktop::description(array), R"(("a", "B", "c"))");
  EXPECT_THROW(array.replaceObjectAtIndex(3, NSString("d")), desktop::Exception);
  EXPECT_THROW(array.replaceObjectAtIndex(0, Object()), desktop::Exception);
  EXPECT_EQ(desktop::description(array), R"(("a", "B", "c"))");
}

TEST_F(NSMutableArrayTest, RemovesEveryEqualObject) {
  NSMutableArray array = of({NSString("a"), NSString("b"), NSString("a")});
  array.removeObject(NSString("a"));
  array.removeObject(NSString("missing"));
  EXPECT_EQ(desktop::description(array), R"(("b"))");
  EXPECT_THROW(array.removeObject(Object()), desktop::Exception);
}

TEST_F(NSMutableArrayTest, RemovesNumbersByTheirValueAndNoTextThatLooksLikeThem) {
  NSMutableArray array =
      of({NSNumber::numberWithBool(true), NSString("1"), NSNumber::numberWithInt(2)});
  array.removeObjectsInArray(of({NSNumber::numberWithInt(1), NSString("2")}));
  EXPECT_EQ(desktop::description(array), R"(("1", 2))");
}

TEST_F(NSMutableArrayTest, RemovesArraysByTheirContents) {
  NSMutableArray array = of({of({NSString("a")}), of({NSString("b")})});
  array.removeObjectsInArray(of({of({NSString("a")})}));
  EXPECT_EQ(desktop::description(array), R"((("b")))");
}

TEST_F(NSMutableArrayTest, RemovesItsOwnObjects) {
  NSMutableArray array = abc;
  array.removeObjectsInArray(array);
  EXPECT_EQ(array.count(), 0U);
}

TEST_F(NSMutableArrayTest, RemovesNothingForNone) {
  NSMutableArray array = abc;
  array.removeObjectsInArray(NSArray());
  EXPECT_EQ(array.count(), 3U);
  NSMutableArray().removeObjectsInArray(array);
  NSMutableArray().removeObject(Object());
  NSMutableArray().replaceObjectAtIndex(0, Object());
}

TEST_F(NSMutableArrayTest, RemovesManyNamesAtOnce) {
  constexpr int count = 100'000;
  NSMutableArray array = names(0, count);
  const NSArray removed = names(1, count - 2).copy();
  array.removeObjectsInArray(removed);
  // Comparing each with each takes minutes.
  EXPECT_EQ(desktop::description(array), R"(("name 0", "name 99999"))");
}

TEST_F(NSMutableArrayTest, IsShortInTheJournalAndInExceptionsHoweverLong) {
  const NSArray array = names(0, 100'000);
  EXPECT_TRUE(desktop::description(array).ends_with("\"name 19\", … (100000))"));
  EXPECT_EQ(desktop::description(names(0, 20)).find("…"), std::string::npos);
  phone->journal.start();
  NSMutableArray::initWithArray(array);
  ASSERT_EQ(phone->journal.lines().size(), 1U);
  EXPECT_LT(phone->journal.lines()[0].size(), 400U);
}

TEST_F(NSMutableArrayTest, AnswersWhatItIs) {
  EXPECT_TRUE(NSArray::isKind(abc));
  EXPECT_TRUE(NSArray::isKind(abc.copy()));
  EXPECT_FALSE(NSArray::isKind(NSString("a")));
  EXPECT_FALSE(NSArray::isKind(Object()));
  EXPECT_TRUE(NSString::isKind(NSString("")));
  EXPECT_FALSE(NSString::isKind(NSNumber::numberWithInt(1)));
  EXPECT_FALSE(NSString::isKind(abc));
}

TEST_F(NSMutableArrayTest, IsFilteredIntoANewArray) {
  const NSArray files = of({NSString("a.txt"), NSString("b.lottie"), NSString("c.lottie")});
  const NSPredicate isAnimation = NSPredicate::predicateWithFormat("self ENDSWITH '.lottie'");
  EXPECT_EQ(desktop::description(files.filteredArrayUsingPredicate(isAnimation)),
            R"(("b.lottie", "c.lottie"))");
  EXPECT_EQ(files.count(), 3U);
  EXPECT_FALSE(NSArray().filteredArrayUsingPredicate(isAnimation));
  EXPECT_THROW(files.filteredArrayUsingPredicate(NSPredicate()), desktop::Exception);
}

TEST_F(NSMutableArrayTest, StandsInTheJournalWithTheRealSelectors) {
  phone->journal.start();
  NSMutableArray array = NSMutableArray::initWithArray(abc);
  array.replaceObjectAtIndex(0, NSString("b"));
  array.removeObject(NSString("c"));
  array.removeObjectsInArray(of({NSString("b")}));
  platform::NSMutableDictionary::init();
  const std::vector<std::string> expected = {
      R"(NSMutableArray initWithArray:("a", "b", "c"))",
      R"(NSMutableArray replaceObjectAtIndex:0 withObject:"b")",
      R"(NSMutableArray removeObject:"c")",
      R"(NSArray mutableCopy)",
      R"(NSMutableArray removeObjectsInArray:("b"))",
      R"(NSMutableDictionary init)",
  };
  EXPECT_EQ(phone->journal.lines(), expected);
}

}  // namespace
}  // namespace desktop_tests
