#include <gtest/gtest.h>

#include "desktop/Preferences/SpecifierBody.h"
#include "tests/desktop/PageTest.h"

namespace desktop_tests {
namespace {

using desktop::ActionCell;
using plist::Value;

class ActionCellTest : public PageTest {
 protected:
  /// A row of the page as a list resource would give it.
  ActionCell row(const std::string& action, const std::string& detail) {
    Properties properties;
    if (!detail.empty()) properties.emplace_back("detail", Value::string(detail));
    auto specifier = makeRow(page(), platform::PSCellType::PSLinkCell, properties);
    auto& body = *desktop::bodyAs<desktop::SpecifierBody>(specifier);
    body.action = action;
    body.detail = platform::NSClassFromString(platform::NSString(detail));
    return ActionCell(specifier);
  }

  std::vector<std::string> titles() const {
    std::vector<std::string> titles;
    for (const auto& each : navigation.pages()) {
      titles.push_back(desktop::titleOf(*each.controller));
    }
    return titles;
  }
};

TEST_F(ActionCellTest, SendsItsActionWithTheRow) {
  row("act:", "").tap();
  EXPECT_EQ(page().acted, std::vector<std::string>{"Row"});
}

TEST_F(ActionCellTest, AnActionThatNobodyAnswersIsReportedAndDoesNothing) {
  row("fly", "").tap();
  EXPECT_EQ(reports, std::vector<std::string>{"TestPage does not answer \"fly\""});
  EXPECT_EQ(navigation.pages().size(), 1U);
}

TEST_F(ActionCellTest, OpensItsDetailPageUnderTheRowsLabel) {
  row("", "TestPage").tap();
  EXPECT_EQ(titles(), (std::vector<std::string>{"", "Row"}));
}

TEST_F(ActionCellTest, SendsItsActionAndOpensItsDetailPage) {
  row("act:", "TestPage").tap();
  EXPECT_EQ(page().acted.size(), 1U);
  EXPECT_EQ(navigation.pages().size(), 2U);
}

TEST_F(ActionCellTest, ADetailClassThatDoesNotExistIsReportedAndNotOpened) {
  row("", "NoSuchPage").tap();
  EXPECT_EQ(navigation.pages().size(), 1U);
  EXPECT_TRUE(reported("NoSuchPage"));
}

TEST_F(ActionCellTest, ADetailClassThatIsNoPageIsReportedAndNotOpened) {
  row("", "CSColorDisplayCell").tap();
  EXPECT_EQ(navigation.pages().size(), 1U);
  EXPECT_TRUE(reported("CSColorDisplayCell"));
}

TEST_F(ActionCellTest, APageThatRefusesToBeginIsNotOpened) {
  row("", "RefusingPage").tap();
  EXPECT_EQ(navigation.pages().size(), 1U);
}

TEST_F(ActionCellTest, ARowWithNeitherDoesNothing) {
  row("", "").tap();
  EXPECT_EQ(navigation.pages().size(), 1U);
  EXPECT_EQ(reports, std::vector<std::string>{});
}

class NavigationControllerTest : public PageTest {};

TEST_F(NavigationControllerTest, TheFirstPageStays) {
  navigation.pop();
  EXPECT_EQ(navigation.pages().size(), 1U);
}

TEST_F(NavigationControllerTest, NumbersAreNeverUsedTwice) {
  navigation.push(desktop::makeController("TestPage"));
  const unsigned first = navigation.top().number;
  navigation.pop();
  navigation.push(desktop::makeController("TestPage"));
  EXPECT_GT(navigation.top().number, first);
}

TEST_F(NavigationControllerTest, APageIsDrawnAnewWhenItIsUncovered) {
  auto switchRow =
      makeRow(page(), platform::PSCellType::PSSwitchCell, {{"key", Value::string("key")}});
  page().rows = platform::NSArray::arrayWithObjects({switchRow});
  navigation.push(desktop::makeController("TestPage"));
  page().values.insert_or_assign("key", Value(true));
  navigation.pop();
  ASSERT_EQ(navigation.top().sections.size(), 1U);
  EXPECT_TRUE(std::get<desktop::SwitchCell>(navigation.top().sections[0].cells[0]).isOn());
}

TEST(MakeController, IsNoneForAnUnknownClass) {
  EXPECT_EQ(desktop::makeController("NoSuchPage"), nullptr);
  EXPECT_EQ(desktop::makeController(""), nullptr);
}

}  // namespace
}  // namespace desktop_tests
