#include <bit>
#include <gtest/gtest.h>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

using samples::binaryFile;
using samples::hex;

Value readOne(const std::string& object) { return read(binaryFile({object})).root; }

TEST(BinaryValue, FormIsToldByContent) {
  EXPECT_EQ(read(binaryFile({hex("09")})).form, Form::Binary);
}

TEST(BinaryValue, Booleans) {
  EXPECT_EQ(readOne(hex("08")), Value(false));
  EXPECT_EQ(readOne(hex("09")), Value(true));
}

TEST(BinaryValue, NarrowIntegersAreUnsigned) {
  EXPECT_EQ(readOne(hex("10 FF")), Value::integer(255));
  EXPECT_EQ(readOne(hex("11 FFFF")), Value::integer(65535));
  EXPECT_EQ(readOne(hex("12 FFFFFFFF")), Value::integer(4294967295));
}

TEST(BinaryValue, EightByteIntegersAreSigned) {
  EXPECT_EQ(readOne(hex("13 FFFFFFFFFFFFFFFF")), Value::integer(-1));
  EXPECT_EQ(readOne(hex("13 8000000000000000")), Value::integer(INT64_MIN));
}

TEST(BinaryValue, SixteenByteIntegersInRange) {
  EXPECT_EQ(readOne(hex("14 0000000000000000 FFFFFFFFFFFFFFFF")), Value::integer(UINT64_MAX));
  EXPECT_EQ(readOne(hex("14 FFFFFFFFFFFFFFFF 8000000000000000")), Value::integer(INT64_MIN));
}

TEST(BinaryValue, RealsOfEitherWidth) {
  EXPECT_EQ(readOne(hex("22 3FC00000")), Value::real(1.5F));
  EXPECT_EQ(readOne(hex("23 3FF8000000000000")), Value::real(1.5));
}

TEST(BinaryValue, RealsKeepEveryBit) {
  EXPECT_EQ(readOne(hex("23 FFF0000000000001")),
            Value::real(std::bit_cast<double>(0xFFF0'0000'0000'0001)));
  EXPECT_EQ(readOne(hex("22 7F800001")), Value::real(std::bit_cast<float>(0x7F80'0001)));
  EXPECT_EQ(readOne(hex("23 8000000000000000")), Value::real(-0.0));
}

TEST(BinaryValue, DatesKeepFractionsAndEveryBit) {
  EXPECT_EQ(readOne(hex("33 3FF8000000000000")), Value::date(1.5));
  EXPECT_EQ(readOne(hex("33 7FF0000000000000")),
            Value::date(std::bit_cast<double>(0x7FF0'0000'0000'0000)));
}

TEST(BinaryValue, AsciiText) {
  EXPECT_EQ(readOne(hex("50")), Value::string(""));
  EXPECT_EQ(readOne("\x53"
                    "a" +
                    std::string(1, '\0') + "b"),
            Value::string(std::string_view("a\0b", 3)));
}

TEST(BinaryValue, LongTextHasItsLengthAfterTheMarker) {
  const std::string text(300, 'x');
  EXPECT_EQ(readOne(hex("5F 11 012C") + text), Value::string(text));
  EXPECT_EQ(readOne(hex("5F 13 000000000000012C") + text), Value::string(text));
}

TEST(BinaryValue, Utf16Text) {
  EXPECT_EQ(readOne(hex("61 00E4")), Value::string("\xC3\xA4"));
  EXPECT_EQ(readOne(hex("62 D83D DE00")), Value::string("\xF0\x9F\x98\x80"));
}

TEST(BinaryValue, LoneSurrogatesSurvive) {
  EXPECT_EQ(readOne(hex("61 D83D")), Value::string("\xED\xA0\xBD"));
  EXPECT_EQ(readOne(hex("62 DE00 D83D")), Value::string("\xED\xB8\x80\xED\xA0\xBD"));
  EXPECT_EQ(readOne(hex("62 D83D 0041")), Value::string("\xED\xA0\xBD"
                                                        "A"));
}

TEST(BinaryValue, Data) {
  EXPECT_EQ(readOne(hex("40")), Value::data(""));
  EXPECT_EQ(readOne(hex("42 00FF")), Value::data(hex("00FF")));
}

TEST(BinaryValue, UidsOfAnyWidth) {
  EXPECT_EQ(readOne(hex("80 07")), Value::uid(7));
  EXPECT_EQ(readOne(hex("83 FFFFFFFF")), Value::uid(UINT32_MAX));
  EXPECT_EQ(readOne(hex("8F 00000000000000000000000000000000")), Value::uid(0));
}

TEST(BinaryValue, ContainersInOrder) {
  Array array;
  array.append(Value(true));
  array.append(Value(false));
  EXPECT_EQ(read(binaryFile({hex("A2 01 02"), hex("09"), hex("08")})).root, Value(array));
  const Document document =
      read(binaryFile({hex("D2 01 02 03 03"), hex("51 62"), hex("51 61"), hex("09")}));
  EXPECT_EQ(document.root.dictionary()->begin()[0].key(), "b");
  EXPECT_EQ(document.root.dictionary()->begin()[1].key(), "a");
}

TEST(BinaryValue, FirstOfEqualKeysCounts) {
  const Document document =
      read(binaryFile({hex("D2 01 02 03 04"), hex("51 61"), hex("61 0061"), hex("09"), hex("08")}));
  EXPECT_EQ(document.root.dictionary()->size(), 1U);
  EXPECT_EQ(document.root.dictionary()->find("a")->boolean(), true);
}

TEST(BinaryValue, ContainerMayBeShared) {
  const Document document = read(binaryFile({hex("A2 01 01"), hex("A1 02"), hex("10 07")}));
  const Array& array = *document.root.array();
  EXPECT_EQ(array[0], array[1]);
  EXPECT_EQ((*array[0].array())[0].integer(), 7);
}

TEST(BinaryValue, ChangingOnePlaceOfASharedContainerLeavesTheOther) {
  Document document = read(binaryFile({hex("A2 01 01"), hex("A1 02"), hex("10 07")}));
  Value first = (*document.root.array())[0];
  first.array()->append(Value(true));
  document.root.array()->set(0, first);
  EXPECT_EQ((*document.root.array())[0].array()->size(), 2U);
  EXPECT_EQ((*document.root.array())[1].array()->size(), 1U);
}

TEST(BinaryValue, OddWidthsAreRead) {
  EXPECT_EQ(read(binaryFile({hex("09")}, {.offsetSize = 3})).root, Value(true));
  EXPECT_EQ(read(binaryFile({hex("09")}, {.offsetSize = 8})).root, Value(true));
  EXPECT_EQ(read(binaryFile({hex("A1 0000000001"), hex("09")}, {.referenceSize = 5}))
                .root.array()
                ->size(),
            1U);
}

TEST(BinaryValue, UnusedObjectsAreNotLookedAt) {
  EXPECT_EQ(read(binaryFile({hex("09"), hex("F0")})).root, Value(true));
}

TEST(BinaryValue, KeysMayShareTheirText) {
  // {a: {Ü: 1}, b: {Ü: 2}}; text that is converted is remembered.
  const Document document =
      read(binaryFile({hex("D2 01 02 03 06"), hex("51 61"), hex("51 62"), hex("D1 04 05"),
                       hex("61 00DC"), hex("10 01"), hex("D1 04 07"), hex("10 02")}));
  for (const auto& [outer, number] : {std::pair("a", 1), std::pair("b", 2)}) {
    const Value* inner = document.root.dictionary()->find(outer);
    ASSERT_TRUE(inner && inner->dictionary());
    EXPECT_EQ(*inner->dictionary()->find("Ü"), Value::integer(number));
  }
}

/// A dictionary of nine keys and, at its start, the last of them once more.
std::string repeating() {
  std::vector<std::string> objects{
      hex("DA 09 01 02 03 04 05 06 07 08 09"
          "   0A 0B 0C 0D 0E 0F 10 11 12 13")};
  for (char key = 'a'; key <= 'i'; ++key) objects.push_back(std::string("\x51") + key);
  for (char number = 0; number < 10; ++number) objects.push_back(std::string("\x10") + number);
  return binaryFile(objects);
}

TEST(BinaryValue, TheFirstOfRepeatedKeysCounts) {
  const Document document = read(repeating());
  const Dictionary* all = document.root.dictionary();
  ASSERT_TRUE(all);
  EXPECT_EQ(all->size(), 9U);
  EXPECT_EQ(*all->find("i"), Value::integer(0));
  EXPECT_EQ(*all->find("a"), Value::integer(1));
  EXPECT_EQ(*all->find("h"), Value::integer(8));
}

}  // namespace
}  // namespace plist
