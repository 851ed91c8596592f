#include <clocale>
#include <gtest/gtest.h>
#include <locale>
#include <string>
#include <utility>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

struct German : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

/// C++ streams write German numbers everywhere; the C library too where that locale is installed.
class GermanLocale : public testing::Test {
 protected:
  void SetUp() override {
    const char* const before = std::setlocale(LC_ALL, nullptr);
    cBefore_ = before;
    cppBefore_ = std::locale::global(std::locale(std::locale::classic(), new German));
    std::setlocale(LC_ALL, "de_DE.UTF-8");
  }
  void TearDown() override {
    std::locale::global(cppBefore_);
    std::setlocale(LC_ALL, cBefore_.c_str());
  }

 private:
  std::string cBefore_;
  std::locale cppBefore_;
};

TEST_F(GermanLocale, NumbersAreReadWithPoints) {
  EXPECT_EQ(read(samples::xmlFile("<real>1234.5</real>")).root, Value::real(1234.5));
  EXPECT_THROW(read(samples::xmlFile("<real>1234,5</real>")), Unreadable);
  EXPECT_EQ(read(samples::xmlFile("<integer>1234567</integer>")).root, Value::integer(1234567));
}

TEST_F(GermanLocale, NumbersAndDatesAreWrittenTheSame) {
  Array array;
  array.append(Value::real(1234.5));
  array.append(Value::integer(1234567));
  array.append(Value::date(284e6 * 31557600));
  const std::string xml = *writeXml(Value(array));
  EXPECT_NE(xml.find("<real>1234.5</real>"), std::string::npos) << xml;
  EXPECT_NE(xml.find("<integer>1234567</integer>"), std::string::npos) << xml;
  EXPECT_EQ(read(xml).root, Value(array));
}

TEST_F(GermanLocale, PlacesInReasonsAreUngrouped) {
  try {
    read(samples::xmlFile(std::string(2000, ' ') + "x"));
    FAIL();
  } catch (const Unreadable& unreadable) {
    EXPECT_EQ(std::string(unreadable.what()).find("2.0"), std::string::npos) << unreadable.what();
  }
}

}  // namespace
}  // namespace plist
