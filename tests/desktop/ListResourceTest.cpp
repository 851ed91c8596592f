#include <gtest/gtest.h>

#include "desktop/Preferences/ListResource.h"
#include "tests/desktop/PageTest.h"

namespace desktop_tests {
namespace {

using desktop::ActionCell;
using desktop::SegmentCell;
using desktop::SwitchCell;
using plist::Value;

constexpr const char* bundleFolder = "/Library/PreferenceBundles/Quillmere.bundle";

class ListResourceTest : public PageTest {
 protected:
  ListResourceTest() {
    phone->bundle = bundleFolder;
    std::filesystem::create_directories(host(bundleFolder));
  }

  /// Makes the page show a list resource with these items, in XML.
  const std::vector<desktop::Section>& show(const std::string& items) {
    writeBytes(host(bundleFolder) / "List.plist",
               "<plist><dict><key>title</key><string>Title</string><key>items</key><array>" +
                   items + "</array></dict></plist>");
    page().load("List");
    sections = desktop::drawList(page().rows);
    return sections;
  }

  template <class Cell>
  Cell& only() {
    return std::get<Cell>(sections.at(0).cells.at(0));
  }

  static std::string entry(const std::string& key, const std::string& text) {
    return "<key>" + key + "</key><string>" + text + "</string>";
  }
  static std::string row(const std::string& entries) { return "<dict>" + entries + "</dict>"; }

  std::vector<desktop::Section> sections;
};

TEST_F(ListResourceTest, GivesThePageItsTitle) {
  show("");
  EXPECT_EQ(desktop::titleOf(page()), "Title");
  EXPECT_EQ(sections.size(), 0U);
}

TEST_F(ListResourceTest, GroupsBecomeSections) {
  show(row(entry("cell", "PSGroupCell") + entry("label", "First") + entry("footerText", "Foot")) +
       row(entry("cell", "PSButtonCell")) + row(entry("cell", "PSGroupCell")));
  ASSERT_EQ(sections.size(), 2U);
  EXPECT_EQ(sections[0].title, "First");
  EXPECT_EQ(sections[0].footer, "Foot");
  EXPECT_EQ(sections[0].cells.size(), 1U);
  EXPECT_EQ(sections[1].title, "");
  EXPECT_EQ(sections[1].footer, std::nullopt);
}

TEST_F(ListResourceTest, RowsBeforeAnyGroupStandInASectionWithoutATitle) {
  show(row(entry("cell", "PSButtonCell") + entry("label", "Button")));
  ASSERT_EQ(sections.size(), 1U);
  EXPECT_EQ(sections[0].title, "");
  EXPECT_EQ(only<ActionCell>().label(), "Button");
}

TEST_F(ListResourceTest, ARowWithAKeyReadsAndStoresByTheUsualNames) {
  page().values.insert_or_assign("k", Value(true));
  show(row(entry("cell", "PSSwitchCell") + entry("key", "k")));
  EXPECT_TRUE(only<SwitchCell>().isOn());
  only<SwitchCell>().toggle(false);
  EXPECT_EQ(page().written.back(), (std::pair<std::string, Value>("k", Value(false))));
}

TEST_F(ListResourceTest, ARowWithoutAKeyReadsAndStoresNothing) {
  show(row(entry("cell", "PSSwitchCell")));
  only<SwitchCell>().toggle(true);
  EXPECT_TRUE(page().written.empty());
  EXPECT_EQ(reports, std::vector<std::string>{});
}

TEST_F(ListResourceTest, ARowMayNameOtherMethods) {
  show(row(entry("cell", "PSSwitchCell") + entry("key", "k") + entry("get", "other:")));
  EXPECT_TRUE(reported("TestPage does not answer \"other:\""));
  show(row(entry("cell", "PSSwitchCell") + entry("key", "k") + entry("set", "another:")));
  only<SwitchCell>().toggle(true);
  EXPECT_TRUE(reported("TestPage does not answer \"another:\""));
  EXPECT_TRUE(page().written.empty());
}

TEST_F(ListResourceTest, OffersItsValidValuesByTheirTitles) {
  page().values.insert_or_assign("k", Value::string("b"));
  show(row(entry("cell", "PSSegmentCell") + entry("key", "k") +
           "<key>validValues</key><array><string>a</string><string>b</string></array>"
           "<key>validTitles</key><array><string>A</string><string>B</string></array>"));
  EXPECT_EQ(only<SegmentCell>().titles(), (std::vector<std::string>{"A", "B"}));
  EXPECT_EQ(only<SegmentCell>().selected(), 1U);
}

TEST_F(ListResourceTest, AnUnknownCellIsALineOfText) {
  for (const char* cell : {"PSNoSuchCell", "", "psswitchcell"}) {
    show(row(entry("cell", cell) + entry("label", "Line")));
    EXPECT_EQ(only<desktop::TextCell>().label(), "Line") << cell;
  }
}

TEST_F(ListResourceTest, AKnownCellClassDrawsTheRow) {
  show(row(entry("cell", "PSLinkCell") + entry("cellClass", "CSColorDisplayCell")));
  EXPECT_TRUE(std::holds_alternative<desktop::ColorCell>(sections[0].cells[0]));
}

TEST_F(ListResourceTest, AnUnknownCellClassLeavesTheRowToItsType) {
  show(row(entry("cell", "PSLinkCell") + entry("cellClass", "NoSuchCell")));
  EXPECT_TRUE(only<ActionCell>().isLink());
}

TEST_F(ListResourceTest, ACellClassThatIsNotInstalledLeavesTheRowToItsType) {
  phone->missingClasses.insert("CSColorDisplayCell");
  show(row(entry("cell", "PSLinkCell") + entry("cellClass", "CSColorDisplayCell")));
  EXPECT_TRUE(only<ActionCell>().isLink());
}

TEST_F(ListResourceTest, ARowCanBeDisabled) {
  show(row(entry("cell", "PSButtonCell") + "<key>enabled</key><false/>"));
  EXPECT_FALSE(only<ActionCell>().enabled());
}

TEST_F(ListResourceTest, WhatIsNoRowIsPassedOver) {
  show("<string>row</string><integer>1</integer>" + row(entry("cell", "PSButtonCell")));
  EXPECT_EQ(sections.at(0).cells.size(), 1U);
}

TEST_F(ListResourceTest, AMissingResourceIsReportedAndNone) {
  page().load("Missing");
  EXPECT_FALSE(page().rows);
  EXPECT_TRUE(reported("Missing.plist has no list of rows"));
}

TEST_F(ListResourceTest, AnUnreadableResourceIsReportedAndNone) {
  writeBytes(host(bundleFolder) / "Bad.plist", "no property list");
  page().load("Bad");
  EXPECT_FALSE(page().rows);
  EXPECT_TRUE(reported("Bad.plist cannot be read"));
}

TEST_F(ListResourceTest, AResourceWithoutItemsIsReportedAndNone) {
  writeBytes(host(bundleFolder) / "Bare.plist", "<plist><dict/></plist>");
  page().load("Bare");
  EXPECT_FALSE(page().rows);
  EXPECT_TRUE(reported("Bare.plist has no list of rows"));
}

}  // namespace
}  // namespace desktop_tests
