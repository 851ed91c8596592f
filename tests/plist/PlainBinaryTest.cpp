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
  for (const char* const key : {"none", ""}) {
    EXPECT_FALSE(plain->find(key));
    EXPECT_FALSE(plain->holds(key, Value(true)));
  }
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

Value list(std::initializer_list<Value> elements) {
  Array array;
  for (const Value& element : elements) array.append(element);
  return Value(array);
}

/// Lists of texts are compared where they stand, all others once they are read.
TEST(PlainBinary, TellsWhatItHolds) {
  const Value values[] = {
      list({}),
      list({Value::string("a"), Value::string("ü")}),
      list({Value::string("a"), Value::string("u")}),
      list({Value::string("a"), Value::data("u")}),
      list({Value::string("a"), list({Value::string("u")})}),
      list({Value::string("a")}),
      Value::string("a"),
      Value::integer(1),
      Value::real(1.0F),
      Value::real(1.0),
      Value(settings()),
  };
  for (const Value& held : values) {
    Dictionary all = settings();
    all.set("list", held);
    const auto plain = taken(fileOf(all));
    for (const Value& other : values) {
      EXPECT_EQ(plain->holds("list", other), &held == &other);
    }
  }
}

TEST(PlainBinary, IsReadWithoutWhatIsReplaced) {
  const auto plain = taken(fileOf(settings()));
  for (const char* const key : {"size", "größe", "names", "new"}) {
    Dictionary all = settings();
    all.set(key, list({Value::string("other")}));
    EXPECT_EQ(fileOf(plain->with(key, list({Value::string("other")}))), fileOf(all));
  }
  EXPECT_EQ(plain->bytes(), fileOf(settings()));
  const auto empty = taken(fileOf({}));
  EXPECT_EQ(*empty->with("new", Value(true)).find("new"), Value(true));
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
      EXPECT_TRUE(plain->holds(entry.key(), entry.value()));
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
        EXPECT_TRUE(plain->holds(entry.key(), entry.value()));
        Dictionary other = *root.dictionary();
        other.set(entry.key(), Value(true));
        EXPECT_EQ(plain->with(entry.key(), Value(true)), other);
      }
    }
  });
  EXPECT_GT(damagedAndTaken, 0U);
}

}  // namespace
}  // namespace plist
