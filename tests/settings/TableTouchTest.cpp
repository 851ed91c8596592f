#include "tests/settings/ListPage.h"

namespace settings_tests {
namespace {

using nlohmann::json;
using Changes = std::vector<std::string>;

class TableTouchTest : public ListPageTest {
 protected:
  TableTouchTest() { show({3, 2, 1}); }

  void tapControl(const std::string& row) { tap(rowId(row) + ".control"); }
  void tapConfirm(const std::string& row) { tap(rowId(row) + ".confirm"); }
  bool confirms(const std::string& name) { return !row(name)["confirm"].is_null(); }

  json drag(const std::string& row, const json& toSection, const json& toRow) {
    return {{"kind", "drag"}, {"id", rowId(row)}, {"section", toSection}, {"row", toRow}};
  }
  std::string tapRefusal(const std::string& id) {
    return refusal(json{{"kind", "tap"}, {"id", id}});
  }
};

TEST_F(TableTouchTest, AnInsertControlActsAtOnce) {
  tapControl("1.1");
  EXPECT_EQ(page->changes, Changes{"insert 1.1"});
  EXPECT_FALSE(confirms("1.1"));
}

TEST_F(TableTouchTest, ADeleteControlAwaitsItsConfirmation) {
  tapControl("0.2");
  EXPECT_EQ(page->changes, Changes{});
  EXPECT_EQ(row("0.2")["confirm"], rowId("0.2") + ".confirm");
  tapConfirm("0.2");
  EXPECT_EQ(page->changes, Changes{"delete 0.2"});
  EXPECT_FALSE(confirms("0.2"));
}

TEST_F(TableTouchTest, ATapOnARowDoesNothingElse) {
  const settings::Tree before = tree();
  for (const char* row : {"0.0", "0.2", "1.1", "2.0"}) tap(rowId(row));
  EXPECT_EQ(tree(), before);
  EXPECT_EQ(page->changes, Changes{});
}

TEST_F(TableTouchTest, ATapOnAnyRowTakesTheConfirmationBack) {
  for (const char* row : {"0.0", "0.1", "2.0"}) {
    tapControl("0.1");
    tap(rowId(row));
    EXPECT_FALSE(confirms("0.1")) << row;
  }
  EXPECT_NE(tapRefusal(rowId("0.1") + ".confirm"), "");
  EXPECT_EQ(page->changes, Changes{});
}

TEST_F(TableTouchTest, AnotherControlTakesTheConfirmationOver) {
  tapControl("0.1");
  tapControl("0.2");
  EXPECT_FALSE(confirms("0.1"));
  EXPECT_TRUE(confirms("0.2"));
  tapControl("1.0");
  EXPECT_FALSE(confirms("0.2"));
  EXPECT_EQ(page->changes, Changes{"insert 1.0"});
}

TEST_F(TableTouchTest, ADragMovesTheRowAndTakesTheConfirmationBack) {
  tapControl("0.1");
  touch(drag("0.0", 0, 2));
  EXPECT_EQ(page->changes, Changes{"move 0.0 0.2"});
  EXPECT_FALSE(confirms("0.1"));
}

TEST_F(TableTouchTest, ARowThatCannotBeMovedIsNotDragged) {
  EXPECT_EQ(refusal(drag("1.0", 0, 0)), rowId("1.0") + " cannot be moved");
  page->table.setEditing(false, platform::Animated::No);
  EXPECT_EQ(refusal(drag("0.0", 0, 1)), rowId("0.0") + " cannot be moved");
  EXPECT_EQ(page->changes, Changes{});
}

TEST_F(TableTouchTest, ADragToWhereNoRowStandsIsRefused) {
  EXPECT_EQ(refusal(drag("0.0", 0, 3)), "there is no such place");
  EXPECT_EQ(refusal(drag("0.0", 3, 0)), "there is no such place");
  EXPECT_EQ(refusal(drag("0.0", 0, ~std::uint64_t{0})), "there is no such place");
  for (const json& number : {json(-1), json(0.5), json(1e30), json("0"), json()}) {
    EXPECT_NE(refusal(drag("0.0", number, 0)), "") << number;
    EXPECT_NE(refusal(drag("0.0", 0, number)), "") << number;
  }
  EXPECT_EQ(page->changes, Changes{});
}

TEST_F(TableTouchTest, OnlyRowsAreDragged) {
  for (const std::string& id : {tableId(), rowId("0.0") + ".control", rowId("0.9"), rowId("")}) {
    EXPECT_EQ(refusal(json{{"kind", "drag"}, {"id", id}, {"section", 0}, {"row", 1}}),
              "there is no " + id + " on the screen");
  }
  EXPECT_EQ(page->changes, Changes{});
}

TEST_F(TableTouchTest, ButtonsThatARowDoesNotHaveAreRefused) {
  EXPECT_NE(tapRefusal(rowId("2.0") + ".control"), "");
  EXPECT_NE(tapRefusal(rowId("0.0") + ".confirm"), "");
  page->table.setEditing(false, platform::Animated::No);
  EXPECT_NE(tapRefusal(rowId("0.0") + ".control"), "");
  EXPECT_EQ(page->changes, Changes{});
}

TEST_F(TableTouchTest, IdsThatNoRowHasAreRefused) {
  for (const char* row : {"",
                          "0",
                          "0.",
                          ".0",
                          "0.3",
                          "3.0",
                          "-1.0",
                          "0.-1",
                          "+0.0",
                          "0.0 ",
                          " 0.0",
                          "0.00",
                          "00.0",
                          "0x0.0",
                          "0.0.0",
                          "0.0.",
                          "0.0control",
                          "0.0.control.",
                          "0.0.CONTROL",
                          "0.0.confirm",
                          "18446744073709551615.0",
                          "0.18446744073709551615",
                          "18446744073709551616.0",
                          "0.18446744073709551616",
                          "99999999999999999999999999999999.0",
                          "0.99999999999999999999999999999999"}) {
    EXPECT_NE(tapRefusal(rowId(row)), "") << row;
  }
  EXPECT_EQ(page->changes, Changes{});
}

TEST_F(TableTouchTest, AViewOverTheTableTakesItsTouches) {
  const std::string row = rowId("1.0");
  page->cover(platform::UIView::init());
  EXPECT_NE(tapRefusal(row + ".control"), "");
  EXPECT_NE(refusal(json{{"kind", "drag"}, {"id", row}, {"section", 0}, {"row", 1}}), "");
  EXPECT_EQ(page->changes, Changes{});
  tap("page2.back");
  EXPECT_EQ(tree().at("window")["children"], json({"page1"}));
}

}  // namespace
}  // namespace settings_tests
