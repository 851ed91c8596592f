#include <gtest/gtest.h>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

const Value kAe = Value::string("\xC3\xA4");

Value root(std::string file) {
  const Document document = read(std::move(file));
  EXPECT_EQ(document.form, Form::Xml);
  return document.root;
}

TEST(XmlDocument, Utf8WithAndWithoutMark) {
  const std::string file = samples::xmlFile("<string>\xC3\xA4</string>");
  EXPECT_EQ(root(file), kAe);
  EXPECT_EQ(root("\xEF\xBB\xBF" + file), kAe);
}

TEST(XmlDocument, Utf16OfEitherOrder) {
  const std::string file = "<plist><string>&#xE4;</string></plist>";
  EXPECT_EQ(root(samples::utf16(file, true)), kAe);
  EXPECT_EQ(root(samples::utf16(file, false)), kAe);
}

TEST(XmlDocument, MarkIsBelievedAgainstTheDeclaration) {
  EXPECT_EQ(root(samples::utf16(samples::xmlFile("<string>&#xE4;</string>"), false)), kAe);
}

TEST(XmlDocument, Utf16KeepsEndsOfLines) {
  for (const bool bigEndian : {false, true}) {
    const std::string file = "<plist><string>a\r\nb\rc\n\xF0</string></plist>";
    std::string bytes = samples::utf16(file, bigEndian);
    EXPECT_EQ(root(bytes), Value::string("a\r\nb\rc\n\xC3\xB0"));
  }
}

TEST(XmlDocument, DeclarationAndDocumentTypeMayBeMissing) {
  EXPECT_EQ(root("<plist><true/></plist>"), Value(true));
  EXPECT_EQ(root("<plist version='1.0'><true/></plist>"), Value(true));
}

TEST(XmlDocument, DocumentTypeInItsOrdinaryForms) {
  EXPECT_EQ(root("<!DOCTYPE plist><plist><true/></plist>"), Value(true));
  EXPECT_EQ(root("<!DOCTYPE plist SYSTEM \"file://localhost/System/Library/DTDs/PropertyList.dtd\">"
                 "<plist version=\"0.9\"><true/></plist>"),
            Value(true));
}

TEST(XmlDocument, CommentsAndInstructionsBetweenElements) {
  EXPECT_EQ(root("<!-- a --><?b c?><plist><!-- d --><true/><?e f?></plist><!-- g -->"),
            Value(true));
}

TEST(XmlDocument, AttributesOfAnyLength) {
  const std::string file = "<plist version=\"" + std::string(5000, '1') + "\"><true/></plist>";
  EXPECT_EQ(root(file), Value(true));
}

TEST(XmlDocument, DeclaredUtf8InAnyCase) {
  EXPECT_EQ(root("<?xml version='1.0' encoding='utf-8'?><plist><true/></plist>"), Value(true));
}

TEST(XmlDocument, ValuesAndKeysCountTowardsTheLimit) {
  const std::string file = samples::xmlFile("<dict><key>a</key><true/></dict>");
  EXPECT_NO_THROW(read(file, {.nodes = 3}));
  EXPECT_THROW(read(file, {.nodes = 2}), Unreadable);
}

TEST(XmlDocument, InputAboveTheBoundIsUnreadable) {
  const std::string file = samples::xmlFile("<true/>");
  EXPECT_NO_THROW(read(file, {.bytes = static_cast<std::uint32_t>(file.size())}));
  EXPECT_THROW(read(file, {.bytes = static_cast<std::uint32_t>(file.size() - 1)}), Unreadable);
}

TEST(XmlDocument, ReasonAndPlaceAreGiven) {
  try {
    read("<plist><integer>1.5</integer></plist>");
    FAIL();
  } catch (const Unreadable& unreadable) {
    EXPECT_STREQ(unreadable.what(), "bad integer (at byte 19)");
    EXPECT_EQ(unreadable.offset(), 19U);
  }
}

}  // namespace
}  // namespace plist
