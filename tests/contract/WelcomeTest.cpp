#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/contract/Lines.h"
#include "tests/support/Driver.h"

namespace {

using plist::Value;
using support::Driver;
using support::Lines;
using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;

const Lines asked = {"QMRoot viewDidLoad", "NSProcessInfo processInfo",
                     "NSProcessInfo isOperatingSystemAtLeastVersion:13.0.0"};

const Lines lookedUp = {
    "dlfcn dlopen:\"/System/Library/PrivateFrameworks/OnBoardingKit.framework\" mode:8",
    "HBPreferences initWithIdentifier:\"com.orvalen.quillmere\"",
    "HBPreferences objectForKey:\"showedWelcomeVC\""};

const Lines presented = {
    "OrvalenWelcome new",
    "OrvalenWelcome setSubtitleText:\"Animations for your Lockscreen\"",
    "OrvalenWelcome setItem_one_title:\"Info\"",
    "OrvalenWelcome setItem_one_description:\"This tweak is an animation engine that can let you "
    "run Lottie animations with ease.\"",
    "OrvalenWelcome setItem_two_title:\"Lockscreen\"",
    "OrvalenWelcome setItem_two_description:\"Use Lottie animations to animate your Lockscreen "
    "elements.\"",
    "OrvalenWelcome setItem_three_title:\"Download\"",
    "OrvalenWelcome setItem_three_description:\"You can download and use millions of Lottie "
    "animation from your package manager or from Google and apply them through settings.\"",
    "OrvalenWelcome setButtonTitle:\"Continue\"",
    "OrvalenWelcome setButtonCaption:\"Coded with \u2764\uFE0F by Orvalen\"",
    "OrvalenWelcome setTitleText:\"Quillmere\"",
    "OrvalenWelcome setPackage_ID:\"com.orvalen.quillmere\"",
    "OrvalenWelcome setBundle_Name:\"/Library/PreferenceBundles/Quillmere.bundle\"",
    "OrvalenWelcome setTintColor:UIColor(0.9647058823529412, 0.5725490196078431, "
    "0.25098039215686274, 1)",
    "QMRoot presentViewController:<OrvalenWelcome> animated:YES completion:nil"};

Lines operator+(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

plist::Dictionary seen(const Value& value) {
  plist::Dictionary dictionary;
  dictionary.set("showedWelcomeVC", value);
  return dictionary;
}

struct Welcome : testing::Test {
  void openOn(const std::optional<std::string>& version) {
    phone.setDevice({{}, version, {}});
    phone.forget();
    phone.reopen();
  }
  void appearAgain() {
    phone.tap("Clock");
    phone.forget();
    phone.back();
  }
  /// What the page did once it had appeared.
  Lines appearing() const { return support::since(phone.journal(), "QMRoot viewDidLoad"); }
  Driver phone;
};

TEST_F(Welcome, IsFilledAndPresentedInOrder) {
  openOn("13.0");
  EXPECT_THAT(appearing(), ElementsAreArray(asked + lookedUp + presented));
}

TEST_F(Welcome, SaysWhatItWasGiven) {
  openOn("13.0");
  const auto welcome = phone.welcome();
  ASSERT_TRUE(welcome);
  EXPECT_EQ(welcome->title, "Quillmere");
  EXPECT_EQ(welcome->subtitle, "Animations for your Lockscreen");
  EXPECT_THAT(
      welcome->items,
      ElementsAre(
          testing::Pair("Info",
                        "This tweak is an animation engine that can let you run Lottie "
                        "animations with ease."),
          testing::Pair("Lockscreen", "Use Lottie animations to animate your Lockscreen elements."),
          testing::Pair("Download",
                        "You can download and use millions of Lottie animation from your "
                        "package manager or from Google and apply them through "
                        "settings.")));
  EXPECT_EQ(welcome->button, "Continue");
  EXPECT_EQ(welcome->caption, "Coded with \u2764\uFE0F by Orvalen");
  EXPECT_EQ(welcome->tint, "#f69240ff");
}

TEST_F(Welcome, OnOlderSystemsNothingIsLoadedAndNothingLookedUp) {
  openOn("12.5");
  EXPECT_THAT(appearing(), ElementsAreArray(asked));
  EXPECT_FALSE(phone.welcome());
}

TEST_F(Welcome, IsForThirteenAndLater) {
  for (const char* version : {"13.0", "13", "13.0.0", "13.1.2", "14.3", "100.0"}) {
    openOn(version);
    EXPECT_TRUE(phone.welcome()) << version;
  }
  for (const char* version : {"12.5", "12.99.99", "9.3.5", "1.3"}) {
    openOn(version);
    EXPECT_FALSE(phone.welcome()) << version;
  }
}

TEST_F(Welcome, IsForASystemOfUnknownVersion) {
  openOn(std::nullopt);
  EXPECT_THAT(appearing(), ElementsAreArray(asked + lookedUp + presented));
}

TEST_F(Welcome, AnyStoredValueCountsAsSeen) {
  for (const Value& value :
       {Value(true), Value(false), Value::integer(0), Value::string(""), Value(plist::Array())}) {
    phone.putFile(seen(value));
    for (const auto& version : {std::optional<std::string>("13.0"), {}}) {
      openOn(version);
      EXPECT_THAT(appearing(), ElementsAreArray(asked + lookedUp));
      EXPECT_FALSE(phone.welcome());
    }
  }
}

TEST_F(Welcome, LoadsThePageOnceMoreAndLeavesOutTheSuperclassesAppearing) {
  for (const char* version : {"12.5", "13.0"}) {
    openOn(version);
    EXPECT_THAT(phone.journal(), Contains("QMRoot viewDidLoad").Times(2));
    EXPECT_THAT(phone.journal(), testing::Not(Contains("QMRoot viewDidAppear:YES")));
  }
}

TEST_F(Welcome, IsNotMarkedAsSeenByThePage) {
  openOn("13.0");
  EXPECT_EQ(phone.serviceValue("showedWelcomeVC"), std::nullopt);
  EXPECT_EQ(phone.fileBytes(), std::nullopt);
  EXPECT_THAT(phone.notifications(), testing::IsEmpty());
}

TEST_F(Welcome, IsGoneForGoodOnceItWasLeft) {
  openOn("13.0");
  phone.leaveWelcome();
  EXPECT_TRUE(phone.serviceValue("showedWelcomeVC"));
  EXPECT_FALSE(phone.welcome());
  appearAgain();
  EXPECT_THAT(appearing(), ElementsAreArray(asked + lookedUp));
  openOn("13.0");
  EXPECT_FALSE(phone.welcome());
}

TEST_F(Welcome, ComesBackWithTheNextAppearanceOnceTheKeyIsRemoved) {
  openOn("13.0");
  for (int times = 0; times < 2; ++times) {
    phone.leaveWelcome();
    phone.removeFile();
    EXPECT_FALSE(phone.welcome());
    appearAgain();
    EXPECT_THAT(appearing(), ElementsAreArray(asked + lookedUp + presented));
    EXPECT_TRUE(phone.welcome());
  }
}

TEST_F(Welcome, IsOnlyForTheFirstPage) {
  openOn("13.0");
  phone.leaveWelcome();
  phone.removeFile();
  phone.tap("Clock");
  EXPECT_FALSE(phone.welcome());
}

TEST_F(Welcome, IsLeftOutWithoutTheMakersLibrary) {
  phone.withoutClass("OrvalenWelcome");
  openOn("13.0");
  EXPECT_FALSE(phone.welcome());
  EXPECT_THAT(appearing(), testing::Not(Contains(testing::HasSubstr("presentViewController"))));
  EXPECT_THAT(phone.titles(), ElementsAre("Quillmere"));
  EXPECT_THAT(phone.reports(), testing::IsEmpty());
}

}  // namespace
