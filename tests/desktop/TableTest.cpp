#include "tests/desktop/TableTest.h"

#include "desktop/Foundation/Values.h"

namespace desktop_tests {

using platform::NSIndexPath;
using Strings = std::vector<std::string>;
using Style = platform::UITableViewCellEditingStyle;

platform::UITableViewCell Rows::cellForRowAtIndexPath(Table table, const Path& path) {
  asked.push_back(text(path));
  const char* identifier = path.section == 0 ? "first" : "other";
  auto cell = table.dequeueReusableCellWithIdentifier(identifier);
  if (!cell) {
    ++made;
    cell = platform::UITableViewCell::initWithStyle(platform::UITableViewCellStyle::Default,
                                                    identifier);
  }
  cell.textLabel().setText(platform::NSString(text(path)));
  return cell;
}

std::string TableTest::labelOf(const NSIndexPath& row) {
  const auto label = desktop::bodyAs<desktop::TableCellBody>(body().cell(row))->textLabel;
  return desktop::textOf(desktop::bodyAs<desktop::LabelBody>(label)->text);
}

namespace {

TEST_F(TableTest, AsksForItsSectionsOnceUntilItIsLoadedAnew) {
  ASSERT_EQ(body().sections().size(), 2U);
  EXPECT_EQ(body().sections()[1].title, "Section 1");
  EXPECT_EQ(body().sections()[1].rows, 2U);
  EXPECT_EQ(rows.timesCounted, 1);
  rows.counts = {7};
  EXPECT_EQ(body().sections().size(), 2U);
  table.reloadData();
  ASSERT_EQ(body().sections().size(), 1U);
  EXPECT_EQ(body().sections()[0].rows, 7U);
  EXPECT_EQ(rows.timesCounted, 2);
}

TEST_F(TableTest, HoldsTheRowsOfItsSectionsAndNoOthers) {
  EXPECT_TRUE(body().contains({0, 2}));
  EXPECT_TRUE(body().contains({1, 1}));
  EXPECT_FALSE(body().contains({0, 3}));
  EXPECT_FALSE(body().contains({1, 2}));
  EXPECT_FALSE(body().contains({2, 0}));
}

TEST_F(TableTest, WithoutADataSourceHoldsNothing) {
  const auto empty = platform::UITableView::initWithFrame({}, platform::UITableViewStyle::Grouped);
  auto& alone = *desktop::bodyAs<desktop::TableBody>(empty);
  EXPECT_EQ(alone.sections().size(), 0U);
  EXPECT_FALSE(alone.contains({0, 0}));
}

TEST_F(TableTest, AsksForACellWhenItComesIntoViewAndOnce) {
  EXPECT_EQ(labelOf({0, 1}), "0.1");
  EXPECT_EQ(labelOf({0, 1}), "0.1");
  EXPECT_EQ(labelOf({1, 0}), "1.0");
  EXPECT_EQ(rows.asked, (Strings{"0.1", "1.0"}));
}

TEST_F(TableTest, CellsThatAReloadSetsFreeAreUsedAgainByIdentifier) {
  EXPECT_FALSE(table.dequeueReusableCellWithIdentifier("first"));
  labelOf({0, 0});
  labelOf({0, 1});
  labelOf({1, 0});
  EXPECT_EQ(rows.made, 3U);
  table.reloadData();
  EXPECT_EQ(labelOf({0, 2}), "0.2");
  EXPECT_EQ(labelOf({0, 0}), "0.0");
  EXPECT_EQ(labelOf({1, 1}), "1.1");
  EXPECT_EQ(rows.made, 3U);
  EXPECT_EQ(labelOf({1, 0}), "1.0");
  EXPECT_EQ(rows.made, 4U);
  EXPECT_FALSE(table.dequeueReusableCellWithIdentifier("unknown"));
}

TEST_F(TableTest, ACellInUseIsNotGivenToAnotherRow) {
  labelOf({0, 0});
  table.reloadData();
  labelOf({0, 0});
  labelOf({0, 1});
  EXPECT_EQ(labelOf({0, 0}), "0.0");
  EXPECT_EQ(labelOf({0, 1}), "0.1");
}

TEST_F(TableTest, GoingThroughALongListKeepsFewCells) {
  rows.counts = {20'000};
  for (std::size_t row = 0; row < 20'000; ++row) labelOf({0, row});
  EXPECT_EQ(rows.asked.size(), 20'000U);
  EXPECT_LE(rows.made, 1000U);
  EXPECT_EQ(labelOf({0, 0}), "0.0");
}

TEST_F(TableTest, InsertingHappensAtOnce) {
  body().tapControl({1, 1});
  EXPECT_EQ(rows.changes, Strings{"insert 1.1"});
  EXPECT_FALSE(body().confirming());
}

TEST_F(TableTest, DeletingAwaitsItsConfirmation) {
  body().confirm();
  body().tapControl({0, 1});
  EXPECT_EQ(rows.changes, Strings{});
  EXPECT_EQ(body().confirming(), (NSIndexPath{0, 1}));
  body().confirm();
  body().confirm();
  EXPECT_EQ(rows.changes, Strings{"delete 0.1"});
}

TEST_F(TableTest, AConfirmationIsTakenBackByAnyOtherTouchAndByAReload) {
  const std::function<void()> touches[] = {
      [this] { body().cancelConfirmation(); }, [this] { body().tapControl({1, 0}); },
      [this] { body().drag({0, 1}, {0, 2}); }, [this] { body().drag({0, 0}, {0, 1}); },
      [this] { table.reloadData(); },
  };
  for (const auto& touch : touches) {
    body().tapControl({0, 1});
    touch();
    EXPECT_FALSE(body().confirming());
  }
}

TEST_F(TableTest, OffersNoControlWhereTheDataSourceRefusesOrNothingIsEdited) {
  EXPECT_EQ(body().editingStyle({0, 0}), Style::Delete);
  rows.canEdit = false;
  EXPECT_EQ(body().editingStyle({0, 0}), Style::None);
  rows.canEdit = true;
  table.setEditing(false, platform::Animated::No);
  EXPECT_EQ(body().editingStyle({0, 0}), Style::None);
  EXPECT_FALSE(body().isMovable({0, 1}));
  body().tapControl({0, 0});
  body().tapControl({1, 0});
  EXPECT_FALSE(body().confirming());
  EXPECT_EQ(rows.changes, Strings{});
}

TEST_F(TableTest, ADraggedRowLandsWhereTheDelegateSays) {
  body().drag({0, 1}, {0, 2});
  rows.landing = NSIndexPath{1, 0};
  body().drag({0, 1}, {0, 2});
  EXPECT_EQ(rows.changes, (Strings{"move 0.1 0.2", "move 0.1 1.0"}));
}

TEST_F(TableTest, ARowThatCannotBeMovedStays) {
  body().drag({0, 0}, {0, 2});
  EXPECT_EQ(rows.changes, Strings{});
}

TEST_F(TableTest, WithoutADelegateRowsAreDeletedAndLandWhereTheyAreLetGo) {
  auto alone = platform::UITableView::initWithFrame({}, platform::UITableViewStyle::Grouped);
  alone.setDataSource(rows);
  alone.setEditing(true, platform::Animated::No);
  auto& itself = *desktop::bodyAs<desktop::TableBody>(alone);
  EXPECT_EQ(itself.editingStyle({1, 0}), Style::Delete);
  itself.drag({0, 1}, {1, 0});
  EXPECT_EQ(rows.changes, Strings{"move 0.1 1.0"});
}

}  // namespace
}  // namespace desktop_tests
