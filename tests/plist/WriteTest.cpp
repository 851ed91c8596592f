#include <gtest/gtest.h>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

Value trues(std::size_t count) {
  Array array;
  for (; count > 0; --count) array.append(Value(true));
  return Value(array);
}

/// Twice 3-byte characters: 6 bytes of UTF-8 each in XML, 4 of UTF-16 in binary.
Value wideText(std::size_t pairs) {
  return Value::string(samples::repeated("\xE4\xB8\x80\xE4\xB8\x80", pairs));
}

TEST(Write, GivesTheWantedForm) {
  EXPECT_EQ(write(Value(true), Form::Xml), writeXml(Value(true)));
  EXPECT_EQ(write(Value(true), Form::Binary), writeBinary(Value(true)));
}

TEST(Write, FallsBackToBinaryWhereXmlHasNoForm) {
  EXPECT_EQ(write(Value::uid(1), Form::Xml), writeBinary(Value::uid(1)));
}

TEST(Write, FallsBackToBinaryWhereXmlIsTooLarge) {
  const Value text = wideText(1000);
  const auto xmlSize = static_cast<std::uint32_t>(writeXml(text)->size());
  EXPECT_EQ(write(text, Form::Xml, {.bytes = xmlSize}), writeXml(text));
  EXPECT_EQ(write(text, Form::Xml, {.bytes = xmlSize - 1}), writeBinary(text));
}

TEST(Write, GivesNoneWhereBothFormsAreTooLarge) {
  const Value text = wideText(1000);
  const auto size = static_cast<std::uint32_t>(writeBinary(text).size());
  for (const Form form : {Form::Xml, Form::Binary}) {
    EXPECT_TRUE(write(text, form, {.bytes = size}));
    EXPECT_EQ(write(text, form, {.bytes = size - 1}), std::nullopt);
  }
}

TEST(Write, GivesNoneBeyondTheDepth) {
  for (const Form form : {Form::Xml, Form::Binary}) {
    EXPECT_EQ(read(write(samples::nestedArrays(512), form).value()).root,
              samples::nestedArrays(512));
    EXPECT_EQ(write(samples::nestedArrays(513), form), std::nullopt);
  }
}

TEST(Write, GivesNoneBeyondTheNumberOfNodes) {
  for (const Form form : {Form::Xml, Form::Binary}) {
    EXPECT_EQ(read(write(trues(249'999), form).value()).root.array()->size(), 249'999U);
    EXPECT_EQ(write(trues(250'000), form), std::nullopt);
  }
}

TEST(Write, GivesNoneBeyondTheText) {
  Dictionary dictionary;
  dictionary.set("key", Value::string("text"));
  dictionary.set("b", Value::data("data"));
  for (const Form form : {Form::Xml, Form::Binary}) {
    const Limits enough = {.text = 12};
    EXPECT_EQ(read(write(Value(dictionary), form, enough).value(), enough).root, Value(dictionary));
    EXPECT_EQ(write(Value(dictionary), form, {.text = 11}), std::nullopt);
    EXPECT_THROW(read(write(Value(dictionary), form).value(), {.text = 11}), Unreadable);
  }
}

TEST(Write, GivesNoXmlBeyondTheBytes) {
  for (const char* text : {"text", "&&&&", ""}) {
    const Value value = Value::string(text);
    const std::string xml = writeXml(value).value();
    EXPECT_EQ(writeXml(value, xml.size()), xml);
    EXPECT_EQ(writeXml(value, xml.size() - 1), std::nullopt);
  }
}

TEST(Write, KeysCountAsNodes) {
  Dictionary dictionary;
  dictionary.set("a", Value(true));
  EXPECT_TRUE(write(Value(dictionary), Form::Binary, {.nodes = 3}));
  EXPECT_EQ(write(Value(dictionary), Form::Binary, {.nodes = 2}), std::nullopt);
  EXPECT_EQ(write(Value(true), Form::Binary, {.nodes = 0}), std::nullopt);
}

TEST(Write, GivesNoneAtOnceForWhatMemoryCouldNotHold) {
  Value value(true);
  for (int level = 0; level < 200; ++level) {
    Array pair;
    pair.append(value);
    pair.append(value);
    value = Value(pair);
  }
  EXPECT_EQ(write(value, Form::Binary), std::nullopt);
  EXPECT_EQ(write(value, Form::Xml), std::nullopt);
}

TEST(Write, DeepXmlStaysAboutAsLarge) {
  const std::string file =
      samples::xmlFile(samples::repeated("<array>", 490) + samples::repeated("<true/>", 100'000) +
                       samples::repeated("</array>", 490));
  EXPECT_LT(writeXml(read(file).root).value().size(), 3 * file.size());
}

TEST(Write, GivesNoneForTextBeyondTheLimit) {
  Dictionary dictionary;
  dictionary.set("key", Value(true));
  EXPECT_EQ(write(Value(dictionary), Form::Xml, {.text = 2}), std::nullopt);
  EXPECT_EQ(write(Value::string("text"), Form::Xml, {.text = 3}), std::nullopt);
  EXPECT_NE(write(Value::string("text"), Form::Xml, {.text = 4}), std::nullopt);
}

}  // namespace
}  // namespace plist
