#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/device/doubles/Service.h"
#include "tests/support/Driver.h"

namespace {

using testing::Each;

constexpr const char* domain = "com.orvalen.quillmere";

/// The service answers from memory and writes files when it likes; the pages read and write files.
class Service : public testing::Test {
 protected:
  support::Driver phone;
  Service() { doubles::synchronized.clear(); }
};

TEST_F(Service, IsAskedToAgreeWithTheFileBeforeItIsReadAndAfterItWasWritten) {
  phone.tap("Clock");
  doubles::synchronized.clear();
  phone.toggle("clockEnabled", false);
  // Before the file is read, and after the service was told.
  EXPECT_THAT(doubles::synchronized, testing::ElementsAre(domain, domain));
}

TEST_F(Service, IsAskedToAgreeAfterItWasCleared) {
  phone.tap("Reset All Settings");
  phone.answer("Confirm");
  EXPECT_THAT(doubles::synchronized, testing::Not(testing::IsEmpty()));
  EXPECT_THAT(doubles::synchronized, Each(domain));
}

TEST_F(Service, OfTheNewerCepheiIsNotAskedForATranslucentBar) {
  doubles::cepheiHasTranslucentBars = false;
  phone.reopen();
  doubles::cepheiHasTranslucentBars = true;
  EXPECT_THAT(phone.journal(), testing::Not(testing::Contains(testing::HasSubstr("Translucent"))));
  EXPECT_THAT(phone.journal(), testing::Contains(testing::HasSubstr("setLargeTitleStyle:2")));
}

}  // namespace
