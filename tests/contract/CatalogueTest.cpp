#include <gmock/gmock.h>

#include "tests/contract/OpenedList.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Catalogue : public OpenedList {};

TEST_F(Catalogue, DefaultsAreEnabledWhileNothingIsStored) {
  open({"Clock.lottie", "Nice Buttons.lottie", "Rain.lottie"});
  EXPECT_THAT(enabled(), ElementsAre("Clock", "Nice Buttons"));
  EXPECT_THAT(disabled(), ElementsAre("Rain"));
}

TEST_F(Catalogue, DefaultsAreEnabledAlsoWithoutTheirFiles) {
  open({"Clock.lottie", "Rain.lottie", "notes.txt"});
  EXPECT_THAT(enabled(), ElementsAre("Clock", "Nice Buttons"));
  EXPECT_THAT(disabled(), ElementsAre("Rain"));
}

TEST_F(Catalogue, EmptyStoredListIsNotAnAbsentOne) {
  open({"Clock.lottie", "Rain.lottie"}, Names());
  EXPECT_THAT(enabled(), IsEmpty());
  EXPECT_THAT(disabled(), UnorderedElementsAre("Clock", "Rain"));
}

TEST_F(Catalogue, StoredOrderIsKept) {
  open({"Clock.lottie", "Rain.lottie", "Snow.lottie"}, {"Snow", "Clock", "Rain"});
  EXPECT_THAT(enabled(), ElementsAre("Snow", "Clock", "Rain"));
  EXPECT_THAT(disabled(), IsEmpty());
}

TEST_F(Catalogue, DisabledOnesKeepTheFoldersOrder) {
  open({"d.lottie", "a.lottie", "c.lottie", "b.lottie", "e.lottie"}, Names());
  EXPECT_EQ(disabled(), listed());
  EXPECT_EQ(disabled().size(), 5U);
}

TEST_F(Catalogue, StoredNameWithoutAFileIsEnabled) {
  open({"Rain.lottie"}, {"Gone", "Rain"});
  EXPECT_THAT(enabled(), ElementsAre("Gone", "Rain"));
}

TEST_F(Catalogue, StoredNameTwiceIsTwoRowsAndNotDisabled) {
  open({"Rain.lottie", "Snow.lottie"}, {"Rain", "Rain"});
  EXPECT_THAT(enabled(), ElementsAre("Rain", "Rain"));
  EXPECT_THAT(disabled(), ElementsAre("Snow"));
}

TEST_F(Catalogue, OnlyTheLastExtensionIsDropped) {
  open({"a.b.lottie", "a.lottie.lottie"}, Names());
  EXPECT_THAT(disabled(), UnorderedElementsAre("a.b", "a.lottie"));
}

TEST_F(Catalogue, OtherEndingsAreLeftOut) {
  open({"Clock.LOTTIE", "Clock.Lottie", "Clock.lottie.bak", "Clocklottie", "Rain.lottie"}, Names());
  EXPECT_THAT(disabled(), ElementsAre("Rain"));
}

TEST_F(Catalogue, FolderOfThatEndingIsKept) {
  open({"Folder.lottie/", "Other/"}, Names());
  EXPECT_THAT(disabled(), ElementsAre("Folder"));
}

TEST_F(Catalogue, FoldersAreNotLookedInto) {
  open({"Folder/Rain.lottie", "Snow.lottie"}, Names());
  EXPECT_THAT(disabled(), ElementsAre("Snow"));
}

TEST_F(Catalogue, NamesAreComparedExactly) {
  open({"rain.lottie", "Caf\u00e9.lottie"}, {"Rain", "Cafe\u0301", "Cafe"});
  EXPECT_THAT(enabled(), ElementsAre("Rain", "Cafe\u0301", "Cafe"));
  EXPECT_THAT(disabled(), UnorderedElementsAre("rain", "Caf\u00e9"));
}

TEST_F(Catalogue, MissingFolderHasNoAnimationsAndNoError) {
  phone.removeAnimationFolder();
  visit();
  EXPECT_THAT(enabled(), ElementsAre("Clock", "Nice Buttons"));
  EXPECT_THAT(disabled(), IsEmpty());
  EXPECT_THAT(phone.reports(), IsEmpty());
  EXPECT_FALSE(phone.alert());
}

TEST_F(Catalogue, FileInTheFoldersPlaceHasNoAnimationsAndNoError) {
  phone.obstructAnimationFolder();
  phone.putFile(fileWith(list({"Rain"})));
  visit();
  EXPECT_THAT(enabled(), ElementsAre("Rain"));
  EXPECT_THAT(disabled(), IsEmpty());
  EXPECT_THAT(phone.reports(), IsEmpty());
}

TEST_F(Catalogue, UnreadableFileShowsTheDefaults) {
  phone.putFile("no property list");
  open({"Clock.lottie", "Rain.lottie"});
  EXPECT_THAT(enabled(), ElementsAre("Clock", "Nice Buttons"));
  EXPECT_THAT(disabled(), ElementsAre("Rain"));
}

TEST_F(Catalogue, OpeningStoresNothing) {
  open({"Rain.lottie"});
  EXPECT_EQ(phone.fileBytes(), std::nullopt);
  EXPECT_EQ(phone.serviceValue(key), std::nullopt);
  EXPECT_THAT(phone.notifications(), IsEmpty());
}

TEST_F(Catalogue, OneServiceIsAskedOnceWhileNothingIsStoredAndElseTwice) {
  const std::string made = "HBPreferences initWithIdentifier:\"com.orvalen.quillmere\"";
  const std::string asked = "HBPreferences objectForKey:\"enabledLotties\"";
  phone.forget();
  phone.tap("Lotties");
  EXPECT_THAT(phone.journal(), Contains(made).Times(1));
  EXPECT_THAT(phone.journal(), Contains(asked).Times(1));
  phone.back();
  phone.putFile(fileWith(list({})));
  phone.forget();
  phone.tap("Lotties");
  EXPECT_THAT(phone.journal(), Contains(made).Times(1));
  EXPECT_THAT(phone.journal(), Contains(asked).Times(2));
}

TEST_F(Catalogue, HoldsAllNamesAndTheDefaultsBesidesTheTwoLists) {
  open({"Rain.lottie"}, {"Gone"});
  EXPECT_EQ(phone.call("allViews"), "(\"Rain\")");
  EXPECT_EQ(phone.call("defaultViews"), "(\"Clock\", \"Nice Buttons\")");
  EXPECT_EQ(phone.call("enabledViews"), "(\"Gone\")");
  EXPECT_EQ(phone.call("disabledViews"), "(\"Rain\")");
}

TEST_F(Catalogue, ListsAreArraysOfTheirOwn) {
  open({"Rain.lottie"});
  phone.remove(0);
  phone.insert(disabledRow("Rain"));
  EXPECT_EQ(phone.call("allViews"), "(\"Rain\")");
  EXPECT_EQ(phone.call("defaultViews"), "(\"Clock\", \"Nice Buttons\")");
}

TEST_F(Catalogue, EveryListHasAGetterAndASetter) {
  open({});
  for (const char* selector :
       {"allViews", "setAllViews:", "defaultViews", "setDefaultViews:", "enabledViews",
        "setEnabledViews:", "disabledViews", "setDisabledViews:", "save"}) {
    EXPECT_TRUE(phone.answers(selector)) << selector;
  }
}

TEST_F(Catalogue, FolderIsReadAtEachVisitAndNotInBetween) {
  open({"Rain.lottie"}, Names());
  phone.putAnimations({"Snow.lottie"});
  phone.insert(0);
  EXPECT_THAT(enabled(), ElementsAre("Rain"));
  EXPECT_THAT(disabled(), IsEmpty());
  visitAgain();
  EXPECT_THAT(enabled(), ElementsAre("Rain"));
  EXPECT_THAT(disabled(), ElementsAre("Snow"));
}

TEST_F(Catalogue, StoredListIsReadAtEachVisitAndNotInBetween) {
  open({"Rain.lottie", "Snow.lottie"}, {"Rain"});
  phone.putFile(fileWith(list({"Snow"})));
  EXPECT_THAT(enabled(), ElementsAre("Rain"));
  visitAgain();
  EXPECT_THAT(enabled(), ElementsAre("Snow"));
}

}  // namespace
