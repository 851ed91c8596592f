#include <cmath>
#include <gtest/gtest.h>
#include <set>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

using samples::hex;

constexpr std::size_t kTrailer = 32;

/// The bytes of a file's only object.
std::string object(const Value& value) {
  const std::string file = writeBinary(value);
  EXPECT_TRUE(file.starts_with("bplist00"));
  return file.substr(8, file.size() - 8 - 1 - kTrailer);
}

TEST(WrittenBinary, IntegersOfTheLeastWidth) {
  EXPECT_EQ(object(Value::integer(0)), hex("10 00"));
  EXPECT_EQ(object(Value::integer(255)), hex("10 FF"));
  EXPECT_EQ(object(Value::integer(256)), hex("11 0100"));
  EXPECT_EQ(object(Value::integer(65536)), hex("12 00010000"));
  EXPECT_EQ(object(Value::integer(4294967296)), hex("13 0000000100000000"));
}

TEST(WrittenBinary, NegativeIntegersTake8BytesAndLargeOnes16) {
  EXPECT_EQ(object(Value::integer(-1)), hex("13 FFFFFFFFFFFFFFFF"));
  EXPECT_EQ(object(Value::integer(UINT64_MAX)), hex("14 0000000000000000 FFFFFFFFFFFFFFFF"));
}

TEST(WrittenBinary, OtherScalars) {
  EXPECT_EQ(object(Value(false)), hex("08"));
  EXPECT_EQ(object(Value(true)), hex("09"));
  EXPECT_EQ(object(Value::real(1.5F)), hex("22 3FC00000"));
  EXPECT_EQ(object(Value::real(-0.0)), hex("23 8000000000000000"));
  EXPECT_EQ(object(Value::date(1.5)), hex("33 3FF8000000000000"));
  EXPECT_EQ(object(Value::uid(7)), hex("80 07"));
  EXPECT_EQ(object(Value::uid(0x10000)), hex("83 00010000"));
  EXPECT_EQ(object(Value::data(hex("00FF"))), hex("42 00FF"));
}

TEST(WrittenBinary, TextIsAsciiWhereItCanBe) {
  EXPECT_EQ(object(Value::string("ab")), hex("52 6162"));
  EXPECT_EQ(object(Value::string("\xC3\xA4"
                                 "b")),
            hex("62 00E4 0062"));
  EXPECT_EQ(object(Value::string("\xF0\x9F\x98\x80")), hex("62 D83D DE00"));
  EXPECT_EQ(object(Value::string("\xED\xA0\xBD")), hex("61 D83D"));
}

TEST(WrittenBinary, LengthsFrom15StandAfterTheMarker) {
  EXPECT_EQ(object(Value::string(std::string(14, 'x'))), "\x5E" + std::string(14, 'x'));
  EXPECT_EQ(object(Value::string(std::string(15, 'x'))), hex("5F 10 0F") + std::string(15, 'x'));
}

TEST(WrittenBinary, TrailerAndTable) {
  Array array;
  array.append(Value(true));
  EXPECT_EQ(writeBinary(Value(array)),
            "bplist00" + hex("A1 01 09  08 0A  000000000000 01 01 0000000000000002"
                             "0000000000000000 000000000000000B"));
}

TEST(WrittenBinary, ReferencesGrowWhenObjectsReach256) {
  for (const int count : {253, 254, 255, 256, 65533, 65534, 65535}) {
    Array array;
    for (int i = 0; i < count; ++i) array.append(Value::integer(i));
    const std::string file = writeBinary(Value(array));
    const int objects = count + 1;
    EXPECT_EQ(file[file.size() - kTrailer + 7], objects < 256 ? 1 : objects < 65536 ? 2 : 4);
    EXPECT_EQ(read(file).root, Value(array)) << count;
  }
}

TEST(WrittenBinary, OffsetsGrowWhenTheTableStandsBeyondThem) {
  // Magic, first byte and length take 8 + 1 + 2 and 8 + 1 + 3 bytes.
  const auto offsetSize = [](std::size_t size) {
    const Value data = Value::data(std::string(size, 'x'));
    const std::string file = writeBinary(data);
    EXPECT_EQ(read(file).root, data) << size;
    return int{file[file.size() - kTrailer + 6]};
  };
  EXPECT_EQ(offsetSize(255 - 11), 1);
  EXPECT_EQ(offsetSize(256 - 11), 2);
  EXPECT_EQ(offsetSize(65535 - 12), 2);
  EXPECT_EQ(offsetSize(65536 - 12), 4);
}

TEST(WrittenBinary, TextSharedInMemoryIsSharedInTheFile) {
  const Value text = Value::string(std::string(1000, 'x'));
  Array array;
  for (int i = 0; i < 100; ++i) array.append(text);
  EXPECT_LT(writeBinary(Value(array)).size(), 1400U);
}

// Arrays of references to "a", "", "bb" and data, in every order in which three come, the same one
// more than once as well: each stands in the file once, as it does in the one that was read.
TEST(WrittenBinary, TextOfOneFileIsSharedInWhateverOrderItComes) {
  for (char first = 1; first <= 4; ++first) {
    for (char second = 1; second <= 4; ++second) {
      for (char third = 1; third <= 4; ++third) {
        const std::string file =
            samples::binaryFile({"\xA4" + std::string{first, second, third, first},
                                 "\x51"
                                 "a",
                                 "\x50",
                                 "\x52"
                                 "bb",
                                 "\x41"
                                 "c"});
        const std::size_t unused = 4 - std::set{first, second, third}.size();
        const Value root = read(file).root;
        const std::string written = writeBinary(root);
        EXPECT_EQ(read(written).root, root);
        EXPECT_LE(written.size() + 2 * unused, file.size()) << +first << +second << +third;
      }
    }
  }
}

// A change leaves the text of the file in order, but for one that comes from elsewhere.
TEST(WrittenBinary, ChangedTextIsSharedWithItselfAndNothingElse) {
  Document document = read(samples::binaryFile({"\xA2\1\2",
                                                "\x51"
                                                "a",
                                                "\x51"
                                                "b"}));
  const Value added = Value::string("c");
  Array& array = *document.root.array();
  for (int i = 0; i < 3; ++i) array.append(added);
  const std::string written = writeBinary(document.root);
  EXPECT_EQ(read(written).root, document.root);
  EXPECT_EQ(written.size(), 8 + 6 + 3 * 2 + 4 + 32U);
}

TEST(WrittenBinary, ContainersSharedInMemoryAreSharedInTheFile) {
  // Pairs of the same pair: a few bytes each stand for 2^16 values.
  std::vector<std::string> objects = {hex("A1 01")};
  for (char next = 2; next <= 17; ++next) objects.push_back("\xA2" + std::string(2, next));
  objects.push_back(hex("09"));
  const std::string file = samples::binaryFile(objects, {.offsetSize = 1});
  Document document = read(file);
  document.root.array()->append(Value(true));
  const std::string written = writeBinary(document.root);
  // A reference, and twice an object with its offset: booleans are written at each place.
  EXPECT_LE(written.size(), file.size() + 5);
  EXPECT_EQ(read(written).root, document.root);
}

TEST(WrittenBinary, DictionariesSharedInMemoryAreSharedInTheFile) {
  Dictionary dictionary;
  for (int i = 0; i < 100; ++i) dictionary.set(std::to_string(i), Value::integer(i));
  Array array;
  for (int i = 0; i < 100; ++i) array.append(Value(dictionary));
  const std::string written = writeBinary(Value(array));
  EXPECT_LT(written.size(), 1500U);
  EXPECT_EQ(read(written).root, Value(array));
}

TEST(WrittenBinary, ContainersThatPartedStayApart) {
  Array inner;
  inner.append(Value(true));
  Array outer;
  outer.append(Value(inner));
  inner.append(Value(false));
  outer.append(Value(inner));
  outer.append(Value(Dictionary()));
  outer.append(Value(Array()));
  EXPECT_EQ(read(writeBinary(Value(outer))).root, Value(outer));
}

TEST(WrittenBinary, FileDoesNotGrowByBeingReadAndWritten) {
  std::string file = samples::binaryFile(
      {"\xA3\x01\x01\x02", hex("5F 10 10") + std::string(16, 'k'), "\xD1\x01\x01"},
      {.offsetSize = 1});
  EXPECT_EQ(writeBinary(read(file).root).size(), file.size());
}

TEST(WrittenBinary, EqualTextAndDataStayApart) {
  const Document document = read(samples::binaryFile({"\xA2\x01\x02", hex("51 61"), hex("41 61")}));
  EXPECT_EQ(read(writeBinary(document.root)).root, document.root);
}

TEST(WrittenBinary, SameValueGivesTheSameBytes) {
  Dictionary dictionary;
  for (int i = 0; i < 100; ++i) dictionary.set("key" + std::to_string(i), Value::integer(i % 7));
  EXPECT_EQ(writeBinary(Value(dictionary)), writeBinary(read(writeBinary(Value(dictionary))).root));
}

}  // namespace
}  // namespace plist
