#include <gtest/gtest.h>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

class BadText : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(BadText, IsUnreadable) {
  const auto [element, text] = GetParam();
  const std::string name = element;
  EXPECT_THROW(read(samples::xmlFile("<" + name + ">" + text + "</" + name + ">")), Unreadable)
      << text;
}

template <typename... Texts>
auto each(const char* element, Texts... texts) {
  return testing::Values(std::pair<const char*, const char*>(element, texts)...);
}

INSTANTIATE_TEST_SUITE_P(FractionIsNotAnInteger, BadText, each("integer", "1.5", "1e3", "1."));
INSTANTIATE_TEST_SUITE_P(IntegerNeedsDigits, BadText, each("integer", "", " ", "-", "+", "0x"));
INSTANTIATE_TEST_SUITE_P(NothingFollowsAnInteger, BadText,
                         each("integer", "12abc", "1 2", "0xfg", "12\xC2\xA0", "1-"));
INSTANTIATE_TEST_SUITE_P(IntegerHasOneSign, BadText, each("integer", "--1", "+-1", "0x-1", "0x+1"));
INSTANTIATE_TEST_SUITE_P(IntegerHasARange, BadText,
                         each("integer", "18446744073709551616", "-9223372036854775809",
                              "0x10000000000000000", "99999999999999999999999"));
INSTANTIATE_TEST_SUITE_P(RealNeedsDigits, BadText, each("real", "", " ", ".", "-", "e5", "+."));
INSTANTIATE_TEST_SUITE_P(NothingFollowsAReal, BadText,
                         each("real", "1,5", "1.5x", "1 5", "1e", "1e+", "0x1p3", "1.5.5"));
INSTANTIATE_TEST_SUITE_P(NanHasNoSignOrPayload, BadText,
                         each("real", "-nan", "+nan", "nan(1)", "nanx", "infin", "--inf"));
INSTANTIATE_TEST_SUITE_P(DateHasOneForm, BadText,
                         each("date", "", "2001-01-01", "2001-01-01T00:00:00", "tomorrow",
                              "2001-1-01T00:00:00Z", "2001-01-01 00:00:00Z", "-01-01T00:00:00Z",
                              "2001-01-01T00:00:00+01:00", "2001-01-01T00:00:00.5Z",
                              "+2001-01-01T00:00:00Z", " 2001-01-01T00:00:00Z",
                              "2001-01-01T00:00:00Z ", "2001--1-01T00:00:00Z",
                              "--2001-01-01T00:00:00Z", "2001-01-01T00:00:-1Z"));
INSTANTIATE_TEST_SUITE_P(DateFieldsHaveRanges, BadText,
                         each("date", "2001-00-01T00:00:00Z", "2001-13-01T00:00:00Z",
                              "2001-01-00T00:00:00Z", "2001-02-29T00:00:00Z",
                              "1900-02-29T00:00:00Z", "2001-04-31T00:00:00Z",
                              "2001-01-32T00:00:00Z", "2001-01-01T24:00:00Z",
                              "2001-01-01T00:60:00Z", "2001-01-01T00:00:60Z",
                              "300000000-01-01T00:00:00Z", "99999999999999999999-01-01T00:00:00Z"));
INSTANTIATE_TEST_SUITE_P(DataIsStrictBase64, BadText,
                         each("data", "Q", "QQ", "QQ=", "QQ===", "QUI", "QUI==", "QUJD=", "=",
                              "====", "QQ==QQ==", "Q!==", "QQ-_", "QR==", "QUJ=", "QQ=\xC2\xA0="));
INSTANTIATE_TEST_SUITE_P(TextIsWellFormed, BadText,
                         each("string", "\xFF", "\xC0\x80", "\xED\xA0\x80", "&#xD800;", "&#0;",
                              "&#1;", "\x01", "&#xFFFE;", "&foo;", "<b/>", "a<!-- c -->b",
                              "a<?p i?>b", "&#x110000;"));

class BadFile : public testing::TestWithParam<const char*> {};

TEST_P(BadFile, IsUnreadable) { EXPECT_THROW(read(GetParam()), Unreadable); }

INSTANTIATE_TEST_SUITE_P(NoDocument, BadFile,
                         testing::Values("", " ", "<", "plain text", "{ a = b; }", "\xEF\xBB\xBF",
                                         "\xFF\xFE", "<?xml version='1.0'?>"));
INSTANTIATE_TEST_SUITE_P(RootIsPlist, BadFile,
                         testing::Values("<true/>", "<dict/>", "<html/>", "<plist/>",
                                         "<plist></plist>", "<plist><plist><true/></plist></plist>",
                                         "<Plist><true/></Plist>"));
INSTANTIATE_TEST_SUITE_P(OneValueAndNothingElse, BadFile,
                         testing::Values("<plist><true/><true/></plist>", "<plist><true/>x</plist>",
                                         "<plist>x<true/></plist>", "<plist><true/></plist>x",
                                         "<plist><true/></plist><plist><true/></plist>",
                                         "x<plist><true/></plist>", "<plist><true/>",
                                         "<plist><key>a</key></plist>",
                                         "<plist>\xC2\xA0<true/></plist>"));
INSTANTIATE_TEST_SUITE_P(KeysAndValuesTakeTurns, BadFile,
                         testing::Values("<plist><dict><key>a</key></dict></plist>",
                                         "<plist><dict><true/></dict></plist>",
                                         "<plist><dict><key>a</key><key>b</key></dict></plist>",
                                         "<plist><dict>x<key>a</key><true/></dict></plist>",
                                         "<plist><array><key>a</key></array></plist>",
                                         "<plist><array>x</array></plist>"));
INSTANTIATE_TEST_SUITE_P(ElementsAreTheKnownOnes, BadFile,
                         testing::Values("<plist><null/></plist>", "<plist><set/></plist>",
                                         "<plist><String>a</String></plist>",
                                         "<plist><x:true xmlns:x='y'/></plist>",
                                         "<plist><true>x</true></plist>",
                                         "<plist><true> </true></plist>",
                                         "<plist><true><!-- c --></true></plist>",
                                         "<plist><true><false/></true></plist>",
                                         "<plist><true></plist>", "<plist><true></false></plist>"));
INSTANTIATE_TEST_SUITE_P(VersionIsTheOnlyAttribute, BadFile,
                         testing::Values("<plist id='1'><true/></plist>",
                                         "<plist version='1.0' id='1'><true/></plist>",
                                         "<plist xmlns='y'><true/></plist>",
                                         "<plist><true a='b'/></plist>",
                                         "<plist><string version='1.0'/></plist>",
                                         "<!DOCTYPE plist SYSTEM 'x'>"
                                         "<plist version='&foo;1.0'><true/></plist>"));
INSTANTIATE_TEST_SUITE_P(
    NoEntitiesAndNothingFetched, BadFile,
    testing::Values("<!DOCTYPE plist [<!ENTITY a 'b'>]><plist><string>&a;</string></plist>",
                    "<!DOCTYPE plist []><plist><true/></plist>",
                    "<!DOCTYPE plist [<!ENTITY a SYSTEM 'file:///etc/passwd'>]>"
                    "<plist><string>&a;</string></plist>",
                    "<!DOCTYPE plist SYSTEM 'x'><plist><string>&a;</string></plist>",
                    "<!DOCTYPE plist SYSTEM 'x'><plist>&a;<true/></plist>",
                    "<!DOCTYPE html><plist><true/></plist>"));
INSTANTIATE_TEST_SUITE_P(OtherEncodings, BadFile,
                         testing::Values("<?xml version='1.0' encoding='ISO-8859-1'?>"
                                         "<plist><true/></plist>",
                                         "<?xml version='1.0' encoding='UTF-16'?>"
                                         "<plist><true/></plist>",
                                         "<?xml version='1.0' encoding='utf-7'?>"
                                         "<plist><true/></plist>"));

TEST(BadXml, Utf16WithoutMarkIsUnreadable) {
  EXPECT_THROW(read(samples::utf16("<plist><true/></plist>", true).substr(2)), Unreadable);
  EXPECT_THROW(read(samples::utf16("<plist><true/></plist>", false).substr(2)), Unreadable);
}

TEST(BadXml, NulIsUnreadable) {
  EXPECT_THROW(read(samples::xmlFile(std::string("<string>\0</string>", 18))), Unreadable);
}

TEST(BadXml, AnyPrefixIsUnreadable) {
  const std::string file = samples::xmlFile("<dict><key>a</key><data>QQ==</data></dict>");
  for (std::size_t size = 0; size + 1 < file.size(); ++size) {
    EXPECT_THROW(read(file.substr(0, size)), Unreadable) << size;
  }
}

TEST(BadXml, EndlessTagIsUnreadable) {
  constexpr std::size_t kLong = 15 * 1024 * 1024;
  EXPECT_THROW(read("<plist><" + std::string(kLong, 'a')), Unreadable);
  EXPECT_THROW(read("<plist version='" + std::string(kLong, 'a') + "'><true/></plist>"),
               Unreadable);
}

TEST(BadXml, YearsWhoseSecondsNoDoubleCountsAreUnreadable) {
  for (const std::string year : {"285616000", "-285616000"}) {
    const std::string date = "<date>" + year + "-01-01T00:00:00Z</date>";
    EXPECT_THROW(read(samples::xmlFile(date)), Unreadable) << year;
  }
}

}  // namespace
}  // namespace plist
