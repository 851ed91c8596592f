#include <gtest/gtest.h>

#include "plist/PlainBinary.h"
#include "tests/plist/Build.h"
#include "tests/plist/RandomTree.h"

namespace plist {
namespace {

using samples::binaryFile;
using samples::hex;
using samples::RandomTree;

/// The file, if it is taken: it is looked into without being read.
std::optional<PlainBinary> taken(std::string bytes, const Limits& limits = {}) {
  return PlainBinary::in(bytes, limits);
}

Dictionary settings() {
  Dictionary all;
  all.set("size", Value::integer(75));
  all.set("name", Value::string("aurora"));
  all.set("größe", Value::real(0.5));
  all.set("on", Value(true));
  all.set("names", samples::nestedArrays(3));
  return all;
}

std::string fileOf(const Dictionary& all) { return writeBinary(Value(all)); }

TEST(PlainBinary, FindsWhatIsRead) {
  const auto plain = taken(fileOf(settings()));
  ASSERT_TRUE(plain);
  for (const auto& entry : settings()) EXPECT_EQ(plain->find(entry.key()), entry.value());
  EXPECT_FALSE(plain->find("none"));
  EXPECT_FALSE(plain->find(""));
  EXPECT_EQ(plain->dictionary(), settings());
}

TEST(PlainBinary, FindsNothingInAnEmptyDictionary) {
  auto plain = taken(fileOf({}));
  ASSERT_TRUE(plain);
  EXPECT_FALSE(plain->find("size"));
  EXPECT_FALSE(plain->set("size", Value(true)));
  EXPECT_TRUE(plain->dictionary().empty());
}

TEST(PlainBinary, TakesTheBytesOnlyIfItCanUseThem) {
  std::string bytes = fileOf(settings());
  EXPECT_TRUE(PlainBinary::in(bytes));
  EXPECT_TRUE(bytes.empty());
  std::string other = writeBinary(samples::nestedArrays(2));
  const std::string before = other;
  EXPECT_FALSE(PlainBinary::in(other));
  EXPECT_EQ(other, before);
}

/// What is written over anything of another size stays a file that is written like any other.
TEST(PlainBinary, ChangesTheFileAsWritingItAnewDoes) {
  const Value values[] = {Value::integer(-1),        Value::integer(3),     Value(false),
                          Value::string("ü€😀"),      Value::string(""),     Value::data("bytes"),
                          Value::real(1.5F),         Value::real(-0.0),     Value::date(1),
                          Value::uid(70'000),        Value::integer(~0ULL), Value::integer(300),
                          Value::string("of eleven")};
  for (const char* const key : {"size", "name", "größe", "on"}) {
    Dictionary all = settings();
    auto plain = taken(fileOf(all));
    for (const Value& value : values) {
      all.set(key, value);
      ASSERT_TRUE(plain->set(key, value));
      ASSERT_EQ(plain->bytes(), fileOf(all));
      ASSERT_EQ(plain->find(key), value);
    }
  }
}

TEST(PlainBinary, LeavesWhatTakesMoreThanOneValue) {
  auto plain = taken(fileOf(settings()));
  EXPECT_FALSE(plain->set("new", Value(true)));
  EXPECT_FALSE(plain->set("names", Value(true)));
  EXPECT_FALSE(plain->set("size", Value(Array())));
  EXPECT_FALSE(plain->set("size", Value(Dictionary())));
  EXPECT_EQ(plain->bytes(), fileOf(settings()));
}

/// Offsets of one byte reach 255, those of two 65,535: beyond, the whole table is another.
TEST(PlainBinary, LeavesWhatItsOffsetsDoNotReach) {
  for (const std::size_t reach : {0xFFU, 0xFFFFU}) {
    Dictionary all = settings();
    std::string name(reach - fileOf(all).size(), 'x');
    all.set("name", Value::data(name));
    auto plain = taken(fileOf(all));
    while (plain->set("name", Value::data(name += 'x'))) {
      all.set("name", Value::data(name));
      ASSERT_EQ(plain->bytes(), fileOf(all));
    }
    EXPECT_EQ(plain->bytes(), fileOf(all));
    const auto offsetSize = [](const std::string& file) { return file[file.size() - 32 + 6]; };
    all.set("name", Value::data(name));
    EXPECT_EQ(offsetSize(fileOf(all)), 2 * offsetSize(plain->bytes()));
  }
}

TEST(PlainBinary, KeepsWithinTheLimits) {
  const std::string file = fileOf(settings());
  const auto size = static_cast<std::uint32_t>(file.size());
  EXPECT_TRUE(taken(file, {.bytes = size}));
  EXPECT_FALSE(taken(file, {.bytes = size - 1}));
  EXPECT_TRUE(taken(file, {.depth = 4}));
  EXPECT_FALSE(taken(file, {.depth = 3}));
  EXPECT_TRUE(taken(file, {.nodes = 13}));
  EXPECT_FALSE(taken(file, {.nodes = 12}));
  EXPECT_FALSE(taken(file, {.text = size}));  // all of it might be UTF-16
  auto plain = taken(file, {.bytes = size});
  EXPECT_TRUE(plain->set("size", Value::integer(76)));
  EXPECT_FALSE(plain->set("size", Value::integer(300)));
}

struct Layout {
  const char* name;
  std::vector<std::string> objects;
};

void PrintTo(const Layout& layout, std::ostream* out) { *out << layout.name; }

class OtherLayout : public testing::TestWithParam<Layout> {};

TEST_P(OtherLayout, IsLeftToTheReader) {
  std::string file = binaryFile(GetParam().objects);
  EXPECT_FALSE(PlainBinary::in(file));
  EXPECT_FALSE(file.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, OtherLayout,
    testing::Values(
        Layout{"Array", {hex("A1 01"), hex("09")}}, Layout{"Text", {hex("51 61")}},
        Layout{"ValuesBeforeKeys", {hex("D1 02 01"), hex("09"), hex("51 61")}},
        Layout{"SharedValue", {hex("D2 01 02 03 03"), hex("51 61"), hex("51 62"), hex("51 63")}},
        Layout{"KeyAsItsValue", {hex("D1 01 01"), hex("51 61")}},
        Layout{"UnusedObject", {hex("D1 01 02"), hex("51 61"), hex("09"), hex("09")}},
        Layout{"UnusedObjectBetween", {hex("D1 01 03"), hex("51 61"), hex("09"), hex("09")}},
        Layout{"UnusedContainerOfItself", {hex("D0"), hex("A1 01")}},
        Layout{"DepthBeforeBreadth",
               {hex("D2 01 02 03 05"), hex("51 61"), hex("51 62"), hex("A1 04"), hex("09"),
                hex("A0")}},
        Layout{"KeyThatIsAnInteger", {hex("D1 01 02"), hex("10 01"), hex("09")}},
        Layout{"InnerKeyThatIsAnInteger",
               {hex("D1 01 02"), hex("51 61"), hex("D1 03 04"), hex("10 01"), hex("09")}},
        Layout{"AsciiWithHighByte", {hex("D1 01 02"), hex("51 80"), hex("09")}},
        Layout{"LongAsciiWithHighByte", {hex("D1 01 02"), hex("5F 10 01 80"), hex("09")}},
        Layout{"Null", {hex("D1 01 02"), hex("51 61"), hex("00")}},
        Layout{"InItself", {hex("D1 01 00"), hex("51 61")}}),
    [](const auto& test) { return test.param.name; });

TEST(PlainBinary, LeavesObjectsWithSomethingBetween) {
  std::string file = binaryFile({hex("D1 01 02"), hex("51 61 FF"), hex("09")});
  EXPECT_NO_THROW(read(file));
  EXPECT_FALSE(taken(file));
  file = binaryFile({hex("D1 01 02"), hex("51 61"), hex("09 FF")});
  EXPECT_NO_THROW(read(file));
  EXPECT_FALSE(taken(file));
}

TEST(PlainBinary, OfRepeatedKeysTheFirstCounts) {
  auto plain = taken(
      binaryFile({hex("D2 01 02 03 04"), hex("51 61"), hex("51 61"), hex("10 07"), hex("10 08")}));
  ASSERT_TRUE(plain);
  EXPECT_EQ(plain->find("a"), Value::integer(7));
  EXPECT_TRUE(plain->set("a", Value::integer(9)));
  EXPECT_EQ(plain->find("a"), Value::integer(9));
  EXPECT_EQ(*plain->dictionary().find("a"), Value::integer(9));
  EXPECT_EQ(plain->dictionary().size(), 1U);
}

TEST_F(RandomTree, IsChangedInItsFileAsInMemory) {
  std::size_t changes = 0;
  forEach({}, [&](const Value& tree) {
    if (tree.dictionary() == nullptr) return;
    Dictionary all = *tree.dictionary();
    auto plain = taken(fileOf(all));
    ASSERT_TRUE(plain);
    const Dictionary before = all;
    for (const auto& entry : before) {
      EXPECT_EQ(plain->find(entry.key()), entry.value());
      const Value& other = before.begin()->value();
      if (!plain->set(entry.key(), other)) continue;
      // Written anew it would share the bytes that here stand twice.
      all.set(entry.key(), other);
      EXPECT_EQ(read(plain->bytes()).root, Value(all));
      ++changes;
    }
  });
  EXPECT_GT(changes, 0U);
}

/// Whatever is taken can be read, and says the same.
TEST_F(RandomTree, DamagedFilesAreTakenOnlyWhereTheyAreRead) {
  std::size_t damagedAndTaken = 0;
  forEach({}, [&](const Value& tree) {
    std::mt19937_64 random(setting("QUILLMERE_SEED", 1));
    std::string file = writeBinary(tree);
    for (int i = 0; i < 20; ++i) {
      file[random() % file.size()] = static_cast<char>(random());
      const auto plain = taken(file);
      if (!plain) continue;
      ++damagedAndTaken;
      Value root(false);
      ASSERT_NO_THROW(root = read(file).root);
      ASSERT_NE(root.dictionary(), nullptr);
      for (const auto& entry : *root.dictionary()) {
        EXPECT_EQ(plain->find(entry.key()), entry.value());
      }
    }
  });
  EXPECT_GT(damagedAndTaken, 0U);
}

}  // namespace
}  // namespace plist
