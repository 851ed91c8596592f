#include <gtest/gtest.h>
#include <new>

#include "plist/Document.h"
#include "plist/PlainBinary.h"
#include "tests/plist/Allocation.h"
#include "tests/plist/Build.h"
#include "tests/plist/Random.h"

namespace plist {
namespace {

/// Denies each allocation of `work` in turn: it has to throw std::bad_alloc, and to leave nothing
/// behind, until none is denied any more.
template <typename Work>
void denyEach(Work&& work) {
  const std::size_t before = allocation::inUse();
  for (std::size_t passed = 0;; ++passed) {
    ASSERT_LT(passed, 100'000U);
    bool threw = false;
    allocation::denyAfter(passed);
    try {
      work();
    } catch (const std::bad_alloc&) {
      threw = true;
    }
    const bool denied = allocation::endDenial();
    ASSERT_EQ(threw, denied) << "after " << passed;
    ASSERT_EQ(allocation::inUse(), before) << "after " << passed;
    if (!denied) break;
  }
}

Value sample() {
  std::mt19937_64 random(7);
  const samples::Variety carried = {
      .singleReals = false, .anyDates = false, .anyText = false, .uids = false};
  Array trees;
  for (int i = 0; i < 8; ++i) trees.append(samples::randomTree(random, carried));
  return Value(trees);
}

TEST(DeniedMemory, ReadingBinaryIsWholeOrNothing) {
  const Value value = sample();
  const std::string file = writeBinary(value);
  denyEach([&] { EXPECT_TRUE(read(file).root == value); });
}

TEST(DeniedMemory, ChangingAFileIsWholeOrNothing) {
  Dictionary all;
  all.set("trees", sample());
  all.set("name", Value::string("aurora"));
  const std::string file = writeBinary(Value(all));
  const Value longer = Value::string(std::string(100, 'x'));
  denyEach([&] {
    std::string bytes = file;
    auto plain = PlainBinary::in(bytes);
    try {
      EXPECT_TRUE(plain->set("name", longer));
    } catch (const std::bad_alloc&) {
      EXPECT_TRUE(plain->bytes() == file);
      throw;
    }
    EXPECT_TRUE(plain->find("name") == longer);
    EXPECT_TRUE(plain->find("trees") == *all.find("trees"));
  });
}

TEST(DeniedMemory, ReadingXmlIsWholeOrNothing) {
  const Value value = sample();
  const std::string file = writeXml(value).value();
  denyEach([&] { EXPECT_TRUE(read(file).root == value); });
}

TEST(DeniedMemory, ReadingLongAttributesIsWholeOrNothing) {
  const std::string file = "<plist version=\"" + std::string(5000, '1') + "\"><true/></plist>";
  denyEach([&] { EXPECT_TRUE(read(file).root == Value(true)); });
}

TEST(DeniedMemory, RefusingIsStillARefusalOrBadAlloc) {
  const std::string file =
      samples::xmlFile("<array><string>a</string><integer>x</integer></array>");
  denyEach([&] {
    try {
      read(file);
      ADD_FAILURE();
    } catch (const Unreadable&) {
    }
  });
}

TEST(DeniedMemory, WritingIsWholeOrNothing) {
  const Value value = sample();
  const std::string binary = writeBinary(value);
  const std::string xml = writeXml(value).value();
  denyEach([&] { EXPECT_TRUE(writeBinary(value) == binary); });
  denyEach([&] { EXPECT_TRUE(writeXml(value) == xml); });
  denyEach([&] { EXPECT_TRUE(write(value, Form::Xml) == xml); });
}

TEST(DeniedMemory, SettingAKeyChangesAllOrNothing) {
  Dictionary original;
  for (int i = 0; i < 16; ++i) original.set("key" + std::to_string(i), Value::integer(i));
  denyEach([&] {
    Dictionary changed = original;
    try {
      changed.set("a key that is new and long enough to be allocated", Value(true));
    } catch (const std::bad_alloc&) {
      if (changed.size() != original.size() || changed.find("key3") == nullptr) std::abort();
      throw;
    }
    EXPECT_EQ(changed.size(), 17U);
  });
}

TEST(DeniedMemory, AppendingChangesAllOrNothing) {
  Array original;
  original.append(Value(true));
  denyEach([&] {
    Array changed = original;
    try {
      changed.append(Value(false));
    } catch (const std::bad_alloc&) {
      if (changed.size() != 1) std::abort();
      throw;
    }
    EXPECT_EQ(changed.size(), 2U);
  });
}

}  // namespace
}  // namespace plist
