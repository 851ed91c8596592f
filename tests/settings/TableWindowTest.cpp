#include <limits>
#include <set>

#include "tests/settings/ListPage.h"

namespace settings_tests {
namespace {

using nlohmann::json;
using Labels = std::vector<std::string>;

constexpr auto most = std::numeric_limits<std::size_t>::max();

class TableWindowTest : public ListPageTest {
 protected:
  json window(const json& first, const json& count) {
    return {{"kind", "window"}, {"id", tableId()}, {"first", first}, {"count", count}};
  }
};

TEST_F(TableWindowTest, ShowsItsSectionsAndRows) {
  show({2, 1});
  EXPECT_EQ(
      table(),
      (json{{"kind", "table"},
            {"sections",
             {{{"title", "Section 0"}, {"count", 2}}, {{"title", "Section 1"}, {"count", 1}}}},
            {"rowHeight", 44},
            {"separator", ""},
            {"children", {rowId("0.0"), rowId("0.1"), rowId("1.0")}}}));
}

TEST_F(TableWindowTest, ShowsWhatEachRowOffers) {
  show({1, 1, 1});
  EXPECT_EQ(row("0.0"), (json{{"kind", "cell"},
                              {"section", 0},
                              {"row", 0},
                              {"label", "0.0"},
                              {"color", "#ffffffff"},
                              {"editing", "delete"},
                              {"control", rowId("0.0") + ".control"},
                              {"confirm", nullptr},
                              {"movable", true}}));
  EXPECT_EQ(row("1.0")["editing"], "insert");
  EXPECT_EQ(row("1.0")["movable"], false);
  EXPECT_EQ(row("2.0")["editing"], "none");
  EXPECT_EQ(row("2.0")["control"], nullptr);
}

TEST_F(TableWindowTest, OffersNothingUnlessItIsEdited) {
  show({1});
  page->table.setEditing(false, platform::Animated::No);
  EXPECT_EQ(row("0.0")["editing"], "none");
  EXPECT_EQ(row("0.0")["control"], nullptr);
  EXPECT_EQ(row("0.0")["movable"], false);
}

TEST_F(TableWindowTest, WithoutRowsIsEmpty) {
  show({});
  EXPECT_EQ(table()["sections"], json::array());
  EXPECT_EQ(table()["children"], json::array());
}

TEST_F(TableWindowTest, WindowsRunOverSections) {
  show({3, 0, 4});
  touch(window(2, 3));
  EXPECT_EQ(shown(), (Labels{"0.2", "2.0", "2.1"}));
  touch(window(3, 1));
  EXPECT_EQ(shown(), Labels{"2.0"});
  touch(window(0, 0));
  EXPECT_EQ(shown(), Labels{});
  touch(window(6, 200));
  EXPECT_EQ(shown(), Labels{"2.3"});
}

TEST_F(TableWindowTest, WindowsPastTheEndAreEmptyHoweverFar) {
  show({3, 4});
  for (const std::size_t first : {std::size_t{7}, most - 200, most - 1, most}) {
    touch(window(first, 200));
    EXPECT_EQ(shown(), Labels{}) << first;
    EXPECT_EQ(table()["sections"][1]["count"], 4);
  }
}

TEST_F(TableWindowTest, WindowsThatMakeNoSenseAreRefusedAndChangeNothing) {
  show({300});
  touch(window(5, 1));
  EXPECT_EQ(refusal(window(0, 201)), "these are too many rows");
  for (const json& number : {json(most), json(-1), json(1.5), json(1e30), json("1"), json()}) {
    EXPECT_NE(refusal(window(0, number)), "") << number;
  }
  for (const json& number : {json(-1), json(1.5), json(1e30), json("1"), json()}) {
    EXPECT_NE(refusal(window(number, 1)), "") << number;
  }
  json other = window(0, 1);
  for (const char* id : {"", "view0", "page2", "window"}) {
    other["id"] = id;
    EXPECT_EQ(refusal(other), std::string("there is no table ") + id + " on the screen");
  }
  EXPECT_EQ(shown(), Labels{"0.5"});
}

TEST_F(TableWindowTest, EachBrowserHasAWindowOfItsOwn) {
  show({100});
  settings::Viewport other;
  touch(other, window(50, 2));
  EXPECT_EQ(shown(other), (Labels{"0.50", "0.51"}));
  EXPECT_EQ(shown().size(), settings::Viewport::initialRows);
  EXPECT_EQ(shown().front(), "0.0");
}

TEST_F(TableWindowTest, AnotherTablesWindowSaysNothingOfThisOne) {
  show({100});
  touch(window(50, 2));
  pages().push(std::make_shared<ListPage>(std::vector<std::size_t>{60}));
  const settings::Tree now = tree();
  const auto children = now.at(now.at("page3")["children"][0])["children"];
  EXPECT_EQ(children.size(), settings::Viewport::initialRows);
}

TEST_F(TableWindowTest, ALongListCostsWhatIsInView) {
  show({60'000, 40'000});
  EXPECT_LT(tree().size(), 50U);
  EXPECT_EQ(std::set(page->asked.begin(), page->asked.end()).size(),
            settings::Viewport::initialRows);
  page->asked.clear();
  touch(window(59'999, 3));
  EXPECT_EQ(shown(), (Labels{"0.59999", "1.0", "1.1"}));
  EXPECT_EQ(page->asked, (Labels{"0.59999", "1.0", "1.1"}));
}

TEST_F(TableWindowTest, TouchesOfALongListAskForNoOtherRows) {
  show({60'000, 40'000});
  tree();
  page->asked.clear();
  tap(rowId("0.39") + ".control");
  touch({{"kind", "drag"}, {"id", rowId("0.0")}, {"section", 0}, {"row", 59'999}});
  tree();
  EXPECT_EQ(page->asked, Labels{});
  EXPECT_EQ(page->changes, Labels{"move 0.0 0.59999"});
}

}  // namespace
}  // namespace settings_tests
