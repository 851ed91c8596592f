#include <gmock/gmock.h>

#include "tests/contract/OpenedList.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class CatalogueSave : public OpenedList {};

TEST_F(CatalogueSave, ChangesTheFileThenTheService) {
  open({}, {"Rain", "Snow"});
  phone.call("save");
  EXPECT_EQ(phone.journal(), saving("(\"Rain\", \"Snow\")"));
}

TEST_F(CatalogueSave, StartsFromAnEmptyDictionaryWithoutAFile) {
  open({});
  phone.call("save");
  Names expected = saving("(\"Clock\", \"Nice Buttons\")");
  expected[2] = "NSMutableDictionary init";
  EXPECT_EQ(phone.journal(), expected);
}

TEST_F(CatalogueSave, LeavesOutTheFilesStepsWhenItCannotBeRead) {
  phone.putFile("no property list");
  open({});
  phone.call("save");
  Names expected = saving("(\"Clock\", \"Nice Buttons\")");
  expected.erase(expected.begin() + 3, expected.begin() + 5);
  EXPECT_EQ(phone.journal(), expected);
}

TEST_F(CatalogueSave, UnreadableFileIsUnchangedAndTheServiceTakesTheList) {
  phone.putFile("no property list");
  open({"Rain.lottie"});
  phone.insert(0);
  EXPECT_EQ(phone.fileBytes(), "no property list");
  EXPECT_EQ(phone.serviceValue(key), list({"Rain", "Clock", "Nice Buttons"}));
}

TEST_F(CatalogueSave, FileOfAnotherRootIsUnchangedAndTheServiceTakesTheList) {
  const std::string array = plist::writeXml(list({"root"})).value();
  phone.putFile(array);
  open({});
  phone.remove(0);
  EXPECT_EQ(phone.fileBytes(), array);
  EXPECT_EQ(phone.serviceValue(key), list({"Nice Buttons"}));
}

TEST_F(CatalogueSave, MissingFileIsCreatedWithTheOneKey) {
  open({"Rain.lottie"});
  phone.insert(0);
  plist::Dictionary expected;
  expected.set(key, list({"Rain", "Clock", "Nice Buttons"}));
  EXPECT_EQ(phone.file(), expected);
}

TEST_F(CatalogueSave, OtherKeysKeepWhatWasRead) {
  open({}, {"Rain", "Snow"});
  plist::Dictionary changed = fileWith(list({"Other"}));
  changed.set("byAnotherProgram", plist::Value::real(0.5F));
  phone.putFile(changed);
  phone.remove(0);
  changed.set(key, list({"Snow"}));
  EXPECT_EQ(phone.file(), changed);
}

TEST_F(CatalogueSave, FileKeepsItsForm) {
  for (const plist::Form form : {plist::Form::Xml, plist::Form::Binary}) {
    phone.putFile(fileWith(list({"Rain", "Snow"})), form);
    visit();
    phone.remove(0);
    EXPECT_EQ(plist::read(phone.fileBytes().value()).form, form);
    phone.back();
  }
}

TEST_F(CatalogueSave, EmptyListIsStoredAsAnEmptyArray) {
  open({"Rain.lottie"}, {"Rain"});
  phone.remove(0);
  EXPECT_EQ(phone.file(), fileWith(list({})));
  visitAgain();
  EXPECT_THAT(enabled(), IsEmpty());
}

TEST_F(CatalogueSave, AbsentKeyStaysAbsentUntilTheFirstChangeWhichStoresTheWholeList) {
  phone.putFile(plist::Dictionary());
  open({"Rain.lottie"});
  EXPECT_EQ(phone.file(), plist::Dictionary());
  phone.insert(0);
  EXPECT_EQ(phone.serviceValue(key), list({"Rain", "Clock", "Nice Buttons"}));
}

TEST_F(CatalogueSave, PostsNoNotification) {
  open({"Rain.lottie"}, {"Snow", "Wind"});
  phone.insert(0);
  phone.drag(0, 0, 0, 2);
  phone.remove(0);
  phone.call("save");
  EXPECT_THAT(phone.notifications(), IsEmpty());
}

TEST_F(CatalogueSave, LeavesTitleAndTableAlone) {
  open({}, {"Rain"});
  phone.call("save");
  EXPECT_THAT(phone.titles(), ElementsAre("Quillmere", "Lotties"));
  EXPECT_THAT(phone.journal(), Not(Contains(HasSubstr("reloadData"))));
  EXPECT_FALSE(phone.alert());
}

TEST_F(CatalogueSave, EachTimeMakesAServiceOfItsOwn) {
  open({}, {"Rain"});
  phone.call("save");
  phone.call("save");
  EXPECT_THAT(phone.journal(),
              Contains("HBPreferences initWithIdentifier:\"com.orvalen.quillmere\"").Times(2));
}

TEST_F(CatalogueSave, NameWithoutAFileIsKeptUntilItIsDisabled) {
  open({"Rain.lottie", "Snow.lottie"}, {"Gone"});
  phone.insert(disabledRow("Rain"));
  EXPECT_EQ(phone.serviceValue(key), list({"Rain", "Gone"}));
  phone.remove(1);
  EXPECT_EQ(disabled().back(), "Gone");
  EXPECT_EQ(phone.serviceValue(key), list({"Rain"}));
  visitAgain();
  EXPECT_THAT(enabled(), ElementsAre("Rain"));
  EXPECT_THAT(disabled(), ElementsAre("Snow"));
}

}  // namespace
