#import <UIKit/UIKit.h>
#include <gtest/gtest.h>
#include <initializer_list>

#include "tests/device/doubles/Messages.h"
#include "tests/support/Driver.h"

namespace {

/// Each is read, and answers what it is set to.
void expectProperties(std::initializer_list<NSString*> names, id other) {
  UIViewController* controller = doubles::controllerOnTop();
  for (NSString* name : names) {
    id before = [controller valueForKey:name];
    [controller setValue:other forKey:name];
    EXPECT_EQ([controller valueForKey:name], other) << [name UTF8String];
    [controller setValue:before forKey:name];
    EXPECT_EQ([controller valueForKey:name], before) << [name UTF8String];
  }
}

TEST(Properties, OfTheRootPageAreReadAndSet) {
  const support::Driver phone;
  expectProperties({@"titleLabel", @"iconView", @"enableSwitch"}, @"another");
}

TEST(Properties, OfTheAnimationListAreReadAndSet) {
  support::Driver phone;
  phone.tap("Lotties");
  expectProperties({@"allViews", @"defaultViews", @"enabledViews", @"disabledViews", @"tableView",
                    @"editButton", @"appName"},
                   @"another");
}

}  // namespace
