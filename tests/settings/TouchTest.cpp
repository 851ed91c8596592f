#include "tests/settings/PhoneScreenTest.h"

namespace settings_tests {
namespace {

using nlohmann::json;
using plist::Value;

class TouchTest : public PhoneScreenTest {
 protected:
  std::size_t depth() { return pages().pages().size(); }
};

TEST_F(TouchTest, TapOpensAPageAndBackClosesIt) {
  tap(clockRow);
  EXPECT_EQ(depth(), 2U);
  tap("page2.back");
  EXPECT_EQ(depth(), 1U);
}

TEST_F(TouchTest, ToggleStoresABoolean) {
  tap(clockRow);
  touch({{"kind", "toggle"}, {"id", "page2.group0.row0"}, {"on", false}});
  EXPECT_EQ(stored("clockEnabled"), Value(false));
  EXPECT_EQ(tree()["page2.group0.row0"]["on"], false);
}

TEST_F(TouchTest, SlideStoresTheNearestStop) {
  tap(clockRow);
  touch({{"kind", "slide"}, {"id", "page2.group2.row0"}, {"value", 80.4}});
  EXPECT_EQ(stored("clockDigitSize"), Value::real(80.0F));
  EXPECT_EQ(tree()["page2.group2.row0"]["value"], 80.0);
}

TEST_F(TouchTest, TypeStoresTheNumber) {
  tap(clockRow);
  touch({{"kind", "type"}, {"id", "page2.group2.row0"}, {"text", " 999 "}});
  EXPECT_EQ(stored("clockDigitSize"), Value::real(200.0F));
}

TEST_F(TouchTest, SelectStoresTheValue) {
  tap(colorRow);
  touch({{"kind", "select"}, {"id", "page2.group0.row0"}, {"index", 1}});
  EXPECT_EQ(stored("colorMode"), Value::integer(2));
}

TEST_F(TouchTest, PickStoresTheColor) {
  tap(colorRow);
  touch({{"kind", "pick"}, {"id", "page2.group1.row0"}, {"color", "#0102037f"}});
  EXPECT_EQ(stored("tintColor"), Value::string("7F010203"));
}

TEST_F(TouchTest, AnActionThatNobodyAnswersIsReportedAndDoesNothing) {
  std::string rows;
  for (int row = 0; row < 11; ++row) {
    rows +=
        "<dict><key>cell</key><string>PSButtonCell</string>"
        "<key>action</key><string>fly</string></dict>";
  }
  phone.folder.replace(phone.bundle + "/Root.plist",
                       "<plist><dict><key>items</key><array>" + rows + "</array></dict></plist>");
  open();
  const settings::Tree before = tree();
  tap(before.at("window")["children"][0].get<std::string>() + ".group0.row0");
  EXPECT_EQ(tree(), before);
  EXPECT_EQ(reports, std::vector<std::string>{"QMRoot does not answer \"fly\""});
}

TEST_F(TouchTest, MalformedMessagesAreRefusedAndChangeNothing) {
  tap(clockRow);
  const settings::Tree before = tree();
  const std::string deep(60'000, '[');
  for (const std::string& message : std::initializer_list<std::string>{
           "",
           " ",
           "nonsense",
           "null",
           "true",
           "5",
           "\"tap\"",
           "[]",
           "{",
           "{}",
           "{}{}",
           deep,
           R"({"kind":5})",
           R"({"kind":null})",
           R"({"kind":"fly"})",
           R"({"kind":""})",
           R"({"kind":"tap"})",
           R"({"kind":"tap","id":5})",
           R"({"kind":"tap","id":null})",
           R"({"kind":"tap","id":["page2.back"]})",
           R"({"Kind":"tap","id":"page2.back"})",
           R"({"kind":"TAP","id":"page2.back"})",
           R"({"kind":"toggle","id":"page2.group0.row0"})",
           R"({"kind":"toggle","id":"page2.group0.row0","on":1})",
           R"({"kind":"toggle","id":"page2.group0.row0","on":"true"})",
           R"({"kind":"slide","id":"page2.group2.row0"})",
           R"({"kind":"slide","id":"page2.group2.row0","value":"80"})",
           R"({"kind":"slide","id":"page2.group2.row0","value":null})",
           R"({"kind":"slide","id":"page2.group2.row0","value":true})",
           R"({"kind":"slide","id":"page2.group2.row0","value":NaN})",
           R"({"kind":"slide","id":"page2.group2.row0","value":1e999})",
           R"({"kind":"type","id":"page2.group2.row0","text":80})",
           R"({"kind":"type","id":"page2.group2.row0","text":"eighty"})",
           R"({"kind":"type","id":"page2.group2.row0","text":""})",
           "{\"kind\":\"type\",\"id\":\"page2.group2.row0\",\"text\":\"\xff\"}",
           std::string("{\"kind\":\"tap\",\0\"id\":\"page2.back\"}", 33)}) {
    EXPECT_NE(refusalOf(message), "") << message.substr(0, 100);
    EXPECT_EQ(tree(), before) << message.substr(0, 100);
  }
  EXPECT_EQ(stored("clockDigitSize"), std::nullopt);
}

TEST_F(TouchTest, MalformedSegmentsAndColorsAreRefused) {
  tap(colorRow);
  const settings::Tree before = tree();
  for (const char* index : {"2", "-1", "0.0", "1.5", "\"1\"", "null", "true", "1e0",
                            "18446744073709551615", "99999999999999999999"}) {
    EXPECT_NE(refusalOf(R"({"kind":"select","id":"page2.group0.row0","index":)" +
                        std::string(index) + "}"),
              "")
        << index;
  }
  for (const char* color : {"\"\"", "\"red\"", "\"#fff\"", "\"f69240ff\"", "\"#f69240f\"", "5",
                            "null", "\"#f69240ff0\"", "\"#gggggg\""}) {
    EXPECT_NE(
        refusalOf(R"({"kind":"pick","id":"page2.group1.row0","color":)" + std::string(color) + "}"),
        "")
        << color;
  }
  EXPECT_EQ(tree(), before);
  EXPECT_EQ(stored("colorMode"), std::nullopt);
}

TEST_F(TouchTest, SaysWhatWasWrong) {
  EXPECT_EQ(refusalOf("nonsense"), "a touch is a JSON object");
  EXPECT_EQ(refusalOf(R"({"kind":"fly"})"), "there is no touch \"fly\"");
  EXPECT_EQ(refusalOf(R"({"kind":"tap"})"), "there is no \"id\"");
  EXPECT_EQ(refusalOf(R"({"kind":"tap","id":5})"), "\"id\" is of the wrong type");
  EXPECT_EQ(refusalOf(R"({"kind":"tap","id":"page9.back"})"),
            "there is no page9.back on the screen");
}

TEST_F(TouchTest, IdsThatAreNotOnTheScreenAreRefused) {
  for (const char* id : {"", "window", "page1", "page1.back", "page1.group0", "page1.group0.row9",
                         "page1.group9.row0", "page2.group0.row0", "page1.group0.row01",
                         "page1.group0.row0 ", "PAGE1.group0.row1"}) {
    EXPECT_NE(refusal(json{{"kind", "tap"}, {"id", id}}), "") << id;
  }
  EXPECT_EQ(depth(), 1U);
}

TEST_F(TouchTest, IdsOfACoveredPageAreRefused) {
  tap(clockRow);
  EXPECT_NE(refusal(json{{"kind", "tap"}, {"id", colorRow}}), "");
  EXPECT_EQ(depth(), 2U);
}

TEST_F(TouchTest, IdsOfAPageThatIsGoneAreRefusedForGood) {
  tap(clockRow);
  tap("page2.back");
  tap(clockRow);
  EXPECT_NE(refusal(json{{"kind", "tap"}, {"id", "page2.back"}}), "");
  EXPECT_NE(refusalOf(R"({"kind":"toggle","id":"page2.group0.row0","on":false})"), "");
  EXPECT_EQ(depth(), 2U);
  EXPECT_EQ(stored("clockEnabled"), std::nullopt);
}

TEST_F(TouchTest, ATouchOnARowOfAnotherKindIsRefused) {
  tap(clockRow);
  EXPECT_EQ(refusalOf(R"({"kind":"tap","id":"page2.group0.row0"})"),
            "page2.group0.row0 does not take this touch");
  EXPECT_NE(refusalOf(R"({"kind":"slide","id":"page2.group0.row0","value":1})"), "");
  EXPECT_NE(refusalOf(R"({"kind":"toggle","id":"page2.group2.row0","on":true})"), "");
}

}  // namespace
}  // namespace settings_tests
