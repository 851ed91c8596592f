#include <gmock/gmock.h>

#include "tests/contract/OpenedList.h"

namespace {

using support::CellFacts;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

class AnimationListCells : public OpenedList {
 protected:
  static constexpr const char* newCell =
      "UITableViewCell initWithStyle:0 reuseIdentifier:\"EnabledViewCell\"";

  /// What drawing the first enabled row asks of the platform, with `made` for a new cell.
  static Names drawing(const std::string& name, const Names& made) {
    Names lines = {"UITableView dequeueReusableCellWithIdentifier:\"EnabledViewCell\""};
    lines.insert(lines.end(), made.begin(), made.end());
    const Names rest = {"UITableViewCell textLabel", "NSMutableArray objectAtIndex:0",
                        "UILabel setText:\"" + name + '"', "UITableViewCell textLabel",
                        "UILabel setTextColor:UIColor(0.9647058823529412, 0.5725490196078431, "
                        "0.25098039215686274, 1)"};
    lines.insert(lines.end(), rest.begin(), rest.end());
    return lines;
  }
};

TEST_F(AnimationListCells, DrawsOtherSectionsRowsAsDisabledOnes) {
  open({"Rain.lottie"}, {"Snow"});
  EXPECT_EQ(phone.cell({2, 0}).text, "Rain");
  EXPECT_THAT(phone.journal(),
              Contains("UITableView dequeueReusableCellWithIdentifier:\"DisabledViewCell\""));
}

TEST_F(AnimationListCells, ShowsNamesInTheAccentColorInBothSections) {
  open({"Rain.lottie", "Fog.lottie"}, {"Snow", "Wind"});
  EXPECT_EQ(phone.cell({0, 0}), (CellFacts{"Snow", "#f69240ff"}));
  EXPECT_EQ(phone.cell({0, 1}), (CellFacts{"Wind", "#f69240ff"}));
  for (const std::size_t row : {0U, 1U}) {
    EXPECT_EQ(phone.cell({1, row}), (CellFacts{listed()[row], "#f69240ff"}));
  }
}

TEST_F(AnimationListCells, MakesACellWhenThereIsNoneToReuse) {
  open({}, {"Snow"});
  phone.cell({0, 0});
  EXPECT_EQ(phone.journal(), drawing("Snow", {newCell}));
}

TEST_F(AnimationListCells, FillsAReusedCellWithTextAndColor) {
  open({"Rain.lottie"}, {"Snow"});
  phone.list();
  phone.insert(0);
  phone.forget();
  EXPECT_EQ(phone.cell({0, 0}), (CellFacts{"Rain", "#f69240ff"}));
  EXPECT_EQ(phone.journal(), drawing("Rain", {}));
}

TEST_F(AnimationListCells, AsksOnlyForCellsThatComeIntoView) {
  open({"Rain.lottie"}, Names(500, "Snow"));
  phone.answersFor({0, 0});
  EXPECT_THAT(phone.journal(), Not(Contains(HasSubstr("dequeue"))));
  phone.cell({0, 3});
  phone.cell({0, 3});
  EXPECT_THAT(phone.journal(), Contains(HasSubstr("dequeue")).Times(1));
}

TEST_F(AnimationListCells, ReloadingAsksForNoCells) {
  open({"Rain.lottie"}, {"Snow"});
  phone.list();
  phone.forget();
  phone.remove(0);
  EXPECT_THAT(phone.journal(), Not(Contains(HasSubstr("dequeue"))));
}

}  // namespace
