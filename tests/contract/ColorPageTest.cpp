#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/contract/Rows.h"
#include "tests/support/Driver.h"

namespace {

using plist::Value;
using support::Driver;
using testing::ElementsAre;

struct ColorPage : testing::Test {
  ColorPage() { phone.tap("Color"); }
  Driver phone;
};

support::RowFacts modeRow() {
  auto row = expected::value(
      "\"Color Mode\"", 9,
      {{"defaults", "\"com.orvalen.quillmere\""}, {"default", "1"}, {"key", "\"colorMode\""}});
  row.values = "(1, 2)";
  row.titles = "(\"Default\", \"Custom Color\")";
  return row;
}

support::RowFacts tintRow(bool withCellClass) {
  expected::Properties properties;
  if (withCellClass) properties.emplace_back("cellClass", "CSColorDisplayCell");
  const expected::Properties rest = {
      {"defaults", "\"com.orvalen.quillmere\""},
      {"defaultsPath", "\"/Library/PreferenceBundles/Quillmere.bundle\""},
      {"fallback", "\"f69240\""},
      {"label", "\"Custom Color\""},
      {"showAlphaSlider", "YES"},
      {"key", "\"tintColor\""},
  };
  properties.insert(properties.end(), rest.begin(), rest.end());
  return expected::value("\"Custom Color\"", 1, properties);
}

TEST_F(ColorPage, HasItsFourRows) {
  using expected::group;
  EXPECT_THAT(phone.rows(),
              ElementsAre(group("Color", "• Default: Will use Lottie animation original colors."),
                          modeRow(), group("Custom Color"), tintRow(true)));
}

TEST(ColorPageWithoutTheColorLibrary, SetsNoCellClassAndStillOpens) {
  Driver phone;
  phone.withoutClass("CSColorDisplayCell");
  phone.tap("Color");
  EXPECT_EQ(phone.rows().back(), tintRow(false));
  EXPECT_EQ(phone.shown("tintColor"), "Custom Color");
}

TEST_F(ColorPage, ShowsItsDefaultsWhileNothingIsStored) {
  EXPECT_EQ(phone.shown("colorMode"), "Default");
  EXPECT_EQ(phone.shown("tintColor"), "#f69240ff");
}

TEST_F(ColorPage, SegmentsStoreTheIntegersOneAndTwo) {
  phone.select("colorMode", 1);
  EXPECT_EQ(*phone.file().find("colorMode"), Value::integer(2));
  phone.select("colorMode", 0);
  EXPECT_EQ(*phone.file().find("colorMode"), Value::integer(1));
}

TEST_F(ColorPage, OffersNoOtherMode) {
  phone.forget();
  phone.select("colorMode", 2);
  EXPECT_EQ(phone.fileBytes(), std::nullopt);
  EXPECT_EQ(phone.shown("colorMode"), "Default");
}

TEST_F(ColorPage, PickingAColorLeavesTheModeAlone) {
  phone.pick("tintColor", "#11223344");
  EXPECT_EQ(*phone.file().find("tintColor"), Value::string("44112233"));
  EXPECT_FALSE(phone.file().contains("colorMode"));
  EXPECT_EQ(phone.shown("colorMode"), "Default");
}

TEST_F(ColorPage, ShowsTheColorRowInBothModes) {
  phone.select("colorMode", 1);
  EXPECT_EQ(phone.shown("tintColor"), "#f69240ff");
  phone.select("colorMode", 0);
  EXPECT_EQ(phone.shown("tintColor"), "#f69240ff");
}

TEST_F(ColorPage, ColorGoesThroughThePagesOwnOperations) {
  phone.forget();
  phone.pick("tintColor", "#f6924080");
  EXPECT_THAT(phone.journal(),
              testing::Contains("HBPreferences setObject:\"80F69240\" forKey:\"tintColor\""));
  EXPECT_THAT(phone.notifications(), ElementsAre("com.orvalen.quillmere.prefs-changed"));
}

TEST_F(ColorPage, BuildsItsRowsOnce) { EXPECT_TRUE(phone.listIsCached()); }

}  // namespace
