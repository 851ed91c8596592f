#include <fstream>
#include <gtest/gtest.h>

#include "plist/Document.h"
#include "settings/PhoneSetup.h"
#include "tests/plist/Allocation.h"
#include "tests/plist/OpenedPhone.h"
#include "tests/support/TemporaryFolder.h"

namespace plist_tests {
namespace {

/// A phone with so many animations, every other one of them enabled, under names too long to be
/// kept in place.
class ListedPhone {
 public:
  explicit ListedPhone(std::size_t animations) {
    settings::setUpPhone(desktop::PhoneFolder(folder_.path));
    plist::Array enabled;
    for (std::size_t i = 0; i < animations; ++i) {
      const std::string name = "An animation of some name, " + std::to_string(i);
      std::ofstream(folder_.path / "Library/Lotties/Quillmere" / (name + ".lottie"));
      if (i % 2 == 0) enabled.append(plist::Value::string(name));
    }
    plist::Dictionary settings;
    settings.set("enabledLotties", plist::Value(enabled));
    desktop::PhoneFolder(folder_.path)
        .replace(OpenedPhone::preferences, plist::writeBinary(plist::Value(settings)));
  }

  /// How often opening the list, and then a change of it, allocate memory.
  std::pair<std::size_t, std::size_t> allocations() {
    OpenedPhone phone(folder_.path);
    const std::size_t before = allocation::times();
    phone.openList();
    const std::size_t opened = allocation::times();
    phone.changeList();
    return {opened - before, allocation::times() - opened};
  }

 private:
  const support::TemporaryFolder folder_;
};

TEST(LongListTest, TakesBlocksOfMemoryAndNoneForEachName) {
  constexpr std::size_t few = 1'000;
  constexpr std::size_t many = 10'000;
  const auto [openedFew, changedFew] = ListedPhone(few).allocations();
  const auto [openedMany, changedMany] = ListedPhone(many).allocations();
  EXPECT_LT(openedMany, openedFew + (many - few) / 100);
  EXPECT_LT(changedMany, changedFew + (many - few) / 100);
  EXPECT_GT(openedFew, 0U);
  EXPECT_GT(changedFew, 0U);
}

}  // namespace
}  // namespace plist_tests
