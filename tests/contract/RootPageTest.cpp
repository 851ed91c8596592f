#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

#include "tests/contract/Rows.h"
#include "tests/support/Driver.h"

namespace {

using support::Driver;
using support::RowFacts;
using testing::ElementsAre;
using testing::IsSupersetOf;

support::RowFacts creditsRow(bool withCellClass) {
  expected::Properties properties;
  if (withCellClass) properties.emplace_back("cellClass", "OrvalenTripleCell");
  const expected::Properties rest = {
      {"height", "120"},
      {"twitterAccount", "\"orvalen\""},
      {"twitterLabel", "\"orvalen\""},
      {"redditAccount", "\"orvalen\""},
      {"redditLabel", "\"orvalen\""},
      {"designerAccount", "\"orvalendesign\""},
      {"designerLabel", "\"Orvalen Design\""},
      {"designerImageName", "\"Designer\""},
      {"tintColor", "\"f69240\""},
      {"bundlePath", "\"/Library/PreferenceBundles/Quillmere.bundle\""},
  };
  properties.insert(properties.end(), rest.begin(), rest.end());
  return expected::value("nil", 7, properties);
}

std::string property(const RowFacts& row, const std::string& key) {
  for (const auto& [name, value] : row.properties) {
    if (name == key) return value;
  }
  return "";
}

std::vector<std::string> properties(const std::vector<RowFacts>& rows, const std::string& key) {
  std::vector<std::string> values;
  for (const RowFacts& row : rows) values.push_back(property(row, key));
  return values;
}

TEST(RootPage, HasTheResourcesElevenRowsThenTheCredits) {
  Driver phone;
  const auto rows = phone.rows();
  ASSERT_EQ(rows.size(), 13U);
  EXPECT_EQ(rows[11], expected::group("", "• Follow me on social media."));
  EXPECT_EQ(rows[12], creditsRow(true));
  for (std::size_t i = 0; i < 11; ++i) EXPECT_NE(property(rows[i], "cell"), "") << i;
}

TEST(RootPage, CreditsStandBeforeFurtherRowsOfTheResource) {
  Driver phone;
  phone.putListResource(14);
  phone.reopen();
  const auto rows = phone.rows();
  ASSERT_EQ(rows.size(), 16U);
  EXPECT_EQ(rows[10].name, "\"Row 10\"");
  EXPECT_EQ(rows[11], expected::group("", "• Follow me on social media."));
  EXPECT_EQ(rows[12], creditsRow(true));
  EXPECT_EQ(rows[13].name, "\"Row 11\"");
}

TEST(RootPage, ResourceOfFewerThanElevenRowsRaisesARangeError) {
  Driver phone;
  phone.putListResource(10);
  EXPECT_THAT([&] { phone.reopen(); },
              testing::ThrowsMessage<std::exception>(testing::HasSubstr("NSRangeException")));
}

TEST(RootPage, CreditsGoWithoutACellClassWhenTheMakersLibraryIsMissing) {
  Driver phone;
  phone.withoutClass("OrvalenTripleCell");
  phone.reopen();
  EXPECT_EQ(phone.rows()[12], creditsRow(false));
}

TEST(RootPage, BindsEveryActionAndPage) {
  Driver phone;
  EXPECT_THAT(properties(phone.rows(), "action"),
              IsSupersetOf({"\"lottiesList\"", "\"respring\"", "\"resetPreferences\"",
                            "\"presentSupportMailController:\""}));
  EXPECT_THAT(properties(phone.rows(), "detail"),
              IsSupersetOf({"\"QMColorVC\"", "\"QMClockVC\"", "\"QMQuickActionsVC\""}));
}

TEST(RootPage, OpensAPageFromEachLink) {
  for (const char* label : {"Clock", "Quick Actions", "Color"}) {
    Driver phone;
    phone.tap(label);
    EXPECT_THAT(phone.titles(), ElementsAre("Quillmere", label));
  }
}

TEST(RootPage, BuildsItsRowsOnce) {
  Driver phone;
  EXPECT_TRUE(phone.listIsCached());
  EXPECT_EQ(phone.rows().size(), 13U);
  EXPECT_EQ(phone.rows().size(), 13U);
}

TEST(RootPage, LoadsTheResourceThenInsertsGroupAndCredits) {
  Driver phone;
  phone.reopen();
  const auto journal = phone.journal();
  const auto load =
      std::ranges::find(journal, "QMRoot loadSpecifiersFromPlistName:\"Root\" target:self");
  ASSERT_NE(load, journal.end());
  std::vector<std::string> inserted;
  std::copy_if(load, journal.end(), std::back_inserter(inserted), [](const std::string& line) {
    return line.starts_with("NSMutableArray") || line.starts_with("NSArray mutableCopy");
  });
  EXPECT_THAT(inserted, ElementsAre("NSArray mutableCopy",
                                    "NSMutableArray insertObject:<PSSpecifier \"\"> atIndex:11",
                                    "NSMutableArray insertObject:<PSSpecifier nil> atIndex:12",
                                    "NSMutableArray copy"));
}

}  // namespace
