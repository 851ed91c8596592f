#include <gtest/gtest.h>

#include "plist/ReadPlainXml.h"
#include "plist/ReadXml.h"
#include "plist/XmlElements.h"

namespace plist {
namespace {

std::string file(const std::string& value) {
  return std::string(xml::kHead) + value + "\n</plist>\n";
}

/// One of everything that plain XML holds.
const std::string kEverything = file(
    "<dict>\n\t<key>text</key>\n\t<string>a b\tc\nd ~ \xC3\xA4 "
    "\xF0\x9F\x98\x80</string>\n\t<key/>\n\t<string/>\n"
    "\t<key>numbers</key>\n\t<array>\n\t\t<integer>-12</integer>\n\t\t<real>1.5</real>\n"
    "\t\t<true/>\n\t\t<false/>\n\t\t<date>2001-01-01T00:00:01Z</date>\n"
    "\t\t<data>\n\t\tAQID\n\t\t</data>\n\t</array>\n"
    "\t<key>empty</key>\n\t<dict/>\n\t<key>none</key>\n\t<array/>\n</dict>");

std::optional<Value> byExpat(const std::string& bytes) {
  try {
    return readXml(bytes, {});
  } catch (const Unreadable&) {
    return {};
  }
}

TEST(PlainXml, ReadsWhatExpatReads) {
  for (const std::string& plain :
       {kEverything, file("<string>text</string>"), file("<true></true>"), file("<array></array>"),
        file("<dict><key>a</key><true/><key>a</key><false/></dict>")}) {
    const std::optional<Value> value = readPlainXml(plain, {});
    ASSERT_TRUE(value) << plain;
    EXPECT_EQ(value, byExpat(plain)) << plain;
  }
}

TEST(PlainXml, LeavesTheRestToExpat) {
  for (const std::string& other :
       {file("<string>&amp;</string>"), file("<string>\x7F</string>"),
        file("<string>a\r\n</string>"), file("<string>]]></string>"), file("<true />"),
        file("<string><![CDATA[a]]></string>"), file("<!-- none --><true/>"),
        std::string("<plist><true/></plist>")}) {
    EXPECT_FALSE(readPlainXml(other, {})) << other;
  }
}

TEST(PlainXml, LeavesFaultsToExpat) {
  for (const std::string& faulty :
       {file(""), file("<true/><true/>"), file("<dict><true/></dict>"), file("<dict></array>"),
        file("<string>a</key>"), file("<integer>a</integer>"), file("<plist/>"), file("<other/>"),
        file("<true>a</true>"), file("<array>a</array>"), file("<dict><key>a</key></dict>"),
        file("<true/>") + "<true/>", file("<string>"), file("<string>\xC3</string>"),
        file("<string>\xED\xA0\x80</string>"), file("<string>\xEF\xBF\xBF</string>")}) {
    EXPECT_FALSE(readPlainXml(faulty, {})) << faulty;
  }
}

TEST(PlainXml, KeepsToTheLimits) {
  EXPECT_TRUE(readPlainXml(kEverything, {.depth = 2, .nodes = 17}));
  EXPECT_FALSE(readPlainXml(kEverything, {.depth = 1}));
  EXPECT_FALSE(readPlainXml(kEverything, {.nodes = 16}));
  EXPECT_FALSE(readPlainXml(kEverything, {.text = 10}));
}

// Whatever happens to a file, what is plain in it means what Expat says, and the end of the file
// is never passed.
TEST(PlainXml, DamagedFilesMeanTheSame) {
  std::size_t plain = 0;
  for (std::size_t at = 0; at < kEverything.size(); ++at) {
    EXPECT_FALSE(readPlainXml(std::string_view(kEverything).substr(0, at), {}) &&
                 !byExpat(kEverything.substr(0, at)));
    for (const char letter : {'<', '>', '/', '&', ' ', '\r', '\0', 'a', '1', '\xC3'}) {
      std::string damaged = kEverything;
      damaged[at] = letter;
      const std::optional<Value> value = readPlainXml(damaged, {});
      if (!value) continue;
      ++plain;
      EXPECT_EQ(value, byExpat(damaged)) << damaged;
    }
  }
  EXPECT_GT(plain, 100U);
}

}  // namespace
}  // namespace plist
