#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

namespace {

/// An event of the platform's has a pool of its own; so has a test here.
class Pool : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override { pool_ = [NSAutoreleasePool new]; }
  void OnTestEnd(const testing::TestInfo&) override { [pool_ release]; }

  NSAutoreleasePool* pool_ = nil;
};

}  // namespace

int main(int count, char** arguments) {
  NSAutoreleasePool* pool = [NSAutoreleasePool new];
  testing::InitGoogleTest(&count, arguments);
  testing::UnitTest::GetInstance()->listeners().Append(new Pool);
  const int result = RUN_ALL_TESTS();
  [pool release];
  return result;
}
