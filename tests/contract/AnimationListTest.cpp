#include <gmock/gmock.h>

#include "tests/contract/OpenedList.h"

namespace {

using support::ListAnswers;
using support::ListSection;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class AnimationList : public OpenedList {
 protected:
  static constexpr long none = 0;
  static constexpr long deletion = 1;
  static constexpr long insertion = 2;
};

TEST_F(AnimationList, OpensOnTopOfTheRootPage) {
  open({});
  EXPECT_THAT(phone.titles(), ElementsAre("Quillmere", "Lotties"));
}

TEST_F(AnimationList, IsMadeAnewAtEachVisit) {
  open({});
  phone.back();
  phone.forget();
  phone.tap("Lotties");
  EXPECT_THAT(phone.journal(), Contains("QMLottiesList init"));
  EXPECT_THAT(phone.journal(),
              Contains("UINavigationController pushViewController:QMLottiesList animated:YES"));
}

TEST_F(AnimationList, InitialisesTitleCatalogueAndTableInOrder) {
  phone.putAnimations({"Rain.lottie"});
  phone.putFile(fileWith(list({"Snow"})));
  phone.forget();
  phone.tap("Lotties");
  Names journal = phone.journal();
  const auto pushed = [](const std::string& line) { return line.find("push") != line.npos; };
  journal.erase(std::ranges::find_if(journal, pushed), journal.end());
  EXPECT_THAT(
      journal,
      ElementsAre(
          "QMLottiesList init", "UINavigationItem setTitle:\"Lotties\"",
          "NSFileManager defaultManager",
          "NSFileManager contentsOfDirectoryAtPath:\"/Library/Lotties/Quillmere\" "
          "error:nil",
          "NSPredicate predicateWithFormat:\"self ENDSWITH '.lottie'\"",
          "NSArray filteredArrayUsingPredicate:SELF ENDSWITH \".lottie\"",
          "NSMutableArray initWithArray:(\"Rain.lottie\")", "NSMutableArray count",
          "NSMutableArray objectAtIndex:0", "NSString stringByDeletingPathExtension",
          "NSMutableArray replaceObjectAtIndex:0 withObject:\"Rain\"", "NSMutableArray count",
          "NSArray mutableCopy", "NSMutableArray mutableCopy",
          "HBPreferences initWithIdentifier:\"com.orvalen.quillmere\"",
          "HBPreferences objectForKey:\"enabledLotties\"",
          "HBPreferences objectForKey:\"enabledLotties\"",
          // The stored list is looked through for what is no name.
          "NSArray isKindOfClass:NSArray", "NSArray count", "NSArray objectAtIndex:0",
          "NSString isKindOfClass:NSString", "NSArray count", "NSArray mutableCopy",
          "NSMutableArray removeObjectsInArray:(\"Snow\")", "QMLottiesList viewDidLoad",
          "UIView bounds", "UITableView initWithFrame:{{0, 0}, {390, 844}} style:1",
          "UITableView setDelegate:QMLottiesList", "UITableView setDataSource:QMLottiesList",
          "UITableView setSeparatorColor:UIColor(0, 0, 0, 0)", "UITableView setAllowsSelection:NO",
          "UITableView setEditing:YES animated:YES", testing::StartsWith("UIView addSubview:")));
}

TEST_F(AnimationList, RefusedByTheSuperclassDoesNothingElse) {
  EXPECT_FALSE(phone.initSucceeds("QMLottiesList", true));
  EXPECT_THAT(phone.journal(), ElementsAre("QMLottiesList init"));
}

TEST_F(AnimationList, ShowsTwoSectionsAlsoWhenBothAreEmpty) {
  open({}, Names());
  EXPECT_THAT(phone.list(),
              ElementsAre(ListSection{"Enabled Lotties", {}}, ListSection{"Disabled Lotties", {}}));
}

TEST_F(AnimationList, AnswersForEnabledRows) {
  open({"Rain.lottie"}, {"Snow", "Wind"});
  const ListAnswers expected{2, "Enabled Lotties", 2, true, true, deletion, false};
  EXPECT_EQ(phone.answersFor({0, 0}), expected);
  EXPECT_EQ(phone.answersFor({0, 1}), expected);
}

TEST_F(AnimationList, AnswersForDisabledRows) {
  open({"Rain.lottie"}, {"Snow", "Wind"});
  const ListAnswers expected{2, "Disabled Lotties", 1, true, false, insertion, false};
  EXPECT_EQ(phone.answersFor({1, 0}), expected);
}

TEST_F(AnimationList, AnswersForOtherSectionsAsForDisabledRowsButWithoutAControl) {
  open({"Rain.lottie"}, {"Snow", "Wind"});
  const ListAnswers expected{2, "Disabled Lotties", 1, true, false, none, false};
  EXPECT_EQ(phone.answersFor({2, 0}), expected);
  EXPECT_EQ(phone.answersFor({7, 0}), expected);
}

TEST_F(AnimationList, InsertionTakesTheRowFromTheDisabledOnesInAnySection) {
  open({"Rain.lottie"}, {"Snow"});
  phone.commit(insertion, {0, 0});
  EXPECT_THAT(enabled(), ElementsAre("Rain", "Snow"));
  EXPECT_THAT(disabled(), IsEmpty());
}

TEST_F(AnimationList, DeletionTakesTheRowFromTheEnabledOnesInAnySection) {
  open({"Rain.lottie"}, {"Snow"});
  phone.commit(deletion, {1, 0});
  EXPECT_THAT(enabled(), IsEmpty());
  EXPECT_THAT(disabled(), ElementsAre("Rain", "Snow"));
}

TEST_F(AnimationList, OtherEditingStylesDoNothing) {
  open({"Rain.lottie"}, {"Snow"});
  for (const long style : {none, 3L}) {
    for (const std::size_t section : {0U, 1U, 2U}) phone.commit(style, {section, 0});
  }
  EXPECT_THAT(phone.journal(), IsEmpty());
  EXPECT_THAT(enabled(), ElementsAre("Snow"));
  EXPECT_THAT(disabled(), ElementsAre("Rain"));
}

TEST_F(AnimationList, IsAlwaysBeingEdited) {
  open({"Rain.lottie"}, {"Snow"});
  phone.insert(0);
  phone.remove(0);
  EXPECT_THAT(phone.journal(), Not(Contains(HasSubstr("setEditing"))));
  phone.forget();
  phone.call("edit");
  EXPECT_THAT(phone.journal(), Contains("UITableView setEditing:NO animated:YES"));
}

TEST_F(AnimationList, EditEndsEditingAndBeginsItAgain) {
  open({"Rain.lottie"}, {"Snow"});
  phone.call("edit");
  EXPECT_THAT(phone.journal(),
              ElementsAre("UITableView isEditing", "UITableView setEditing:NO animated:YES",
                          "UITableView reloadData"));
  phone.forget();
  phone.call("edit");
  EXPECT_THAT(phone.journal(),
              ElementsAre("UITableView isEditing", "UITableView setEditing:YES animated:YES",
                          "UITableView reloadData"));
}

TEST_F(AnimationList, EditTitlesTheButtonThatThePageWasGiven) {
  open({"Rain.lottie"}, {"Snow"});
  phone.giveEditButton();
  phone.forget();
  phone.call("edit");
  EXPECT_THAT(phone.journal(),
              ElementsAre("UITableView isEditing", "UIBarButtonItem setTitle:\"Edit\"",
                          "UITableView setEditing:NO animated:YES", "UITableView reloadData"));
  phone.forget();
  phone.call("edit");
  EXPECT_THAT(phone.journal(),
              ElementsAre("UITableView isEditing", "UIBarButtonItem setTitle:\"Done\"",
                          "UITableView setEditing:YES animated:YES", "UITableView reloadData"));
}

TEST_F(AnimationList, HasNoEditButtonEvenAfterEdit) {
  open({});
  EXPECT_EQ(phone.call("editButton"), "nil");
  phone.call("edit");
  phone.call("edit");
  EXPECT_EQ(phone.call("editButton"), "nil");
}

TEST_F(AnimationList, HasPropertiesForTableButtonAndName) {
  open({});
  EXPECT_EQ(phone.call("appName"), "nil");
  EXPECT_NE(phone.call("tableView"), "nil");
  for (const char* selector : {"setTableView:", "setEditButton:", "setAppName:"}) {
    EXPECT_TRUE(phone.answers(selector)) << selector;
  }
}

}  // namespace
