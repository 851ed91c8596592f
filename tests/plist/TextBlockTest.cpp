#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "plist/Document.h"
#include "plist/TextBlock.h"

namespace plist {
namespace {

TEST(TextBlock, MakesStringsThatOutliveIt) {
  std::vector<Value> values;
  {
    TextBlock block;
    for (const char* text : {"", "a", "Ünï", "\xed\xa0\x80"}) values.push_back(*block.append(text));
  }
  EXPECT_EQ(values[0].string(), "");
  EXPECT_EQ(values[1], Value::string("a"));
  EXPECT_EQ(values[2], Value::string("Ünï"));
  EXPECT_EQ(values[3].string(), "\xed\xa0\x80");
}

TEST(TextBlock, MakesNoneOfWhatIsNoText) {
  TextBlock block;
  EXPECT_FALSE(block.append("\xff"));
  EXPECT_FALSE(block.append("a\xc3"));
  EXPECT_EQ(block.append("a")->string(), "a");
}

TEST(TextBlock, HoldsTextsOfAnyLengthWhichStayWhereTheyAre) {
  TextBlock block;
  const Value first = *block.append("first");
  const char* const place = first.string()->data();
  for (const std::size_t size : {60'000U, 10'000U, 200'000U, 1U}) {
    EXPECT_EQ(block.append(std::string(size, 'x'))->string(), std::string(size, 'x'));
  }
  EXPECT_EQ(first.string()->data(), place);
  EXPECT_EQ(first.string(), "first");
}

/// An empty text begins where the next one does, and is another all the same.
TEST(TextBlock, IsWrittenWithEachOfItsTextsOnce) {
  TextBlock block;
  Array list;
  for (int number = 0; number < 2000; ++number) {
    const Value text = *block.append("number " + std::to_string(number) + ';');
    const Value empty = *block.append("");
    for (const Value& each : {text, empty, text}) list.append(each);
  }
  const std::string file = writeBinary(Value(list));
  EXPECT_EQ(read(file).root, Value(list));
  const std::size_t place = file.find("number 1999;");
  ASSERT_NE(place, std::string::npos);
  EXPECT_EQ(file.find("number 1999;", place + 1), std::string::npos);
}

TEST(Part, SharesTheBytesOfTheWhole) {
  const Value whole = Value::string("Clock.lottie");
  const Value stem = part(whole, 0, 5);
  EXPECT_EQ(stem, Value::string("Clock"));
  EXPECT_EQ(stem.string()->data(), whole.string()->data());
  EXPECT_EQ(part(part(whole, 6, 6), 3, 3).string(), "tie");
  EXPECT_EQ(part(whole, 12, 0).string(), "");
}

TEST(Part, OutlivesTheWhole) {
  Value rest(false);
  {
    const Value whole = Value::string("a text that is too long to be kept in place");
    rest = part(whole, 2, 4);
  }
  EXPECT_EQ(rest.string(), "text");
}

}  // namespace
}  // namespace plist
