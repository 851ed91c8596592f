#include <gtest/gtest.h>

#include "plist/Document.h"
#include "tests/plist/Build.h"

namespace plist {
namespace {

using samples::bigEndian;
using samples::binaryFile;
using samples::hex;

/// Arrays each of which holds the next one twice: `levels` of them stand for 2^levels values.
std::string doubling(int levels) {
  std::vector<std::string> objects;
  for (int i = 1; i <= levels; ++i) objects.push_back("\xA2" + std::string(2, char(i)));
  objects.push_back(hex("09"));
  return binaryFile(objects);
}

std::string arrayOf(std::size_t count) {
  return hex("AF 12") + bigEndian(count, 4) + std::string(count, '\1');
}

TEST(BinaryLimit, SmallFileThatStandsForManyValuesIsUnreadable) {
  const std::string bomb = doubling(30);
  EXPECT_LT(bomb.size(), 300U);
  EXPECT_THROW(read(bomb), Unreadable);
}

TEST(BinaryLimit, SharedValuesCountAtEachPlace) {
  // 2 + 4 + ... + 1024 below the root.
  EXPECT_NO_THROW(read(doubling(10), {.nodes = 2047}));
  EXPECT_THROW(read(doubling(10), {.nodes = 2046}), Unreadable);
}

TEST(BinaryLimit, KeysCountAsWell) {
  const std::string file = binaryFile({hex("D1 01 02"), hex("51 61"), hex("09")});
  EXPECT_NO_THROW(read(file, {.nodes = 3}));
  EXPECT_THROW(read(file, {.nodes = 2}), Unreadable);
}

TEST(BinaryLimit, WideContainerIsRefusedBeforeItIsBuilt) {
  EXPECT_NO_THROW(read(binaryFile({arrayOf(249'999), hex("09")})));
  EXPECT_THROW(read(binaryFile({arrayOf(250'000), hex("09")})), Unreadable);
}

TEST(BinaryLimit, InputAboveTheBoundIsUnreadable) {
  const std::string file = binaryFile({hex("09")});
  EXPECT_NO_THROW(read(file, {.bytes = static_cast<std::uint32_t>(file.size())}));
  EXPECT_THROW(read(file, {.bytes = static_cast<std::uint32_t>(file.size() - 1)}), Unreadable);
}

TEST(BinaryLimit, HundredMegabytesAreUnreadable) {
  std::string file = binaryFile({hex("4F 12 06000000") + std::string(0x6000000, 'x')});
  EXPECT_THROW(read(std::move(file)), Unreadable);
}

TEST(BinaryLimit, SharedTextCountsWhereverItShows) {
  const std::string text = hex("54") + "text";
  const std::string wide = hex("62 4E00 4E01");  // of 6 bytes in UTF-8
  const std::string data = hex("44") + "data";
  for (const auto& [object, bytes] : {std::pair(text, 4U), {wide, 6U}, {data, 4U}}) {
    for (const std::string& file : {binaryFile({arrayOf(3), object}),
                                    binaryFile({hex("A3 01 01 01"), hex("A1 02"), object})}) {
      EXPECT_NO_THROW(read(file, {.text = 3 * bytes}));
      EXPECT_THROW(read(file, {.text = 3 * bytes - 1}), Unreadable);
    }
  }
}

TEST(BinaryLimit, SharedKeysCountAsText) {
  const std::string file = binaryFile(
      {hex("A2 01 02"), hex("D1 03 04"), hex("D1 03 04"), hex("54") + "text", hex("09")});
  EXPECT_NO_THROW(read(file, {.text = 8}));
  EXPECT_THROW(read(file, {.text = 7}), Unreadable);
}

TEST(BinaryLimit, MegabytesSharedByThousandsAreUnreadable) {
  const std::string text = hex("5F 12 00100000") + std::string(1 << 20, 'x');
  EXPECT_NO_THROW(read(binaryFile({arrayOf(16), text})));
  EXPECT_THROW(read(binaryFile({arrayOf(17), text})), Unreadable);
}

TEST(BinaryLimit, SharedTextIsLookedAtOnce) {
  // 240,000 times a megabyte would take minutes to look at.
  const std::string text = hex("5F 12 00100000") + std::string(1 << 20, 'x');
  const Document document = read(binaryFile({arrayOf(240'000), text}), {.text = 240'000ULL << 20});
  EXPECT_EQ(document.root.array()->size(), 240'000U);
}

}  // namespace
}  // namespace plist
