#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "plist/Value.h"

namespace plist {
namespace {

std::vector<std::string> keysOf(const Dictionary& dictionary) {
  std::vector<std::string> keys;
  for (const Dictionary::Entry& entry : dictionary) keys.emplace_back(entry.key());
  return keys;
}

Dictionary numbered(int count) {
  Dictionary dictionary;
  for (int i = 0; i < count; ++i) dictionary.set("key" + std::to_string(i), Value::integer(i));
  return dictionary;
}

TEST(Dictionary, FindsEachOfManyKeys) {
  const Dictionary dictionary = numbered(5000);
  for (int i = 0; i < 5000; ++i) {
    const Value* const value = dictionary.find("key" + std::to_string(i));
    ASSERT_NE(value, nullptr) << i;
    ASSERT_EQ(value->integer(), i);
  }
  EXPECT_EQ(dictionary.find("key5000"), nullptr);
}

TEST(Dictionary, MissingKeyGivesNone) {
  EXPECT_EQ(Dictionary().find("a"), nullptr);
  EXPECT_FALSE(numbered(3).contains("a"));
}

TEST(Dictionary, KeepsTheOrderOfKeys) {
  Dictionary dictionary;
  for (const char* key : {"b", "", "a"}) dictionary.set(key, Value(true));
  EXPECT_EQ(keysOf(dictionary), (std::vector<std::string>{"b", "", "a"}));
}

TEST(Dictionary, SetReplacesInPlace) {
  Dictionary dictionary = numbered(20);
  dictionary.set("key7", Value::string("new"));
  EXPECT_EQ(dictionary.size(), 20U);
  EXPECT_EQ(dictionary.begin()[7].key(), "key7");
  EXPECT_EQ(dictionary.find("key7")->string(), "new");
}

TEST(Dictionary, EraseKeepsTheOrderOfTheOthers) {
  Dictionary dictionary = numbered(20);
  EXPECT_TRUE(dictionary.erase("key3"));
  EXPECT_FALSE(dictionary.erase("key3"));
  EXPECT_EQ(dictionary.size(), 19U);
  EXPECT_EQ(dictionary.begin()[3].key(), "key4");
  for (int i = 4; i < 20; ++i) {
    ASSERT_EQ(dictionary.find("key" + std::to_string(i))->integer(), i);
  }
}

TEST(Dictionary, ErasedKeyCanBeSetAgain) {
  Dictionary dictionary = numbered(20);
  dictionary.erase("key3");
  dictionary.set("key3", Value(true));
  EXPECT_EQ(dictionary.begin()[19].key(), "key3");
  EXPECT_EQ(dictionary.find("key3")->boolean(), true);
}

TEST(Dictionary, KeyThatIsNotTextIsRefusedAndChangesNothing) {
  Dictionary dictionary = numbered(2);
  EXPECT_THROW(dictionary.set("\xFF", Value(true)), std::invalid_argument);
  EXPECT_EQ(dictionary, numbered(2));
}

TEST(Dictionary, RoomThatIsMadeChangesNothing) {
  Dictionary dictionary = numbered(3);
  const Dictionary before = dictionary;
  dictionary.reserve(1000);
  EXPECT_EQ(dictionary, before);
  dictionary.set("key1000", Value(true));
  EXPECT_EQ(keysOf(dictionary), (std::vector<std::string>{"key0", "key1", "key2", "key1000"}));
  EXPECT_EQ(*dictionary.find("key1"), Value::integer(1));
}

TEST(Dictionary, EqualInAnyOrder) {
  Dictionary one;
  one.set("a", Value(true));
  one.set("b", Value(false));
  Dictionary other;
  other.set("b", Value(false));
  other.set("a", Value(true));
  EXPECT_EQ(one, other);
  other.set("a", Value(false));
  EXPECT_FALSE(one == other);
}

TEST(Dictionary, UnequalWhenAKeyDiffers) {
  Dictionary one;
  one.set("a", Value(true));
  Dictionary other;
  other.set("b", Value(true));
  EXPECT_FALSE(one == other);
  EXPECT_FALSE(one == Dictionary());
}

TEST(Dictionary, CopyKeepsItsEntriesWhenTheOriginalChanges) {
  Dictionary original = numbered(20);
  const Dictionary copy = original;
  original.set("key0", Value::string("changed"));
  original.erase("key1");
  EXPECT_EQ(copy, numbered(20));
}

TEST(Dictionary, ChangesThroughTheValueThatHoldsIt) {
  Value value{Dictionary()};
  value.dictionary()->set("a", Value::integer(75));
  const Value copy = value;
  value.dictionary()->set("a", Value::integer(76));
  EXPECT_EQ(copy.dictionary()->find("a")->integer(), 75);
  EXPECT_EQ(value.dictionary()->find("a")->integer(), 76);
}

TEST(Dictionary, MayHoldACopyOfItself) {
  Dictionary dictionary = numbered(2);
  dictionary.set("self", Value(dictionary));
  EXPECT_EQ(*dictionary.find("self")->dictionary(), numbered(2));
}

TEST(Array, AppendsInsertsSetsAndErases) {
  Array array;
  array.append(Value::integer(1));
  array.append(Value::integer(3));
  array.insert(1, Value::integer(2));
  array.set(0, Value::integer(0));
  array.erase(2);
  ASSERT_EQ(array.size(), 2U);
  EXPECT_EQ(array[0].integer(), 0);
  EXPECT_EQ(array[1].integer(), 2);
}

TEST(Array, ErasesManyAtOnceFromItselfAndNotFromACopy) {
  Array array;
  for (int i = 0; i < 6; ++i) array.append(Value::integer(i));
  const auto isOdd = [](const Value& value) { return *value.integer() % 2 == 1; };
  const Array copy = array;
  for (const bool shared : {true, false}) {
    EXPECT_EQ(array.size(), shared ? 6U : 3U);
    array.eraseIf(isOdd);
    ASSERT_EQ(array.size(), 3U);
    array.append(Value::integer(7));
    array.eraseIf(isOdd);
    EXPECT_EQ(array[2].integer(), 4);
  }
  EXPECT_EQ(copy.size(), 6U);
  array.eraseIf([](const Value&) { return true; });
  EXPECT_EQ(array, Array());
}

TEST(Array, OrderCounts) {
  Array one;
  one.append(Value(true));
  one.append(Value(false));
  Array other;
  other.append(Value(false));
  other.append(Value(true));
  EXPECT_FALSE(one == other);
  EXPECT_EQ(one, Array(one));
  EXPECT_FALSE(one == Array());
}

TEST(Array, EmptiedArrayEqualsANewOne) {
  Array array;
  array.append(Value(true));
  array.erase(0);
  EXPECT_EQ(array, Array());
  EXPECT_TRUE(array.empty());
}

TEST(Array, CopyKeepsItsElementsWhenTheOriginalChanges) {
  Array original;
  original.append(Value::integer(1));
  const Array copy = original;
  original.set(0, Value::integer(2));
  EXPECT_EQ(copy[0].integer(), 1);
}

TEST(Array, AssignedIsTheOtherAndIndependentOfIt) {
  Array one;
  one.append(Value(true));
  Array other;
  other = one;
  EXPECT_EQ(other, one);
  other.append(Value(false));
  EXPECT_EQ(one.size(), 1U);
}

TEST(Dictionary, ErasedKeyIsGoneFromFewAndFromMany) {
  for (const int count : {3, 300}) {
    Dictionary dictionary = numbered(count);
    EXPECT_TRUE(dictionary.erase("key1"));
    EXPECT_FALSE(dictionary.contains("key1"));
    EXPECT_TRUE(dictionary.contains("key2"));
  }
}

}  // namespace
}  // namespace plist
