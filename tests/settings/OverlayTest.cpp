#include "platform/OrvalenPrefs/OrvalenWelcome.h"
#include "platform/UIKit/UIAlertController.h"
#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {
namespace {

using nlohmann::json;
using platform::UIAlertAction;
using platform::UIAlertActionStyle;
using platform::UIAlertController;

class OverlayTest : public PhoneScreenTest {
 protected:
  UIAlertController alert(const char* title) {
    return UIAlertController::alertControllerWithTitle(title, "Message",
                                                       platform::UIAlertControllerStyle::Alert);
  }
  /// An answer that notes its title.
  UIAlertAction answer(const std::string& title,
                       UIAlertActionStyle style = UIAlertActionStyle::Default) {
    return UIAlertAction::actionWithTitle(platform::NSString(title), style,
                                          [this, title] { answers.push_back(title); });
  }
  /// Shows an alert with the answers "A" and "B".
  void ask() {
    UIAlertController shown = alert("Title");
    shown.addAction(answer("A", UIAlertActionStyle::Destructive));
    shown.addAction(answer("B", UIAlertActionStyle::Cancel));
    pages().present(shown);
  }
  std::string action(std::size_t number) { return overlay()["actions"][number]["id"]; }

  void welcome() {
    auto shown = platform::OrvalenWelcome::init();
    shown.setTitleText("Title");
    shown.setSubtitleText("Subtitle");
    shown.setItem_one_title("One");
    shown.setItem_one_description("First");
    shown.setItem_two_title("Two");
    shown.setItem_two_description("Second");
    shown.setItem_three_title("Three");
    shown.setItem_three_description("Third");
    shown.setButtonTitle("Go");
    shown.setButtonCaption("Caption");
    shown.setPackage_ID("com.orvalen.quillmere");
    shown.setTintColor(platform::UIColor::whiteColor());
    pages().present(shown);
  }

  std::vector<std::string> answers;
};

TEST_F(OverlayTest, AnAlertShowsItsAnswers) {
  ask();
  EXPECT_EQ(overlay(), (json{{"kind", "alert"},
                             {"title", "Title"},
                             {"message", "Message"},
                             {"actions",
                              {{{"id", action(0)}, {"title", "A"}, {"style", "destructive"}},
                               {{"id", action(1)}, {"title", "B"}, {"style", "cancel"}}}}}));
}

TEST_F(OverlayTest, AnAnswerIsHeardOnceAndTakesTheAlertAway) {
  ask();
  const std::string second = action(1);
  tap(second);
  EXPECT_EQ(answers, std::vector<std::string>{"B"});
  EXPECT_EQ(overlay(), nullptr);
  EXPECT_NE(refusal(json{{"kind", "tap"}, {"id", second}}), "");
  EXPECT_EQ(answers, std::vector<std::string>{"B"});
}

TEST_F(OverlayTest, AnAnswerWithoutAHandlerTakesTheAlertAway) {
  UIAlertController shown = alert("Title");
  shown.addAction(UIAlertAction::actionWithTitle("OK", UIAlertActionStyle::Default, {}));
  pages().present(shown);
  tap(action(0));
  EXPECT_EQ(overlay(), nullptr);
}

TEST_F(OverlayTest, AnAnswerMayAskAgain) {
  UIAlertController first = alert("First");
  first.addAction(UIAlertAction::actionWithTitle("Next", UIAlertActionStyle::Default,
                                                 [this] { pages().present(alert("Second")); }));
  pages().present(first);
  const std::string old = action(0);
  tap(old);
  EXPECT_EQ(overlay()["title"], "Second");
  EXPECT_NE(refusal(json{{"kind", "tap"}, {"id", old}}), "");
}

TEST_F(OverlayTest, WhatAnAlertCoversRefusesTouches) {
  tap(clockRow);
  const std::string back = "page2.back";
  ask();
  const settings::Tree before = tree();
  for (const json& message : std::initializer_list<json>{
           {{"kind", "tap"}, {"id", back}},
           {{"kind", "toggle"}, {"id", "page2.group0.row0"}, {"on", false}},
           {{"kind", "slide"}, {"id", "page2.group2.row0"}, {"value", 80}},
           {{"kind", "type"}, {"id", "page2.group2.row0"}, {"text", "80"}},
           {{"kind", "scroll"}, {"id", "page2"}, {"y", 10}},
           {{"kind", "drag"}, {"id", "view1.row0.0"}, {"section", 0}, {"row", 1}}}) {
    EXPECT_EQ(refusal(message), "that is covered") << message;
  }
  EXPECT_EQ(tree(), before);
  EXPECT_EQ(stored("clockEnabled"), std::nullopt);
}

TEST_F(OverlayTest, AnAlertIsNoFieldToTypeInto) {
  ask();
  EXPECT_EQ(refusal(json{{"kind", "type"}, {"id", action(0)}, {"text", "text"}}),
            "that is covered");
}

TEST_F(OverlayTest, TheWelcomeScreenShowsItsPoints) {
  welcome();
  const std::string id = tree().at("window")["overlay"];
  EXPECT_EQ(overlay(), (json{{"kind", "welcome"},
                             {"title", "Title"},
                             {"subtitle", "Subtitle"},
                             {"items",
                              {{{"title", "One"}, {"description", "First"}},
                               {{"title", "Two"}, {"description", "Second"}},
                               {{"title", "Three"}, {"description", "Third"}}}},
                             {"button", {{"id", id + ".continue"}, {"title", "Go"}}},
                             {"dismiss", id + ".dismiss"},
                             {"caption", "Caption"},
                             {"tint", "#ffffffff"}}));
}

TEST_F(OverlayTest, LeavingTheWelcomeScreenEitherWayIsRemembered) {
  for (const bool byButton : {true, false}) {
    phone.folder.remove(preferences);
    welcome();
    const json shown = overlay();
    tap(byButton ? shown["button"]["id"] : shown["dismiss"]);
    EXPECT_EQ(overlay(), nullptr);
    EXPECT_EQ(stored("showedWelcomeVC"), plist::Value(true));
  }
}

TEST_F(OverlayTest, TheWelcomeScreenTakesNoOtherTap) {
  welcome();
  const std::string id = tree().at("window")["overlay"];
  for (const std::string& other : {id, id + ".action0", id + ".send", std::string(clockRow)}) {
    EXPECT_EQ(refusal(json{{"kind", "tap"}, {"id", other}}), "that is covered") << other;
  }
  EXPECT_EQ(overlay()["kind"], "welcome");
}

TEST_F(OverlayTest, ANewSystemGreetsWithTheWelcomeScreen) {
  phone.identity.productVersion = "14.0";
  open();
  EXPECT_EQ(overlay()["kind"], "welcome");
  tap(overlay()["dismiss"]);
  open();
  EXPECT_EQ(overlay(), nullptr);
}

}  // namespace
}  // namespace settings_tests
