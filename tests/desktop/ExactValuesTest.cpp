#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSNumber.h"
#include "tests/desktop/PhoneTest.h"

namespace desktop_tests {
namespace {

using plist::Form;
using plist::Value;

struct Sample {
  const char* name;
  Value value;
  bool xmlCarriesIt = true;
};

plist::Array arrayOf(const std::vector<Value>& values) {
  plist::Array array;
  for (const Value& value : values) array.append(value);
  return array;
}

std::vector<Sample> samples() {
  plist::Dictionary inner;
  inner.set("", Value::data(""));
  inner.set("nested", Value(arrayOf({Value(plist::Dictionary()), Value(plist::Array())})));
  return {
      {"yes", Value(true)},
      {"no", Value(false)},
      {"smallest", Value::integer(std::numeric_limits<std::int64_t>::min())},
      {"largest", Value::integer(std::numeric_limits<std::uint64_t>::max())},
      {"one", Value::integer(1)},
      {"tenth", Value::real(0.1)},
      {"minus zero", Value::real(-0.0)},
      {"least", Value::real(std::numeric_limits<double>::denorm_min())},
      {"infinite", Value::real(std::numeric_limits<double>::infinity())},
      {"single", Value::real(0.1F), false},
      {"odd NaN", Value::real(std::bit_cast<double>(0x7ff8'0000'0000'1234)), false},
      {"date", Value::date(86400)},
      {"date between seconds", Value::date(0.1), false},
      {"uid", Value::uid(42), false},
      {"text", Value::string("na\xc3\xafve <&> \xf0\x9f\x98\x80\n\ttext")},
      {"empty text", Value::string("")},
      {"control character", Value::string(std::string_view("\x01", 1)), false},
      {"data", Value::data(std::string_view("\0\xff\n", 3))},
      {"array", Value(arrayOf({Value::integer(1), Value(true), Value::real(1.0)}))},
      {"dictionary", Value(inner)},
  };
}

plist::Dictionary unknownKeys(Form form) {
  plist::Dictionary keys;
  for (const Sample& sample : samples()) {
    if (form == Form::Binary || sample.xmlCarriesIt) keys.set(sample.name, sample.value);
  }
  return keys;
}

/// A file with values of every type under keys that nothing here knows.
class UnknownKeys : public PhoneTest, public testing::WithParamInterface<Form> {
 protected:
  UnknownKeys() { writeBytes(file, plist::write(Value(kept), GetParam()).value()); }

  /// Fails unless all but "key" is as it was.
  void expectKept() const {
    plist::Document document = stored();
    EXPECT_EQ(document.form, GetParam());
    document.root.dictionary()->erase("key");
    EXPECT_EQ(document.root, Value(kept));
  }

  const plist::Dictionary kept = unknownKeys(GetParam());
};

TEST_P(UnknownKeys, SurviveAThousandChangesOfAnotherKeyByTheService) {
  for (int change = 0; change < 1000; ++change) {
    phone->preferences.set(domain, "key", Value::integer(change));
  }
  EXPECT_EQ(phone->preferences.value(domain, "key"), Value::integer(999));
  expectKept();
}

TEST_P(UnknownKeys, SurviveAThousandChangesOfAnotherKeyByADictionary) {
  for (int change = 0; change < 1000; ++change) {
    auto dictionary = platform::NSMutableDictionary::initWithContentsOfFile(path);
    dictionary.setObject(platform::NSNumber::numberWithInt(change), "key");
    ASSERT_TRUE(dictionary.writeToFile(path, platform::Atomically::Yes));
  }
  expectKept();
}

TEST_P(UnknownKeys, SurviveBeingPassedThroughTheBundlesHands) {
  auto dictionary = platform::NSMutableDictionary::initWithContentsOfFile(path);
  for (const auto& entry : kept) {
    const platform::NSString key(entry.key());
    dictionary.setObject(dictionary.objectForKey(key), key);
  }
  ASSERT_TRUE(dictionary.writeToFile(path, platform::Atomically::No));
  expectKept();
}

TEST_P(UnknownKeys, KeepTheirOrder) {
  phone->preferences.set(domain, "key", Value(true));
  std::vector<std::string> expected;
  for (const auto& entry : kept) expected.emplace_back(entry.key());
  expected.emplace_back("key");
  std::vector<std::string> found;
  const plist::Document document = stored();
  for (const auto& entry : *document.root.dictionary()) found.emplace_back(entry.key());
  EXPECT_EQ(found, expected);
}

INSTANTIATE_TEST_SUITE_P(Preferences, UnknownKeys, testing::Values(Form::Xml, Form::Binary),
                         [](const auto& test) {
                           return test.param == Form::Xml ? "Xml" : "Binary";
                         });

}  // namespace
}  // namespace desktop_tests
