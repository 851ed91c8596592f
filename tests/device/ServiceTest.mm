#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/device/doubles/Service.h"
#include "tests/support/Driver.h"

namespace {

using doubles::Synchronization;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::StartsWith;

/// Of the bundle's domain, as the user whose it is, when the journal had come so far.
auto synchronizedAfter(const std::string& line) {
  return AllOf(Field(&Synchronization::domain, "com.orvalen.quillmere"),
               Field(&Synchronization::user, "mobile"), Field(&Synchronization::isOfAnyHost, true),
               Field(&Synchronization::after, StartsWith(line)));
}

/// The service answers from memory and writes files when it likes; the pages read and write files.
class Service : public testing::Test {
 protected:
  support::Driver phone;
};

TEST_F(Service, IsAskedToAgreeWithTheFileBeforeItIsReadAndAfterItWasWritten) {
  phone.tap("Clock");
  phone.toggle("clockEnabled", false);
  phone.forget();
  doubles::synchronizations.clear();
  phone.toggle("clockEnabled", true);
  EXPECT_THAT(doubles::synchronizations,
              ElementsAre(synchronizedAfter("PSSpecifier propertyForKey:\"defaults\""),
                          synchronizedAfter("HBPreferences setObject:")));
  EXPECT_THAT(phone.journal(), testing::Contains(StartsWith("NSMutableDictionary initWith")));
}

TEST_F(Service, IsAskedToAgreeAfterItWasCleared) {
  phone.tap("Reset All Settings");
  doubles::synchronizations.clear();
  phone.answer("Confirm");
  EXPECT_THAT(doubles::synchronizations,
              ElementsAre(synchronizedAfter("HBPreferences removeAllObjects")));
}

TEST_F(Service, OfTheNewerCepheiIsNotAskedForATranslucentBar) {
  doubles::cepheiHasTranslucentBars = false;
  phone.reopen();
  doubles::cepheiHasTranslucentBars = true;
  EXPECT_THAT(phone.journal(), testing::Not(testing::Contains(testing::HasSubstr("Translucent"))));
  EXPECT_THAT(phone.journal(), testing::Contains(testing::HasSubstr("setLargeTitleStyle:2")));
}

}  // namespace
