#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

Value readOne(const std::string& element) { return read(samples::xmlFile(element)).root; }
Value integer(const std::string& text) { return readOne("<integer>" + text + "</integer>"); }
Value real(const std::string& text) { return readOne("<real>" + text + "</real>"); }
Value date(const std::string& text) { return readOne("<date>" + text + "</date>"); }

TEST(XmlValue, Booleans) {
  EXPECT_EQ(readOne("<true/>"), Value(true));
  EXPECT_EQ(readOne("<false></false>"), Value(false));
}

TEST(XmlValue, Integers) {
  EXPECT_EQ(integer("0"), Value::integer(0));
  EXPECT_EQ(integer("-9223372036854775808"), Value::integer(INT64_MIN));
  EXPECT_EQ(integer("18446744073709551615"), Value::integer(UINT64_MAX));
  EXPECT_EQ(integer("+007"), Value::integer(7));
  EXPECT_EQ(integer("-0"), Value::integer(0));
}

TEST(XmlValue, HexadecimalIntegers) {
  EXPECT_EQ(integer("0xff"), Value::integer(255));
  EXPECT_EQ(integer("-0X10"), Value::integer(-16));
  EXPECT_EQ(integer("0xFFFFFFFFFFFFFFFF"), Value::integer(UINT64_MAX));
}

TEST(XmlValue, WhiteSpaceAroundAnInteger) {
  EXPECT_EQ(integer("\n\t 5 \n"), Value::integer(5));
  EXPECT_EQ(integer("- 5"), Value::integer(-5));
}

TEST(XmlValue, Reals) {
  EXPECT_EQ(real("1"), Value::real(1.0));
  EXPECT_EQ(real("-1.5e3"), Value::real(-1500.0));
  EXPECT_EQ(real(" +.5E-1 "), Value::real(0.05));
  EXPECT_EQ(real("5."), Value::real(5.0));
  EXPECT_EQ(real("-0.0"), Value::real(-0.0));
  EXPECT_EQ(real("4.9406564584124654e-324"), Value::real(5e-324));
}

TEST(XmlValue, InfinitiesInTheirSpellings) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const char* text : {"inf", "+inf", "infinity", "+Infinity", "INF"}) {
    EXPECT_EQ(real(text), Value::real(kInfinity)) << text;
  }
  EXPECT_EQ(real("-inf"), Value::real(-kInfinity));
  EXPECT_EQ(real("-INFINITY"), Value::real(-kInfinity));
}

TEST(XmlValue, NanIsThePlainQuietOne) {
  EXPECT_EQ(real("nan"), Value::real(std::numeric_limits<double>::quiet_NaN()));
  EXPECT_EQ(real("NaN"), Value::real(std::numeric_limits<double>::quiet_NaN()));
}

TEST(XmlValue, RealTooLargeIsAnInfinityAndTooSmallAZero) {
  EXPECT_EQ(real("1e999"), Value::real(HUGE_VAL));
  EXPECT_EQ(real("-1e999"), Value::real(-HUGE_VAL));
  EXPECT_EQ(real("1e-999"), Value::real(0.0));
  EXPECT_EQ(real("-1e-999"), Value::real(-0.0));
  EXPECT_EQ(real("1e99999999999999999999"), Value::real(HUGE_VAL));
  EXPECT_EQ(real("1e-99999999999999999999"), Value::real(0.0));
  EXPECT_EQ(real("0e99999999999999999999"), Value::real(0.0));
  EXPECT_EQ(real(std::string(400, '9')), Value::real(HUGE_VAL));
  EXPECT_EQ(real("0." + std::string(400, '0') + "1"), Value::real(0.0));
  EXPECT_EQ(real("0." + std::string(400, '0') + "1e401"), Value::real(1.0));
}

TEST(XmlValue, Dates) {
  EXPECT_EQ(date("2001-01-01T00:00:00Z"), Value::date(0));
  EXPECT_EQ(date("1970-01-01T00:00:00Z"), Value::date(-978307200));
  EXPECT_EQ(date("2024-02-29T23:59:59Z"), Value::date(730943999));
  EXPECT_EQ(date("2000-12-31T23:59:59Z"), Value::date(-1));
}

TEST(XmlValue, DatesOfAnyYear) {
  EXPECT_EQ(date("0000-01-01T00:00:00Z"), Value::date(-63145526400));
  EXPECT_EQ(date("-0001-12-31T23:59:59Z"), Value::date(-63145526401));
  EXPECT_EQ(date("1-01-01T00:00:00Z"), Value::date(-63113904000));
  EXPECT_EQ(date("285000000-01-01T00:00:00Z").type(), Type::Date);
}

TEST(XmlValue, Text) {
  EXPECT_EQ(readOne("<string/>"), Value::string(""));
  EXPECT_EQ(readOne("<string> a &lt;&amp;&gt;&quot;&apos;&#xE4; </string>"),
            Value::string(" a <&>\"'\xC3\xA4 "));
  EXPECT_EQ(readOne("<string>a<![CDATA[<b>&amp;]]>c</string>"), Value::string("a<b>&amp;c"));
}

TEST(XmlValue, EndsOfLinesAreKeptAsTheyStand) {
  EXPECT_EQ(readOne("<string>a\r\nb\rc\nd&#13;&#10;</string>"), Value::string("a\r\nb\rc\nd\r\n"));
  EXPECT_EQ(readOne("<string><![CDATA[a\r\nb\r]]></string>"), Value::string("a\r\nb\r"));
}

TEST(XmlValue, Data) {
  EXPECT_EQ(readOne("<data/>"), Value::data(""));
  EXPECT_EQ(readOne("<data>QQ==</data>"), Value::data("A"));
  EXPECT_EQ(readOne("<data>QUI=</data>"), Value::data("AB"));
  EXPECT_EQ(readOne("<data>\n\tQU\r\n JD\n</data>"), Value::data("ABC"));
  EXPECT_EQ(readOne("<data>+/+/</data>"), Value::data("\xFB\xFF\xBF"));
}

TEST(XmlValue, Containers) {
  Array array;
  array.append(Value(true));
  array.append(Value(Dictionary()));
  EXPECT_EQ(readOne("<array><true/><!-- c --><?p i?><dict/></array>"), Value(array));
  EXPECT_EQ(readOne("<array></array>"), Value(Array()));
}

TEST(XmlValue, KeysInOrderTheEmptyOneIncluded) {
  const Value root =
      readOne("<dict><key>b</key><true/><key></key><false/><key>a</key><true/></dict>");
  const Dictionary& dictionary = *root.dictionary();
  ASSERT_EQ(dictionary.size(), 3U);
  EXPECT_EQ(dictionary.begin()[0].key(), "b");
  EXPECT_EQ(dictionary.begin()[1].key(), "");
  EXPECT_EQ(dictionary.find("")->boolean(), false);
}

TEST(XmlValue, LastOfEqualKeysCountsInThePlaceOfTheFirst) {
  const Value root = readOne(
      "<dict><key>a</key><true/><key>b</key><true/><key>a</key><integer>2</integer></dict>");
  ASSERT_EQ(root.dictionary()->size(), 2U);
  EXPECT_EQ(root.dictionary()->begin()[0].key(), "a");
  EXPECT_EQ(root.dictionary()->find("a")->integer(), 2);
}

TEST(XmlValue, DictionaryOfAUidStaysADictionary) {
  const Value root = readOne("<dict><key>CF$UID</key><integer>7</integer></dict>");
  ASSERT_NE(root.dictionary(), nullptr);
  EXPECT_EQ(root.dictionary()->find("CF$UID")->integer(), 7);
}

}  // namespace
}  // namespace plist
