#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

/// The file without what stands before and after the value.
std::string element(const Value& value) {
  const std::string head =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
      "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
      "<plist version=\"1.0\">\n";
  const std::string foot = "</plist>\n";
  const std::string file = writeXml(value).value_or("");
  EXPECT_TRUE(file.starts_with(head) && file.ends_with(foot)) << file;
  if (file.size() < head.size() + foot.size()) return file;
  return file.substr(head.size(), file.size() - head.size() - foot.size());
}

TEST(WrittenXml, Scalars) {
  EXPECT_EQ(element(Value(true)), "<true/>\n");
  EXPECT_EQ(element(Value::integer(-75)), "<integer>-75</integer>\n");
  EXPECT_EQ(element(Value::integer(UINT64_MAX)), "<integer>18446744073709551615</integer>\n");
  EXPECT_EQ(element(Value::string("a")), "<string>a</string>\n");
}

TEST(WrittenXml, RealsAreShortAndExact) {
  EXPECT_EQ(element(Value::real(0.1)), "<real>0.1</real>\n");
  EXPECT_EQ(element(Value::real(0.0)), "<real>0.0</real>\n");
  EXPECT_EQ(element(Value::real(-0.0)), "<real>-0.0</real>\n");
  EXPECT_EQ(element(Value::real(HUGE_VAL)), "<real>+infinity</real>\n");
  EXPECT_EQ(element(Value::real(-HUGE_VAL)), "<real>-infinity</real>\n");
  EXPECT_EQ(element(Value::real(kNan)), "<real>nan</real>\n");
}

TEST(WrittenXml, SingleRealIsTheSameNumber) {
  const std::string file = *writeXml(Value::real(0.1F));
  EXPECT_EQ(read(file).root, Value::real(static_cast<double>(0.1F)));
}

TEST(WrittenXml, NanWithAPayloadHasNoForm) {
  EXPECT_EQ(writeXml(Value::real(-kNan)), std::nullopt);
  EXPECT_EQ(writeXml(Value::real(std::bit_cast<double>(0x7FF8'0000'0000'0001))), std::nullopt);
  EXPECT_EQ(writeXml(Value::real(std::bit_cast<float>(0x7F80'0001))), std::nullopt);
  EXPECT_TRUE(writeXml(Value::real(std::numeric_limits<float>::quiet_NaN())));
}

TEST(WrittenXml, Dates) {
  EXPECT_EQ(element(Value::date(0)), "<date>2001-01-01T00:00:00Z</date>\n");
  EXPECT_EQ(element(Value::date(-1)), "<date>2000-12-31T23:59:59Z</date>\n");
  EXPECT_EQ(element(Value::date(730943999)), "<date>2024-02-29T23:59:59Z</date>\n");
  EXPECT_EQ(element(Value::date(-63145526401)), "<date>-0001-12-31T23:59:59Z</date>\n");
}

TEST(WrittenXml, EveryDayOfSomeCenturiesReadsBack) {
  for (int day = -900'000; day < 900'000; day += 7) {
    const Value date = Value::date(day * 86400.0 + 3661);
    ASSERT_EQ(read(*writeXml(date)).root, date) << day;
  }
}

TEST(WrittenXml, LargestDatesReadBack) {
  const double last = std::ldexp(1, 53);
  for (const double seconds : {last, -last, last - 1, 1 - last}) {
    const Value date = Value::date(seconds);
    EXPECT_EQ(read(*writeXml(date)).root, date) << seconds;
  }
}

TEST(WrittenXml, InexactDatesHaveNoForm) {
  for (const double seconds : {0.5, -0.0, HUGE_VAL, -HUGE_VAL, kNan, std::ldexp(1, 54)}) {
    EXPECT_EQ(writeXml(Value::date(seconds)), std::nullopt) << seconds;
  }
}

TEST(WrittenXml, UidHasNoForm) { EXPECT_EQ(writeXml(Value::uid(1)), std::nullopt); }

TEST(WrittenXml, TextIsEscaped) {
  EXPECT_EQ(element(Value::string("<a&b>\"'\r\n]]>")),
            "<string>&lt;a&amp;b&gt;\"'&#13;\n]]&gt;</string>\n");
}

TEST(WrittenXml, TextThatXmlCannotHoldHasNoForm) {
  for (const std::string_view text :
       {std::string_view("\0", 1), std::string_view("\x1F"), std::string_view("\xED\xA0\x80"),
        std::string_view("\xEF\xBF\xBE"), std::string_view("\xEF\xBF\xBF")}) {
    EXPECT_EQ(writeXml(Value::string(text)), std::nullopt);
    Dictionary dictionary;
    dictionary.set(text, Value(true));
    EXPECT_EQ(writeXml(Value(dictionary)), std::nullopt);
  }
}

TEST(WrittenXml, ContainersAreIndentedByTabs) {
  Array array;
  array.append(Value(true));
  Dictionary dictionary;
  dictionary.set("a", Value(array));
  dictionary.set("", Value(Dictionary()));
  dictionary.set("c", Value(Array()));
  EXPECT_EQ(element(Value(dictionary)),
            "<dict>\n\t<key>a</key>\n\t<array>\n\t\t<true/>\n\t</array>\n"
            "\t<key></key>\n\t<dict/>\n\t<key>c</key>\n\t<array/>\n</dict>\n");
}

TEST(WrittenXml, DataInLinesOf76Columns) {
  EXPECT_EQ(element(Value::data("")), "<data>\n</data>\n");
  EXPECT_EQ(element(Value::data(std::string(58, '\0'))),
            "<data>\n" + std::string(76, 'A') + "\nAA==\n</data>\n");
  Array array;
  array.append(Value::data(std::string(51, '\0')));
  EXPECT_EQ(element(Value(array)),
            "<array>\n\t<data>\n\t" + std::string(68, 'A') + "\n\t</data>\n</array>\n");
}

TEST(WrittenXml, TabsAndEndsOfLinesStay) {
  const Value text = Value::string("a\tb\nc\rd");
  EXPECT_EQ(read(writeXml(text).value()).root, text);
}

}  // namespace
}  // namespace plist
