#include <filesystem>

#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {
namespace {

using nlohmann::json;

class BannerTest : public PhoneScreenTest {
 protected:
  json banner() { return node(tree().at("window")["banner"]); }
};

TEST_F(BannerTest, IsThereWhenThereIsSomethingToSay) {
  EXPECT_EQ(banner(), nullptr);
  phone.banner = "It was not stored.";
  EXPECT_EQ(banner(), (json{{"kind", "banner"}, {"text", "It was not stored."}}));
}

TEST_F(BannerTest, GoesAwayByATapOnly) {
  phone.banner = "It was not stored.";
  tap(clockRow);
  EXPECT_NE(banner(), nullptr);
  tap("banner");
  EXPECT_EQ(banner(), nullptr);
}

TEST_F(BannerTest, IsTappedWhateverLiesOverThePages) {
  tap("page1.group1.row0");
  ASSERT_NE(overlay(), nullptr);
  phone.banner = "It was not stored.";
  tap("banner");
  EXPECT_EQ(banner(), nullptr);
  EXPECT_NE(overlay(), nullptr);
}

/// A phone whose preferences cannot be written.
class FailingStoreTest : public PhoneScreenTest {
 protected:
  FailingStoreTest() {
    phone.preferences.set("com.orvalen.quillmere", "clockDigitSize", plist::Value::real(80.0));
    phone.preferences.set("com.orvalen.quillmere", "enabledSwitch", plist::Value(true));
    std::filesystem::rename(host, host.string() + ".away");
  }
  const std::filesystem::path host = folder.path / "var/mobile/Library/Preferences";
};

TEST_F(FailingStoreTest, LeavesTheRowShowingWhatIsStored) {
  tap(clockRow);
  touch({{"kind", "slide"}, {"id", "page2.group2.row0"}, {"value", 120}});
  EXPECT_EQ(tree().at("page2.group2.row0")["value"], 75.0) << "which is the default";
}

TEST_F(FailingStoreTest, LeavesTheMasterSwitchShowingWhatIsStored) {
  const std::string knob = tree().at("page1")["trailing"];
  touch({{"kind", "toggle"}, {"id", knob}, {"on", false}, {"inside", true}});
  EXPECT_EQ(node(knob)["on"], true);
}

TEST_F(FailingStoreTest, LeavesTheListWhoseChangeWasNotStored) {
  tap(lottiesRow);
  std::string control;
  for (const auto& [id, shown] : tree()) {
    if (shown.value("kind", "") == "cell" && shown["section"] == 1) control = shown["control"];
  }
  tap(control);
  EXPECT_EQ(pages().pages().size(), 1U);
}

TEST(ReportTest, GoesToStandardErrorAndToTheBanner) {
  const support::TemporaryFolder folder;
  desktop::Phone phone(folder.path);
  testing::internal::CaptureStderr();
  phone.report("first");
  phone.report("It was not stored.");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "quillmere-settings: first\nquillmere-settings: It was not stored.\n");
  EXPECT_EQ(phone.banner, "It was not stored.");
}

}  // namespace
}  // namespace settings_tests
