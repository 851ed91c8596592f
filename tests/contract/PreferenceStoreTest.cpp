#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Driver.h"

namespace {

using plist::Value;
using support::Driver;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* changed = "com.orvalen.quillmere.prefs-changed";

Value text(std::string_view utf8) { return Value::string(utf8); }

Driver::LooseRow row(const std::string& domain, const std::string& key) {
  return {{{"defaults", text(domain)}, {"key", text(key)}}};
}

Driver::LooseRow ownRow(const std::string& key) { return row("com.orvalen.quillmere", key); }

Driver::LooseRow with(Driver::LooseRow row, const std::string& property, const Value& value) {
  row.properties.emplace_back(property, value);
  return row;
}

plist::Dictionary one(const std::string& key, const Value& value) {
  plist::Dictionary dictionary;
  dictionary.set(key, value);
  return dictionary;
}

TEST(PreferenceStore, MissingFileReadsAsTheRowsDefault) {
  Driver phone;
  EXPECT_EQ(phone.read(with(ownRow("a"), "default", Value::integer(7))), Value::integer(7));
}

TEST(PreferenceStore, AbsentKeyReadsAsTheRowsDefault) {
  Driver phone;
  phone.putFile(one("other", Value(true)));
  EXPECT_EQ(phone.read(with(ownRow("a"), "default", Value::integer(7))), Value::integer(7));
}

TEST(PreferenceStore, AbsentKeyWithoutDefaultReadsAsNone) {
  Driver phone;
  EXPECT_EQ(phone.read(ownRow("a")), std::nullopt);
}

TEST(PreferenceStore, StoredNoZeroAndEmptyTextDoNotGiveWayToTheDefault) {
  for (const Value& stored : {Value(false), Value::integer(0), text("")}) {
    Driver phone;
    phone.putFile(one("a", stored));
    EXPECT_EQ(phone.read(with(ownRow("a"), "default", Value(true))), stored);
  }
}

TEST(PreferenceStore, RowWithoutDomainReadsOnlyItsDefault) {
  Driver phone;
  phone.putFile(one("a", Value(false)));
  EXPECT_EQ(phone.read({{{"key", text("a")}, {"default", Value(true)}}}), Value(true));
  EXPECT_THAT(phone.journal(), testing::Contains("NSDictionary dictionaryWithContentsOfFile:"
                                                 "\"/User/Library/Preferences/(null).plist\""));
}

TEST(PreferenceStore, ReadingAsksTheFileAndNeverTheService) {
  Driver phone;
  phone.putFile(one("a", Value::integer(5)));
  phone.read(with(ownRow("a"), "default", Value::integer(7)));
  EXPECT_THAT(phone.journal(),
              ElementsAre("PSSpecifier propertyForKey:\"defaults\"",
                          "NSDictionary dictionaryWithContentsOfFile:"
                          "\"/User/Library/Preferences/com.orvalen.quillmere.plist\"",
                          "PSSpecifier propertyForKey:\"key\"", "NSDictionary objectForKey:\"a\""));
}

TEST(PreferenceStore, WritingTakesSixStepsInOrder) {
  Driver phone;
  phone.putFile(one("other", Value(true)));
  phone.write(with(ownRow("a"), "PostNotification", text("also")), Value::integer(5));
  EXPECT_THAT(
      phone.journal(),
      ElementsAre("PSSpecifier propertyForKey:\"defaults\"",
                  "NSMutableDictionary initWithContentsOfFile:"
                  "\"/User/Library/Preferences/com.orvalen.quillmere.plist\"",
                  "PSSpecifier propertyForKey:\"key\"",
                  "NSMutableDictionary setObject:5 forKey:\"a\"",
                  "PSSpecifier propertyForKey:\"defaults\"",
                  "NSMutableDictionary writeToFile:"
                  "\"/User/Library/Preferences/com.orvalen.quillmere.plist\" atomically:YES",
                  "PSSpecifier propertyForKey:\"PostNotification\"",
                  "CFNotificationCenter post:\"also\" object:nil userInfo:nil "
                  "deliverImmediately:YES",
                  "HBPreferences initWithIdentifier:\"com.orvalen.quillmere\"",
                  "PSSpecifier propertyForKey:\"key\"", "HBPreferences setObject:5 forKey:\"a\"",
                  "CFNotificationCenter post:\"com.orvalen.quillmere.prefs-changed\" object:nil "
                  "userInfo:nil deliverImmediately:YES"));
}

TEST(PreferenceStore, MissingFileSkipsTheFileHalfAndTheServiceMakesTheFile) {
  Driver phone;
  phone.write(ownRow("a"), Value::integer(5));
  EXPECT_THAT(phone.journal(), testing::Not(testing::Contains(testing::HasSubstr("writeToFile"))));
  EXPECT_THAT(phone.journal(), testing::Contains("HBPreferences setObject:5 forKey:\"a\""));
  EXPECT_EQ(phone.file(), one("a", Value::integer(5)));
}

TEST(PreferenceStore, UnreadableFileIsLeftAloneAndTheServiceKeepsTheValue) {
  Driver phone;
  phone.putFile("no property list");
  phone.write(ownRow("a"), Value::integer(5));
  EXPECT_EQ(phone.fileBytes(), "no property list");
  EXPECT_EQ(phone.serviceValue("a"), Value::integer(5));
  EXPECT_THAT(phone.notifications(), ElementsAre(changed));
  EXPECT_THAT(phone.reports(), testing::SizeIs(1));
}

TEST(PreferenceStore, RowsOwnNotificationComesBeforeTheFixedOne) {
  Driver phone;
  phone.write(with(ownRow("a"), "PostNotification", text("also")), Value(true));
  EXPECT_THAT(phone.notifications(), ElementsAre("also", changed));
}

TEST(PreferenceStore, RowWithoutOwnNotificationPostsTheFixedOneOnce) {
  Driver phone;
  phone.write(ownRow("a"), Value(true));
  EXPECT_THAT(phone.notifications(), ElementsAre(changed));
}

TEST(PreferenceStore, ReadingPostsNothing) {
  Driver phone;
  phone.read(ownRow("a"));
  EXPECT_THAT(phone.notifications(), IsEmpty());
}

TEST(PreferenceStore, RowOfAnotherDomainWritesItsFileAndStillTheOwnService) {
  Driver phone;
  phone.putFile(one("a", Value::integer(1)), plist::Form::Xml, "org.example.other");
  const auto other = row("org.example.other", "a");
  phone.write(other, Value::integer(2));
  EXPECT_EQ(phone.read(other), Value::integer(2));
  EXPECT_EQ(phone.file("org.example.other"), one("a", Value::integer(2)));
  EXPECT_EQ(phone.file(), one("a", Value::integer(2)));
}

TEST(PreferenceStore, SameValueTwiceIsWrittenAndAnnouncedTwice) {
  Driver phone;
  phone.putFile(one("a", Value(true)));
  phone.write(ownRow("a"), Value(true));
  phone.write(ownRow("a"), Value(true));
  const auto journal = phone.journal();
  EXPECT_EQ(std::ranges::count_if(
                journal, [](const auto& line) { return line.find("writeToFile") != line.npos; }),
            2);
  EXPECT_THAT(phone.notifications(), ElementsAre(changed, changed));
}

TEST(PreferenceStore, EveryTypeIsStoredAsItIsHandedOver) {
  plist::Array list;
  list.append(text("a"));
  for (const Value& value :
       {Value(true), Value::integer(-20), Value::real(1.5), Value::real(76.0F), text("FFF69240"),
        Value::data("\x01\x02"), Value::date(0.25), Value(list), Value(one("b", Value(false)))}) {
    Driver phone;
    phone.putFile(one("kept", Value(true)));
    phone.write(ownRow("a"), value);
    EXPECT_EQ(phone.read(ownRow("a")), value);
    EXPECT_EQ(phone.serviceValue("a"), value);
    EXPECT_EQ(*phone.file().find("kept"), Value(true));
  }
}

TEST(PreferenceStore, NoKeyIsTreatedSpecially) {
  for (const char* key : {"enabledSwitch", "enabledLotties", "showedWelcomeVC"}) {
    Driver phone;
    phone.putFile(plist::Dictionary());
    phone.write(ownRow(key), Value(false));
    EXPECT_EQ(phone.file(), one(key, Value(false)));
    EXPECT_THAT(phone.notifications(), ElementsAre(changed));
  }
}

TEST(PreferenceStore, FourPagesGiveTheSameResult) {
  for (const char* page : {"", "Clock", "Quick Actions", "Color"}) {
    Driver phone;
    phone.putFile(one("a", Value::integer(1)));
    if (*page) phone.tap(page);
    EXPECT_EQ(phone.read(ownRow("a")), Value::integer(1)) << page;
    phone.forget();
    phone.write(ownRow("a"), Value::integer(2));
    EXPECT_EQ(phone.file(), one("a", Value::integer(2))) << page;
    EXPECT_THAT(phone.notifications(), ElementsAre(changed)) << page;
  }
}

TEST(PreferenceStore, ValueWrittenOnOnePageIsReadOnTheNext) {
  Driver phone;
  phone.tap("Clock");
  phone.write(ownRow("a"), Value::integer(9));
  phone.back();
  EXPECT_EQ(phone.read(ownRow("a")), Value::integer(9));
}

}  // namespace
