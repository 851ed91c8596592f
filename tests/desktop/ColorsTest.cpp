#include <gtest/gtest.h>

#include "desktop/Colors/HexColor.h"
#include "desktop/Preferences/Cells.h"
#include "tests/desktop/PageTest.h"

namespace desktop_tests {
namespace {

using desktop::ColorCell;
using desktop::HexColor;
using plist::Value;

TEST(HexColorTest, ReadsEveryForm) {
  const std::pair<const char*, const char*> cases[] = {
      {"f80", "#ff8800ff"},         {"8f80", "#ff880088"},     {"f69240", "#f69240ff"},
      {"80F69240", "#f6924080"},    {"#f80", "#ff8800ff"},     {"#80f69240", "#f6924080"},
      {"f69240:0.25", "#f6924040"}, {"F69240:1", "#f69240ff"}, {"#f69240:0", "#f6924000"},
      {"f69240:.5", "#f6924080"},   {"00000000", "#00000000"}, {"FFFFFFFF", "#ffffffff"},
  };
  for (const auto& [text, web] : cases) {
    const auto color = HexColor::parse(text);
    ASSERT_TRUE(color) << text;
    EXPECT_EQ(color->web(), web) << text;
  }
}

TEST(HexColorTest, RefusesEverythingElse) {
  for (const char* text :
       {"",        "#",          "f",        "f8",        "f6924",      "f692400",    "f69240ff0",
        "##f80",   "#g80",       "g69240",   "-69240",    "+f6924",     "0xf692",     " f69240",
        "f69240 ", "f69240:",    "f69240:2", "f69240:-1", "f69240:nan", "f69240:inf", "f69240:0.5x",
        "f80:0.5", "f69240:0,5", "12:",      "red",       "#é",         "::::::::"}) {
    EXPECT_EQ(HexColor::parse(text), std::nullopt) << '"' << text << '"';
  }
}

TEST(HexColorTest, WritesAlphaFirstInUpperCase) {
  EXPECT_EQ((HexColor{0xf6, 0x92, 0x40, 0x08}.text()), "08F69240");
  EXPECT_EQ(HexColor::parse("08F69240")->text(), "08F69240");
}

TEST(HexColorTest, ReadsTheWebsFormsWithAlphaLast) {
  EXPECT_EQ(HexColor::parseWeb("#f69240"), (HexColor{0xf6, 0x92, 0x40, 0xff}));
  EXPECT_EQ(HexColor::parseWeb("#F6924008"), (HexColor{0xf6, 0x92, 0x40, 0x08}));
}

TEST(HexColorTest, ReadsNothingElseFromTheWeb) {
  for (const char* text : {"", "#", "#f80", "f69240", "#f692400", "#f69240f", "#f69240fff",
                           "#f6924g", "#-69240", "#f69240-1", "#f69240 1", "red"}) {
    EXPECT_EQ(HexColor::parseWeb(text), std::nullopt) << '"' << text << '"';
  }
}

class ColorCellTest : public PageTest {
 protected:
  ColorCell color(const std::optional<Value>& stored, Properties properties = {}) {
    return cell<ColorCell>(platform::PSCellType::PSLinkCell, std::move(properties), stored);
  }

  /// Puts that text into the packaged defaults that a row with `defaultsPath` names.
  void package(const std::string& text) {
    std::filesystem::create_directories(host("/Library/bundle"));
    writeBytes(host("/Library/bundle/defaults.plist"),
               "<plist><dict><key>key</key><string>" + text + "</string></dict></plist>");
  }
  const Properties packaged{{"defaultsPath", Value::string("/Library/bundle")},
                            {"fallback", Value::string("0000ff")}};
};

TEST_F(ColorCellTest, ShowsTheStoredColor) {
  EXPECT_EQ(color(Value::string("80F69240")).color().web(), "#f6924080");
}

TEST_F(ColorCellTest, PrefersTheStoredColorToAllOthers) {
  package("00ff00");
  EXPECT_EQ(color(Value::string("f80"), packaged).color().web(), "#ff8800ff");
}

TEST_F(ColorCellTest, ShowsThePackagedColorForABadOne) {
  package("00ff00");
  for (const Value& bad : {Value::string("no color"), Value::integer(5), Value(plist::Array())}) {
    EXPECT_EQ(color(bad, packaged).color().web(), "#00ff00ff");
  }
}

TEST_F(ColorCellTest, ShowsTheFallbackWithoutAPackagedColor) {
  EXPECT_EQ(color(std::nullopt, packaged).color().web(), "#0000ffff");
}

TEST_F(ColorCellTest, ShowsTheFallbackForABadPackagedColor) {
  package("no color");
  EXPECT_EQ(color(std::nullopt, packaged).color().web(), "#0000ffff");
}

TEST_F(ColorCellTest, ShowsRedAtLast) {
  EXPECT_EQ(color(std::nullopt).color().web(), "#ff0000ff");
  EXPECT_EQ(color(std::nullopt, {{"fallback", Value::string("#")}}).color().web(), "#ff0000ff");
  EXPECT_EQ(color(std::nullopt, {{"fallback", Value::integer(7)}}).color().web(), "#ff0000ff");
}

TEST_F(ColorCellTest, StoresAndShowsThePickedColor) {
  ColorCell cell = color(std::nullopt, {{"showAlphaSlider", Value(true)}});
  EXPECT_TRUE(cell.offersAlpha());
  cell.pick({0xf6, 0x92, 0x40, 0x80});
  EXPECT_EQ(page().written.back().second, Value::string("80F69240"));
  EXPECT_EQ(cell.color().web(), "#f6924080");
}

TEST_F(ColorCellTest, OffersAlphaByEitherName) {
  EXPECT_TRUE(color(std::nullopt, {{"alpha", Value(true)}}).offersAlpha());
  EXPECT_FALSE(color(std::nullopt, {{"alpha", Value(false)}}).offersAlpha());
}

TEST_F(ColorCellTest, WithoutAlphaStoresTheColorOpaque) {
  ColorCell cell = color(std::nullopt);
  cell.pick({0xf6, 0x92, 0x40, 0x00});
  EXPECT_EQ(page().written.back().second, Value::string("FFF69240"));
  EXPECT_EQ(cell.color().web(), "#f69240ff");
}

}  // namespace
}  // namespace desktop_tests
