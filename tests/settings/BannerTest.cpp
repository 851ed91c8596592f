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
