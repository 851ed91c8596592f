#include <gmock/gmock.h>

#include "tests/contract/OpenedList.h"

namespace {

using support::ListPosition;
using testing::ElementsAre;
using testing::IsEmpty;

class AnimationListOrder : public OpenedList {
 protected:
  /// The list was neither stored nor loaded anew, and shows what it did.
  void expectNothingChanged(const Names& names) {
    EXPECT_EQ(phone.file(), before);
    EXPECT_THAT(phone.journal(),
                testing::Not(testing::Contains(testing::AnyOf(testing::HasSubstr("HBPreferences"),
                                                              testing::HasSubstr("writeToFile"),
                                                              "UITableView reloadData"))));
    EXPECT_EQ(enabled(), names);
  }
  void openWith(const Names& files, const Names& stored) {
    open(files, stored);
    before = phone.file();
  }

  /// These lines, then those of storing the list, then the table's reload.
  static Names savedAfter(Names lines, const std::string& names) {
    const Names saved = saving(names);
    lines.insert(lines.end(), saved.begin(), saved.end());
    lines.emplace_back("UITableView reloadData");
    return lines;
  }

  plist::Dictionary before;
};

TEST_F(AnimationListOrder, EnablingPutsTheLastDisabledOneFirst) {
  open({"Rain.lottie", "Snow.lottie"}, {"Wind"});
  const std::string last = disabled().back();
  phone.insert(1);
  EXPECT_THAT(enabled(), ElementsAre(last, "Wind"));
  EXPECT_EQ(phone.serviceValue(key), list({last, "Wind"}));
}

TEST_F(AnimationListOrder, DisablingPutsTheFirstEnabledOneLast) {
  open({"Rain.lottie"}, {"Snow", "Wind"});
  phone.remove(0);
  EXPECT_THAT(enabled(), ElementsAre("Wind"));
  EXPECT_THAT(disabled(), ElementsAre("Rain", "Snow"));
}

TEST_F(AnimationListOrder, EnabledAndDisabledAgainStandsAtTheEnd) {
  open({"a.lottie", "b.lottie", "c.lottie"}, Names());
  const Names first = disabled();
  phone.insert(0);
  phone.remove(0);
  EXPECT_THAT(disabled(), ElementsAre(first[1], first[2], first[0]));
}

TEST_F(AnimationListOrder, EnablingTakesTheNameThenPutsItFirstSavesAndReloads) {
  open({"Rain.lottie"}, {"Snow"});
  phone.commit(2, {1, 0});
  EXPECT_EQ(phone.journal(),
            savedAfter({"NSMutableArray objectAtIndex:0", "NSMutableArray removeObject:\"Rain\"",
                        "NSMutableArray insertObject:\"Rain\" atIndex:0"},
                       "(\"Rain\", \"Snow\")"));
}

TEST_F(AnimationListOrder, DisablingTakesTheNameThenPutsItLastSavesAndReloads) {
  open({"Rain.lottie"}, {"Snow"});
  phone.commit(1, {0, 0});
  EXPECT_EQ(phone.journal(),
            savedAfter({"NSMutableArray objectAtIndex:0", "NSMutableArray removeObject:\"Snow\"",
                        "NSMutableArray addObject:\"Snow\""},
                       "()"));
}

TEST_F(AnimationListOrder, MovingTakesTheNameThenPutsItThereSavesAndReloads) {
  open({}, {"Snow", "Wind"});
  phone.move({0, 0}, {0, 1});
  EXPECT_EQ(phone.journal(),
            savedAfter({"NSMutableArray objectAtIndex:0", "NSMutableArray removeObject:\"Snow\"",
                        "NSMutableArray count", "NSMutableArray insertObject:\"Snow\" atIndex:1"},
                       "(\"Wind\", \"Snow\")"));
}

TEST_F(AnimationListOrder, FirstRowMovesToTheEnd) {
  open({}, {"Rain", "Snow", "Wind"});
  phone.drag(0, 0, 0, 2);
  EXPECT_THAT(enabled(), ElementsAre("Snow", "Wind", "Rain"));
  EXPECT_EQ(phone.serviceValue(key), list({"Snow", "Wind", "Rain"}));
}

TEST_F(AnimationListOrder, LastRowMovesToTheFront) {
  open({}, {"Rain", "Snow", "Wind"});
  phone.drag(0, 2, 0, 0);
  EXPECT_THAT(enabled(), ElementsAre("Wind", "Rain", "Snow"));
}

TEST_F(AnimationListOrder, RowMovesByOnePlace) {
  open({}, {"Rain", "Snow", "Wind"});
  phone.drag(0, 1, 0, 2);
  EXPECT_THAT(enabled(), ElementsAre("Rain", "Wind", "Snow"));
}

TEST_F(AnimationListOrder, NameWithoutAFileIsMovedLikeAnyOther) {
  open({"Rain.lottie"}, {"Rain", "Gone"});
  phone.drag(0, 1, 0, 0);
  EXPECT_THAT(enabled(), ElementsAre("Gone", "Rain"));
}

TEST_F(AnimationListOrder, DropStaysWithinTheSection) {
  open({"Rain.lottie"}, {"Snow", "Wind"});
  EXPECT_EQ(phone.dropTarget({0, 0}, {0, 1}), (ListPosition{0, 1}));
  EXPECT_EQ(phone.dropTarget({0, 1}, {0, 1}), (ListPosition{0, 1}));
  EXPECT_EQ(phone.dropTarget({1, 0}, {1, 5}), (ListPosition{1, 5}));
}

TEST_F(AnimationListOrder, DropInAnotherSectionGoesBackToWhereItStarted) {
  open({"Rain.lottie"}, {"Snow", "Wind"});
  EXPECT_EQ(phone.dropTarget({0, 1}, {1, 0}), (ListPosition{0, 1}));
  EXPECT_EQ(phone.dropTarget({1, 0}, {0, 1}), (ListPosition{1, 0}));
  EXPECT_EQ(phone.dropTarget({0, 1}, {2, 0}), (ListPosition{0, 1}));
}

TEST_F(AnimationListOrder, DragIntoTheDisabledOnesChangesAndStoresNothing) {
  openWith({"Rain.lottie"}, {"Snow", "Wind"});
  phone.drag(0, 1, 1, 0);
  expectNothingChanged({"Snow", "Wind"});
  EXPECT_THAT(disabled(), ElementsAre("Rain"));
}

TEST_F(AnimationListOrder, DropWhereItStartedStoresNothing) {
  openWith({}, {"Snow", "Wind"});
  phone.drag(0, 1, 0, 1);
  expectNothingChanged({"Snow", "Wind"});
}

TEST_F(AnimationListOrder, DisabledRowsCannotBeDragged) {
  openWith({"Rain.lottie", "Hail.lottie"}, {"Snow", "Wind"});
  const Names names = disabled();
  phone.forget();
  phone.drag(1, 0, 1, 1);
  phone.drag(1, 0, 0, 0);
  expectNothingChanged({"Snow", "Wind"});
  EXPECT_EQ(disabled(), names);
}

TEST_F(AnimationListOrder, MovesFromOrToOtherSectionsDoNothing) {
  openWith({"Rain.lottie", "Hail.lottie"}, {"Snow", "Wind"});
  phone.move({1, 0}, {1, 1});
  phone.move({1, 0}, {0, 1});
  phone.move({0, 0}, {1, 1});
  phone.move({2, 0}, {0, 1});
  phone.move({0, 0}, {0, 0});
  EXPECT_THAT(phone.journal(), IsEmpty());
  expectNothingChanged({"Snow", "Wind"});
}

TEST_F(AnimationListOrder, DisablingADuplicateMovesOneAndDropsTheOthers) {
  open({"Rain.lottie"}, {"Snow", "Wind", "Snow", "Hail", "Snow"});
  phone.remove(2);
  EXPECT_THAT(enabled(), ElementsAre("Wind", "Hail"));
  EXPECT_THAT(disabled(), ElementsAre("Rain", "Snow"));
  EXPECT_EQ(phone.serviceValue(key), list({"Wind", "Hail"}));
}

TEST_F(AnimationListOrder, MovingADuplicateKeepsOne) {
  open({}, {"Snow", "Wind", "Snow", "Hail"});
  phone.drag(0, 2, 0, 1);
  EXPECT_THAT(enabled(), ElementsAre("Wind", "Snow", "Hail"));
}

TEST_F(AnimationListOrder, MovingADuplicatePastTheShortenedListPutsItLast) {
  open({}, {"Snow", "Wind", "Snow", "Snow"});
  phone.drag(0, 0, 0, 3);
  EXPECT_THAT(enabled(), ElementsAre("Wind", "Snow"));
  EXPECT_EQ(phone.serviceValue(key), list({"Wind", "Snow"}));
  EXPECT_THAT(phone.reports(), IsEmpty());
}

TEST_F(AnimationListOrder, EachChangeIsStoredAtOnce) {
  open({"Rain.lottie"}, {"Snow", "Wind"});
  phone.insert(0);
  EXPECT_EQ(phone.file(), fileWith(list({"Rain", "Snow", "Wind"})));
  phone.drag(0, 0, 0, 1);
  EXPECT_EQ(phone.file(), fileWith(list({"Snow", "Rain", "Wind"})));
  phone.remove(2);
  EXPECT_EQ(phone.file(), fileWith(list({"Snow", "Rain"})));
}

}  // namespace
