#include <gtest/gtest.h>
#include <system_error>
#include <thread>

#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using std::chrono::milliseconds;

/// The same folder, as another program has it.
class PhoneFolderHold : public PhoneTest {
 protected:
  const desktop::PhoneFolder other{host("/")};

  void expectHeld() const {
    try {
      other.hold(milliseconds(10));
      ADD_FAILURE() << "nobody holds the folder";
    } catch (const std::system_error& failure) {
      EXPECT_EQ(failure.code(), std::errc::operation_would_block);
    }
  }
};

TEST_F(PhoneFolderHold, KeepsAnotherProgramWaiting) {
  const desktop::Descriptor held = phone->folder.hold(milliseconds(10));
  expectHeld();
}

TEST_F(PhoneFolderHold, EndsWithItsOwner) {
  { const desktop::Descriptor held = phone->folder.hold(milliseconds(10)); }
  EXPECT_NO_THROW(other.hold(milliseconds(10)));
}

TEST_F(PhoneFolderHold, IsHadAsSoonAsTheOtherLetsGo) {
  std::optional held(phone->folder.hold(milliseconds(10)));
  std::thread later([&] {
    std::this_thread::sleep_for(milliseconds(20));
    held.reset();
  });
  EXPECT_NO_THROW(other.hold(milliseconds(60'000)));
  later.join();
}

TEST_F(PhoneFolderHold, LeavesReadingAndReplacingToWhoHoldsIt) {
  const desktop::Descriptor held = phone->folder.hold(milliseconds(10));
  phone->folder.replace(path, "written");
  EXPECT_EQ(phone->folder.read(path), "written");
  phone->folder.sweep("/var/mobile/Library/Preferences");
  expectHeld();
}

}  // namespace
}  // namespace desktop_tests
