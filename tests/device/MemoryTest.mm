// GNUstep counts its objects unless this says otherwise.
#undef NDEBUG

#import <Foundation/Foundation.h>
#import <Foundation/NSDebug.h>
#include <gtest/gtest.h>
#include <string>

#include "tests/device/Owner.h"
#include "tests/device/doubles/Double.h"
#include "tests/device/doubles/Messages.h"
#include "tests/support/Driver.h"

namespace {

/// The controllers of that class that live.
int living(const char* className) { return GSDebugAllocationCount(objc_lookUpClass(className)); }

/// All objects of Foundation's and the doubles' that live. Those that the run time makes once for a
/// class, GNUstep does not count.
int livingInAll() {
  int count = 0;
  for (Class* known = GSDebugAllocationClassList(); *known; ++known) {
    count += GSDebugAllocationCount(*known);
  }
  return count;
}

/// Each touch is an event of its own, after which the platform lets go of what it handed out.
template <class Touch>
void event(Touch&& touch) {
  @autoreleasepool {
    touch();
  }
}

struct Page {
  const char* row;
  const char* className;
};

class Memory : public testing::TestWithParam<Page> {
 protected:
  static void SetUpTestSuite() { GSDebugAllocationActive(YES); }
  static void TearDownTestSuite() { GSDebugAllocationActive(NO); }
};

TEST_P(Memory, ControllerLeftByTheUserIsFreedWithAllItOwns) {
  const char* row = GetParam().row;
  const char* className = GetParam().className;
  support::Driver phone;
  phone.putAnimations({"Rain.lottie", "Snow.lottie"});
  // What the root page itself makes when it is seen first and again stays.
  event([&] { phone.tap(row); });
  event([&] { phone.back(); });
  const std::size_t before = doubles::count();
  const int livingBefore = livingInAll();

  event([&] { phone.tap(row); });
  std::function<bool()> lives;
  event([&] { lives = owner::watch(doubles::controllerOnTop()); });
  ASSERT_EQ(living(className), 1);
  ASSERT_TRUE(lives());
  EXPECT_GT(doubles::count(), before);

  event([&] { phone.back(); });
  EXPECT_EQ(living(className), 0);
  EXPECT_FALSE(lives());
  EXPECT_EQ(doubles::count(), before);
  EXPECT_EQ(livingInAll(), livingBefore);
}

INSTANTIATE_TEST_SUITE_P(Pages, Memory,
                         testing::Values(Page{"Clock", "QMClockVC"}, Page{"Color", "QMColorVC"},
                                         Page{"Quick Actions", "QMQuickActionsVC"},
                                         Page{"Lotties", "QMLottiesList"}),
                         [](const auto& info) { return std::string(info.param.className); });

TEST_F(Memory, RootPageIsFreedWithAllItOwnsWhenTheBundleIsOpenedAnew) {
  support::Driver phone;
  event([&] { phone.reopen(); });
  std::function<bool()> lives;
  event([&] { lives = owner::watch(doubles::controllerOnTop()); });
  const std::size_t before = doubles::count();
  const int livingBefore = livingInAll();
  event([&] { phone.reopen(); });
  EXPECT_FALSE(lives());
  EXPECT_EQ(living("QMRoot"), 1);
  EXPECT_EQ(doubles::count(), before);
  EXPECT_EQ(livingInAll(), livingBefore);
}

TEST_F(Memory, RefusedControllerIsFreed) {
  support::Driver phone;
  const int before = living("QMRoot");
  event([&] { EXPECT_FALSE(phone.initSucceeds("QMRoot", true)); });
  EXPECT_EQ(living("QMRoot"), before);
}

}  // namespace
